// read_sdc FILE [-echo]: runs a constraint file (plain or gzipped) as Tcl,
// command by command, so that warnings and errors name its lines. The
// first error stops the reading; what the file set before it stays set.
#include <boost/any.hpp>
#include <string>
#include <vector>

#include "cmdlib/CommandState.h"
#include "cmdlib/HostCommands.h"
#include "cmdlib/ReadFiles.h"
#include "hostapi/cmd/CommonCmd.h"
#include "io/FileLoader.h"
#include "msg/ResultChannel.h"
#include "msg/SafeText.h"
#include "sdc/SdcSource.h"

namespace sta::sdc {
namespace {

// The longest quoted part of an error shown whole: room for a long
// hierarchical name.
constexpr size_t kQuotedBytes = 1000;

// Follows the line of the command that runs, also inside loop bodies and
// other nested scripts of the file: each command entered asks the
// interpreter for its frame. Only the innermost read_sdc listens.
// Commands of procedures (a proc of the file, or `unknown` behind a bad
// command name) run at a deeper level and are left out: their lines are
// not the file's.
struct LineTracker {
  int first = 0;  // the file's line of the top-level command being run
  int line = 0;   // within that command; 0 unknown
  int level = 0;  // the Tcl level the file's commands run at
  bool busy = false;
};

int CurrentLevel(Tcl_Interp* interp) {
  int level = 0;
  if (Tcl_EvalEx(interp, "info level", -1, 0) != TCL_OK ||
      Tcl_GetIntFromObj(nullptr, Tcl_GetObjResult(interp), &level) != TCL_OK)
    return -1;
  return level;
}

std::vector<LineTracker*>& Trackers() {
  static std::vector<LineTracker*> trackers;
  return trackers;
}

int TrackLine(ClientData data, Tcl_Interp* interp, int, const char*, Tcl_Command, int,
              Tcl_Obj* const*) {
  auto* tracker = static_cast<LineTracker*>(data);
  if (tracker->busy || Trackers().empty() || Trackers().back() != tracker) return TCL_OK;
  tracker->busy = true;
  Tcl_InterpState saved = Tcl_SaveInterpState(interp, TCL_OK);
  if (CurrentLevel(interp) == tracker->level &&
      Tcl_EvalEx(interp, "info frame -1", -1, 0) == TCL_OK) {
    Tcl_Obj* frame = Tcl_GetObjResult(interp);
    Tcl_Obj* type = nullptr;
    Tcl_Obj* line = nullptr;
    Tcl_Obj* type_key = Tcl_NewStringObj("type", -1);
    Tcl_Obj* line_key = Tcl_NewStringObj("line", -1);
    Tcl_IncrRefCount(type_key);
    Tcl_IncrRefCount(line_key);
    int number = 0;
    if (Tcl_DictObjGet(nullptr, frame, type_key, &type) == TCL_OK && type &&
        std::string(Tcl_GetString(type)) == "eval" &&
        Tcl_DictObjGet(nullptr, frame, line_key, &line) == TCL_OK && line &&
        Tcl_GetIntFromObj(nullptr, line, &number) == TCL_OK) {
      tracker->line = number;
      SdcSource::SetLine(tracker->first + number - 1);
    }
    Tcl_DecrRefCount(type_key);
    Tcl_DecrRefCount(line_key);
  }
  Tcl_RestoreInterpState(interp, saved);
  tracker->busy = false;
  return TCL_OK;
}

std::string Stripped(std::string message) {
  if (message.compare(0, 7, "Error: ") == 0) message.erase(0, 7);
  return message;
}

// While a file runs: the file on the location stack, the line tracker
// listening. Undone also when Ctrl-C stops the file.
class FileScope {
 public:
  FileScope(Tcl_Interp* interp, const std::string& path) : interp_(interp) {
    SdcSource::Enter(path);
    Tcl_InterpState saved = Tcl_SaveInterpState(interp, TCL_OK);
    tracker_.level = CurrentLevel(interp);
    Tcl_RestoreInterpState(interp, saved);
    Trackers().push_back(&tracker_);
    trace_ =
        Tcl_CreateObjTrace(interp, 0, TCL_ALLOW_INLINE_COMPILATION, TrackLine, &tracker_, nullptr);
  }
  ~FileScope() {
    Tcl_DeleteTrace(interp_, trace_);
    Trackers().pop_back();
    SdcSource::Leave();
  }
  FileScope(const FileScope&) = delete;
  FileScope& operator=(const FileScope&) = delete;
  LineTracker& Tracker() { return tracker_; }

