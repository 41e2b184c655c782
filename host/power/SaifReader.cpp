#include "power/SaifReader.h"

#include <cstdlib>
#include <unordered_set>
#include <vector>

#include "db/PathLookup.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Net.h"
#include "msg/SafeText.h"

namespace power {
namespace {

struct Token {
  enum Kind { kOpen, kClose, kWord, kString, kEnd } kind = kEnd;
  std::string text;  // a word without its escapes; a string without its quotes
  int line = 0;
};

// Parentheses, words (a backslash takes the next character as it is),
// quoted strings; "//" and "/* */" comments.
class SaifLexer {
 public:
  explicit SaifLexer(const std::string& text) : text_(text) {}

  Token Next() {
    if (peeked_) {
      peeked_ = false;
      return peek_;
    }
    return Scan();
  }
  const Token& Peek() {
    if (!peeked_) {
      peek_ = Scan();
      peeked_ = true;
    }
    return peek_;
  }
  int Line() const { return peeked_ ? peek_.line : line_; }

 private:
  Token Scan() {
    SkipBlanks();
    Token token;
    token.line = line_;
    if (pos_ >= text_.size()) return token;
    const char c = text_[pos_];
    if (c == '(' || c == ')') {
      ++pos_;
      token.kind = c == '(' ? Token::kOpen : Token::kClose;
      return token;
    }
    if (c == '"') {
      token.kind = Token::kString;
      ++pos_;
      while (pos_ < text_.size() && text_[pos_] != '"') {
        if (text_[pos_] == '\n') ++line_;
        token.text += text_[pos_++];
      }
      ++pos_;
      return token;
    }
    token.kind = Token::kWord;
    while (pos_ < text_.size()) {
      const char w = text_[pos_];
      if (w == '\\' && pos_ + 1 < text_.size()) {
        token.text += text_[pos_ + 1];
        pos_ += 2;
        continue;
      }
      if (w == '(' || w == ')' || w == '"' || w == ' ' || w == '\t' || w == '\n' || w == '\r')
        break;
      token.text += w;
      ++pos_;
    }
    return token;
  }
  void SkipBlanks() {
    while (pos_ < text_.size()) {
      const char c = text_[pos_];
      if (c == '\n') {
        ++line_;
        ++pos_;
      } else if (c == ' ' || c == '\t' || c == '\r' || c == '\f') {
        ++pos_;
      } else if (c == '/' && pos_ + 1 < text_.size() && text_[pos_ + 1] == '/') {
        while (pos_ < text_.size() && text_[pos_] != '\n') ++pos_;
      } else if (c == '/' && pos_ + 1 < text_.size() && text_[pos_ + 1] == '*') {
        pos_ += 2;
        while (pos_ + 1 < text_.size() && !(text_[pos_] == '*' && text_[pos_ + 1] == '/')) {
          if (text_[pos_] == '\n') ++line_;
          ++pos_;
        }
        pos_ += 2;
      } else {
        break;
      }
    }
  }

  const std::string& text_;
  size_t pos_ = 0;
  int line_ = 1;
  Token peek_;
  bool peeked_ = false;
};

// One net's figures as the file gives them.
struct Record {
  std::string name;  // below the design's instance, '/' between levels
  double t0 = 0.0, t1 = 0.0, tc = 0.0;
  bool has_tc = false;
};

class SaifParser {
 public:
  static constexpr size_t kMaxDepth = 1000;

  SaifParser(const std::string& file, const std::string& text, const cdm::Design& design,
             const std::string& instance)
      : file_(file), lexer_(text), design_(design), instance_(instance) {}

  bool Parse(ActivityFileResult& result, std::string& error) {
    if (!ParseFile()) {
      error = error_;
      return false;
    }
    if (!found_) {
      error = file_ + ": no instance '" + instance_ + "' in the file";
      return false;
    }
    if (!(duration_ > 0.0)) {
      error = file_ + ": no DURATION above 0 in the file";
      return false;
    }
    const double seconds = duration_ * timescale_;
    std::unordered_set<uint32_t> flat;
    for (const Record& record : records_) {
      const cdm::Net* net = cdm::FindNetByPath(&design_, record.name);
      if (!net || net->FlatNetId() == 0) {
        if (result.missing++ == 0) result.first_missing = record.name;
        continue;
      }
      ActivitySetting setting;
      setting.origin = ActivityOrigin::kSaif;
      if (record.has_tc) setting.rate = RateSetting{record.tc / seconds, false};
      if (record.t0 + record.t1 > 0.0) setting.probability = record.t1 / (record.t0 + record.t1);
      result.nets.emplace_back(net->GetFullName(), setting);
      flat.insert(net->FlatNetId());
    }
    result.flat_nets = flat.size();
    return true;
  }

