// Interrupts: the shell's Ctrl-C handler marks one as pending; readers,
// reports and the timer poll for it at their safe points (between
// statements, objects, levels) and stop there, leaving the database as it
// was before the command. The command binding then raises "Interrupted".
#pragma once

#include <exception>

namespace cmdlib {

// Thrown by ThrowIfInterrupted; the command binding turns it into the
// Tcl error "Interrupted".
struct Interrupted : std::exception {
  const char* what() const noexcept override { return "Interrupted"; }
};

// Async-signal-safe: marks an interrupt as pending.
void RequestInterrupt();
// Whether an interrupt is pending (cheap: a load of a flag).
bool InterruptPending();
// Forgets a pending interrupt (once it has been answered).
void ClearInterrupt();
// The shell's way of making Tcl answer a pending interrupt at its next safe
// point; the binding calls it when a command finished despite one.
void SetInterruptWaker(void (*waker)());
void WakeInterrupt();
// Throws Interrupted when one is pending: for host code that can unwind,
// such as a reader before it commits what it read.
void ThrowIfInterrupted();

}  // namespace cmdlib
