#include "power/BusBits.h"

#include <algorithm>
#include <charconv>
#include <tuple>

#include "db/NetNames.h"
#include "db/Netlist.h"

namespace power {
namespace {

// Splits "base[i]" into base and i; false for any other name, and for an
// index FindNet would never be asked for ("a[007]", "a[+1]", "a[-0]").
bool SplitBit(std::string_view name, std::string_view& base, int64_t& index) {
  if (name.size() < 4 || name.back() != ']') return false;
  const size_t open = name.rfind('[');
  if (open == std::string_view::npos || open == 0) return false;
  const std::string_view digits = name.substr(open + 1, name.size() - open - 2);
  const size_t sign = !digits.empty() && digits[0] == '-' ? 1 : 0;
  if (digits.size() <= sign || digits.size() - sign > 18) return false;
  if (digits[sign] == '0' && digits.size() > sign + 1) return false;
  if (sign && digits == "-0") return false;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
  if (error != std::errc() || end != digits.data() + digits.size()) return false;
  base = name.substr(0, open);
  return true;
}

bool Before(const BusBits::Bit& a, const BusBits::Bit& b) {
  return std::tie(a.base, a.index) < std::tie(b.base, b.index);
}

}  // namespace

BusBits::BusBits(const cdm::Netlist& netlist) {
  cdm::ForEachNetName(netlist, [&](cdm::Net* net, std::string_view, std::string_view name) {
    Bit bit;
    if (!SplitBit(name, bit.base, bit.index)) return;
    bit.net = netlist.IndexOf(net);
    bits_.push_back(bit);
  });
  std::sort(bits_.begin(), bits_.end(), Before);
}

std::pair<const BusBits::Bit*, const BusBits::Bit*> BusBits::Find(std::string_view base,
                                                                  int64_t low, int64_t high) const {
  const Bit first{base, low, 0}, last{base, high, 0};
  const auto begin = std::lower_bound(bits_.begin(), bits_.end(), first, Before);
  const auto end = std::upper_bound(begin, bits_.end(), last, Before);
  return {bits_.data() + (begin - bits_.begin()), bits_.data() + (end - bits_.begin())};
}

}  // namespace power
