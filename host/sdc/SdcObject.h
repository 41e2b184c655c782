// An object a constraint names, kept with its full name so that the store
// can find it again after the netlist changed (the pointer is not used
// before the store has checked the database's change generation).
#pragma once

#include <string>

#include "query/ObjectRef.h"

namespace sta::sdc {

struct SdcObject {
  query::ObjectRef ref;
  std::string name;

  static SdcObject Of(const query::ObjectRef& ref) { return SdcObject{ref, query::FullName(ref)}; }
  bool operator==(const SdcObject& other) const { return ref == other.ref; }
};

}  // namespace sta::sdc
