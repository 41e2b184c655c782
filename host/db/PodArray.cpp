#include "db/PodArray.h"

#include <sys/mman.h>

#include <cstdint>

namespace cdm {

void AdviseHugePages(void* data, size_t bytes) {
  constexpr uintptr_t kHuge = uintptr_t{2} << 20;
  if (bytes < 2 * kHuge) return;
  uintptr_t first = (reinterpret_cast<uintptr_t>(data) + kHuge - 1) & ~(kHuge - 1);
  uintptr_t last = (reinterpret_cast<uintptr_t>(data) + bytes) & ~(kHuge - 1);
  if (last > first) madvise(reinterpret_cast<void*>(first), last - first, MADV_HUGEPAGE);
}

}  // namespace cdm
