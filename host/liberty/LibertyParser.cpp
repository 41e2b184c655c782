// Hand-written tokenizer and recursive-descent reader over one buffer.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <vector>

#include "cmdlib/ReadFiles.h"
#include "liberty/LibertyTree.h"
#include "msg/SafeText.h"

namespace liberty {

namespace {

// Groups nest at most this deep: a real library needs five or six levels.
constexpr int kMaxDepth = 64;

class Parser {
 public:
  Parser(LibTree& tree, const std::string& file) : tree_(tree), file_(file) {
    p_ = tree.buffer.data();
    end_ = p_ + tree.buffer.size();
  }

  bool Run(std::string& error) {
    SkipBlank();
    if (p_ == end_) return Fail("expected a 'library' group, found the end of the file", error);
    if (!ParseStatement(tree_.root, 0)) {
      if (unterminated_comment_line_) {
        line_ = unterminated_comment_line_;
        return Fail("expected '*/' to close the comment opened here, found the end of the file",
                    error);
      }
      return Fail(error_, error);
    }
    if (tree_.root.kind != LibStatement::Kind::kGroup || tree_.root.name != "library") {
      line_ = tree_.root.line;
      return Fail("expected a 'library' group, found '" + std::string(tree_.root.name) + "'",
                  error);
    }
    SkipBlank();
    if (p_ != end_)
      return Fail("expected the end of the file after the library group, found " + Found(), error);
    return true;
  }

 private:
  bool Fail(const std::string& what, std::string& error) {
    error = file_ + ":" + std::to_string(line_) + ": " + msg::CutQuotes(what);
    return false;
  }
  bool Error(std::string what) {
    error_ = std::move(what);
    return false;
  }

  static bool IsWordChar(char c) {
    switch (c) {
      case ' ':
      case '\t':
      case '\r':
      case '\n':
      case '\f':
      case '\v':
      case '(':
      case ')':
      case '{':
      case '}':
      case ':':
      case ';':
      case ',':
      case '"':
        return false;
      default:
        return true;
    }
  }

  // Skips blanks, newlines, comments and backslash line continuations.
  void SkipBlank() {
    while (p_ < end_) {
      const char c = *p_;
      if (c == '\n') {
        ++line_;
        ++p_;
      } else if (c == ' ' || c == '\t' || c == '\r' || c == '\f' || c == '\v') {
        ++p_;
      } else if (c == '\\' && IsContinuation(p_)) {
        ++p_;
      } else if (c == '/' && p_ + 1 < end_ && p_[1] == '*') {
        const char* start = p_;
        const uint32_t start_line = line_;
        p_ += 2;
        while (p_ + 1 < end_ && !(p_[0] == '*' && p_[1] == '/')) {
          if (*p_ == '\n') ++line_;
          ++p_;
        }
        if (p_ + 1 >= end_) {
          p_ = start;
          line_ = start_line;
          unterminated_comment_line_ = start_line;
          return;
        }
        p_ += 2;
      } else if (c == '/' && p_ + 1 < end_ && p_[1] == '/') {
        while (p_ < end_ && *p_ != '\n') ++p_;
      } else {
        return;
      }
    }
  }

  // A backslash followed by blanks up to the end of the line.
  bool IsContinuation(const char* at) const {
    const char* q = at + 1;
    while (q < end_ && (*q == ' ' || *q == '\t' || *q == '\r')) ++q;
    return q == end_ || *q == '\n';
  }

  std::string Found() {
    if (unterminated_comment_line_) return "an unterminated comment";
    if (p_ == end_) return "the end of the file";
    if (*p_ == '"') return "a quoted string";
    if (!IsWordChar(*p_)) return std::string("'") + *p_ + "'";
    const char* q = p_;
    while (q < end_ && IsWordChar(*q) && q - p_ < 40) ++q;
    return "'" + std::string(p_, q) + "'";
  }

  bool ReadWord(std::string_view& word) {
    const char* start = p_;
    while (p_ < end_ && IsWordChar(*p_)) {
      if (*p_ == '\\' && IsContinuation(p_)) break;
      ++p_;
    }
    word = std::string_view(start, p_ - start);
    return p_ > start;
  }

  bool ReadQuoted(LibValue& value) {
    const uint32_t start_line = line_;
    const char* start = ++p_;
    bool continued = false;
    while (p_ < end_ && *p_ != '"') {
      if (*p_ == '\\' && IsContinuation(p_)) continued = true;
      if (*p_ == '\\' && p_ + 1 < end_ && p_[1] == '"') ++p_;
      if (*p_ == '\n') ++line_;
      ++p_;
    }
    if (p_ == end_) {
      line_ = start_line;
      return Error("expected the closing '\"' of a string opened here, found the end of the file");
    }
    value.quoted = true;
    value.text = std::string_view(start, p_ - start);
    ++p_;
    if (continued) {
      // Drop each backslash and the line break behind it.
      std::string joined;
      for (const char* q = start; q < p_ - 1; ++q) {
        if (*q == '\\' && IsContinuation(q)) {
          while (*q != '\n' && q < p_ - 1) ++q;
          continue;
        }
        joined += *q;
      }
      tree_.owned.push_back(std::move(joined));
      value.text = tree_.owned.back();
    }
    return true;
  }

