#include "power/CellPower.h"

#include <algorithm>
#include <map>
#include <utility>

#include "dcalc/TableLookup.h"
#include "graph/TimingGraph.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/LibBoolFuncExpr.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Pin.h"
#include "power/TruthProbability.h"
#include "search/Timer.h"

namespace power {

namespace {

// The slot of each of `function`'s inputs among `ports`, -1 when not a pin.
std::vector<int> SlotsOf(const cdm::LibBoolFuncExpr& function,
                         const std::vector<const cdm::LibPort*>& ports) {
  std::vector<int> slots;
  for (const cdm::LibPort* port : function.GetFuncPorts()) {
    auto found = std::find(ports.begin(), ports.end(), port);
    slots.push_back(found == ports.end() ? -1 : static_cast<int>(found - ports.begin()));
  }
  return slots;
}

}  // namespace

// A `when` over the instance's pins.
struct CellPower::Condition {
  bool always = true;       // no function: always true
  std::vector<bool> table;  // over `slots`; empty past 16 inputs
  std::vector<int> slots;   // the slot of each input, -1 when not a pin

  void Set(const cdm::LibBoolFuncExpr* function, const std::vector<const cdm::LibPort*>& ports) {
    if (!function || function->IsEmpty()) return;
    always = false;
    table = function->TruthTable();
    slots = SlotsOf(*function, ports);
  }
  // The probability of each input being 1 (one half for a port the
  // instance has no pin for).
  void Inputs(const std::vector<PinActivity>& acts, std::vector<double>& one) const {
    one.clear();
    for (int slot : slots) one.push_back(slot >= 0 ? acts[slot].probability : 0.5);
  }
  double Probability(const std::vector<PinActivity>& acts, std::vector<double>& one) const {
    if (always) return 1.0;
    if (table.empty()) return 0.5;
    Inputs(acts, one);
    return ProbabilityOfOne(table, one);
  }
};

// One internal power group seen from one related pin.
struct CellPower::Group {
  int owner = -1;    // slot of the pin that holds the group
  int related = -1;  // slot of the related pin, -1 for none
  int family = 0;    // the groups of one owner and related pin
  bool on_output = false;
  Condition when;
  const cdm::LibPowerModel* model[2] = {nullptr, nullptr};  // rise, fall
};

// How often an output's arc from one related pin is charged, as the
// established timing engines charge it (docs/power.md): a pin that is an
// operand of the function's last operator (both through inversions), at its own
// rate times the chance that the other operand is 1 (AND) or 0 (OR, XOR);
// a pin the function does not read (a register's clock), at the output's
// rate; any other pin of the function, at half the output's rate.
struct CellPower::Arc {
  enum Kind { kOperand, kWhole, kHalf } kind = kWhole;
  int input = -1;    // kOperand: the pin's input in the function
  int sibling = -1;  // kOperand: the other operand's node, -1 for none
  cdm::LibBoolFuncExpr::Op op = cdm::LibBoolFuncExpr::Op::kAnd;
};

struct CellPower::Output {
  int slot = -1;
  const cdm::LibBoolFuncExpr* expression = nullptr;  // null: no function
  std::vector<int> slots;                            // of the function's inputs
  std::vector<int> related;                          // distinct related slots of its groups
  std::vector<Arc> arcs;                             // per related
  double vdd = 0.0;
};

struct CellPower::Plan {
  std::vector<const cdm::LibPort*> ports;  // by slot: the ports of the instance's pins
  std::vector<Group> groups;
  int families = 0;
  std::vector<Output> outputs;
  std::vector<std::pair<double, Condition>> leakage;
  double fixed_leakage = 0.0;  // without leakage groups
  sta::SlewScale scale;
};

namespace {

double SupplyOf(const cdm::LibCell* lib_cell, const cdm::LibPort* port) {
  const cdm::LibertyLib* lib = lib_cell->GetLibertyLib();
  if (!lib) return 0.0;
  const std::string& power_pin = port->GetRelatedPowerPin();
  if (!power_pin.empty()) {
    std::unique_ptr<cdm::Iterator<cdm::LibPgPort>> pg(lib_cell->LibPgPortIter());
    while (pg->HasNext()) {
      const cdm::LibPgPort* pg_port = pg->Next();
      if (pg_port->Name() != power_pin) continue;
      auto voltage = lib->GetVoltageMap().find(pg_port->voltage_name);
      if (voltage != lib->GetVoltageMap().end()) return voltage->second;
    }
  }
  if (lib->GetNomVoltage() > 0.0) return lib->GetNomVoltage();
  const cdm::OperatingConditions* conditions = lib->GetDefaultOperatingConditions();
  return conditions ? conditions->voltage : 0.0;
}

// Node `index` past the inversions at its top.
int UnderInversions(const cdm::LibBoolFuncExpr& function, int index) {
  while (index >= 0 && function.Nodes()[index].op == cdm::LibBoolFuncExpr::Op::kNot)
    index = function.Nodes()[index].left;
  return index;
}

// The port an operand stands for through inversions, or null.
const cdm::LibPort* Literal(const cdm::LibBoolFuncExpr& function, int index) {
  index = UnderInversions(function, index);
  return index >= 0 && function.Nodes()[index].op == cdm::LibBoolFuncExpr::Op::kPort
             ? function.Nodes()[index].port
             : nullptr;
}

}  // namespace

CellPower::Arc CellPower::ArcOf(const cdm::LibBoolFuncExpr* function, const cdm::LibPort* port) {
  using Op = cdm::LibBoolFuncExpr::Op;
  Arc arc;
  if (!function || function->IsEmpty()) return arc;
  const auto& ports = function->GetFuncPorts();
  auto found = std::find(ports.begin(), ports.end(), port);
  if (found == ports.end()) return arc;
  arc.kind = Arc::kHalf;
  arc.input = static_cast<int>(found - ports.begin());
  int root = function->Root();
  if (Literal(*function, root) == port) {
    arc.kind = Arc::kOperand;
    return arc;
  }
  // The last operator under the inversions of the whole ("!(A & B)").
  root = UnderInversions(*function, root);
  const cdm::LibBoolFuncExpr::Node& top = function->Nodes()[root];
  if (top.op != Op::kAnd && top.op != Op::kOr && top.op != Op::kXor) return arc;
  for (int side = 0; side < 2; ++side) {
    const int operand = side ? top.right : top.left;
    if (Literal(*function, operand) != port) continue;
    arc.kind = Arc::kOperand;
    arc.sibling = side ? top.left : top.right;
    arc.op = top.op;
    return arc;
  }
  return arc;
}

CellPower::CellPower(const sta::Timer& timer, const cdm::LibertyLib* reference, ActivityOf activity)
    : timer_(timer), reference_(reference), activity_(std::move(activity)) {}

CellPower::~CellPower() = default;

std::unique_ptr<CellPower::Plan> CellPower::MakePlan(const cdm::LibCell* lib_cell,
                                                     const cdm::Cell* cell,
                                                     const cdm::LibertyLib* reference) {
  auto plan = std::make_unique<Plan>();
  plan->scale = sta::SlewScale(lib_cell->GetLibertyLib(), reference);
  const uint32_t count = cell->PinCount();
  for (uint32_t i = 0; i < count; ++i)
    plan->ports.push_back(static_cast<const cdm::LibPort*>(cell->GetPin(i)->GetPort()));
  const std::vector<const cdm::LibPort*>& ports = plan->ports;
  auto slot_of = [&](const cdm::LibPort* port) {
    auto found = std::find(ports.begin(), ports.end(), port);
    return found == ports.end() ? -1 : static_cast<int>(found - ports.begin());
  };

  std::map<std::pair<int, int>, int> families;
  for (size_t slot = 0; slot < ports.size(); ++slot) {
    const cdm::LibPort* port = ports[slot];
    for (const auto& attr : port->GetPowerAttrs()) {
      std::vector<int> related;
      for (const cdm::LibPort* other : attr->GetRelatedPorts()) related.push_back(slot_of(other));
      if (related.empty()) related.push_back(-1);
      for (int r : related) {
        Group group;
        group.owner = static_cast<int>(slot);
        group.related = r;
        group.on_output = port->IsOutput();
        group.when.Set(attr->GetWhen(), ports);
        group.model[0] = attr->GetLibPowerModel(cdm::RiseFall::rise_);
        group.model[1] = attr->GetLibPowerModel(cdm::RiseFall::fall_);
        auto family = families.emplace(std::make_pair(group.owner, r), plan->families);
        if (family.second) ++plan->families;
        group.family = family.first->second;
        plan->groups.push_back(std::move(group));
      }
    }
  }

  for (size_t slot = 0; slot < ports.size(); ++slot) {
    const cdm::LibPort* port = ports[slot];
    if (!port->IsOutput()) continue;
    Output output;
    output.slot = static_cast<int>(slot);
    const cdm::LibBoolFuncExpr* function = port->GetFunction();
    if (function && !function->IsEmpty()) {
      output.expression = function;
      output.slots = SlotsOf(*function, ports);
    }
    for (const Group& group : plan->groups) {
      if (group.owner != output.slot || !group.on_output || group.related < 0) continue;
      if (std::find(output.related.begin(), output.related.end(), group.related) !=
          output.related.end())
        continue;
      output.related.push_back(group.related);
      output.arcs.push_back(ArcOf(output.expression, ports[group.related]));
    }
    output.vdd = SupplyOf(lib_cell, port);
    plan->outputs.push_back(std::move(output));
  }

  for (const auto& leakage : lib_cell->GetLeakagePowers()) {
    Condition when;
    when.Set(leakage->GetWhen(), ports);
    plan->leakage.emplace_back(leakage->GetValue(), std::move(when));
  }
  const cdm::LibertyLib* lib = lib_cell->GetLibertyLib();
  if (lib_cell->GetCellLeakagePower() > 0.0)
    plan->fixed_leakage = lib_cell->GetCellLeakagePower();
  else if (lib && lib->GetDefaultCellLeakagePower() > 0.0)  // in the library's unit
    plan->fixed_leakage = lib->GetDefaultCellLeakagePower() * lib->GetUnits().power.scale;
  return plan;
}

const CellPower::Plan& CellPower::PlanOf(const cdm::LibCell* lib_cell, const cdm::Cell* cell) {
  std::unique_ptr<Plan>& plan = plans_[lib_cell];
  if (!plan) plan = MakePlan(lib_cell, cell, reference_);
  return *plan;
}

cdm::PowerResult CellPower::Compute(const cdm::Cell* cell, std::vector<DrivenNet>* nets) {
  cdm::PowerResult result;
  const cdm::LibCell* lib_cell = cell->GetRefLibCell();
  if (!lib_cell) return result;
  const Plan& plan = PlanOf(lib_cell, cell);
  const size_t slots = plan.ports.size();

  // The instance's pins by slot (in the plan's order unless this instance
  // lists them otherwise).
  pins_.assign(slots, nullptr);
  acts_.assign(slots, PinActivity());
  const uint32_t count = cell->PinCount();
  for (uint32_t i = 0; i < count; ++i) {
    const cdm::Pin* pin = cell->GetPin(i);
    size_t slot = i;
    if (slot >= slots || plan.ports[slot] != pin->GetPort()) {
      auto found = std::find(plan.ports.begin(), plan.ports.end(), pin->GetPort());
      if (found == plan.ports.end()) continue;
      slot = static_cast<size_t>(found - plan.ports.begin());
    }
    pins_[slot] = pin;
    acts_[slot] = activity_(pin);
  }

  const sta::TimingGraph* graph = timer_.Graph();
  const sta::GraphDelayCalc& dcalc = timer_.DelayCalc();
  auto slew = [&](int slot, int edge) -> float {
    const cdm::Pin* pin = slot >= 0 ? pins_[slot] : nullptr;
    if (!graph || !pin || !pin->GetVertexId()) return 0.0f;
    uint32_t vertex = pin->GetVertexId();
    // An inout pin reads its loading half.
    if (pin->GetDirection() == cdm::kDirInout) ++vertex;
    if (!graph->HasVertex(vertex)) return 0.0f;
    return graph->Slew(vertex, edge, 1);
  };
  auto load = [&](int slot, int edge) -> float {
    const cdm::Pin* pin = pins_[slot];
    if (!graph || !pin || !pin->GetVertexId()) return 0.0f;
    return dcalc.Load(pin->GetVertexId(), edge, 1).Total();
  };

  // The weight of each group: the probability of its `when`; a group
  // without one takes what its family's conditions leave.
  std::vector<double>& one = scratch_;
  std::vector<double> family_sum(plan.families, 0.0);
  std::vector<double> weight(plan.groups.size(), 1.0);
  for (size_t g = 0; g < plan.groups.size(); ++g) {
    const Group& group = plan.groups[g];
    if (group.when.always) continue;
    weight[g] = group.when.Probability(acts_, one);
    family_sum[group.family] += weight[g];
  }
  for (size_t g = 0; g < plan.groups.size(); ++g)
    if (plan.groups[g].when.always)
      weight[g] = std::max(0.0, 1.0 - family_sum[plan.groups[g].family]);

  // How often each output's arc from each related pin is charged.
  std::vector<double> arc_rate(slots, 0.0);  // per related slot, for the output in hand
  std::vector<Activity>& inputs = inputs_;
  double internal = 0.0;
  for (const Output& output : plan.outputs) {
    const double out_rate = acts_[output.slot].rate;
    if (output.expression) {
      inputs.clear();
      for (int slot : output.slots)
        inputs.push_back(slot >= 0 ? Activity{acts_[slot].probability, acts_[slot].rate}
                                   : Activity{0.5, 0.0});
    }
    for (size_t k = 0; k < output.related.size(); ++k) {
      const Arc& arc = output.arcs[k];
      double rate = out_rate;
      if (arc.kind == Arc::kHalf) {
        rate = 0.5 * out_rate;
      } else if (arc.kind == Arc::kOperand) {
        // Through the other operand: while it is 1 (AND), while it is 0
        // (OR, and XOR as the engines charge it), always without one.
        double through = 1.0;
        if (arc.sibling >= 0) {
          const double p = FunctionActivity(*output.expression, inputs, arc.sibling).probability;
          through = arc.op == cdm::LibBoolFuncExpr::Op::kAnd ? p : 1.0 - p;
        }
        rate = inputs[arc.input].density * through;
      }
      arc_rate[output.related[k]] = rate;
    }

    // A group's rise and fall energies are each charged at the arc's whole
    // rate (their sum per transition), each table read at the related
    // pin's slew of its own edge and at the larger of the output's two
    // loads, as the established timing engines read them; see
    // docs/power.md.
    for (size_t g = 0; g < plan.groups.size(); ++g) {
      const Group& group = plan.groups[g];
      if (group.owner != output.slot || !group.on_output || weight[g] == 0.0) continue;
      const float output_load = std::max(load(output.slot, 0), load(output.slot, 1));
      double energy = 0.0;
      for (int edge = 0; edge < 2; ++edge) {
        if (!group.model[edge] || !group.model[edge]->GetTable()) continue;
        sta::TableArgs args;
        args.in_slew = plan.scale.ToLibrary(slew(group.related, edge));
        args.related_slew = args.in_slew;
        args.load = output_load;
        energy += sta::TableValue(*group.model[edge]->GetTable(), args);
      }
      // A group with a `when` counts at the output's whole rate while its
      // condition holds, whatever the arc, as the engines charge it.
      const double rate =
          group.related >= 0 && group.when.always ? arc_rate[group.related] : out_rate;
      internal += rate * weight[g] * energy;
    }

    const cdm::Pin* driver = pins_[output.slot];
    if (!driver || !driver->GetNet()) continue;
    DrivenNet net;
    net.driver = driver;
    // The larger of the rising and the falling load, as the established
    // engines take it: conservative where a pin's two figures differ.
    net.load = std::max(load(output.slot, 0), load(output.slot, 1));
    net.vdd = output.vdd;
    net.activity = acts_[output.slot];
    net.power = 0.5 * net.load * net.vdd * net.vdd * net.activity.rate;
    result.switching += static_cast<float>(net.power);
    if (nets) nets->push_back(net);
  }

  // Groups of inputs: the pin's own slew, at half its rate (a clock pin,
  // or a group with a `when`, at its whole rate), as the established
  // engines charge them.
  for (size_t g = 0; g < plan.groups.size(); ++g) {
    const Group& group = plan.groups[g];
    if (group.on_output || weight[g] == 0.0) continue;
    double energy = 0.0;
    for (int edge = 0; edge < 2; ++edge) {
      if (!group.model[edge] || !group.model[edge]->GetTable()) continue;
      sta::TableArgs args;
      args.in_slew = plan.scale.ToLibrary(slew(group.owner, edge));
      args.related_slew = args.in_slew;
      energy += sta::TableValue(*group.model[edge]->GetTable(), args);
    }
    const bool whole = plan.ports[group.owner]->IsClock() || !group.when.always;
    const double rate = acts_[group.owner].rate * (whole ? 1.0 : 0.5);
    internal += rate * weight[g] * energy;
  }
  result.internal = static_cast<float>(internal);

  // Leakage: each state's value by its probability; a group without a
  // state takes what the states leave; no groups, the cell's one value.
  if (plan.leakage.empty()) {
    result.leakage = static_cast<float>(plan.fixed_leakage);
  } else {
    double states = 0.0, sum = 0.0;
    for (const auto& leakage : plan.leakage) {
      if (leakage.second.always) continue;
      const double p = leakage.second.Probability(acts_, one);
      states += p;
      sum += p * leakage.first;
    }
    for (const auto& leakage : plan.leakage)
      if (leakage.second.always) sum += std::max(0.0, 1.0 - states) * leakage.first;
    result.leakage = static_cast<float>(sum);
  }
  return result;
}

}  // namespace power
