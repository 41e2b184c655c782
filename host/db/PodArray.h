// Growable arrays for the large, plain data of a netlist (names, connection
// streams, index arrays). A large array lives in pages of its own and grows
// by remapping them, never by copying: the heap's realloc copies whenever
// the allocator has raised its threshold for such blocks, as it does after
// the first large one is freed. Large arrays ask the kernel for huge pages,
// so that a million-instance design costs few page faults and TLB misses.
// Only for trivially copyable element types.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <type_traits>
#include <utility>

#include "io/Pages.h"

namespace cdm {

// Arrays of this many bytes or more live in pages of their own (whole
// pages, not whole huge pages: the rest of a huge page past an array's end
// would be resident as soon as its last element is written).
constexpr size_t kPagedBytes = size_t{4} << 20;

template <class T>
class PodArray {
  static_assert(std::is_trivially_copyable<T>::value, "PodArray holds plain data only");

 public:
  PodArray() = default;
  ~PodArray() { Release(); }
  PodArray(const PodArray& other) { *this = other; }
  PodArray& operator=(const PodArray& other) {
    if (this != &other) {
      clear();
      reserve(other.size_);
      if (other.size_) std::memcpy(data_, other.data_, other.size_ * sizeof(T));
      size_ = other.size_;
    }
    return *this;
  }
  PodArray(PodArray&& other) noexcept { swap(other); }
  PodArray& operator=(PodArray&& other) noexcept {
    PodArray(std::move(other)).swap(*this);
    return *this;
  }
  void swap(PodArray& other) noexcept {
    std::swap(data_, other.data_);
    std::swap(size_, other.size_);
    std::swap(capacity_, other.capacity_);
  }

  size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  size_t capacity() const { return capacity_; }
  T* data() { return data_; }
  const T* data() const { return data_; }
  T& operator[](size_t i) { return data_[i]; }
  const T& operator[](size_t i) const { return data_[i]; }
  T* begin() { return data_; }
  T* end() { return data_ + size_; }
  const T* begin() const { return data_; }
  const T* end() const { return data_ + size_; }
  T& back() { return data_[size_ - 1]; }

  void push_back(const T& value) {
    if (size_ == capacity_) Grow(size_ + 1);
    data_[size_++] = value;
  }
  void append(const T* values, size_t count) {
    if (size_ + count > capacity_) Grow(size_ + count);
    if (count) std::memcpy(data_ + size_, values, count * sizeof(T));
    size_ += count;
  }
  // New elements are set to `value`.
  void resize(size_t count, const T& value = T()) {
    if (count > capacity_) Reallocate(count);
    for (size_t i = size_; i < count; ++i) data_[i] = value;
    size_ = count;
  }
  void assign(size_t count, const T& value) {
    size_ = 0;
    resize(count, value);
  }
  void reserve(size_t count) {
    if (count > capacity_) Reallocate(count);
  }
  void clear() {
    Release();
    data_ = nullptr;
    size_ = capacity_ = 0;
  }
  void shrink_to_fit() {
    if (size_ == 0)
      clear();
    else if (size_ < capacity_)
      Reallocate(size_);
  }

 private:
  void Grow(size_t needed) {
    size_t next = capacity_ ? capacity_ * 2 : 16;
    Reallocate(next < needed ? needed : next);
  }
  // Whether an array of `capacity` elements lives in pages of its own.
  static bool Paged(size_t capacity) { return capacity >= kPagedBytes / sizeof(T); }
  void Release() {
    if (Paged(capacity_))
      io::UnmapPages(data_, io::WholePages(capacity_ * sizeof(T)));
    else
      std::free(data_);
  }
  void Reallocate(size_t count) {
    const size_t kept = (size_ < count ? size_ : count) * sizeof(T);
    if (Paged(count)) {
      const size_t bytes = io::WholePages(count * sizeof(T));
      void* pages;
      if (Paged(capacity_)) {
        pages = io::RemapPages(data_, io::WholePages(capacity_ * sizeof(T)), bytes);
      } else {
        pages = io::MapPages(bytes);
        if (kept) std::memcpy(pages, data_, kept);
        std::free(data_);
      }
      data_ = static_cast<T*>(pages);
      capacity_ = bytes / sizeof(T);
      return;
    }
    void* grown;
    if (Paged(capacity_)) {
      grown = std::malloc(count * sizeof(T));
      if (!grown) throw std::bad_alloc();
      if (kept) std::memcpy(grown, data_, kept);
      io::UnmapPages(data_, io::WholePages(capacity_ * sizeof(T)));
    } else {
      grown = std::realloc(data_, count * sizeof(T));
      if (!grown) throw std::bad_alloc();
    }
    data_ = static_cast<T*>(grown);
    capacity_ = count;
  }

  T* data_ = nullptr;
  size_t size_ = 0;
  size_t capacity_ = 0;
};

}  // namespace cdm

namespace cdm {

// A fixed-size array of objects made once (cells, nets, pins): placed in
// memory that asks for huge pages, destroyed and freed together. Either
// made whole (`ObjectArray(count)`, each object default-made) or reserved
// and then filled in order (`Reserve`, `Emplace`).
template <class T>
class ObjectArray {
 public:
  ObjectArray() = default;
  explicit ObjectArray(size_t count) {
    Reserve(count);
    for (size_t i = 0; i < count; ++i) Emplace();
  }
  ~ObjectArray() { Reset(); }
  ObjectArray(const ObjectArray&) = delete;
  ObjectArray& operator=(const ObjectArray&) = delete;
  ObjectArray(ObjectArray&& other) noexcept { Swap(other); }
  ObjectArray& operator=(ObjectArray&& other) noexcept {
    ObjectArray(std::move(other)).Swap(*this);
    return *this;
  }
  void Swap(ObjectArray& other) noexcept {
    std::swap(items_, other.items_);
    std::swap(count_, other.count_);
    std::swap(capacity_, other.capacity_);
  }

  // Memory for `capacity` objects, none made yet; the array must be empty.
  void Reserve(size_t capacity) {
    Reset();
    if (!capacity) return;
    void* raw = std::malloc(capacity * sizeof(T));
    if (!raw) throw std::bad_alloc();
    io::AdviseHugePages(raw, capacity * sizeof(T));
    items_ = static_cast<T*>(raw);
    capacity_ = capacity;
  }
  // Makes the next object in place; there must be room for it.
  template <class... Args>
  T* Emplace(Args&&... args) {
    T* item = new (items_ + count_) T(std::forward<Args>(args)...);
    ++count_;
    return item;
  }

  T* get() const { return items_; }
  T& operator[](size_t i) const { return items_[i]; }
  size_t size() const { return count_; }
  size_t capacity() const { return capacity_; }

 private:
  void Reset() {
    for (size_t i = count_; i-- > 0;) items_[i].~T();
    std::free(items_);
    items_ = nullptr;
    count_ = capacity_ = 0;
  }

  T* items_ = nullptr;
  size_t count_ = 0;
  size_t capacity_ = 0;
};

}  // namespace cdm
