// The iterator shape of the database: created by the call that returns it,
// deleted by the caller.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace cdm {

template <class T>
class Iterator {
 public:
  virtual ~Iterator() = default;
  virtual bool HasNext() = 0;
  virtual T* Next() = 0;
};

// Walks a vector of pointers (a copy, so the owner may change meanwhile).
template <class T>
class VectorIterator : public Iterator<T> {
 public:
  explicit VectorIterator(std::vector<T*> items) : items_(std::move(items)) {}
  bool HasNext() override { return next_ < items_.size(); }
  T* Next() override { return next_ < items_.size() ? items_[next_++] : nullptr; }

 private:
  std::vector<T*> items_;
  size_t next_ = 0;
};

// The all-pass predicate that walks take as a filter.
template <class T>
bool func(const T*) {
  return true;
}

}  // namespace cdm