 private:
  Tcl_Interp* interp_;
  LineTracker tracker_;
  Tcl_Trace trace_;
};

class ReadSdcCmd : public CommonCmd {
 public:
  ReadSdcCmd()
      : CommonCmd("read_sdc", "Read constraints from SDC files (plain or gzip-compressed)",
                  nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("echo", "Print each command as it is read", false, ValueType::kFlag, std::any());
    cmdlib::AddFileListOption(*this, "SDC files to read");
  }

  int exec() override {
    // The files' commands run other commands and maybe this one: everything
    // of this call is read first.
    const std::vector<std::string> files = cmdlib::GivenFiles(*this);
    const bool echo = getOptionValue("echo");
    Tcl_Interp* interp = state().interp;
    if (!interp) {
      SetTclError("read_sdc: no interpreter");
      return 1;
    }
    SdcSource::ResetFirstUses();
    std::string error;
    const bool ok = cmdlib::ReadFiles(
        files,
        [&](const std::string& path, std::string& why) { return ReadOne(interp, path, echo, why); },
        error);
    if (!ok) {
      // The trace a script shows for an error it does not catch begins
      // with this message, which names the file and line, rather than
      // with the bare message of the command that failed inside the file.
      Tcl_ResetResult(interp);
      SetTclError("read_sdc: " + error);
      return 1;
    }
    SetTclResult(std::string());
    return 0;
  }

 private:
  static bool ReadOne(Tcl_Interp* interp, const std::string& path, bool echo, std::string& error) {
    std::string text;
    if (!io::LoadFile(path, text, error)) return false;
    FileScope scope(interp, path);
    return RunCommands(interp, path, text, echo, scope.Tracker(), error);
  }

  static bool RunCommands(Tcl_Interp* interp, const std::string& path, const std::string& text,
                          bool echo, LineTracker& tracker, std::string& error) {
    const char* start = text.c_str();
    const char* end = start + text.size();
    const char* at = start;
    int line = 1;  // of `at`
    auto advance = [&](const char* to) {
      for (; at < to; ++at)
        if (*at == '\n') ++line;
    };
    auto place = [&](int where) { return path + ":" + std::to_string(where) + ": "; };
    while (at < end) {
      cmdlib::ReadCheckpoint(static_cast<size_t>(at - start), text.size());
      Tcl_Parse parse;
      if (Tcl_ParseCommand(interp, at, static_cast<int>(end - at), 0, &parse) != TCL_OK) {
        const std::string message = Tcl_GetStringResult(interp);
        advance(parse.commandStart ? parse.commandStart : at);
        error = place(line) + msg::CutQuotes(message, kQuotedBytes);
        Tcl_FreeParse(&parse);
        return false;
      }
      const char* command = parse.commandStart;
      const int size = parse.commandSize;
      const bool has_words = parse.numWords > 0;
      Tcl_FreeParse(&parse);
      advance(command);
      const int command_line = line;
      if (has_words) {
        SdcSource::SetLine(command_line);
        if (echo) {
          std::string shown(command, static_cast<size_t>(size));
          while (!shown.empty() && (shown.back() == '\n' || shown.back() == ';')) shown.pop_back();
          msg::WriteResult(shown + "\n");
        }
        tracker.first = command_line;
        tracker.line = 0;
        const int code = Tcl_EvalEx(interp, command, size, 0);
        if (code == TCL_ERROR) {
          const int inner = tracker.line > 0 ? tracker.line : Tcl_GetErrorLine(interp);
          // A name the file holds may be megabytes long.
          error = place(command_line + (inner > 1 ? inner - 1 : 0)) +
                  msg::CutQuotes(Stripped(Tcl_GetStringResult(interp)), kQuotedBytes);
          return false;
        }
        if (code == TCL_RETURN) break;  // as in a sourced file
        if (code == TCL_BREAK || code == TCL_CONTINUE) {
          error = place(command_line) + "invoked \"" + (code == TCL_BREAK ? "break" : "continue") +
                  "\" outside of a loop";
          return false;
        }
      }
      advance(command + size);
    }
    Tcl_ResetResult(interp);
    return true;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new ReadSdcCmd(); });

}  // namespace
}  // namespace sta::sdc
