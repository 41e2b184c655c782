// The shell's own line editor, used at the prompt on a terminal when the
// tclreadline package is not installed (or KELVO_LINE_EDITOR=builtin):
// one line at a time, in raw terminal mode.
//   Left/Right, Home/End (Ctrl-A/Ctrl-E), Alt-B/Alt-F   move
//   Backspace, Delete, Ctrl-D, Ctrl-K, Ctrl-U, Ctrl-W     delete
//   Up/Down (Ctrl-P/Ctrl-N)                               history
//   Ctrl-R                                                search the history backwards
//   Tab                                                   complete; twice lists the choices
//   Ctrl-C                                                drop the line
//   Ctrl-D on an empty line                               end of input
//   Ctrl-L                                                clear the screen
// Any other escape sequence is swallowed whole, never inserted.
#pragma once

#include <termios.h>

#include <string>

#include "shell/Completer.h"
#include "shell/History.h"
#include "shell/LineReader.h"

namespace shell {

class LineEditor : public LineReader {
 public:
  LineEditor(Completer completer, const std::string& history_path);
  Outcome Read(const std::string& prompt, std::string& line) override;
  void Remember(const std::string& line) override { history_.Add(line); }
  void Finish() override { history_.Trim(); }

 private:
  enum class Key {
    kChar,
    kEnter,
    kTab,
    kBackspace,
    kDelete,
    kLeft,
    kRight,
    kUp,
    kDown,
    kHome,
    kEnd,
    kWordLeft,
    kWordRight,
    kKillEnd,
    kKillStart,
    kKillWord,
    kInterrupt,
    kEof,
    kClear,
    kSearch,
    kCancel,
    kIgnore,
    kInputEnd
  };
  Key ReadKey(char& c);
  bool ReadByte(char& c, int timeout_ms);
  void Refresh();
  void Write(const std::string& text);
  int Columns() const;
  void Complete(bool listed_before);
  void ShowChoices(const std::vector<std::string>& choices);
  void HistoryMove(int step);
  Outcome Search(std::string& line);
  void MoveLeft();
  void MoveRight();

  Completer completer_;
  History history_;
  std::string prompt_;
  std::string buffer_;
  size_t cursor_ = 0;         // byte position in buffer_
  size_t history_index_ = 0;  // Size() means the line being edited
  std::string edited_;        // the line being edited while browsing history
  bool last_was_tab_ = false;
  termios saved_{};
};

}  // namespace shell
