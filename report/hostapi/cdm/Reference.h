// What a cell instantiates: a library cell or a design (module).
#pragma once

#include <string>

#include "hostapi/cdm/Object.h"

namespace cdm {

class Reference : public Object {
 public:
  using Object::Object;
  virtual bool IsDesign() const = 0;
  virtual bool IsLibRef() const = 0;
  virtual std::string GetRefText() const { return Name(); }
};

// Orders references by name.
struct RefNameComparer {
  bool operator()(const Reference* a, const Reference* b) const {
    return a->GetRefText() < b->GetRefText();
  }
};

}  // namespace cdm
