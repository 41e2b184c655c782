// The nets of a netlist named as bits of a vector, "base[i]", found by the
// base and a range of indices: a reader that names a whole vector at once
// (a VCD variable may declare a million bits) pays for the bits the
// netlist has, not for a look-up of every bit it names.
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace cdm {
class Netlist;
}

namespace power {

class BusBits {
 public:
  struct Bit {
    std::string_view base;
    int64_t index;
    uint32_t net;  // index of the net in the netlist and its copies
  };

  // The names are those `Netlist::FindNet` finds (cdm::ForEachNetName), where the index is written
  // as a bit's index is named: an optional '-', digits, no leading zero.
  explicit BusBits(const cdm::Netlist& netlist);

  // The bits of `base` with an index from `low` to `high`, by index.
  std::pair<const Bit*, const Bit*> Find(std::string_view base, int64_t low, int64_t high) const;

 private:
  std::vector<Bit> bits_;  // by base, then index
};

}  // namespace power
