// Names of a netlist's cells and nets in one character array: a name costs
// its characters and a terminating zero, not a string object.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

#include "db/PodArray.h"

namespace cdm {

class NamePool {
 public:
  // The largest pool: offsets share their 32 bits with two flag bits.
  static constexpr uint32_t kMaxBytes = 1u << 30;

  // Appends a name; false when the pool is full.
  bool Add(std::string_view name, uint32_t& offset) {
    if (chars_.size() + name.size() + 1 > kMaxBytes) return false;
    offset = static_cast<uint32_t>(chars_.size());
    chars_.append(name.data(), name.size());
    chars_.push_back('\0');
    return true;
  }
  std::string_view View(uint32_t offset) const {
    const char* text = chars_.data() + offset;
    return std::string_view(text, std::strlen(text));
  }
  size_t Bytes() const { return chars_.size(); }
  const char* Data() const { return chars_.data(); }
  void Reserve(size_t bytes) { chars_.reserve(bytes); }
  void ShrinkToFit() { chars_.shrink_to_fit(); }

 private:
  PodArray<char> chars_;
};

}  // namespace cdm
