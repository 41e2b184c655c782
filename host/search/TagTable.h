// Tags by number: each distinct tag once, so that an arrival keeps four bytes
// of what it is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "search/Tag.h"

namespace sta {

class TagTable {
 public:
  void Clear() {
    tags_.clear();
    index_.clear();
  }
  // The number of `tag`, added when new.
  uint32_t Find(const Tag& tag) {
    const uint64_t key = Key(tag);
    auto found = index_.find(key);
    if (found != index_.end()) return found->second;
    const uint32_t id = static_cast<uint32_t>(tags_.size());
    tags_.push_back(tag);
    index_.emplace(key, id);
    return id;
  }
  const Tag& Get(uint32_t id) const { return tags_[id]; }
  size_t Size() const { return tags_.size(); }

 private:
  static uint64_t Key(const Tag& tag) {
    return (static_cast<uint64_t>(tag.states) << 32) |
           (static_cast<uint64_t>(static_cast<uint32_t>(tag.clock_edge + 1)) << 1) |
           (tag.is_clock ? 1u : 0u);
  }
  std::vector<Tag> tags_;
  std::unordered_map<uint64_t, uint32_t> index_;
};

}  // namespace sta
