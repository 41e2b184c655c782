// The wire figures of a net: from the wire-load model in force.
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
