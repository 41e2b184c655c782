#include "parasitics/SpefReader.h"

#include <cctype>
#include <cstdlib>
#include <unordered_map>

#include "cmdlib/ReadFiles.h"
#include "io/FileLoader.h"
#include "msg/SafeText.h"

namespace parasitics {
namespace {

struct Token {
  std::string text;
  int line = 0;
  size_t offset = 0;
  bool quoted = false;
};

// Words separated by blanks, "//" comments to the end of the line, a quoted
// string as one word; a backslash keeps the next character in the word.
std::vector<Token> Tokenize(const std::string& text) {
  std::vector<Token> tokens;
  int line = 1;
  size_t i = 0;
  const size_t n = text.size();
  while (i < n) {
    const char c = text[i];
    if (c == '\n') {
      ++line;
      ++i;
    } else if (std::isspace(static_cast<unsigned char>(c))) {
      ++i;
    } else if (c == '/' && i + 1 < n && text[i + 1] == '/') {
      while (i < n && text[i] != '\n') ++i;
    } else if (c == '"') {
      Token token{std::string(), line, i, true};
      ++i;
      while (i < n && text[i] != '"') {
        if (text[i] == '\n') ++line;
        token.text += text[i++];
      }
      ++i;
      tokens.push_back(std::move(token));
    } else {
      Token token{std::string(), line, i, false};
      while (i < n && !std::isspace(static_cast<unsigned char>(text[i]))) {
        if (text[i] == '\\' && i + 1 < n) token.text += text[i++];
        token.text += text[i++];
      }
      tokens.push_back(std::move(token));
    }
  }
  return tokens;
}

bool IsKeyword(const Token& token) {
  return !token.quoted && token.text.size() > 1 && token.text[0] == '*' &&
         std::isalpha(static_cast<unsigned char>(token.text[1]));
}

bool IsIndex(const std::string& text) {
  return text.size() > 1 && text[0] == '*' && std::isdigit(static_cast<unsigned char>(text[1]));
}

class Parser {
 public:
  Parser(const std::string& text, const std::string& path, SpefFile& spef)
      : tokens_(Tokenize(text)), size_(text.size()), path_(path), spef_(spef) {}

  bool Parse(std::string& error);

 private:
  bool AtEnd() const { return pos_ >= tokens_.size(); }
  const Token& Peek() const { return tokens_[pos_]; }
  bool Fail(const std::string& what, int line = 0);
  bool Next(const Token*& token, const char* what);
  bool Number(const Token& token, double& value);
  bool Unit(const Token& number, const Token& unit, double& scale,
            const std::unordered_map<std::string, double>& units);
  void SkipToKeyword() {
    while (!AtEnd() && !IsKeyword(Peek())) ++pos_;
  }
  // The design's name for a SPEF name: the name map's entry for "*N", the
  // escapes taken out, the hierarchy divided by '/' and buses in [ ].
  bool Name(const std::string& text, int line, std::string& name);
  bool PinName(const std::string& text, int line, std::string& name);
  bool Net(bool reduced);
  bool Conns(SpefNet& net);
  bool Entries(SpefNet& net, bool resistors);

  std::vector<Token> tokens_;
  size_t size_;
  size_t pos_ = 0;
  const std::string& path_;
  SpefFile& spef_;
  std::string error_;
  std::unordered_map<std::string, std::string> names_;
  char divider_ = '/';
  char delimiter_ = ':';
  char bus_open_ = '[';
  char bus_close_ = ']';
  double cap_scale_ = 0.0;  // 0: no *C_UNIT yet
  double res_scale_ = 0.0;
};

bool Parser::Fail(const std::string& what, int line) {
  if (!line) line = AtEnd() ? (tokens_.empty() ? 1 : tokens_.back().line) : Peek().line;
  error_ = path_ + ":" + std::to_string(line) + ": " + msg::CutQuotes(what);
  return false;
}

bool Parser::Next(const Token*& token, const char* what) {
  if (AtEnd()) return Fail(std::string("the file ends where ") + what + " should follow");
  token = &tokens_[pos_++];
  return true;
}

// A number, or a triplet "min:typ:max" of which the typical value counts.
bool Parser::Number(const Token& token, double& value) {
  std::string text = token.text;
  const size_t first = text.find(':');
  if (first != std::string::npos) {
    const size_t second = text.find(':', first + 1);
    if (second == std::string::npos) return Fail("'" + token.text + "' is no number", token.line);
    text = text.substr(first + 1, second - first - 1);
  }
  char* end = nullptr;
  value = std::strtod(text.c_str(), &end);
  if (text.empty() || *end != '\0' || token.quoted)
    return Fail("'" + token.text + "' is no number", token.line);
  return true;
}

bool Parser::Unit(const Token& number, const Token& unit, double& scale,
                  const std::unordered_map<std::string, double>& units) {
  double value = 0.0;
  if (!Number(number, value)) return false;
  std::string upper;
  for (char c : unit.text) upper += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  const auto found = units.find(upper);
  if (found == units.end()) return Fail("unknown unit '" + unit.text + "'", unit.line);
  if (value <= 0.0) return Fail("a unit must be positive, not " + number.text, number.line);
  scale = value * found->second;
  return true;
}

bool Parser::Name(const std::string& text, int line, std::string& name) {
  std::string raw = text;
  if (IsIndex(text)) {
    const auto found = names_.find(text);
    if (found == names_.end()) return Fail("'" + text + "' is not in the name map", line);
    raw = found->second;
  }
  name.clear();
  for (size_t i = 0; i < raw.size(); ++i) {
    char c = raw[i];
    if (c == '\\' && i + 1 < raw.size()) {
      name += raw[++i];
      continue;
    }
    if (c == divider_)
      c = '/';
    else if (c == bus_open_)
      c = '[';
    else if (c == bus_close_)
      c = ']';
    name += c;
  }
  return true;
}

// "inst:pin" (the instance possibly "*N") or a port's name.
bool Parser::PinName(const std::string& text, int line, std::string& name) {
  size_t split = std::string::npos;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\') {
      ++i;
    } else if (text[i] == delimiter_) {
      split = i;
    }
  }
  if (split == std::string::npos) return Name(text, line, name);
  std::string instance;
  std::string pin;
  if (!Name(text.substr(0, split), line, instance) || !Name(text.substr(split + 1), line, pin))
    return false;
  name = instance + "/" + pin;
  return true;
}

