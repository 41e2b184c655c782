#include "io/TextBuffer.h"

#include <sys/mman.h>

#include <cstring>
#include <utility>

#include "io/BusErrorGuard.h"
#include "io/Pages.h"

namespace io {

namespace {

constexpr size_t kHugePage = size_t{2} << 20;

size_t RoundUp(size_t size) {
  return (size + kHugePage - 1) & ~(kHugePage - 1);
}

}  // namespace

TextBuffer::~TextBuffer() {
  clear();
}

TextBuffer::TextBuffer(TextBuffer&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)),
      size_(std::exchange(other.size_, 0)),
      capacity_(std::exchange(other.capacity_, 0)),
      guard_(std::exchange(other.guard_, -1)) {}

TextBuffer& TextBuffer::operator=(TextBuffer&& other) noexcept {
  if (this != &other) {
    clear();
    data_ = std::exchange(other.data_, nullptr);
    size_ = std::exchange(other.size_, 0);
    capacity_ = std::exchange(other.capacity_, 0);
    guard_ = std::exchange(other.guard_, -1);
  }
  return *this;
}

void TextBuffer::resize(size_t size) {
  if (size <= capacity_) {
    size_ = size;
    return;
  }
  if (guard_ >= 0) {
    // A mapped file grows into pages of its own.
    TextBuffer copy;
    copy.resize(size);
    std::memcpy(copy.data_, data_, size_);
    *this = std::move(copy);
    return;
  }
  const size_t capacity = RoundUp(size);
  void* pages = data_ ? RemapPages(data_, capacity_, capacity) : MapPages(capacity);
  data_ = static_cast<char*>(pages);
  capacity_ = capacity;
  size_ = size;
}

void TextBuffer::clear() {
  UnmapPages(data_, capacity_);
  BusErrorGuard::Unregister(guard_);
  data_ = nullptr;
  size_ = 0;
  capacity_ = 0;
  guard_ = -1;
}

bool TextBuffer::MapFile(int fd, size_t size) {
  clear();
  if (size == 0) return false;
  // Populated at once: the file's pages are in the page cache, or read in
  // now in large requests, instead of one fault at a time while parsing.
  // Read-only: a writable private mapping would be populated by copying
  // every page.
  void* pages = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE | MAP_POPULATE, fd, 0);
  if (pages == MAP_FAILED) return false;
  const int guard = BusErrorGuard::Register(pages, size);
  if (guard < 0) {
    ::munmap(pages, size);
    return false;
  }
  data_ = static_cast<char*>(pages);
  size_ = capacity_ = size;
  guard_ = guard;
  return true;
}

bool TextBuffer::Damaged() const {
  return BusErrorGuard::Damaged(guard_);
}

}  // namespace io
