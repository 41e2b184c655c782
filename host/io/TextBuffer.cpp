#include "io/TextBuffer.h"

#include <sys/mman.h>

#include <new>
#include <utility>

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
      capacity_(std::exchange(other.capacity_, 0)) {}

TextBuffer& TextBuffer::operator=(TextBuffer&& other) noexcept {
  if (this != &other) {
    clear();
    data_ = std::exchange(other.data_, nullptr);
    size_ = std::exchange(other.size_, 0);
    capacity_ = std::exchange(other.capacity_, 0);
  }
  return *this;
}

void TextBuffer::resize(size_t size) {
  if (size <= capacity_) {
    size_ = size;
    return;
  }
  const size_t capacity = RoundUp(size);
  void* pages =
      data_ ? ::mremap(data_, capacity_, capacity, MREMAP_MAYMOVE)
            : ::mmap(nullptr, capacity, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (pages == MAP_FAILED) throw std::bad_alloc();
  // Advice only: without huge pages the text works the same, slower.
  ::madvise(pages, capacity, MADV_HUGEPAGE);
  data_ = static_cast<char*>(pages);
  capacity_ = capacity;
  size_ = size;
}

void TextBuffer::clear() {
  if (data_) ::munmap(data_, capacity_);
  data_ = nullptr;
  size_ = 0;
  capacity_ = 0;
}

}  // namespace io
