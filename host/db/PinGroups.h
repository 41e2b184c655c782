// The pins of a reference (library cell, design, or an unresolved cell's
// stubs) by the names a connection may use: a scalar port, a bus (its bits
// most significant first), or one bit by its own name; and by position.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace cdm {

class Port;

class PinGroups {
 public:
  explicit PinGroups(const std::vector<Port*>& ports);

  // Pins of the named port; empty if the reference has no such port.
  void ByName(const std::string& name, std::vector<uint32_t>& pins) const;
  // Pins of the port at `position` in the reference's port order.
  void ByPosition(uint32_t position, std::vector<uint32_t>& pins) const;

 private:
  struct Group {
    std::vector<std::pair<int, uint32_t>> members;
  };
  std::unordered_map<std::string_view, Group> index_;
  std::unordered_map<std::string_view, uint32_t> bits_;
  std::vector<std::string_view> order_;
};

}  // namespace cdm