  // A value: a quoted string or a word. Words may be joined by blanks into
  // one value ("A & B" unquoted) up to the next delimiter.
  // `context` and `name` make the message only when there is an error.
  bool ReadValue(LibValue& value, const char* context, std::string_view name) {
    SkipBlank();
    if (p_ < end_ && *p_ == '"') return ReadQuoted(value);
    const char* start = p_;
    std::string_view word;
    if (p_ == end_ || !ReadWord(word)) {
      return Error(std::string("expected ") + context + " '" + std::string(name) + "', found " +
                   Found());
    }
    const char* last = p_;
    last_word_ = nullptr;
    for (;;) {
      const char* save = p_;
      const uint32_t save_line = line_;
      while (p_ < end_ && (*p_ == ' ' || *p_ == '\t')) ++p_;
      if (p_ < end_ && IsWordChar(*p_) && !(*p_ == '\\' && IsContinuation(p_))) {
        last_word_ = p_;
        ReadWord(word);
        last = p_;
        continue;
      }
      p_ = save;
      line_ = save_line;
      break;
    }
    value.quoted = false;
    value.text = std::string_view(start, last - start);
    return true;
  }

  // `what` and `name` make the message only when there is an error.
  bool Expect(char c, const char* what, std::string_view name) {
    SkipBlank();
    if (p_ < end_ && *p_ == c) {
      ++p_;
      return true;
    }
    return Error(std::string("expected ") + what + " '" + std::string(name) + "', found " +
                 Found());
  }

  bool ParseStatement(LibStatement& st, int depth) {
    if (depth > kMaxDepth) return Error("groups nested too deeply");
    SkipBlank();
    st.line = line_;
    if (!ReadWord(st.name)) return Error("expected an attribute or group name, found " + Found());
    const std::string_view name = st.name;
    SkipBlank();
    if (p_ < end_ && *p_ == ':') {
      ++p_;
      st.kind = LibStatement::Kind::kSimple;
      st.values.emplace_back();
      if (!ReadValue(st.values.back(), "a value for attribute", name)) return false;
      // Many libraries end a simple attribute with the line alone.
      const char* q = p_;
      while (q < end_ && (*q == ' ' || *q == '\t' || *q == '\r')) ++q;
      if (q < end_ && *q == ';') {
        p_ = q + 1;
        return true;
      }
      if (q == end_ || *q == '\n' || *q == '}') return true;
      if (q < end_ && *q == ':' && last_word_) {
        // `a : 1 b : 2;`: the ';' is missing before the last word read.
        p_ = last_word_;
      }
      return Expect(';', "';' after the value of attribute", name);
    }
    if (p_ >= end_ || *p_ != '(') {
      return Error("expected ':' or '(' after '" + std::string(name) + "', found " + Found());
    }
    ++p_;
    SkipBlank();
    if (p_ < end_ && *p_ != ')') {
      // Gathered apart and then copied once: a library has millions of
      // lists, and growing each one by one is most of the time spent
      // allocating.
      scratch_values_.clear();
      for (;;) {
        scratch_values_.emplace_back();
        if (!ReadValue(scratch_values_.back(), "a value in the list of", name)) return false;
        SkipBlank();
        if (p_ < end_ && *p_ == ',') {
          ++p_;
          continue;
        }
        break;
      }
      st.values.assign(scratch_values_.begin(), scratch_values_.end());
    }
    if (!Expect(')', "',' or ')' in the list of", name)) return false;
    SkipBlank();
    if (p_ < end_ && *p_ == '{') {
      ++p_;
      st.kind = LibStatement::Kind::kGroup;
      const uint32_t open_line = st.line;
      // The children are gathered in this depth's scratch list (deeper
      // groups use deeper lists) and moved into a list of their number.
      std::vector<LibStatement>& children = scratch_children_[depth];
      children.clear();
      for (;;) {
        SkipBlank();
        if (p_ == end_) {
          line_ = open_line;
          return Error("expected '}' to close group '" + std::string(name) +
                       "' opened here, found " + Found());
        }
        if (*p_ == '}') {
          ++p_;
          break;
        }
        if (*p_ == ';') {  // a stray ';' between statements
          ++p_;
          continue;
        }
        cmdlib::ReadCheckpoint(static_cast<size_t>(p_ - tree_.buffer.data()), tree_.buffer.size());
        children.emplace_back();
        if (!ParseStatement(children.back(), depth + 1)) return false;
      }
      st.children.reserve(children.size());
      std::move(children.begin(), children.end(), std::back_inserter(st.children));
      children.clear();
      SkipBlank();
      if (p_ < end_ && *p_ == ';') ++p_;
      return true;
    }
    st.kind = LibStatement::Kind::kComplex;
    // Real libraries often leave the ';' behind a complex attribute out.
    if (p_ < end_ && *p_ == ';') ++p_;
    return true;
  }

  LibTree& tree_;
  const std::string& file_;
  const char* p_;
  const char* end_;
  uint32_t line_ = 1;  // wraps, harmlessly, past 2^32 lines
  uint32_t unterminated_comment_line_ = 0;
  const char* last_word_ = nullptr;  // start of the last word of a value of several
  std::vector<LibValue> scratch_values_;
  std::vector<std::vector<LibStatement>> scratch_children_ =
      std::vector<std::vector<LibStatement>>(kMaxDepth + 1);
  std::string error_;
};

}  // namespace

bool ParseLibertyText(LibTree& tree, const std::string& file_name, std::string& error) {
  Parser parser(tree, file_name);
  return parser.Run(error);
}

}  // namespace liberty
