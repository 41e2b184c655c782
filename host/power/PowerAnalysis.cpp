#include "power/PowerAnalysis.h"

#include "db/Elaboration.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Root.h"
#include "search/Timer.h"

namespace power {

PowerAnalysis::Group PowerAnalysis::GroupOf(const cdm::LibCell* lib_cell) {
  if (lib_cell->IsPad()) return kPad;
  if (lib_cell->IsMacro() || lib_cell->IsMemory()) return kMacro;
  if (lib_cell->IsSequentialCell()) return kSequential;
  return kCombinational;
}

PowerAnalysis::PowerAnalysis(const sta::Timer& timer, ActivityOf activity)
    : timer_(timer), activity_(std::move(activity)) {}

bool PowerAnalysis::Run(bool keep_nets) {
  total_ = cdm::PowerResult();
  for (cdm::PowerResult& group : groups_) group = cdm::PowerResult();
  cells_.clear();
  nets_.clear();
  const cdm::Design* design = timer_.Design();
  const cdm::Elaboration* elaboration = timer_.Root()->GetElaboration();
  if (!design || !elaboration) return false;

  CellPower cells(timer_, timer_.Root()->GetDefaultLiberty(), activity_);
  RunNetlist(design->GetNetlist(), cells, keep_nets);
  const auto& instances = elaboration->Instances();
  for (const cdm::Netlist* instance : instances) RunNetlist(instance, cells, keep_nets);
  // Children come after their parents: summing from the back gives each
  // hierarchical cell the whole of what lies below it.
  for (auto it = instances.rbegin(); it != instances.rend(); ++it) {
    const cdm::Netlist* netlist = *it;
    const cdm::Cell* instance = netlist->GetInstance();
    if (!instance) continue;
    cdm::PowerResult sum;
    for (const cdm::PowerResult& power : cells_[netlist]) sum += power;
    cells_[instance->GetNetlist()][instance->GetNetlist()->IndexOf(instance)] = sum;
  }
  if (keep_nets) AddInputNets(design);
  return true;
}

void PowerAnalysis::RunNetlist(const cdm::Netlist* netlist, CellPower& cells, bool keep_nets) {
  std::vector<cdm::PowerResult>& results = cells_[netlist];
  results.assign(netlist->CellCount(), cdm::PowerResult());
  uint32_t index = 0;
  for (const cdm::Cell& cell : netlist->Cells()) {
    cdm::PowerResult& power = results[index++];
    const cdm::LibCell* lib_cell = cell.IsLeaf() ? cell.GetRefLibCell() : nullptr;
    if (!lib_cell) continue;
    driven_.clear();
    power = cells.Compute(&cell, keep_nets ? &driven_ : nullptr);
    total_ += power;
    groups_[GroupOf(lib_cell)] += power;
    for (const DrivenNet& net : driven_) {
      const uint32_t flat = net.driver->GetNet()->FlatNetId();
      if (flat) nets_.emplace(flat, Record(net));
    }
  }
}

// Nets driven from the top's inputs belong to no instance: they are
// reported by net, at the default library's supply, and count in no group.
void PowerAnalysis::AddInputNets(const cdm::Design* design) {
  const cdm::LibertyLib* lib = timer_.Root()->GetDefaultLiberty();
  double vdd = lib ? lib->GetNomVoltage() : 0.0;
  if (lib && vdd <= 0.0 && lib->GetDefaultOperatingConditions())
    vdd = lib->GetDefaultOperatingConditions()->voltage;
  for (const cdm::Port* port : design->Ports()) {
    if (!port->IsInput()) continue;
    const cdm::Pin* pin = design->FindPin(port->Name());
    if (!pin || !pin->GetNet() || !pin->GetVertexId()) continue;
    const uint32_t flat = pin->GetNet()->FlatNetId();
    if (!flat || nets_.count(flat)) continue;
    DrivenNet net;
    net.driver = pin;
    const uint32_t vertex = pin->GetVertexId();
    net.load = 0.5 * (timer_.DelayCalc().Load(vertex, 0, 1).Total() +
                      timer_.DelayCalc().Load(vertex, 1, 1).Total());
    net.vdd = vdd;
    net.activity = activity_(pin);
    net.power = 0.5 * net.load * vdd * vdd * net.activity.rate;
    nets_.emplace(flat, Record(net));
  }
}

cdm::SwitchPowerRecord PowerAnalysis::Record(const DrivenNet& net) {
  cdm::SwitchPowerRecord record;
  record.vdd = static_cast<float>(net.vdd);
  record.net_load = static_cast<float>(net.load);
  record.toggle_rate = static_cast<float>(net.activity.rate * 1e-9);
  record.static_probability = static_cast<float>(net.activity.probability);
  record.switching_power = static_cast<float>(net.power);
  record.origin = net.activity.origin;
  return record;
}

cdm::PowerResult PowerAnalysis::InstancePower(const cdm::Cell* cell) const {
  auto found = cells_.find(cell->GetNetlist());
  if (found == cells_.end()) return cdm::PowerResult();
  const uint32_t index = cell->GetNetlist()->IndexOf(cell);
  return index < found->second.size() ? found->second[index] : cdm::PowerResult();
}

bool PowerAnalysis::NetRecord(const cdm::Net* net, cdm::SwitchPowerRecord& record) const {
  auto found = nets_.find(net->FlatNetId());
  if (found == nets_.end()) return false;
  record = found->second;
  return true;
}

}  // namespace power
