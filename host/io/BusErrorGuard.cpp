#include "io/BusErrorGuard.h"

#include <signal.h>
#include <sys/mman.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <mutex>

namespace io {
namespace {

// A signal handler can only reach state of the process's own: a few slots,
// each one mapping being read (files are read one at a time).
struct GuardedRange {
  std::atomic<uintptr_t> begin{0};
  std::atomic<uintptr_t> end{0};
  std::atomic<bool> damaged{false};
};
constexpr int kSlots = 8;
GuardedRange ranges[kSlots];
struct sigaction previous;
uintptr_t page_size = 4096;
std::once_flag installed;

void OnBusError(int signal, siginfo_t* info, void* context) {
  const uintptr_t at = reinterpret_cast<uintptr_t>(info->si_addr);
  for (GuardedRange& range : ranges) {
    const uintptr_t begin = range.begin.load(std::memory_order_acquire);
    const uintptr_t end = range.end.load(std::memory_order_acquire);
    if (begin == 0 || at < begin || at >= end) continue;
    const uintptr_t page = at & ~(page_size - 1);
    void* zeros = ::mmap(reinterpret_cast<void*>(page), end - page, PROT_READ | PROT_WRITE,
                         MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED, -1, 0);
    if (zeros == MAP_FAILED) break;
    range.damaged.store(true, std::memory_order_release);
    return;  // the access is made again, and reads zeros
  }
  // Not a guarded read: as if this handler had never been there.
  ::sigaction(SIGBUS, &previous, nullptr);
  if (previous.sa_flags & SA_SIGINFO) {
    if (previous.sa_sigaction) previous.sa_sigaction(signal, info, context);
  } else if (previous.sa_handler != SIG_DFL && previous.sa_handler != SIG_IGN) {
    previous.sa_handler(signal);
  }
  // With the default disposition back, the access faults again and ends
  // the process as it would have.
}

void Install() {
  const long size = ::sysconf(_SC_PAGESIZE);
  if (size > 0) page_size = static_cast<uintptr_t>(size);
  struct sigaction action = {};
  action.sa_sigaction = OnBusError;
  action.sa_flags = SA_SIGINFO;
  sigemptyset(&action.sa_mask);
  ::sigaction(SIGBUS, &action, &previous);
}

}  // namespace

int BusErrorGuard::Register(void* begin, size_t length) {
  std::call_once(installed, Install);
  const uintptr_t first = reinterpret_cast<uintptr_t>(begin);
  for (int slot = 0; slot < kSlots; ++slot) {
    uintptr_t free = 0;
    GuardedRange& range = ranges[slot];
    if (!range.begin.compare_exchange_strong(free, first)) continue;
    range.damaged.store(false, std::memory_order_relaxed);
    range.end.store(first + ((length + page_size - 1) & ~(page_size - 1)),
                    std::memory_order_release);
    return slot;
  }
  return -1;
}

bool BusErrorGuard::Damaged(int slot) {
  return slot >= 0 && ranges[slot].damaged.load(std::memory_order_acquire);
}

void BusErrorGuard::Unregister(int slot) {
  if (slot < 0) return;
  ranges[slot].end.store(0, std::memory_order_release);
  ranges[slot].begin.store(0, std::memory_order_release);
}

}  // namespace io