 private:
  bool Fail(int line, const std::string& why) {
    if (error_.empty()) error_ = file_ + ":" + std::to_string(line) + ": " + msg::CutQuotes(why);
    return false;
  }
  bool Expect(Token::Kind kind, const char* what) {
    const Token token = lexer_.Next();
    if (token.kind == kind) return true;
    return Fail(token.line, std::string("expected ") + what + ", found " + Describe(token));
  }
  static std::string Describe(const Token& token) {
    switch (token.kind) {
      case Token::kOpen:
        return "'('";
      case Token::kClose:
        return "')'";
      case Token::kEnd:
        return "the end of the file";
      default:
        return "'" + token.text + "'";
    }
  }
  // Skips the rest of a group whose '(' has been read.
  bool SkipGroup() {
    int depth = 1;
    while (depth > 0) {
      const Token token = lexer_.Next();
      if (token.kind == Token::kEnd) return Fail(token.line, "a group is not closed");
      if (token.kind == Token::kOpen) ++depth;
      if (token.kind == Token::kClose) --depth;
    }
    return true;
  }
  bool Number(double& value) {
    const Token token = lexer_.Next();
    if (token.kind == Token::kWord) {
      char* end = nullptr;
      value = std::strtod(token.text.c_str(), &end);
      if (!token.text.empty() && *end == '\0' && value >= 0.0) return true;
    }
    return Fail(token.line, "expected a number of 0 or more, found " + Describe(token));
  }

  bool ParseFile() {
    if (!Expect(Token::kOpen, "'(SAIFILE'")) return false;
    Token head = lexer_.Next();
    if (head.kind != Token::kWord || head.text != "SAIFILE")
      return Fail(head.line, "expected 'SAIFILE', found " + Describe(head));
    for (;;) {
      const Token token = lexer_.Next();
      if (token.kind == Token::kClose) break;
      if (token.kind != Token::kOpen)
        return Fail(token.line, "expected '(' or ')', found " + Describe(token));
      const Token key = lexer_.Next();
      if (key.kind != Token::kWord)
        return Fail(key.line, "expected a keyword, found " + Describe(key));
      bool ok = true;
      if (key.text == "DIVIDER") {
        const Token divider = lexer_.Next();
        if (divider.kind != Token::kWord || divider.text.size() != 1)
          return Fail(divider.line, "expected one divider character, found " + Describe(divider));
        divider_ = divider.text[0];
        ok = Expect(Token::kClose, "')'");
      } else if (key.text == "TIMESCALE") {
        ok = ParseTimescale(key.line);
      } else if (key.text == "DURATION") {
        ok = Number(duration_) && Expect(Token::kClose, "')'");
      } else if (key.text == "INSTANCE") {
        std::vector<std::string> path;
        ok = ParseInstance(path, Place::kOutside);
      } else {
        ok = SkipGroup();
      }
      if (!ok) return false;
    }
    const Token rest = lexer_.Next();
    if (rest.kind != Token::kEnd) return Fail(rest.line, "text after the end of SAIFILE");
    return true;
  }

  bool ParseTimescale(int line) {
    // "1 ps", "1ps", "10 ns" ...
    std::string text;
    while (lexer_.Peek().kind == Token::kWord) text += lexer_.Next().text;
    if (!Expect(Token::kClose, "')'")) return false;
    size_t digits = 0;
    while (digits < text.size() &&
           (isdigit(static_cast<unsigned char>(text[digits])) || text[digits] == '.'))
      ++digits;
    const double number = digits ? std::atof(text.substr(0, digits).c_str()) : 0.0;
    const std::string unit = text.substr(digits);
    static const std::pair<const char*, double> kUnits[] = {
        {"s", 1.0}, {"ms", 1e-3}, {"us", 1e-6}, {"ns", 1e-9}, {"ps", 1e-12}, {"fs", 1e-15}};
    for (const auto& [name, scale] : kUnits) {
      if (unit == name && number > 0.0) {
        timescale_ = number * scale;
        return true;
      }
    }
    return Fail(line, "expected a TIMESCALE such as '1 ps', found '" + text + "'");
  }

  // The scope's path, split at '/' and the divider.
  const std::vector<std::string>& Scope() {
    if (!scope_split_) {
      scope_split_ = true;
      std::string part;
      for (char c : instance_) {
        if (c == '/' || c == divider_) {
          if (!part.empty()) scope_.push_back(part);
          part.clear();
        } else {
          part += c;
        }
      }
      if (!part.empty()) scope_.push_back(part);
    }
    return scope_;
  }

