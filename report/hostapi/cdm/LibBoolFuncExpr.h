// A Boolean function of library ports, as written in `function`, `when`,
// `state_function`, ... attributes.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace cdm {

class LibPort;

class LibBoolFuncExpr {
 public:
  enum class Op : uint8_t { kConst0, kConst1, kPort, kNot, kAnd, kOr, kXor };

  struct Node {
    Op op = Op::kConst0;
    LibPort* port = nullptr;  // kPort
    int left = -1;            // operand indices into the node list
    int right = -1;
  };

  // The empty function: no text, no ports (a missing `when`).
  LibBoolFuncExpr() = default;
  LibBoolFuncExpr(std::string text, std::vector<Node> nodes, int root);

  // The function as the library writes it; empty for the empty function.
  const std::string& GetFuncStr() const { return text_; }
  // The ports the function reads, each once, in order of first mention.
  const std::vector<LibPort*>& GetFuncPorts() const { return ports_; }
  bool IsEmpty() const { return root_ < 0; }

  // Value under an assignment of the ports; `value_of` gives 0 or 1.
  template <class F>
  bool Evaluate(F value_of) const {
    return root_ >= 0 && Eval(root_, value_of);
  }
  // The function as a truth table over GetFuncPorts (bit i of the row
  // number is port i); empty for more than 16 ports, or when the rows times
  // the operators pass 2^26.
  std::vector<bool> TruthTable() const;

  const std::vector<Node>& Nodes() const { return nodes_; }
  int Root() const { return root_; }

 private:
  template <class F>
  bool Eval(int index, F& value_of) const {
    const Node& node = nodes_[index];
    switch (node.op) {
      case Op::kConst0:
        return false;
      case Op::kConst1:
        return true;
      case Op::kPort:
        return value_of(node.port) != 0;
      case Op::kNot:
        return !Eval(node.left, value_of);
      case Op::kAnd:
        return Eval(node.left, value_of) && Eval(node.right, value_of);
      case Op::kOr:
        return Eval(node.left, value_of) || Eval(node.right, value_of);
      case Op::kXor:
        return Eval(node.left, value_of) != Eval(node.right, value_of);
    }
    return false;
  }

  std::string text_;
  std::vector<Node> nodes_;
  std::vector<LibPort*> ports_;
  int root_ = -1;
};

}  // namespace cdm
