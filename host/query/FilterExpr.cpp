#include "query/FilterExpr.h"

#include <cctype>
#include <cstdlib>
#include <vector>

#include "query/ObjectAttributes.h"

namespace query {

struct FilterExpr::Node {
  enum class Op { kAnd, kOr, kNot, kCompare, kTrue };
  Op op = Op::kCompare;
  std::unique_ptr<Node> left, right;
  std::string attribute;
  std::string comparison;  // "==", "!=", "=~", "!~", "<", "<=", ">", ">="
  std::string value;
  std::unique_ptr<NameMatcher> matcher;  // of =~ and !~, made once
};

namespace {

using Node = FilterExpr::Node;

class Parser {
 public:
  explicit Parser(const std::string& text) : text_(text) {}

  std::unique_ptr<Node> Parse(std::string& error) {
    std::unique_ptr<Node> node = Or();
    SkipBlanks();
    if (error_.empty() && pos_ < text_.size()) Fail("unexpected '" + text_.substr(pos_) + "'");
    error = error_;
    return error_.empty() ? std::move(node) : nullptr;
  }

 private:
  void Fail(const std::string& what) {
    if (error_.empty()) error_ = "bad filter '" + text_ + "': " + what;
  }
  void SkipBlanks() {
    while (pos_ < text_.size() && std::isspace(static_cast<unsigned char>(text_[pos_]))) ++pos_;
  }
  bool Take(const char* token) {
    SkipBlanks();
    const std::string::size_type length = std::char_traits<char>::length(token);
    if (text_.compare(pos_, length, token) != 0) return false;
    pos_ += length;
    return true;
  }

  std::unique_ptr<Node> Or() {
    std::unique_ptr<Node> node = And();
    while (error_.empty() && Take("||")) node = Join(Node::Op::kOr, std::move(node), And());
    return node;
  }
  std::unique_ptr<Node> And() {
    std::unique_ptr<Node> node = Unary();
    while (error_.empty() && Take("&&")) node = Join(Node::Op::kAnd, std::move(node), Unary());
    return node;
  }
  static std::unique_ptr<Node> Join(Node::Op op, std::unique_ptr<Node> left,
                                    std::unique_ptr<Node> right) {
    auto node = std::make_unique<Node>();
    node->op = op;
    node->left = std::move(left);
    node->right = std::move(right);
    return node;
  }
  std::unique_ptr<Node> Unary() {
    SkipBlanks();
    if (text_.compare(pos_, 2, "!=") != 0 && text_.compare(pos_, 2, "!~") != 0 && Take("!")) {
      auto node = std::make_unique<Node>();
      node->op = Node::Op::kNot;
      node->left = Unary();
      return node;
    }
    if (Take("(")) {
      std::unique_ptr<Node> node = Or();
      if (!Take(")")) Fail("missing ')'");
      return node;
    }
    return Comparison();
  }
  std::unique_ptr<Node> Comparison() {
    auto node = std::make_unique<Node>();
    node->attribute = Word();
    if (node->attribute.empty()) {
      Fail(pos_ < text_.size() ? "expected an attribute at '" + text_.substr(pos_) + "'"
                               : "expected an attribute at the end");
      return node;
    }
    for (const char* op : {"==", "!=", "=~", "!~", "<=", ">=", "<", ">"}) {
      if (Take(op)) {
        node->comparison = op;
        SkipBlanks();
        if (!Value(node->value)) Fail("expected a value after '" + node->comparison + "'");
        return node;
      }
    }
    node->op = Node::Op::kTrue;  // a bare boolean attribute
    return node;
  }
  std::string Word() {
    SkipBlanks();
    const size_t start = pos_;
    while (pos_ < text_.size() &&
           (std::isalnum(static_cast<unsigned char>(text_[pos_])) || text_[pos_] == '_'))
      ++pos_;
    return text_.substr(start, pos_ - start);
  }
  bool Value(std::string& value) {
    if (pos_ < text_.size() && (text_[pos_] == '"' || text_[pos_] == '{')) {
      const char close = text_[pos_] == '"' ? '"' : '}';
      const size_t end = text_.find(close, pos_ + 1);
      if (end == std::string::npos) return false;
      value = text_.substr(pos_ + 1, end - pos_ - 1);
      pos_ = end + 1;
      return true;
    }
    const size_t start = pos_;
    while (pos_ < text_.size() && !std::isspace(static_cast<unsigned char>(text_[pos_])) &&
           text_[pos_] != ')' && text_.compare(pos_, 2, "&&") != 0 &&
           text_.compare(pos_, 2, "||") != 0)
      ++pos_;
    value = text_.substr(start, pos_ - start);
    return !value.empty();
  }