  // After "(INSTANCE": an optional string (the definition), the name, then
  // PORT, NET and INSTANCE groups.
  // Where an instance of the file stands in the design.
  enum class Place {
    kOutside,  // above or beside the design's instance
    kKnown,    // the design's instance, or a hierarchical cell in it
    kUnknown,  // a name the design lacks, or below one
    kLeaf,     // a leaf cell, or below one: its pins
  };

  // After "(INSTANCE": an optional string (the definition), the name, then
  // PORT, NET and INSTANCE groups.
  bool ParseInstance(std::vector<std::string>& path, Place parent) {
    if (lexer_.Peek().kind == Token::kString) lexer_.Next();
    const Token name = lexer_.Next();
    if (name.kind != Token::kWord)
      return Fail(name.line, "expected an instance name, found " + Describe(name));
    path.push_back(name.text);
    if (path.size() > kMaxDepth) return Fail(name.line, "instances nested too deep");
    const std::vector<std::string>& scope = Scope();
    const size_t depth = scope.empty() ? 1 : scope.size();
    std::string prefix;  // the instance's path in the design, with a '/' after it
    Place place = parent;
    if (parent == Place::kOutside) {
      // The design's instance: the scope (the outermost instance when no
      // scope is given).
      bool match = path.size() <= depth;
      for (size_t i = 0; match && i < scope.size() && i < path.size(); ++i)
        match = path[i] == scope[i];
      if (match && path.size() == depth) {
        found_ = true;
        place = Place::kKnown;
      }
    } else if (parent == Place::kKnown) {
      for (size_t i = depth; i < path.size(); ++i) prefix += path[i] + "/";
      const cdm::Cell* cell = cdm::FindCellByPath(&design_, prefix.substr(0, prefix.size() - 1));
      place = !cell ? Place::kUnknown : cell->GetRefDesign() ? Place::kKnown : Place::kLeaf;
    } else if (parent == Place::kUnknown) {
      for (size_t i = depth; i < path.size(); ++i) prefix += path[i] + "/";
    }
    for (;;) {
      const Token token = lexer_.Next();
      if (token.kind == Token::kClose) {
        path.pop_back();
        return true;
      }
      if (token.kind != Token::kOpen)
        return Fail(token.line, "expected '(' or ')', found " + Describe(token));
      const Token key = lexer_.Next();
      if (key.kind != Token::kWord)
        return Fail(key.line, "expected a keyword, found " + Describe(key));
      bool ok = true;
      if (key.text == "INSTANCE") {
        ok = ParseInstance(path, place);
      } else if ((key.text == "NET" || key.text == "PORT") &&
                 (place == Place::kKnown || place == Place::kUnknown)) {
        ok = ParseNets(prefix);
      } else {
        ok = SkipGroup();
      }
      if (!ok) return false;
    }
  }

  // After "(NET" or "(PORT": "(name (T0 n) (T1 n) (TC n) ...)" groups.
  bool ParseNets(const std::string& prefix) {
    for (;;) {
      const Token token = lexer_.Next();
      if (token.kind == Token::kClose) return true;
      if (token.kind != Token::kOpen)
        return Fail(token.line, "expected '(' or ')', found " + Describe(token));
      const Token name = lexer_.Next();
      if (name.kind != Token::kWord)
        return Fail(name.line, "expected a net name, found " + Describe(name));
      Record record;
      record.name = prefix + name.text;
      for (;;) {
        const Token inner = lexer_.Next();
        if (inner.kind == Token::kClose) break;
        if (inner.kind != Token::kOpen)
          return Fail(inner.line, "expected '(' or ')', found " + Describe(inner));
        const Token key = lexer_.Next();
        if (key.kind != Token::kWord)
          return Fail(key.line, "expected a keyword, found " + Describe(key));
        double* value = key.text == "T0"   ? &record.t0
                        : key.text == "T1" ? &record.t1
                        : key.text == "TC" ? &record.tc
                                           : nullptr;
        if (!value) {
          if (!SkipGroup()) return false;
          continue;
        }
        if (!Number(*value) || !Expect(Token::kClose, "')'")) return false;
        if (value == &record.tc) record.has_tc = true;
      }
      records_.push_back(std::move(record));
    }
  }

  const std::string& file_;
  SaifLexer lexer_;
  const cdm::Design& design_;
  const std::string& instance_;
  std::string error_;
  char divider_ = '/';
  double timescale_ = 1e-9;
  double duration_ = 0.0;
  bool found_ = false;
  bool scope_split_ = false;
  std::vector<std::string> scope_;
  std::vector<Record> records_;
};

}  // namespace

bool ReadSaif(const std::string& file, const std::string& text, const cdm::Design& design,
              const std::string& instance, ActivityFileResult& result, std::string& error) {
  SaifParser parser(file, text, design, instance);
  return parser.Parse(result, error);
}

}  // namespace power
