// source ?-echo? ?-verbose? ?-encoding NAME? FILE: runs a Tcl script file.
// Plain, it is Tcl's own source. With -echo each command is shown before it
// runs, with -verbose each command's result after it.
#include <string>

#include "cmdlib/HostCommands.h"
#include "cmdlib/TclCmd.h"
#include "msg/ResultChannel.h"
#include "shell/ScriptLocation.h"

namespace shell {
namespace {

class SourceCmd : public cmdlib::TclCmd {
 public:
  SourceCmd() : TclCmd("source", "Run the Tcl commands of a file") {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("echo", "Show each command before it runs", false, ValueType::kFlag, std::any());
    addOptions("verbose", "Show the result of each command", false, ValueType::kFlag, std::any());
    addOptions("encoding", "Encoding of the file (Tcl's names)", false, ValueType::kString,
               std::any());
    addOptions("file", "Script file", true, ValueType::kString, std::any());
  }

  int run(Tcl_Interp* interp) override {
    if (getOptionCount("file") == 0) return Fail(interp, "expected a file name");
    const std::string file = StringOption("file");
    const std::string encoding = StringOption("encoding");
    RememberScriptName(file);
    if (!FlagOption("echo") && !FlagOption("verbose")) return PlainSource(interp, file, encoding);
    std::string text;
    if (!ReadScript(interp, file, encoding, text)) return TCL_ERROR;
    return RunEchoed(interp, file, text);
  }

 private:
  static int PlainSource(Tcl_Interp* interp, const std::string& file, const std::string& encoding) {
    Tcl_Obj* words[4];
    int count = 0;
    words[count++] = Tcl_NewStringObj("::tcl::kelvo_source", -1);
    if (!encoding.empty()) {
      words[count++] = Tcl_NewStringObj("-encoding", -1);
      words[count++] = Tcl_NewStringObj(encoding.c_str(), -1);
    }
    words[count++] = Tcl_NewStringObj(file.c_str(), -1);
    for (int i = 0; i < count; ++i) Tcl_IncrRefCount(words[i]);
    int code = Tcl_EvalObjv(interp, count, words, 0);
    for (int i = 0; i < count; ++i) Tcl_DecrRefCount(words[i]);
    return code;
  }

  bool ReadScript(Tcl_Interp* interp, const std::string& file, const std::string& encoding,
                  std::string& text) {
    Tcl_Channel channel = Tcl_OpenFileChannel(interp, file.c_str(), "r", 0);
    if (!channel) return false;
    if (!encoding.empty() &&
        Tcl_SetChannelOption(interp, channel, "-encoding", encoding.c_str()) != TCL_OK) {
      Tcl_Close(nullptr, channel);
      return false;
    }
    Tcl_Obj* contents = Tcl_NewObj();
    Tcl_IncrRefCount(contents);
    const bool read = Tcl_ReadChars(channel, contents, -1, 0) >= 0;
    Tcl_Close(nullptr, channel);
    text = Tcl_GetString(contents);
    Tcl_DecrRefCount(contents);
    if (!read) Fail(interp, "cannot read '" + file + "'");
    return read;
  }

  // Runs `text` command by command in the caller's frame, as source does.
  int RunEchoed(Tcl_Interp* interp, const std::string& file, const std::string& text) {
    const bool echo = FlagOption("echo");
    const bool verbose = FlagOption("verbose");
    EchoedFileScope scope(interp, file);
    const char* start = text.c_str();
    const char* end = start + text.size();
    const char* next = start;
    int line = 1;
    Tcl_SetObjResult(interp, Tcl_NewObj());
    while (next < end) {
      Tcl_Parse parse;
      if (Tcl_ParseCommand(interp, next, static_cast<int>(end - next), 0, &parse) != TCL_OK) {
        AddWhere(interp, file, line);
        return TCL_ERROR;
      }
      for (const char* c = next; c < parse.commandStart; ++c) line += *c == '\n';
      const std::string command(parse.commandStart, static_cast<size_t>(parse.commandSize));
      const int command_line = line;
      for (char c : command) line += c == '\n';
      next = parse.commandStart + parse.commandSize;
      const bool empty = parse.numWords == 0;
      Tcl_FreeParse(&parse);
      if (empty) continue;
      std::string shown = command;
      while (!shown.empty() && (shown.back() == '\n' || shown.back() == ';')) shown.pop_back();
      if (echo) msg::WriteResult(shown + "\n");
      scope.SetLine(command_line);
      int code = Tcl_EvalEx(interp, command.c_str(), static_cast<int>(command.size()), 0);
      if (code == TCL_RETURN) return TCL_OK;  // return ends the file, as in source
      if (code != TCL_OK) {
        if (code == TCL_ERROR) AddWhere(interp, file, command_line);
        return code;
      }
      const char* result = Tcl_GetStringResult(interp);
      if (verbose && result[0] != '\0') msg::WriteResult(std::string(result) + "\n");
    }
    return TCL_OK;
  }

  static void AddWhere(Tcl_Interp* interp, const std::string& file, int line) {
    std::string where = "\n    (file \"" + file + "\" line " + std::to_string(line) + ")";
    Tcl_AddErrorInfo(interp, where.c_str());
  }
};

cmdlib::HostCommandRegistrar registrar([] { new SourceCmd(); });

}  // namespace
}  // namespace shell
