// An open-addressing index from names to small integers whose names are
// kept elsewhere (a NamePool): a slot holds the value and part of the
// hash, eight bytes, and the name is asked of the owner when hashes meet.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "db/PodArray.h"

namespace cdm {

class NameIndex {
 public:
  static constexpr uint32_t kNone = UINT32_MAX;
  using NameOf = std::function<std::string_view(uint32_t value)>;

  explicit NameIndex(NameOf name_of) : name_of_(std::move(name_of)) {}

  uint32_t Find(std::string_view name) const {
    if (slots_.empty()) return kNone;
    uint32_t hash = Hash(name);
    for (size_t i = hash & mask_;; i = (i + 1) & mask_) {
      const Slot& slot = slots_[i];
      if (slot.value == kNone) return kNone;
      if (slot.hash == hash && name_of_(slot.value) == name) return slot.value;
    }
  }

  // Adds `value` under `name` and returns it; a name already present
  // keeps its first value, which is returned instead.
  uint32_t Insert(std::string_view name, uint32_t value) {
    if ((count_ + 1) * 2 > slots_.size()) Grow();
    uint32_t hash = Hash(name);
    for (size_t i = hash & mask_;; i = (i + 1) & mask_) {
      Slot& slot = slots_[i];
      if (slot.value == kNone) {
        slot = Slot{hash, value};
        ++count_;
        return value;
      }
      if (slot.hash == hash && name_of_(slot.value) == name) return slot.value;
    }
  }

  void Reserve(size_t count) {
    while (slots_.size() < count * 2) Grow();
  }

  // The 32-bit hash the index files a name under.
  static uint32_t Hash(std::string_view name) {
    size_t hash = std::hash<std::string_view>()(name);
    return static_cast<uint32_t>(hash ^ (hash >> 32));
  }

 private:
  struct Slot {
    uint32_t hash = 0;
    uint32_t value = kNone;
  };

  void Grow() {
    PodArray<Slot> old;
    old.swap(slots_);
    slots_.assign(old.empty() ? 16 : old.size() * 2, Slot());
    mask_ = slots_.size() - 1;
    for (const Slot& slot : old) {
      if (slot.value == kNone) continue;
      for (size_t i = slot.hash & mask_;; i = (i + 1) & mask_) {
        if (slots_[i].value == kNone) {
          slots_[i] = slot;
          break;
        }
      }
    }
  }

  NameOf name_of_;
  PodArray<Slot> slots_;
  size_t count_ = 0;
  size_t mask_ = 0;
};

}  // namespace cdm
