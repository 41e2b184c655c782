// Attributes of database objects, kept beside them by address: most
// objects (pins above all) have none, so none pays for a pointer.
#pragma once

#include <vector>

#include "hostapi/cdm/Object.h"

namespace cdm {

class AttributeStore {
 public:
  // The attributes of `object`, null when it has none.
  static const std::vector<Attribute>* Find(const Object* object);
  // The attributes of `object`, made empty on first use.
  static std::vector<Attribute>& Get(const Object* object);
  // Forgets an object that goes away.
  static void Erase(const Object* object);
};

}  // namespace cdm
