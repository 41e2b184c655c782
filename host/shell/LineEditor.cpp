#include "shell/LineEditor.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace shell {
namespace {

bool IsContinuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// Columns that `text` takes: one per character (UTF-8 aware).
size_t Width(const std::string& text, size_t from = 0, size_t to = std::string::npos) {
  to = std::min(to, text.size());
  size_t width = 0;
  for (size_t i = from; i < to; ++i) width += !IsContinuation(text[i]);
  return width;
}

// Byte position of column `column` of `text`.
size_t ByteAt(const std::string& text, size_t column) {
  size_t i = 0;
  for (size_t seen = 0; i < text.size(); ++i) {
    if (IsContinuation(text[i])) continue;
    if (seen++ == column) return i;
  }
  return text.size();
}

bool IsWordChar(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || IsContinuation(c) ||
         static_cast<unsigned char>(c) >= 0xC0;
}

class RawMode {
 public:
  explicit RawMode(termios& saved) : saved_(saved) {
    if (tcgetattr(STDIN_FILENO, &saved_) != 0) return;
    termios raw = saved_;
    raw.c_iflag &= ~static_cast<tcflag_t>(BRKINT | ICRNL | INPCK | ISTRIP | IXON);
    raw.c_cflag |= CS8;
    raw.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON | IEXTEN | ISIG);
    raw.c_cc[VMIN] = 1;
    raw.c_cc[VTIME] = 0;
    active_ = tcsetattr(STDIN_FILENO, TCSADRAIN, &raw) == 0;
  }
  ~RawMode() {
    if (active_) tcsetattr(STDIN_FILENO, TCSADRAIN, &saved_);
  }
  RawMode(const RawMode&) = delete;
  RawMode& operator=(const RawMode&) = delete;

 private:
  termios& saved_;
  bool active_ = false;
};

}  // namespace

LineEditor::LineEditor(Completer completer, const std::string& history_path)
    : completer_(std::move(completer)) {
  history_.Load(history_path);
}

void LineEditor::Write(const std::string& text) {
  size_t done = 0;
  while (done < text.size()) {
    ssize_t wrote = ::write(STDOUT_FILENO, text.data() + done, text.size() - done);
    if (wrote < 0 && errno == EINTR) continue;
    if (wrote <= 0) return;
    done += static_cast<size_t>(wrote);
  }
}

int LineEditor::Columns() const {
  winsize size{};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) return size.ws_col;
  if (const char* columns = std::getenv("COLUMNS")) {
    int n = std::atoi(columns);
    if (n > 0) return n;
  }
  return 80;
}

bool LineEditor::ReadByte(char& c, int timeout_ms) {
  if (timeout_ms >= 0) {
    pollfd wanted{STDIN_FILENO, POLLIN, 0};
    if (poll(&wanted, 1, timeout_ms) <= 0) return false;
  }
  while (true) {
    ssize_t got = ::read(STDIN_FILENO, &c, 1);
    if (got == 1) return true;
    if (got < 0 && errno == EINTR) continue;
    return false;
  }
}

LineEditor::Key LineEditor::ReadKey(char& c) {
  if (!ReadByte(c, -1)) return Key::kInputEnd;
  switch (c) {
    case 1:
      return Key::kHome;
    case 2:
      return Key::kLeft;
    case 3:
      return Key::kInterrupt;
    case 4:
      return Key::kEof;
    case 5:
      return Key::kEnd;
    case 6:
      return Key::kRight;
    case 7:
      return Key::kCancel;
    case 8:
    case 127:
      return Key::kBackspace;
    case 9:
      return Key::kTab;
    case 10:
    case 13:
      return Key::kEnter;
    case 11:
      return Key::kKillEnd;
    case 12:
      return Key::kClear;
    case 14:
      return Key::kDown;
    case 16:
      return Key::kUp;
    case 18:
      return Key::kSearch;
    case 21:
      return Key::kKillStart;
    case 23:
      return Key::kKillWord;
    case 27:
      break;
    default:
      return static_cast<unsigned char>(c) < 32 ? Key::kIgnore : Key::kChar;
  }
  // An escape sequence: read it whole, whatever it is.
  char next = 0;
  if (!ReadByte(next, 50)) return Key::kIgnore;
  if (next == 'b') return Key::kWordLeft;
  if (next == 'f') return Key::kWordRight;
  if (next == 'O') {
    if (!ReadByte(next, 50)) return Key::kIgnore;
    switch (next) {
      case 'A':
        return Key::kUp;
      case 'B':
        return Key::kDown;
      case 'C':
        return Key::kRight;
      case 'D':
        return Key::kLeft;
      case 'H':
        return Key::kHome;
      case 'F':
        return Key::kEnd;
      default:
        return Key::kIgnore;
    }
  }
  if (next != '[') return Key::kIgnore;
  std::string parameters;
  char final = 0;
  while (ReadByte(final, 50)) {
    if (final >= 0x40 && final <= 0x7E) break;
    parameters.push_back(final);
    final = 0;
  }
  switch (final) {
    case 'A':
      return Key::kUp;
    case 'B':
      return Key::kDown;
    case 'C':
      return parameters.find(";5") != std::string::npos ? Key::kWordRight : Key::kRight;
    case 'D':
      return parameters.find(";5") != std::string::npos ? Key::kWordLeft : Key::kLeft;
    case 'H':
      return Key::kHome;
    case 'F':
      return Key::kEnd;
    case '~':
      if (parameters == "1" || parameters == "7") return Key::kHome;
      if (parameters == "4" || parameters == "8") return Key::kEnd;
      if (parameters == "3") return Key::kDelete;
      return Key::kIgnore;
    default:
      return Key::kIgnore;
  }
}

