#include "hostapi/cdm/LibCell.h"

#include <algorithm>
#include <cctype>

#include "db/GtechArea.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"

namespace cdm {

LibCell::LibCell(const std::string* name, LibertyLib* lib) : Reference(name), lib_(lib) {}
LibCell::~LibCell() = default;

float LibCell::GetArea() const {
  Root* root = lib_ ? lib_->GetGenericRoot() : nullptr;
  if (!root) return area_;
  if (estimated_at_ != root->ChangeGeneration()) {
    estimated_area_ = common::GenericGateArea(this, root->GetDefaultLiberty());
    estimated_at_ = root->ChangeGeneration();
  }
  return estimated_area_;
}

namespace {

bool AllDigits(const std::string& text, size_t from, size_t to) {
  if (from >= to) return false;
  for (size_t i = from; i < to; ++i) {
    if (!std::isdigit(static_cast<unsigned char>(text[i]))) return false;
  }
  return true;
}

// "X1", "x4", "1", "12": a drive-strength token of its own.
bool IsDriveToken(const std::string& token) {
  size_t from = (!token.empty() && (token[0] == 'X' || token[0] == 'x')) ? 1 : 0;
  return AllDigits(token, from, token.size());
}

// "BUFx2", "BUFx12f", "DFFHQNx1": a name with the strength glued on.
size_t GluedDriveStart(const std::string& token) {
  size_t end = token.size();
  while (end > 0 && std::islower(static_cast<unsigned char>(token[end - 1])) &&
         token[end - 1] != 'x')
    --end;
  size_t digits = end;
  while (digits > 0 && std::isdigit(static_cast<unsigned char>(token[digits - 1]))) --digits;
  if (digits == end || digits < 2 || token[digits - 1] != 'x') return std::string::npos;
  return digits - 1;
}

}  // namespace

std::string LibCell::GetCellTypeName() const {
  if (!footprint_.empty()) return footprint_;
  const std::string& name = Name();
  const size_t last = name.rfind('_');
  if (last != std::string::npos && last > 0 && IsDriveToken(name.substr(last + 1))) {
    return name.substr(0, last);
  }
  const size_t first_end = name.find('_');
  const std::string first = name.substr(0, first_end);
  const size_t glued = GluedDriveStart(first);
  if (glued != std::string::npos) {
    return first.substr(0, glued) + (first_end == std::string::npos ? "" : name.substr(first_end));
  }
  return name;
}

bool LibCell::IsBlackBox() const {
  for (const LibPort* port : ports_) {
    if (port->GetFunction() || port->GetStateFunction() || !port->GetTimingAttrs().empty())
      return false;
  }
  return sequentials_.empty() && !state_table_;
}

bool LibCell::IsClockGateLatchPosedge() const {
  return clock_gating_.compare(0, 13, "latch_posedge") == 0;
}

bool LibCell::IsClockGateLatchNegedge() const {
  return clock_gating_.compare(0, 13, "latch_negedge") == 0;
}

std::vector<LibPort*> LibCell::GetCellToPorts(LibPort* port) const {
  std::vector<LibPort*> outputs;
  for (LibPort* out : ports_) {
    if (out == port || !out->IsOutput()) continue;
    bool reached = false;
    for (const auto& attr : out->GetTimingAttrs()) {
      const auto& related = attr->GetRelatedPorts();
      if (std::find(related.begin(), related.end(), port) != related.end()) reached = true;
    }
    if (const LibBoolFuncExpr* function = out->GetFunction()) {
      const auto& used = function->GetFuncPorts();
      if (std::find(used.begin(), used.end(), port) != used.end()) reached = true;
    }
    if (reached) outputs.push_back(out);
  }
  return outputs;
}

const LibSequential* LibCell::GetSequentialFromOutputPort(const LibPort* port) const {
  if (!port) return nullptr;
  for (const auto& group : sequentials_) {
    if (group->first == port || group->second == port) return group.get();
  }
  return nullptr;
}

LibPort* LibCell::FindPort(const std::string& name) const {
  for (LibPort* port : ports_) {
    if (port->Name() == name) return port;
  }
  for (LibPort* bus : buses_) {
    if (bus->Name() == name) return bus;
  }
  return nullptr;
}

Iterator<LibPgPort>* LibCell::LibPgPortIter() const {
  std::vector<LibPgPort*> pg;
  pg.reserve(pg_ports_.size());
  for (const auto& port : pg_ports_) pg.push_back(port.get());
  return new VectorIterator<LibPgPort>(std::move(pg));
}

}  // namespace cdm
