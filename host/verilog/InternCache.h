// The names an instance statement repeats (its reference and the ports it
// connects) are a handful across a whole netlist: a small cache in front of
// the root's table of names spares nearly every look-up there.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "hostapi/cdm/Root.h"

namespace verilog {

class InternCache {
 public:
  explicit InternCache(cdm::Root* root) : root_(root) {}

  const std::string* Intern(std::string_view name) {
    const std::string*& slot = slots_[Slot(name)];
    if (!slot || *slot != name) slot = root_->Intern(name);
    return slot;
  }

 private:
  static constexpr size_t kSlots = 256;

  // Cheap and good enough: names that meet in a slot only cost a look-up.
  static size_t Slot(std::string_view name) {
    if (name.empty()) return 0;
    const auto at = [&](size_t i) { return static_cast<unsigned char>(name[i]); };
    return (name.size() * 31 + at(name.size() - 1) * 7 + at(name.size() / 2) * 3 + at(0)) &
           (kSlots - 1);
  }

  cdm::Root* root_;
  std::array<const std::string*, kSlots> slots_{};
};

}  // namespace verilog
