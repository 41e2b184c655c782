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

  // Joins `operands` (two or more) with `op` as a balanced tree, left to
  // right, so that a long chain (A & B & C ...) stays shallow for whatever
  // walks the tree recursively. The three operators are associative.
  int Chain(Op op, std::vector<int>& operands) {
    while (operands.size() > 1) {
      size_t out = 0;
      for (size_t i = 0; i + 1 < operands.size(); i += 2)
        operands[out++] = Add(op, operands[i], operands[i + 1]);
      if (operands.size() % 2) operands[out++] = operands.back();
      operands.resize(out);
    }
    return operands[0];
  }

  int ParseOr() {
    int first = ParseXor();
    std::vector<int> operands;
    for (;;) {
      if (first < 0) return -1;
      SkipBlank();
      if (pos_ < text_.size() && (text_[pos_] == '|' || text_[pos_] == '+')) {
        ++pos_;
        int next = ParseXor();
        if (next < 0) return -1;
        if (operands.empty()) operands.push_back(first);
        operands.push_back(next);
      } else {
        return operands.empty() ? first : Chain(Op::kOr, operands);
      }
    }
  }
  int ParseXor() {
    int first = ParseAnd();
    std::vector<int> operands;
    for (;;) {
      if (first < 0) return -1;
      SkipBlank();
      if (pos_ < text_.size() && text_[pos_] == '^') {
        ++pos_;
        int next = ParseAnd();
        if (next < 0) return -1;
        if (operands.empty()) operands.push_back(first);
        operands.push_back(next);
      } else {
        return operands.empty() ? first : Chain(Op::kXor, operands);
      }
    }
  }
  int ParseAnd() {
    int first = ParseUnary();
    std::vector<int> operands;
    for (;;) {
      if (first < 0) return -1;
      SkipBlank();
      if (pos_ < text_.size() && (text_[pos_] == '&' || text_[pos_] == '*')) {
        ++pos_;
      } else if (!StartsOperand()) {
        return operands.empty() ? first : Chain(Op::kAnd, operands);
      }
      int next = ParseUnary();
      if (next < 0) return -1;
      if (operands.empty()) operands.push_back(first);
      operands.push_back(next);
    }
  }
  // Prefix '!' and postfix '\'' in any number: an even count cancels out, so
  // a long run neither recurses nor deepens the tree.
  int ParseUnary() {
    size_t nots = 0;
    for (;;) {
      SkipBlank();
      if (pos_ >= text_.size() || text_[pos_] != '!') break;
      ++pos_;
      ++nots;
    }
    int operand = ParseAtom();
    if (operand < 0) return -1;
    for (;;) {
      SkipBlank();
      if (pos_ >= text_.size() || text_[pos_] != '\'') break;
      ++pos_;
      ++nots;
    }
    return nots % 2 ? Add(Op::kNot, operand, -1) : operand;
  }
  int ParseAtom() {
    SkipBlank();
    if (pos_ >= text_.size()) return Fail("expected a pin, a constant or '(' at the end");
    if (text_[pos_] == '(') {
      if (nesting_ == kMaxFunctionNesting) {
        return Fail("parentheses nested too deeply (more than " +
                    std::to_string(kMaxFunctionNesting) + " levels)");
      }
      ++pos_;
      ++nesting_;
      int inner = ParseOr();
      --nesting_;
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
  int nesting_ = 0;  // parentheses open around pos_
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
