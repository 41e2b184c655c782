#include "sdc/SdcStore.h"

#include <algorithm>

#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/cdm/Root.h"
#include "msg/HostMsg.h"

namespace sta::sdc {

bool Covers(MinMaxAll which, const cdm::MinMax* minmax) {
  return which == MinMaxAll::kAll || (which == MinMaxAll::kMin) == (minmax == cdm::MinMax::min_);
}

SdcStore::SdcStore(std::string design_name) : design_name_(std::move(design_name)) {}

SdcStore::~SdcStore() = default;

bool SdcStore::Sync() {
  cdm::Root* root = cdm::DbManager::GetRoot();
  const uint64_t generation = root->ChangeGeneration();
  if (generation == db_generation_) return active_;
  cdm::Design* current = root->GetCurrentDesign();
  if (!current || current->Name() != design_name_) {
    // Not ours now: answer nothing, and find the objects again by name
    // once the design is current again.
    active_ = false;
    return false;
  }
  if (db_generation_ != 0) Relink(current);
  db_generation_ = generation;
  active_ = true;
  return true;
}

cdm::Design* SdcStore::GetDesign() {
  return Sync() ? cdm::DbManager::GetCurrentDesign() : nullptr;
}

PortConstraints* SdcStore::FindPort(const cdm::Port* port) {
  return ports_.Find(port);
}

PortConstraints& SdcStore::Port(cdm::Port* port) {
  std::unique_ptr<PortConstraints>& slot = ports_.Slot(port);
  if (!slot) {
    slot = std::make_unique<PortConstraints>();
    slot->name = port->Name();
  }
  return *slot;
}

PinConstraints* SdcStore::FindPin(const cdm::Pin* pin) {
  return pins_.Find(pin);
}

PinConstraints& SdcStore::Pin(cdm::Pin* pin) {
  std::unique_ptr<PinConstraints>& slot = pins_.Slot(pin);
  if (!slot) {
    slot = std::make_unique<PinConstraints>();
    slot->name = pin->GetFullName();
  }
  return *slot;
}

NetConstraints* SdcStore::FindNet(const cdm::Net* net) {
  return nets_.Find(net);
}

NetConstraints& SdcStore::Net(cdm::Net* net) {
  std::unique_ptr<NetConstraints>& slot = nets_.Slot(net);
  if (!slot) {
    slot = std::make_unique<NetConstraints>();
    slot->name = net->GetFullName();
  }
  return *slot;
}

CellConstraints* SdcStore::FindCell(const cdm::Cell* cell) {
  return cells_.Find(cell);
}

CellConstraints& SdcStore::Cell(cdm::Cell* cell) {
  std::unique_ptr<CellConstraints>& slot = cells_.Slot(cell);
  if (!slot) {
    slot = std::make_unique<CellConstraints>();
    slot->name = cell->GetFullName();
  }
  return *slot;
}

std::vector<std::pair<cdm::Port*, PortConstraints*>> SdcStore::PortRecords() {
  std::vector<std::pair<cdm::Port*, PortConstraints*>> records;
  for (auto& entry : ports_)
    records.emplace_back(const_cast<cdm::Port*>(entry.first), entry.second.get());
  return records;
}

std::vector<std::pair<cdm::Pin*, PinConstraints*>> SdcStore::PinRecords() {
  std::vector<std::pair<cdm::Pin*, PinConstraints*>> records;
  for (auto& entry : pins_)
    records.emplace_back(const_cast<cdm::Pin*>(entry.first), entry.second.get());
  return records;
}

std::vector<std::pair<cdm::Net*, NetConstraints*>> SdcStore::NetRecords() {
  std::vector<std::pair<cdm::Net*, NetConstraints*>> records;
  for (auto& entry : nets_)
    records.emplace_back(const_cast<cdm::Net*>(entry.first), entry.second.get());
  return records;
}

std::vector<std::pair<cdm::Cell*, CellConstraints*>> SdcStore::CellRecords() {
  std::vector<std::pair<cdm::Cell*, CellConstraints*>> records;
  for (auto& entry : cells_)
    records.emplace_back(const_cast<cdm::Cell*>(entry.first), entry.second.get());
  return records;
}

Clock* SdcStore::FindClock(const std::string& name) const {
  auto found = clock_index_.find(name);
  return found == clock_index_.end() ? nullptr : found->second;
}

std::vector<Clock*> SdcStore::ClocksAt(const cdm::Pin* pin) const {
  std::vector<Clock*> found;
  for (Clock* clock : clocks_) {
    const auto& sources = clock->getSources();
    if (std::find(sources.begin(), sources.end(), pin) != sources.end()) found.push_back(clock);
  }
  return found;
}

void SdcStore::Dropped(const std::string& kind, const std::string& name, const std::string& what) {
  msg::HostMsg(SDC_003, {what, kind, name, design_name_});
}

void SdcStore::DroppedPart(const std::string& what, const std::string& kind,
                           const std::string& name, const std::string& part_kind,
                           const std::string& part_name) {
  msg::HostMsg(SDC_009, {what, kind, name, part_kind, part_name});
}

}  // namespace sta::sdc
