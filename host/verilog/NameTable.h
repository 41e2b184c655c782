// An open-addressing index from names (views into the source) to small
// integers: the builder looks a name up for every connection, and node
// based maps spend most of the read in cache misses.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace verilog {

class NameTable {
 public:
  static constexpr uint32_t kNone = UINT32_MAX;

  uint32_t Find(std::string_view name) const {
    if (slots_.empty()) return kNone;
    size_t hash = std::hash<std::string_view>()(name);
    for (size_t i = hash & mask_;; i = (i + 1) & mask_) {
      const Slot& slot = slots_[i];
      if (slot.value == kNone) return kNone;
      if (slot.hash == hash && slot.name == name) return slot.value;
    }
  }

  // Adds `name` (not yet present) with `value`.
  void Insert(std::string_view name, uint32_t value) {
    if ((count_ + 1) * 2 > slots_.size()) Grow();
    Place(Slot{name, std::hash<std::string_view>()(name), value});
    ++count_;
  }

  void Clear() {
    slots_.clear();
    count_ = 0;
    mask_ = 0;
  }

 private:
  struct Slot {
    std::string_view name;
    size_t hash = 0;
    uint32_t value = kNone;
  };

  void Place(const Slot& entry) {
    for (size_t i = entry.hash & mask_;; i = (i + 1) & mask_) {
      if (slots_[i].value == kNone) {
        slots_[i] = entry;
        return;
      }
    }
  }

  void Grow() {
    std::vector<Slot> old;
    old.swap(slots_);
    slots_.assign(old.empty() ? 64 : old.size() * 2, Slot());
    mask_ = slots_.size() - 1;
    for (const Slot& slot : old)
      if (slot.value != kNone) Place(slot);
  }

  std::vector<Slot> slots_;
  size_t count_ = 0;
  size_t mask_ = 0;
};

}  // namespace verilog
