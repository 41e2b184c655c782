// Net wire figures from wire-load models: the fan-out gives a length
// through the model's fanout_length table (between points on the line
// joining them, beyond the last on its slope), and capacitance and
// resistance are that length times the model's values per unit length, in
// its library's units. The wire-load mode chooses the model: top, the
// design's (or that of a top port on the net); enclosed, that of the
// lowest instance holding the whole net; segmented, each level's model for
// the part of the net at that level.
#include <map>
#include <memory>
#include <string>

#include "db/NetWireEstimator.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "parasitics/NetAnnotations.h"
#include "parasitics/WireLoadEstimator.h"
#include "sdc/SdcStore.h"
#include "sdc/WireLoadChoice.h"

namespace parasitics {
namespace {

using sta::sdc::SdcStore;

// The instance a pin's level belongs to: "" at the top.
std::string LevelOf(const cdm::Pin* pin) {
  if (pin->IsTopPortPin()) return "";
  if (pin->IsPortPin()) {
    // A port pin inside a lower netlist prints as its instance's pin.
    const std::string name = pin->GetFullName();
    const size_t slash = name.rfind('/');
    return slash == std::string::npos ? "" : name.substr(0, slash);
  }
  const cdm::Cell* cell = pin->GetCell();
  if (!cell) return "";
  const std::string name = cell->GetFullName();
  const size_t slash = name.rfind('/');
  return slash == std::string::npos ? "" : name.substr(0, slash);
}

// The longest common instance path of two paths.
std::string Common(const std::string& a, const std::string& b) {
  size_t end = 0;
  for (size_t i = 0; i <= a.size() && i <= b.size(); ++i) {
    const bool a_end = i == a.size() || a[i] == '/';
    const bool b_end = i == b.size() || b[i] == '/';
    if (a_end && b_end) end = i;
    if (i == a.size() || i == b.size() || a[i] != b[i]) break;
  }
  return a.substr(0, end);
}

// A top port on the net with its own model (set_wire_load_model on the
// port): that model, else null.
const cdm::WireLoad* PortModel(SdcStore& store, const cdm::Net* net, const cdm::MinMax* minmax) {
  bool any = false;
  for (auto& [port, record] : store.PortRecords())
    if (record->wire_load[minmax->index()]) any = true;
  if (!any) return nullptr;
  cdm::NetConnIter pins(net, false, [](const cdm::Pin* pin) { return pin->IsTopPortPin(); });
  while (pins.HasNext()) {
    const sta::sdc::PortConstraints* record = store.FindPort(pins.Next()->GetPort());
    if (record && record->wire_load[minmax->index()]) return record->wire_load[minmax->index()];
  }
  return nullptr;
}

}  // namespace

WireFigures FiguresFor(const cdm::WireLoad* model, int fanout) {
  WireFigures figures;
  if (!model || fanout <= 0) return figures;
  const cdm::LibertyLib* lib =
      model->library ? model->library : cdm::DbManager::GetDefaultLiberty();
  const double cap_scale = lib ? lib->GetUnits().capacitance.scale : 1e-12;
  const double res_scale = lib ? lib->GetUnits().resistance.scale : 1e3;
  const double length = model->LengthFor(fanout);
  figures.length = length;
  figures.capacitance = length * model->capacitance * cap_scale;
  figures.resistance = length * model->resistance * res_scale;
  return figures;
}

void EstimateNetWire(const cdm::Net* net, int flat_loads, const cdm::MinMax* minmax,
                     float& wire_cap, float& resistance) {
  wire_cap = 0.0f;
  resistance = 0.0f;
  if (AnnotatedNetWire(net, wire_cap, resistance)) return;  // read from SPEF
  SdcStore& store = sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr)->store();
  if (!store.Sync()) {
    // No design of the store's: the default library's default model.
    const cdm::LibertyLib* lib = cdm::DbManager::GetDefaultLiberty();
    const WireFigures figures = FiguresFor(lib ? lib->GetDefaultWireLoad() : nullptr, flat_loads);
    wire_cap = static_cast<float>(figures.capacitance);
    resistance = static_cast<float>(figures.resistance);
    return;
  }
  // The model of the top level: a top port's on the net, else the design's.
  auto top_model = [&]() {
    const cdm::WireLoad* model = PortModel(store, net, minmax);
    return model ? model : sta::sdc::ChooseDesignWireLoad(store, minmax).model;
  };
  auto model_at = [&](const std::string& level) {
    return level.empty() ? top_model()
                         : sta::sdc::ChooseInstanceWireLoad(store, level, minmax).model;
  };
  const cdm::WireLoadMode mode = sta::sdc::WireLoadModeInForce(store);
  if (mode == cdm::WireLoadMode::kEnclosed || mode == cdm::WireLoadMode::kSegmented) {
    // The levels the net passes and the pins it has at each.
    std::map<std::string, int> pins_at;
    cdm::NetConnIter pins(net, true, cdm::func<cdm::Pin>);
    while (pins.HasNext()) ++pins_at[LevelOf(pins.Next())];
    if (pins_at.size() > 1 || (pins_at.size() == 1 && !pins_at.begin()->first.empty())) {
      if (mode == cdm::WireLoadMode::kEnclosed) {
        std::string enclosing = pins_at.begin()->first;
        for (const auto& [level, count] : pins_at) enclosing = Common(enclosing, level);
        const WireFigures figures = FiguresFor(model_at(enclosing), flat_loads);
        wire_cap = static_cast<float>(figures.capacitance);
        resistance = static_cast<float>(figures.resistance);
        return;
      }
      // Segmented: each level's part has all its pins but the one that
      // brings the signal in as loads.
      double cap = 0.0, res = 0.0;
      for (const auto& [level, count] : pins_at) {
        const WireFigures figures = FiguresFor(model_at(level), count - 1);
        cap += figures.capacitance;
        res += figures.resistance;
      }
      wire_cap = static_cast<float>(cap);
      resistance = static_cast<float>(res);
      return;
    }
  }
  const WireFigures figures = FiguresFor(top_model(), flat_loads);
  wire_cap = static_cast<float>(figures.capacitance);
  resistance = static_cast<float>(figures.resistance);
}

namespace {

// Registers the estimator with the database when the host library loads.
struct Registration {
  Registration() { cdm::SetNetWireEstimator(EstimateNetWire); }
} registration;

}  // namespace

}  // namespace parasitics