  const std::string& text_;
  size_t pos_ = 0;
  std::string error_;
};

bool AsNumber(const std::string& text, double& number) {
  if (text.empty()) return false;
  char* end = nullptr;
  number = std::strtod(text.c_str(), &end);
  return end && *end == '\0';
}

bool Compare(const std::string& actual, const Node& node, const MatchOptions& options) {
  const std::string& op = node.comparison;
  if (op == "=~" || op == "!~") {
    const bool matches = node.matcher->Matches(actual);
    return op == "=~" ? matches : !matches;
  }
  double a = 0, b = 0;
  int order;
  if (AsNumber(actual, a) && AsNumber(node.value, b)) {
    order = a < b ? -1 : (a > b ? 1 : 0);
  } else if (options.nocase) {
    std::string x = actual, y = node.value;
    for (char& c : x) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    for (char& c : y) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    order = x.compare(y);
  } else {
    order = actual.compare(node.value);
  }
  if (op == "==") return order == 0;
  if (op == "!=") return order != 0;
  if (op == "<") return order < 0;
  if (op == "<=") return order <= 0;
  if (op == ">") return order > 0;
  return order >= 0;
}

bool Evaluate(const Node& node, const ObjectRef& ref, const MatchOptions& options,
              std::string& error) {
  switch (node.op) {
    // Both sides, so that an unknown attribute is an error whatever the
    // other side gives.
    case Node::Op::kAnd: {
      const bool left = Evaluate(*node.left, ref, options, error);
      return Evaluate(*node.right, ref, options, error) && left;
    }
    case Node::Op::kOr: {
      const bool left = Evaluate(*node.left, ref, options, error);
      return Evaluate(*node.right, ref, options, error) || left;
    }
    case Node::Op::kNot:
      return !Evaluate(*node.left, ref, options, error);
    case Node::Op::kCompare:
    case Node::Op::kTrue:
      break;
  }
  std::string actual;
  if (!GetAttribute(ref, node.attribute, actual)) {
    if (error.empty())
      error = std::string("unknown attribute '") + node.attribute + "' of " + KindName(ref.kind) +
              " objects";
    return false;
  }
  if (node.op == Node::Op::kTrue) return actual == "true";
  return Compare(actual, node, options);
}

// Makes the matchers of =~ and !~; false, with `error`, for a regular
// expression that does not compile.
bool MakeMatchers(Node& node, const MatchOptions& options, std::string& error) {
  if (node.left && !MakeMatchers(*node.left, options, error)) return false;
  if (node.right && !MakeMatchers(*node.right, options, error)) return false;
  if (node.comparison != "=~" && node.comparison != "!~") return true;
  node.matcher = std::make_unique<NameMatcher>(node.value, options);
  if (node.matcher->Valid()) return true;
  error = node.matcher->Error();
  return false;
}

}  // namespace

FilterExpr::FilterExpr(const std::string& text, const MatchOptions& options) : options_(options) {
  root_ = Parser(text).Parse(error_);
  std::string why;
  if (root_ && !MakeMatchers(*root_, options, why)) {
    error_ = "bad filter '" + text + "': " + why;
    root_.reset();
  }
}

FilterExpr::~FilterExpr() = default;

bool FilterExpr::Matches(const ObjectRef& ref, std::string& error) const {
  return root_ && Evaluate(*root_, ref, options_, error) && error.empty();
}

}  // namespace query
