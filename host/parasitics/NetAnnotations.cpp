#include "parasitics/NetAnnotations.h"

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Root.h"

namespace parasitics {

NetAnnotations& NetAnnotations::Get() {
  static NetAnnotations annotations;
  return annotations;
}

void NetAnnotations::DropIfStale() {
  const uint64_t now = cdm::DbManager::GetRoot()->ChangeGeneration();
  if (now == database_generation_) return;
  if (!figures_.empty()) {
    figures_.clear();
    ++generation_;
  }
  database_generation_ = now;
}

void NetAnnotations::Annotate(const std::unordered_map<uint32_t, NetFigures>& figures) {
  DropIfStale();
  for (const auto& [id, each] : figures) figures_[id] = each;
  ++generation_;
}

bool NetAnnotations::Find(const cdm::Net* net, NetFigures& figures) {
  DropIfStale();
  if (figures_.empty() || !net->FlatNetId()) return false;
  const auto found = figures_.find(net->FlatNetId());
  if (found == figures_.end()) return false;
  figures = found->second;
  return true;
}

size_t NetAnnotations::Count() {
  DropIfStale();
  return figures_.size();
}

uint64_t NetAnnotations::Generation() {
  DropIfStale();
  return generation_;
}

bool AnnotatedNetWire(const cdm::Net* net, float& wire_cap, float& resistance) {
  NetFigures figures;
  if (!NetAnnotations::Get().Find(net, figures)) return false;
  wire_cap = figures.capacitance;
  resistance = figures.resistance;
  return true;
}

}  // namespace parasitics
