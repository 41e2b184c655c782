#include "power/FunctionActivity.h"

#include <algorithm>

#include "hostapi/cdm/LibBoolFuncExpr.h"

namespace power {
namespace {

using Op = cdm::LibBoolFuncExpr::Op;

Activity Of(const cdm::LibBoolFuncExpr& function, const std::vector<Activity>& inputs, int index) {
  const cdm::LibBoolFuncExpr::Node& node = function.Nodes()[index];
  switch (node.op) {
    case Op::kConst0:
      return {0.0, 0.0};
    case Op::kConst1:
      return {1.0, 0.0};
    case Op::kPort: {
      const auto& ports = function.GetFuncPorts();
      const size_t i =
          static_cast<size_t>(std::find(ports.begin(), ports.end(), node.port) - ports.begin());
      return i < inputs.size() ? inputs[i] : Activity{0.5, 0.0};
    }
    case Op::kNot: {
      const Activity a = Of(function, inputs, node.left);
      return {1.0 - a.probability, a.density};
    }
    default:
      break;
  }
  const Activity a = Of(function, inputs, node.left);
  const Activity b = Of(function, inputs, node.right);
  const double pa = a.probability, pb = b.probability;
  switch (node.op) {
    case Op::kAnd:
      return {pa * pb, a.density * pb + b.density * pa};
    case Op::kOr:
      return {pa + pb - pa * pb, a.density * (1.0 - pb) + b.density * (1.0 - pa)};
    default:  // kXor: each operand's density weighted as the peer does
      return {pa * (1.0 - pb) + pb * (1.0 - pa),
              a.density * pa * (1.0 - pb) + b.density * (1.0 - pa) * pb};
  }
}

}  // namespace

Activity FunctionActivity(const cdm::LibBoolFuncExpr& function, const std::vector<Activity>& inputs,
                          int node) {
  if (node < 0) node = function.Root();
  if (node < 0) return {0.0, 0.0};
  return Of(function, inputs, node);
}

}  // namespace power
