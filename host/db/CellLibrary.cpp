// What the design objects ask of the library behind a cell: tie and
// generic cells, pin capacitance, the paths through a cell, wire estimates.
#include <algorithm>
#include <memory>

#include "db/FlatNet.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"

namespace cdm {
namespace {

// The library port and cell of a leaf pin; null for other pins.
LibPort* LibPortOf(const Pin* pin) {
  Cell* cell = pin->GetCell();
  if (!cell || !cell->GetRefLibCell()) return nullptr;
  return dynamic_cast<LibPort*>(pin->GetPort());
}

}  // namespace

bool Cell::IsConstCell() const {
  LibCell* lib_cell = GetRefLibCell();
  return lib_cell && lib_cell->GetConstOutputValue() >= 0;
}

bool Cell::IsGTechCell() const {
  LibCell* lib_cell = GetRefLibCell();
  return lib_cell && lib_cell->GetLibertyLib() == DbManager::GetGenericLib();
}

float Pin::Capacitance(const RiseFall* edge, const MinMax* minmax) const {
  LibPort* port = LibPortOf(this);
  if (!port) return 0.0f;
  return std::max(0.0f, static_cast<float>(port->GetCapacitance(edge, minmax)));
}

Pin* Pin::GetInputOutputPin(bool through_sequential) const {
  LibPort* port = LibPortOf(this);
  if (!port || port->direction != kDirInput) return nullptr;
  Cell* cell = GetCell();
  LibCell* lib_cell = cell->GetRefLibCell();
  if (lib_cell->IsSequentialCell() && !through_sequential) return nullptr;
  for (LibPort* out : lib_cell->GetCellToPorts(port))
    if (Pin* pin = cell->FindPin(out->Name())) return pin;
  return nullptr;
}

std::vector<Pin*> Pin::GetOutputInputPins(bool through_sequential) const {
  std::vector<Pin*> inputs;
  LibPort* port = LibPortOf(this);
  if (!port || !port->IsOutput()) return inputs;
  Cell* cell = GetCell();
  LibCell* lib_cell = cell->GetRefLibCell();
  if (lib_cell->IsSequentialCell() && !through_sequential) return inputs;
  for (uint32_t i = 0; i < cell->PinCount(); ++i) {
    Pin* pin = cell->GetPin(i);
    LibPort* input = dynamic_cast<LibPort*>(pin->GetPort());
    if (!input || input->direction != kDirInput) continue;
    std::vector<LibPort*> outs = lib_cell->GetCellToPorts(input);
    if (std::find(outs.begin(), outs.end(), port) != outs.end()) inputs.push_back(pin);
  }
  return inputs;
}

void Net::NetCapAndRes(const OperatingConditions*, float& wire_cap, float& resistance,
                       const MinMax* minmax, HierarchyMode) const {
  wire_cap = 0.0f;
  resistance = 0.0f;
  // The model in force: set_wire_load_model (or the selection by area),
  // else the default library's default_wire_load.
  const WireLoad* wire_load = sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr)->getWireLoadModel(
      minmax ? minmax : MinMax::max_);
  LibertyLib* lib =
      wire_load && wire_load->library ? wire_load->library : DbManager::GetDefaultLiberty();
  if (!wire_load) wire_load = lib ? lib->GetDefaultWireLoad() : nullptr;
  if (!wire_load || !lib) return;
  int fanout = FlatLoadCount(this);
  if (fanout == 0) return;
  float length = wire_load->LengthFor(fanout);
  const LibUnits& units = lib->GetUnits();
  wire_cap = length * wire_load->capacitance * units.capacitance.scale;
  resistance = length * wire_load->resistance * units.resistance.scale;
}

}  // namespace cdm
