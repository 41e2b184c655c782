// The prompt through the tclreadline package (GNU readline), when it is
// installed: its editing, history (kept in ~/.kelvo_history) and Ctrl-R,
// with the shell's own completion in place of tclreadline's, which runs
// commands to find their results. tclreadline's other habits (running
// Unix programs for unknown commands, taking a command prefix for the
// command) are undone.
#pragma once

#include <tcl.h>

#include <memory>
#include <string>

#include "shell/Completer.h"
#include "shell/LineReader.h"

namespace shell {

class TclReadlineReader : public LineReader {
 public:
  // Null when the package is not there or does not start.
  static std::unique_ptr<TclReadlineReader> Open(Tcl_Interp* interp, Completer completer,
                                                 const std::string& history_path);
  Outcome Read(const std::string& prompt, std::string& line) override;
  void Finish() override;

 private:
  TclReadlineReader(Tcl_Interp* interp, Completer completer, std::string history_path)
      : interp_(interp), completer_(std::move(completer)), history_path_(std::move(history_path)) {}
  static int CompleteCmd(ClientData data, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]);

  Tcl_Interp* interp_;
  Completer completer_;
  std::string history_path_;
};

}  // namespace shell