void LineEditor::Refresh() {
  const size_t columns = static_cast<size_t>(Columns());
  const size_t prompt_width = Width(prompt_);
  const size_t room = columns > prompt_width + 10 ? columns - prompt_width - 1 : 10;
  const size_t cursor_column = Width(buffer_, 0, cursor_);
  const size_t first = cursor_column > room ? cursor_column - room : 0;
  const size_t from = ByteAt(buffer_, first);
  const size_t to = ByteAt(buffer_, first + room);
  std::string screen = "\r" + prompt_ + buffer_.substr(from, to - from) + "\x1b[K\r";
  const size_t at = prompt_width + cursor_column - first;
  if (at > 0) screen += "\x1b[" + std::to_string(at) + "C";
  Write(screen);
}

void LineEditor::MoveLeft() {
  while (cursor_ > 0) {
    --cursor_;
    if (!IsContinuation(buffer_[cursor_])) break;
  }
}

void LineEditor::MoveRight() {
  if (cursor_ >= buffer_.size()) return;
  ++cursor_;
  while (cursor_ < buffer_.size() && IsContinuation(buffer_[cursor_])) ++cursor_;
}

void LineEditor::HistoryMove(int step) {
  if (history_.Size() == 0) return;
  if (history_index_ == history_.Size()) edited_ = buffer_;
  if (step < 0 && history_index_ == 0) return;
  if (step > 0 && history_index_ == history_.Size()) return;
  history_index_ = step < 0 ? history_index_ - 1 : history_index_ + 1;
  buffer_ = history_index_ == history_.Size() ? edited_ : history_.At(history_index_);
  cursor_ = buffer_.size();
}

void LineEditor::ShowChoices(const std::vector<std::string>& choices) {
  constexpr size_t kShown = 200;
  size_t width = 0;
  for (const std::string& choice : choices) width = std::max(width, Width(choice));
  width += 2;
  const size_t per_row = std::max<size_t>(1, static_cast<size_t>(Columns()) / width);
  std::string text = "\r\n";
  const size_t shown = std::min(choices.size(), kShown);
  for (size_t i = 0; i < shown; ++i) {
    text += choices[i];
    if ((i + 1) % per_row == 0 || i + 1 == shown)
      text += "\r\n";
    else
      text += std::string(width - Width(choices[i]), ' ');
  }
  if (choices.size() > shown)
    text += "... and " + std::to_string(choices.size() - shown) + " more\r\n";
  Write(text);
}

void LineEditor::Complete(bool listed_before) {
  Completion completion = completer_.Complete(buffer_, cursor_);
  const std::string word = buffer_.substr(completion.start, cursor_ - completion.start);
  if (completion.candidates.empty()) {
    Write("\x07");
    return;
  }
  std::string replacement;
  if (completion.candidates.size() == 1) {
    replacement = completion.candidates.front();
    if (!(completion.file_names && !replacement.empty() && replacement.back() == '/'))
      replacement += ' ';
  } else {
    replacement = Completer::CommonPrefix(completion.candidates);
    if (replacement.size() <= word.size()) {
      if (listed_before)
        ShowChoices(completion.candidates);
      else
        Write("\x07");
      return;
    }
  }
  buffer_.replace(completion.start, cursor_ - completion.start, replacement);
  cursor_ = completion.start + replacement.size();
}

