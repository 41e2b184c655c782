#include "liberty/FuncParser.h"

#include <cctype>
#include <vector>

namespace liberty {

namespace {

using Node = cdm::LibBoolFuncExpr::Node;
using Op = cdm::LibBoolFuncExpr::Op;

class FuncParser {
 public:
  FuncParser(std::string_view text, const PortLookup& lookup) : text_(text), lookup_(lookup) {}

  bool Parse(int& root, std::string& error) {
    root = ParseOr();
    SkipBlank();
    if (root >= 0 && pos_ < text_.size()) Fail("unexpected '" + std::string(1, text_[pos_]) + "'");
    if (!error_.empty()) {
      error = error_ + " in function \"" + std::string(text_) + "\"";
      return false;
    }
    return true;
  }
  std::vector<Node>& Nodes() { return nodes_; }

 private:
  int Fail(std::string what) {
    if (error_.empty()) error_ = std::move(what);
    return -1;
  }
  void SkipBlank() {
    while (pos_ < text_.size() && std::isspace(static_cast<unsigned char>(text_[pos_]))) ++pos_;
  }
  int Add(Op op, int left, int right, cdm::LibPort* port = nullptr) {
    Node node;
    node.op = op;
    node.left = left;
    node.right = right;
    node.port = port;
    nodes_.push_back(node);
    return static_cast<int>(nodes_.size()) - 1;
  }
  static bool IsNameChar(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '[' || c == ']' ||
           c == '.' || c == '<' || c == '>' || c == '$';
  }
  bool StartsOperand() {
    SkipBlank();
    return pos_ < text_.size() &&
           (IsNameChar(text_[pos_]) || text_[pos_] == '(' || text_[pos_] == '!');
  }

  int ParseOr() {
    int left = ParseXor();
    for (;;) {
      if (left < 0) return -1;
      SkipBlank();
      if (pos_ < text_.size() && (text_[pos_] == '|' || text_[pos_] == '+')) {
        ++pos_;
        int right = ParseXor();
        if (right < 0) return -1;
        left = Add(Op::kOr, left, right);
      } else {
        return left;
      }
    }
  }
  int ParseXor() {
    int left = ParseAnd();
    for (;;) {
      if (left < 0) return -1;
      SkipBlank();
      if (pos_ < text_.size() && text_[pos_] == '^') {
        ++pos_;
        int right = ParseAnd();
        if (right < 0) return -1;
        left = Add(Op::kXor, left, right);
      } else {
        return left;
      }
    }
  }
  int ParseAnd() {
    int left = ParseUnary();
    for (;;) {
      if (left < 0) return -1;
      SkipBlank();
      if (pos_ < text_.size() && (text_[pos_] == '&' || text_[pos_] == '*')) {
        ++pos_;
      } else if (!StartsOperand()) {
        return left;
      }
      int right = ParseUnary();
      if (right < 0) return -1;
      left = Add(Op::kAnd, left, right);
    }
  }
  int ParseUnary() {
    SkipBlank();
    if (pos_ < text_.size() && text_[pos_] == '!') {
      ++pos_;
      int operand = ParseUnary();
      return operand < 0 ? -1 : Add(Op::kNot, operand, -1);
    }
    int operand = ParseAtom();
    while (operand >= 0) {
      SkipBlank();
      if (pos_ < text_.size() && text_[pos_] == '\'') {
        ++pos_;
        operand = Add(Op::kNot, operand, -1);
      } else {
        break;
      }
    }
    return operand;
  }
  int ParseAtom() {
    SkipBlank();
    if (pos_ >= text_.size()) return Fail("expected a pin, a constant or '(' at the end");
    if (text_[pos_] == '(') {
      ++pos_;
      int inner = ParseOr();
      if (inner < 0) return -1;
      SkipBlank();
      if (pos_ >= text_.size() || text_[pos_] != ')') return Fail("expected ')'");
      ++pos_;
      return inner;
    }
    const size_t start = pos_;
    while (pos_ < text_.size() && IsNameChar(text_[pos_])) ++pos_;
    if (pos_ == start)
      return Fail("expected a pin, a constant or '(', found '" + std::string(1, text_[pos_]) + "'");
    std::string_view name = text_.substr(start, pos_ - start);
    if (name == "0") return Add(Op::kConst0, -1, -1);
    if (name == "1") return Add(Op::kConst1, -1, -1);
    cdm::LibPort* port = lookup_(name);
    if (!port) return Fail("unknown pin '" + std::string(name) + "'");
    return Add(Op::kPort, -1, -1, port);
  }

  std::string_view text_;
  const PortLookup& lookup_;
  std::vector<Node> nodes_;
  size_t pos_ = 0;
  std::string error_;
};

std::string_view Trim(std::string_view text) {
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front())))
    text.remove_prefix(1);
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back())))
    text.remove_suffix(1);
  return text;
}

}  // namespace

bool ParseBoolFunc(std::string_view text, const PortLookup& lookup, cdm::LibBoolFuncExpr& result,
                   std::string& error) {
  text = Trim(text);
  if (text.empty()) {
    result = cdm::LibBoolFuncExpr();
    return true;
  }
  FuncParser parser(text, lookup);
  int root = -1;
  if (!parser.Parse(root, error)) return false;
  result = cdm::LibBoolFuncExpr(std::string(text), std::move(parser.Nodes()), root);
  return true;
}

}  // namespace liberty
