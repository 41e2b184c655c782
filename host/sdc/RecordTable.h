// The store's records of one kind of object (ports, pins, nets, cells):
// found by the object in constant time, walked in the order the first
// constraint was set on each object. What the store prints or writes from
// its records (warnings of a re-link, the records the reports and the timer
// walk) so comes in an order a user can foresee, not in hash order.
#pragma once

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace sta::sdc {

template <typename Key, typename Record>
class RecordTable {
 public:
  using Entry = std::pair<const Key*, std::unique_ptr<Record>>;

  Record* Find(const Key* key) const {
    auto found = index_.find(key);
    return found == index_.end() ? nullptr : entries_[found->second].second.get();
  }
  // The slot of `key`, added last when missing (then empty: the caller
  // makes the record).
  std::unique_ptr<Record>& Slot(const Key* key) {
    auto [found, added] = index_.emplace(key, entries_.size());
    if (added) entries_.emplace_back(key, nullptr);
    return entries_[found->second].second;
  }

  // Entries in the order they were added.
  typename std::vector<Entry>::iterator begin() { return entries_.begin(); }
  typename std::vector<Entry>::iterator end() { return entries_.end(); }
  size_t size() const { return entries_.size(); }

 private:
  std::vector<Entry> entries_;
  std::unordered_map<const Key*, size_t> index_;
};

}  // namespace sta::sdc
