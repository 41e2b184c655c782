#include "shell/TclReadlineReader.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cstdio>

#include "shell/InterruptHandler.h"

namespace shell {
namespace {

bool Eval(Tcl_Interp* interp, const std::string& script) {
  return Tcl_Eval(interp, script.c_str()) == TCL_OK;
}

std::string Quoted(const std::string& text) {
  Tcl_Obj* word = Tcl_NewStringObj(text.c_str(), -1);
  Tcl_Obj* list = Tcl_NewListObj(1, &word);
  Tcl_IncrRefCount(list);
  std::string quoted = Tcl_GetString(list);
  Tcl_DecrRefCount(list);
  return quoted;
}

// Ctrl-C at the prompt: readline's line is dropped and a fresh prompt
// drawn, as a shell does. tclreadline offers no command for it, so
// readline's own calls are looked up in the library tclreadline loaded.
void ClearReadlineLine() {
  static void* readline = dlopen("libreadline.so.8", RTLD_LAZY | RTLD_NOLOAD);
  if (!readline) return;
  using Replace = void (*)(const char*, int);
  using SetPrompt = int (*)(const char*);
  using Step = int (*)();
  using Redisplay = void (*)();
  auto replace = reinterpret_cast<Replace>(dlsym(readline, "rl_replace_line"));
  auto set_prompt = reinterpret_cast<SetPrompt>(dlsym(readline, "rl_set_prompt"));
  auto crlf = reinterpret_cast<Step>(dlsym(readline, "rl_crlf"));
  auto on_new_line = reinterpret_cast<Step>(dlsym(readline, "rl_on_new_line"));
  auto redisplay = reinterpret_cast<Redisplay>(dlsym(readline, "rl_redisplay"));
  if (!replace || !set_prompt || !crlf || !on_new_line || !redisplay) return;
  ssize_t wrote = ::write(STDOUT_FILENO, "^C", 2);
  (void)wrote;
  crlf();
  replace("", 1);
  set_prompt("kelvo> ");
  on_new_line();
  redisplay();
}

}  // namespace

std::unique_ptr<TclReadlineReader> TclReadlineReader::Open(Tcl_Interp* interp, Completer completer,
                                                           const std::string& history_path) {
  if (!Eval(interp, "package require tclreadline")) {
    Tcl_ResetResult(interp);
    return nullptr;
  }
  // Tcl's own unknown again: no Unix programs run for unknown commands, no
  // command taken from a prefix of its name.
  Eval(interp,
       "if {[llength [info commands ::_unknown]]} {rename ::unknown {}; rename ::_unknown "
       "::unknown}");
  std::unique_ptr<TclReadlineReader> reader(
      new TclReadlineReader(interp, std::move(completer), history_path));
  Tcl_CreateObjCommand(interp, "::kelvo::complete", CompleteCmd, reader.get(), nullptr);
  if (!Eval(interp, "::tclreadline::readline initialize " + Quoted(history_path)) ||
      !Eval(interp, "::tclreadline::readline customcompleter ::kelvo::complete") ||
      !Eval(interp, "::tclreadline::readline builtincompleter 0") ||
      !Eval(interp, "::tclreadline::readline eofchar {set ::kelvo::end_of_input 1}")) {
    Tcl_ResetResult(interp);
    return nullptr;
  }
  Eval(interp, "set ::kelvo::end_of_input 0");
  Tcl_ResetResult(interp);
  SetPromptInterruptHook(ClearReadlineLine);
  return reader;
}

// ::kelvo::complete TEXT START END LINE: the word's common start, then the
// candidates, or nothing.
int TclReadlineReader::CompleteCmd(ClientData data, Tcl_Interp* interp, int objc,
                                   Tcl_Obj* const objv[]) {
  auto* reader = static_cast<TclReadlineReader*>(data);
  if (objc != 5) return TCL_ERROR;
  int end = 0;
  Tcl_GetIntFromObj(nullptr, objv[3], &end);
  const std::string line = Tcl_GetString(objv[4]);
  Completion completion = reader->completer_.Complete(line, static_cast<size_t>(end));
  Tcl_Obj* result = Tcl_NewListObj(0, nullptr);
  if (!completion.candidates.empty()) {
    std::string common = Completer::CommonPrefix(completion.candidates);
    Tcl_ListObjAppendElement(nullptr, result, Tcl_NewStringObj(common.c_str(), -1));
    for (const std::string& candidate : completion.candidates)
      Tcl_ListObjAppendElement(nullptr, result, Tcl_NewStringObj(candidate.c_str(), -1));
  }
  Tcl_SetObjResult(interp, result);
  return TCL_OK;
}

LineReader::Outcome TclReadlineReader::Read(const std::string& prompt, std::string& line) {
  std::fflush(stdout);
  std::fflush(stderr);
  Eval(interp_, "set ::kelvo::end_of_input 0");
  const bool read = Eval(interp_, "::tclreadline::readline read " + Quoted(prompt));
  line = Tcl_GetStringResult(interp_);
  Tcl_ResetResult(interp_);
  const char* end = Tcl_GetVar(interp_, "::kelvo::end_of_input", TCL_GLOBAL_ONLY);
  if (!read || (end && end[0] == '1')) return Outcome::kEnd;
  return Outcome::kLine;
}

void TclReadlineReader::Finish() {
  Eval(interp_, "::tclreadline::readline write " + Quoted(history_path_));
  Eval(interp_, "::tclreadline::readline reset-terminal");
}

}  // namespace shell
