#include "cmdlib/Interrupt.h"

#include <csignal>

#include "hostapi/cmd/Interrupt.h"

namespace cmdlib {
namespace {
volatile std::sig_atomic_t pending = 0;
void (*interrupt_waker)() = nullptr;
}  // namespace

void SetInterruptWaker(void (*waker)()) {
  interrupt_waker = waker;
}

void WakeInterrupt() {
  if (interrupt_waker) interrupt_waker();
}

void RequestInterrupt() {
  pending = 1;
}

bool InterruptPending() {
  return pending != 0;
}

void ClearInterrupt() {
  pending = 0;
}

void ThrowIfInterrupted() {
  if (pending) throw Interrupted();
}

}  // namespace cmdlib

namespace common {

bool InterruptRequested() {
  return cmdlib::InterruptPending();
}

}  // namespace common
