#include "hostapi/cdm/LibBoolFuncExpr.h"

#include <algorithm>
#include <unordered_set>

namespace cdm {

LibBoolFuncExpr::LibBoolFuncExpr(std::string text, std::vector<Node> nodes, int root)
    : text_(std::move(text)), nodes_(std::move(nodes)), root_(root) {
  // A short list is searched; a long one (a hostile file's) is hashed, so
  // that many pins cost no quadratic time.
  constexpr size_t kSearched = 32;
  std::unordered_set<const LibPort*> seen;
  for (const Node& node : nodes_) {
    if (node.op != Op::kPort) continue;
    const bool known = ports_.size() < kSearched
                           ? std::find(ports_.begin(), ports_.end(), node.port) != ports_.end()
                           : seen.count(node.port) > 0;
    if (known) continue;
    ports_.push_back(node.port);
    if (ports_.size() == kSearched) seen.insert(ports_.begin(), ports_.end());
    if (ports_.size() > kSearched) seen.insert(node.port);
  }
}

std::vector<bool> LibBoolFuncExpr::TruthTable() const {
  std::vector<bool> table;
  // Each row evaluates the whole tree: a huge function (a hostile file's)
  // is not tabulated, as one of more than 16 ports is not.
  constexpr size_t kMaxEvaluations = size_t{1} << 26;
  if (root_ < 0 || ports_.size() > 16 || (nodes_.size() << ports_.size()) > kMaxEvaluations)
    return table;
  const size_t rows = size_t{1} << ports_.size();
  table.reserve(rows);
  for (size_t row = 0; row < rows; ++row) {
    table.push_back(Evaluate([&](const LibPort* port) {
      size_t bit = std::find(ports_.begin(), ports_.end(), port) - ports_.begin();
      return static_cast<int>((row >> bit) & 1);
    }));
  }
  return table;
}

}  // namespace cdm
