#include "shell/InterruptHandler.h"

#include <unistd.h>

#include <csignal>
#include <ctime>

#include "cmdlib/Interrupt.h"

namespace shell {
namespace {

Tcl_AsyncHandler async_token = nullptr;
volatile std::sig_atomic_t at_prompt = 0;
volatile std::sig_atomic_t prompt_interrupt = 0;
volatile double first_press = 0;  // monotonic seconds of the unanswered press
void (*prompt_hook)() = nullptr;

double Now() {
  timespec now;
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

void OnInterrupt(int) {
  if (at_prompt) {
    prompt_interrupt = 1;
    if (async_token) Tcl_AsyncMark(async_token);
    return;
  }
  const double now = Now();
  if (cmdlib::InterruptPending() && now - first_press < 1.0) {
    static const char kBye[] = "\nkelvo: interrupted twice, leaving the shell\n";
    ssize_t wrote = ::write(STDERR_FILENO, kBye, sizeof kBye - 1);
    (void)wrote;
    _exit(130);
  }
  first_press = now;
  cmdlib::RequestInterrupt();
  if (async_token) Tcl_AsyncMark(async_token);
}

// Tcl calls this at its next safe point: between two commands of a script,
// or when the event loop turns.
int AnswerInterrupt(ClientData, Tcl_Interp* interp, int code) {
  if (at_prompt) {
    if (prompt_interrupt && prompt_hook) prompt_hook();
    return code;
  }
  if (!interp || !cmdlib::InterruptPending()) return code;
  cmdlib::ClearInterrupt();
  Tcl_SetObjResult(interp, Tcl_NewStringObj("Interrupted", -1));
  Tcl_SetErrorCode(interp, "KELVO", "INTERRUPTED", nullptr);
  return TCL_ERROR;
}

}  // namespace

void InstallInterruptHandler(Tcl_Interp*) {
  async_token = Tcl_AsyncCreate(AnswerInterrupt, nullptr);
  cmdlib::SetInterruptWaker([] { Tcl_AsyncMark(async_token); });
  struct sigaction action {};
  action.sa_handler = OnInterrupt;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  sigaction(SIGINT, &action, nullptr);
}

void SetAtPrompt(bool prompt) {
  at_prompt = prompt ? 1 : 0;
  if (prompt) cmdlib::ClearInterrupt();
}

void SetPromptInterruptHook(void (*hook)()) {
  prompt_hook = hook;
}

bool TakePromptInterrupt() {
  const bool pressed = prompt_interrupt != 0;
  prompt_interrupt = 0;
  return pressed;
}

}  // namespace shell