bool Parser::Conns(SpefNet& net) {
  while (!AtEnd() && (Peek().text == "*P" || Peek().text == "*I")) {
    const bool port = tokens_[pos_++].text == "*P";
    const Token* name = nullptr;
    const Token* direction = nullptr;
    if (!Next(name, "a connection's name") || !Next(direction, "a connection's direction"))
      return false;
    if (direction->text != "I" && direction->text != "O" && direction->text != "B")
      return Fail("a connection's direction is I, O or B, not '" + direction->text + "'",
                  direction->line);
    SpefNet::Conn conn;
    conn.port = port;
    conn.line = name->line;
    if (!PinName(name->text, name->line, conn.name)) return false;
    net.conns.push_back(std::move(conn));
    // Coordinates, load, slews and driving cell are not used.
    while (!AtEnd() && (Peek().text == "*C" || Peek().text == "*L" || Peek().text == "*S" ||
                        Peek().text == "*D")) {
      ++pos_;
      SkipToKeyword();
    }
  }
  return true;
}

// *CAP or *RES entries, one a line: an identifier, one or two nodes and the
// value last. Resistors add to the net's resistance; capacitors are counted
// in the *D_NET's total already.
bool Parser::Entries(SpefNet& net, bool resistors) {
  while (!AtEnd() && !IsKeyword(Peek())) {
    const int line = Peek().line;
    size_t last = pos_;
    while (last + 1 < tokens_.size() && tokens_[last + 1].line == line) ++last;
    const size_t count = last - pos_ + 1;
    if (count < 3 || count > 4 || (resistors && count != 4))
      return Fail(std::string("a ") + (resistors ? "resistor" : "capacitor") +
                  " is written as an identifier, " +
                  (resistors ? "two nodes" : "one or two nodes") + " and a value");
    double value = 0.0;
    if (!Number(tokens_[last], value)) return false;
    if (resistors) net.resistance += value * res_scale_;
    pos_ = last + 1;
  }
  return true;
}

bool Parser::Net(bool reduced) {
  const Token* name = nullptr;
  const Token* total = nullptr;
  const int line = tokens_[pos_ - 1].line;
  if (!Next(name, "the net's name") || !Next(total, "the net's total capacitance")) return false;
  if (cap_scale_ == 0.0 || res_scale_ == 0.0)
    return Fail("a net before the header's *C_UNIT and *R_UNIT", line);
  SpefNet net;
  net.line = line;
  if (!Name(name->text, name->line, net.name)) return false;
  double cap = 0.0;
  if (!Number(*total, cap)) return false;
  net.capacitance = cap * cap_scale_;
  if (!AtEnd() && Peek().text == "*V") pos_ += 2;  // routing confidence
  while (true) {
    if (AtEnd()) return Fail("the net '" + net.name + "' has no *END", line);
    const Token& section = tokens_[pos_++];
    if (section.text == "*END") break;
    if (section.text == "*D_NET" || section.text == "*R_NET")
      return Fail("the net '" + net.name + "' has no *END", line);
    if (reduced) continue;  // a reduced net keeps its total only
    bool ok = true;
    if (section.text == "*CONN") {
      ok = Conns(net);
    } else if (section.text == "*CAP") {
      ok = Entries(net, false);
    } else if (section.text == "*RES") {
      ok = Entries(net, true);
    } else if (section.text == "*INDUC") {
      SkipToKeyword();
    } else {
      return Fail("unexpected '" + section.text + "' in the net '" + net.name + "'", section.line);
    }
    if (!ok) return false;
  }
  spef_.nets.push_back(std::move(net));
  return true;
}

