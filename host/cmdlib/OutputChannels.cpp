#include "cmdlib/OutputChannels.h"

#include <tcl.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <string_view>

#include "msg/ResultChannel.h"

namespace cmdlib {
namespace {

int CloseChannel(ClientData, Tcl_Interp*) {
  return 0;
}

int InputNone(ClientData, char*, int, int* error) {
  *error = EINVAL;
  return -1;
}

int OutputStdout(ClientData, const char* buffer, int length, int*) {
  msg::WriteText(std::string_view(buffer, static_cast<size_t>(length)));
  return length;
}

int OutputStderr(ClientData, const char* buffer, int length, int*) {
  std::fflush(stdout);  // what came before stays before
  std::fwrite(buffer, 1, static_cast<size_t>(length), stderr);
  std::fflush(stderr);
  return length;
}

void WatchNone(ClientData, int) {}

// The descriptor behind the channel, for `exec ... >@stdout`: such a
// program writes to the terminal straight, past any capture.
int HandleStdout(ClientData, int direction, ClientData* handle) {
  if (direction != TCL_WRITABLE) return TCL_ERROR;
  std::fflush(stdout);
  *handle = reinterpret_cast<ClientData>(static_cast<intptr_t>(1));
  return TCL_OK;
}

int HandleStderr(ClientData, int direction, ClientData* handle) {
  if (direction != TCL_WRITABLE) return TCL_ERROR;
  std::fflush(stderr);
  *handle = reinterpret_cast<ClientData>(static_cast<intptr_t>(2));
  return TCL_OK;
}

Tcl_ChannelType MakeType(const char* name, Tcl_DriverOutputProc* output,
                         Tcl_DriverGetHandleProc* handle) {
  Tcl_ChannelType type{};
  type.typeName = name;
  type.version = TCL_CHANNEL_VERSION_5;
  type.closeProc = CloseChannel;
  type.inputProc = InputNone;
  type.outputProc = output;
  type.watchProc = WatchNone;
  type.getHandleProc = handle;
  return type;
}

Tcl_ChannelType stdout_type = MakeType("kelvo_stdout", OutputStdout, HandleStdout);
Tcl_ChannelType stderr_type = MakeType("kelvo_stderr", OutputStderr, HandleStderr);

void Install(Tcl_ChannelType* type, const char* name, int which) {
  Tcl_Channel channel = Tcl_CreateChannel(type, name, nullptr, TCL_WRITABLE);
  // Every puts reaches the road of report text at once, in order.
  Tcl_SetChannelOption(nullptr, channel, "-buffering", "none");
  Tcl_SetChannelOption(nullptr, channel, "-translation", "lf");
  Tcl_SetStdChannel(channel, which);
}

}  // namespace

void InstallOutputChannels() {
  Install(&stdout_type, "stdout", TCL_STDOUT);
  Install(&stderr_type, "stderr", TCL_STDERR);
}

}  // namespace cmdlib
