#include "io/Pages.h"

#include <sys/mman.h>

#include <cstdint>
#include <new>

namespace io {

size_t WholePages(size_t bytes) {
  constexpr size_t kPage = size_t{4} << 10;
  return (bytes + kPage - 1) & ~(kPage - 1);
}

void* MapPages(size_t bytes) {
  void* pages = ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (pages == MAP_FAILED) throw std::bad_alloc();
  // Advice only: without huge pages the data works the same, slower.
  ::madvise(pages, bytes, MADV_HUGEPAGE);
  return pages;
}

void* RemapPages(void* data, size_t old_bytes, size_t bytes) {
  void* pages = ::mremap(data, old_bytes, bytes, MREMAP_MAYMOVE);
  if (pages == MAP_FAILED) throw std::bad_alloc();
  ::madvise(pages, bytes, MADV_HUGEPAGE);
  return pages;
}

void UnmapPages(void* data, size_t bytes) {
  if (data) ::munmap(data, bytes);
}

void AdviseHugePages(void* data, size_t bytes) {
  constexpr uintptr_t kHuge = uintptr_t{2} << 20;
  if (bytes < 2 * kHuge) return;
  uintptr_t first = (reinterpret_cast<uintptr_t>(data) + kHuge - 1) & ~(kHuge - 1);
  uintptr_t last = (reinterpret_cast<uintptr_t>(data) + bytes) & ~(kHuge - 1);
  if (last > first) ::madvise(reinterpret_cast<void*>(first), last - first, MADV_HUGEPAGE);
}

}  // namespace io