bool Parser::Parse(std::string& error) {
  static const std::unordered_map<std::string, double> kCapUnits{{"PF", 1e-12}, {"FF", 1e-15}};
  static const std::unordered_map<std::string, double> kResUnits{
      {"OHM", 1.0}, {"KOHM", 1e3}, {"MOHM", 1e6}};
  static const std::unordered_map<std::string, double> kTimeUnits{
      {"NS", 1e-9}, {"PS", 1e-12}, {"US", 1e-6}};
  static const std::unordered_map<std::string, double> kInductUnits{
      {"HENRY", 1.0}, {"MH", 1e-3}, {"UH", 1e-6}};
  if (tokens_.empty() || tokens_.front().text != "*SPEF") {
    pos_ = 0;
    error = path_ + ":" + std::to_string(tokens_.empty() ? 1 : tokens_.front().line) +
            ": not a SPEF file (it does not begin with *SPEF)";
    return false;
  }
  size_t checked = 0;
  bool ok = true;
  while (ok && !AtEnd()) {
    if (pos_ - checked >= 4096) {
      checked = pos_;
      cmdlib::ReadCheckpoint(Peek().offset, size_);
    }
    const Token& keyword = tokens_[pos_++];
    const std::string& word = keyword.text;
    const Token* a = nullptr;
    const Token* b = nullptr;
    if (!IsKeyword(keyword)) {
      ok = Fail("unexpected '" + word + "'", keyword.line);
    } else if (word == "*SPEF" || word == "*DATE" || word == "*VENDOR" || word == "*PROGRAM" ||
               word == "*VERSION") {
      ok = Next(a, word.c_str());
    } else if (word == "*DESIGN") {
      ok = Next(a, "the design's name");
      if (ok) spef_.design = a->text;
    } else if (word == "*DIVIDER" || word == "*DELIMITER") {
      ok = Next(a, word.c_str());
      if (ok && a->text.size() != 1) ok = Fail(word + " takes one character", a->line);
      if (ok) (word == "*DIVIDER" ? divider_ : delimiter_) = a->text[0];
    } else if (word == "*BUS_DELIMITER") {
      ok = Next(a, word.c_str());
      if (ok && a->text.size() == 2) {
        bus_open_ = a->text[0];
        bus_close_ = a->text[1];
      } else if (ok && a->text.size() == 1) {
        bus_open_ = a->text[0];
        if (!AtEnd() && !IsKeyword(Peek()) && Peek().text.size() == 1)
          bus_close_ = tokens_[pos_++].text[0];
      }
    } else if (word == "*T_UNIT" || word == "*C_UNIT" || word == "*R_UNIT" || word == "*L_UNIT") {
      ok = Next(a, "the unit's number") && Next(b, "the unit");
      double scale = 0.0;
      if (ok && word == "*T_UNIT") ok = Unit(*a, *b, scale, kTimeUnits);
      if (ok && word == "*L_UNIT") ok = Unit(*a, *b, scale, kInductUnits);
      if (ok && word == "*C_UNIT") ok = Unit(*a, *b, cap_scale_, kCapUnits);
      if (ok && word == "*R_UNIT") ok = Unit(*a, *b, res_scale_, kResUnits);
    } else if (word == "*NAME_MAP") {
      while (ok && !AtEnd() && IsIndex(Peek().text)) {
        const Token& index = tokens_[pos_++];
        ok = Next(a, "the mapped name");
        if (ok) names_[index.text] = a->text;
      }
    } else if (word == "*DESIGN_FLOW" || word == "*POWER_NETS" || word == "*GROUND_NETS" ||
               word == "*DEFINE" || word == "*PDEFINE") {
      SkipToKeyword();
    } else if (word == "*PORTS" || word == "*PHYSICAL_PORTS") {
      // Port entries (name, direction, attributes) are not used.
      while (!AtEnd() && (!IsKeyword(Peek()) || Peek().text == "*C" || Peek().text == "*L" ||
                          Peek().text == "*S" || Peek().text == "*D"))
        ++pos_;
    } else if (word == "*D_NET" || word == "*R_NET") {
      ok = Net(word == "*R_NET");
    } else {
      ok = Fail("unexpected '" + word + "'", keyword.line);
    }
  }
  if (!ok) error = error_;
  return ok;
}

}  // namespace

bool ParseSpef(const std::string& text, const std::string& path, SpefFile& spef,
               std::string& error) {
  spef = SpefFile();
  Parser parser(text, path, spef);
  if (parser.Parse(error)) return true;
  spef = SpefFile();
  return false;
}

bool ReadSpefFile(const std::string& path, SpefFile& spef, std::string& error) {
  std::string text;
  if (!io::LoadFile(path, text, error)) return false;
  return ParseSpef(text, path, spef, error);
}

}  // namespace parasitics
