#include "search/DesignRules.h"

#include <algorithm>
#include <optional>

#include "graph/TimingGraph.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Pin.h"
#include "sdc/SdcStore.h"
#include "search/Timer.h"

namespace sta {
namespace {

using Kind = RuleCheck::Kind;

const cdm::LibPort* LibPortOf(const cdm::Pin* pin) {
  return dynamic_cast<const cdm::LibPort*>(pin->GetPort());
}

// The tightest of the limits that are set (a value of the library below 0
// is unset); for a min rule the largest.
void Tighten(std::optional<float>& limit, std::optional<float> value, bool max_rule) {
  if (!value || *value < 0.0f) return;
  if (!limit) {
    limit = value;
  } else {
    limit = max_rule ? std::min(*limit, *value) : std::max(*limit, *value);
  }
}

// A library value, -1 when unset; `scale` turns a default written in the
// library's units into SI.
std::optional<float> LibValue(double value, double scale = 1.0) {
  return value >= 0.0 ? std::optional<float>(static_cast<float>(value * scale)) : std::nullopt;
}

}  // namespace

void DesignRules::Add(Kind kind, uint32_t vertex, float limit, float actual) {
  RuleCheck check;
  check.kind = kind;
  check.vertex = vertex;
  check.limit = limit;
  check.actual = actual;
  check.slack = kind == Kind::kMinCapacitance ? actual - limit : limit - actual;
  checks_.push_back(check);
  checked_[static_cast<int>(kind)] = true;
}

double DesignRules::DesignArea(Timer& timer) {
  const TimingGraph* graph = timer.Graph();
  double area = 0.0;
  const cdm::Cell* last = nullptr;
  for (uint32_t v = 1; graph && v < graph->TableSize(); ++v) {
    const cdm::Cell* cell = graph->vertex(v)->pin()->GetCell();
    if (!cell || cell == last) continue;
    last = cell;
    if (const cdm::LibCell* lib_cell = cell->GetRefLibCell()) area += lib_cell->GetArea();
  }
  return area;
}

void DesignRules::Check(Timer& timer) {
  checks_.clear();
  std::fill(std::begin(checked_), std::end(checked_), false);
  const TimingGraph* graph = timer.Graph();
  if (!graph) return;
  sdc::SdcStore* store = timer.Store();
  const sdc::DesignConstraints* design = store ? &store->DesignRef() : nullptr;
  const GraphDelayCalc& delays = timer.DelayCalc();
  for (uint32_t v = 1; v < graph->TableSize(); ++v) {
    const Vertex* vertex = graph->vertex(v);
    const cdm::Pin* pin = vertex->pin();
    // The loading half of an inout pin is checked with its driving half.
    if (pin->GetVertexId() != v) continue;
    const cdm::LibPort* lib_port = LibPortOf(pin);
    const cdm::LibertyLib* lib =
        lib_port && lib_port->GetLibCell() ? lib_port->GetLibCell()->GetLibertyLib() : nullptr;
    const sdc::PortConstraints* port =
        pin->IsTopPortPin() && store ? store->FindPort(pin->GetPort()) : nullptr;
    if (!lib_port && !pin->IsTopPortPin()) continue;  // a pin of an unresolved cell

    // Max transition, at every pin.
    std::optional<float> limit;
    if (design) Tighten(limit, design->max_transition, true);
    if (port) Tighten(limit, port->max_transition, true);
    if (lib_port) Tighten(limit, LibValue(lib_port->GetMaxTransition()), true);
    if (lib) Tighten(limit, LibValue(lib->GetDefaultMaxSlew(), lib->GetTimeUnit().scale), true);
    if (limit) {
      float slew = 0.0f;
      for (uint32_t half : {v, pin->IsNetDriver() && pin->IsNetLoad() ? v + 1 : v})
        for (int rf = 0; rf < 2; ++rf) slew = std::max(slew, graph->Slew(half, rf, 1));
      Add(Kind::kMaxTransition, v, *limit, slew);
    }

    // Capacitance and fanout, at drivers and at output ports.
    const bool output_port = pin->IsTopPortPin() && vertex->isLoad();
    if (!vertex->isDriver() && !output_port) continue;
    uint32_t driver = v;
    if (output_port) {
      driver = 0;
      for (uint32_t i = graph->InBegin(v); i < graph->InEnd(v) && !driver; ++i) {
        const Edge& edge = graph->Edges()[graph->InEdge(i)];
        if (edge.IsWire()) driver = edge.from;
      }
      if (!driver) continue;
    }
    float load = 0.0f;
    float least = 0.0f;
    for (int rf = 0; rf < 2; ++rf) {
      load = std::max(load, delays.Load(driver, rf, 1).Total());
      least = rf == 0 ? delays.Load(driver, rf, 0).Total()
                      : std::min(least, delays.Load(driver, rf, 0).Total());
    }
    std::optional<float> max_cap;
    std::optional<float> min_cap;
    std::optional<float> max_fanout;
    if (design) {
      Tighten(max_cap, design->max_capacitance, true);
      Tighten(min_cap, design->min_capacitance, false);
      Tighten(max_fanout, design->max_fanout, true);
    }
    if (port) {
      Tighten(max_cap, port->max_capacitance, true);
      Tighten(min_cap, port->min_capacitance, false);
      Tighten(max_fanout, port->max_fanout, true);
    }
    if (lib_port) {
      Tighten(max_cap, LibValue(lib_port->GetCapacitanceLimits(cdm::MinMax::max_)), true);
      Tighten(min_cap, LibValue(lib_port->GetCapacitanceLimits(cdm::MinMax::min_)), false);
      Tighten(max_fanout, LibValue(lib_port->GetMaxFanout()), true);
    }
    if (lib) {
      Tighten(max_cap, LibValue(lib->GetDefaultMaxCapacitance(), lib->GetCapacitanceUnit().scale),
              true);
      Tighten(max_fanout, LibValue(lib->GetDefaultMaxFanout()), true);
    }
    if (max_cap) Add(Kind::kMaxCapacitance, v, *max_cap, load);
    if (min_cap) Add(Kind::kMinCapacitance, v, *min_cap, least);
    if (max_fanout) {
      // The fan-out load of the net: each load pin's fanout_load (else its
      // library's default, else 1), and outside the design what
      // set_port_fanout_number and set_fanout_load put on ports.
      float fanout = 0.0f;
      for (uint32_t e = graph->OutBegin(driver); e < graph->OutEnd(driver); ++e) {
        const Edge& edge = graph->Edges()[e];
        if (!edge.IsWire()) continue;
        const cdm::Pin* load_pin = graph->vertex(edge.to)->pin();
        if (load_pin->IsTopPortPin()) {
          const sdc::PortConstraints* out = store ? store->FindPort(load_pin->GetPort()) : nullptr;
          if (out && out->load) fanout += out->load->getFanout(cdm::MinMax::max_).value_or(0.0f);
          if (out && out->fanout_load) fanout += *out->fanout_load;
          continue;
        }
        const cdm::LibPort* load_port = LibPortOf(load_pin);
        double each = load_port ? load_port->GetFanoutLoad() : -1.0;
        if (each < 0.0 && load_port && load_port->GetLibCell()) {
          each = load_port->GetLibCell()->GetLibertyLib()->GetDefaultFanoutLoad();
        }
        fanout += each < 0.0 ? 1.0f : static_cast<float>(each);
      }
      Add(Kind::kMaxFanout, v, *max_fanout, fanout);
    }
  }
  if (design && design->max_area) Add(Kind::kMaxArea, 0, *design->max_area, DesignArea(timer));
}

}  // namespace sta