LineReader::Outcome LineEditor::Search(std::string& line) {
  std::string query;
  long match = -1;
  const std::string original = buffer_;
  while (true) {
    std::string found = match >= 0 ? history_.At(static_cast<size_t>(match)) : std::string();
    Write("\r(reverse-i-search)`" + query + "': " + found + "\x1b[K");
    char c = 0;
    Key key = ReadKey(c);
    switch (key) {
      case Key::kChar: {
        query.push_back(c);
        long from = match >= 0 ? match + 1 : static_cast<long>(history_.Size());
        long again = history_.FindBackward(query, from);
        if (again >= 0) match = again;
        continue;
      }
      case Key::kSearch:
        if (match >= 0) {
          long older = history_.FindBackward(query, match);
          if (older >= 0) match = older;
        }
        continue;
      case Key::kBackspace:
        if (!query.empty()) query.pop_back();
        match = query.empty() ? -1 : history_.FindBackward(query, history_.Size());
        continue;
      case Key::kInterrupt:
      case Key::kCancel:
        buffer_ = original;
        cursor_ = buffer_.size();
        Refresh();
        return Outcome::kCleared;  // back to editing
      case Key::kInputEnd:
        return Outcome::kEnd;
      case Key::kEnter:
        if (match >= 0) buffer_ = found;
        Write("\r" + prompt_ + buffer_ + "\x1b[K\r\n");
        line = buffer_;
        return Outcome::kLine;
      default:
        if (match >= 0) buffer_ = found;
        cursor_ = buffer_.size();
        history_index_ = history_.Size();
        Refresh();
        return Outcome::kCleared;
    }
  }
}

LineReader::Outcome LineEditor::Read(const std::string& prompt, std::string& line) {
  std::fflush(stdout);
  std::fflush(stderr);
  RawMode raw(saved_);
  prompt_ = prompt;
  buffer_.clear();
  cursor_ = 0;
  history_index_ = history_.Size();
  edited_.clear();
  last_was_tab_ = false;
  Refresh();
  while (true) {
    char c = 0;
    const Key key = ReadKey(c);
    const bool listed_before = last_was_tab_;
    last_was_tab_ = key == Key::kTab;
    switch (key) {
      case Key::kChar:
        buffer_.insert(cursor_, 1, c);
        ++cursor_;
        // The rest of a UTF-8 character comes before the screen is drawn.
        if (static_cast<unsigned char>(c) >= 0xC0) continue;
        break;
      case Key::kEnter:
        Write("\r\n");
        line = buffer_;
        return Outcome::kLine;
      case Key::kInterrupt:
        Write("^C\r\n");
        return Outcome::kCleared;
      case Key::kInputEnd:
        Write("\r\n");
        return Outcome::kEnd;
      case Key::kEof:
        if (buffer_.empty()) {
          Write("\r\n");
          return Outcome::kEnd;
        }
        [[fallthrough]];
      case Key::kDelete:
        if (cursor_ < buffer_.size()) {
          size_t end = cursor_;
          MoveRight();
          buffer_.erase(end, cursor_ - end);
          cursor_ = end;
        }
        break;
      case Key::kBackspace:
        if (cursor_ > 0) {
          size_t end = cursor_;
          MoveLeft();
          buffer_.erase(cursor_, end - cursor_);
        }
        break;
      case Key::kLeft:
        MoveLeft();
        break;
      case Key::kRight:
        MoveRight();
        break;
      case Key::kHome:
        cursor_ = 0;
        break;
      case Key::kEnd:
        cursor_ = buffer_.size();
        break;
      case Key::kWordLeft:
        while (cursor_ > 0 && !IsWordChar(buffer_[cursor_ - 1])) --cursor_;
        while (cursor_ > 0 && IsWordChar(buffer_[cursor_ - 1])) --cursor_;
        break;
      case Key::kWordRight:
        while (cursor_ < buffer_.size() && !IsWordChar(buffer_[cursor_])) ++cursor_;
        while (cursor_ < buffer_.size() && IsWordChar(buffer_[cursor_])) ++cursor_;
        break;
      case Key::kKillEnd:
        buffer_.erase(cursor_);
        break;
      case Key::kKillStart:
        buffer_.erase(0, cursor_);
        cursor_ = 0;
        break;
      case Key::kKillWord: {
        size_t end = cursor_;
        while (cursor_ > 0 && buffer_[cursor_ - 1] == ' ') --cursor_;
        while (cursor_ > 0 && buffer_[cursor_ - 1] != ' ') --cursor_;
        buffer_.erase(cursor_, end - cursor_);
        break;
      }
      case Key::kUp:
        HistoryMove(-1);
        break;
      case Key::kDown:
        HistoryMove(1);
        break;
      case Key::kClear:
        Write("\x1b[H\x1b[2J");
        break;
      case Key::kTab:
        Complete(listed_before);
        break;
      case Key::kSearch: {
        Outcome outcome = Search(line);
        if (outcome != Outcome::kCleared) return outcome;
        break;
      }
      case Key::kCancel:
      case Key::kIgnore:
        break;
    }
    Refresh();
  }
}

}  // namespace shell
