// Cells, pins and buses.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "liberty/FuncParser.h"
#include "liberty/LibEditor.h"
#include "liberty/LibParseEnums.h"

namespace cdm {

namespace {

// The `direction` written in a pin or bus group, kDirInput when absent;
// false for an unknown word.
bool DirectionOf(const liberty::LibStatement& group, uint8_t& direction,
                 const liberty::LibStatement*& bad) {
  direction = kDirInput;
  for (const liberty::LibStatement& child : group.children) {
    if (child.name != "direction") continue;
    const std::string_view value = child.Value();
    if (value == "input") {
      direction = kDirInput;
    } else if (value == "output") {
      direction = kDirOutput;
    } else if (value == "inout") {
      direction = kDirInout;
    } else if (value == "internal") {
      direction = kDirInternal;
    } else {
      bad = &child;
      return false;
    }
  }
  return true;
}

}  // namespace

LibPort* LibEditor::AddPort(LibCell* cell, std::string_view name, uint8_t direction, bool listed) {
  auto found = port_index_.find(name);
  if (found != port_index_.end()) return found->second;
  auto port = std::make_unique<LibPort>(Intern(name), direction, cell);
  LibPort* added = port.get();
  cell->owned_ports_.push_back(std::move(port));
  if (listed) cell->ports_.push_back(added);
  port_index_.emplace(added->Name(), added);
  return added;
}

bool LibEditor::DeclarePorts(LibCell* cell, const Statement& st) {
  auto twice = [&](const Statement& group, std::string_view name) {
    return Fail(group, std::string(group.name) + " '" + std::string(name) +
                           "' is defined twice in cell '" + cell->Name() + "'");
  };
  // The members of the cell's buses counted first, before any is made.
  for (const Statement& child : st.children) {
    if (!child.IsGroup() || child.name != "bus") continue;
    std::string_view type_name;  // the last bus_type, as below
    for (const Statement& attr : child.children) {
      if (attr.name == "bus_type") type_name = attr.Value();
    }
    auto type = bus_types_.find(std::string(type_name));
    if (type == bus_types_.end()) continue;  // named below
    bus_members_ += std::abs(int64_t{type->second.from} - type->second.to) + 1;
    if (bus_members_ > kMaxBusMembers) {
      return Fail(child, "bus '" + std::string(child.Value()) + "' takes the library past " +
                             std::to_string(kMaxBusMembers) + " bus members");
    }
  }
  for (const Statement& child : st.children) {
    if (!child.IsGroup()) continue;
    const Statement* bad = nullptr;
    uint8_t direction = kDirInput;
    if (child.name == "pin") {
      if (!NeedValues(child, 1)) return false;
      if (!DirectionOf(child, direction, bad)) {
        return Fail(*bad, "expected input, output, inout or internal, found '" +
                              std::string(bad->Value()) + "'");
      }
      for (const liberty::LibValue& name : child.values) {
        if (port_index_.count(name.text)) return twice(child, name.text);
        AddPort(cell, name.text, direction, true);
      }
    } else if (child.name == "bus") {
      if (!NeedValues(child, 1)) return false;
      if (!DirectionOf(child, direction, bad)) {
        return Fail(*bad, "expected input, output, inout or internal, found '" +
                              std::string(bad->Value()) + "'");
      }
      const Statement* type_attr = nullptr;
      for (const Statement& attr : child.children) {
        if (attr.name == "bus_type") type_attr = &attr;
      }
      if (!type_attr)
        return Fail(child, "expected a bus_type in bus '" + std::string(child.Value()) + "'");
      auto type = bus_types_.find(std::string(type_attr->Value()));
      if (type == bus_types_.end()) {
        return Fail(*type_attr, "unknown bus type '" + std::string(type_attr->Value()) + "'");
      }
      if (port_index_.count(child.Value())) return twice(child, child.Value());
      auto bus = std::make_unique<LibPort>(Intern(child.Value()), direction, cell);
      LibPort* bus_port = bus.get();
      cell->owned_ports_.push_back(std::move(bus));
      cell->buses_.push_back(bus_port);
      port_index_.emplace(bus_port->Name(), bus_port);
      const int step = type->second.from >= type->second.to ? -1 : 1;
      for (int bit = type->second.from;; bit += step) {
        std::string member =
            std::string(child.Value()) + lib_->bus_open_ + std::to_string(bit) + lib_->bus_close_;
        bus_port->members_.push_back(AddPort(cell, member, direction, true));
        if (bit == type->second.to) break;
      }
    }
  }
  // State ports of ff / latch groups, after the pins.
  for (const Statement& child : st.children) {
    if (!child.IsGroup()) continue;
    if (child.name == "ff" || child.name == "latch" || child.name == "ff_bank" ||
        child.name == "latch_bank") {
      if (!NeedValues(child, 2)) return false;
      const size_t at = StatePortsAt(child);
      AddPort(cell, child.values[at].text, kDirInternal, true);
      AddPort(cell, child.values[at + 1].text, kDirInternal, true);
    }
  }
  return true;
}

bool LibEditor::Function(LibCell* cell, const Statement& st, LibBoolFuncExpr& function) {
  (void)cell;
  std::string error;
  liberty::PortLookup lookup = [this](std::string_view name) -> LibPort* {
    auto found = port_index_.find(name);
    return found == port_index_.end() ? nullptr : found->second;
  };
  if (!liberty::ParseBoolFunc(st.Value(), lookup, function, error)) return Fail(st, error);
  return true;
}

bool LibEditor::RelatedPorts(LibCell* cell, const Statement& st, std::vector<LibPort*>& ports) {
  (void)cell;
  for (const liberty::LibValue& value : st.values) {
    std::string_view text = value.text;
    size_t at = 0;
    while (at < text.size()) {
      while (at < text.size() && (text[at] == ' ' || text[at] == '\t')) ++at;
      size_t end = at;
      while (end < text.size() && text[end] != ' ' && text[end] != '\t') ++end;
      if (end > at) {
        const std::string name(text.substr(at, end - at));
        auto found = port_index_.find(name);
        if (found == port_index_.end())
          return Fail(st, "unknown pin '" + name + "' in '" + std::string(st.name) + "'");
        ports.push_back(found->second);
      }
      at = end;
    }
  }
  return true;
}

bool LibEditor::PinStatement(LibCell* cell, const std::vector<LibPort*>& ports,
                             const Statement& st) {
  const std::string_view name = st.name;
  const LibUnits& units = lib_->units_;
  const double cap = units.capacitance.scale;
  auto set_number = [&](double scale, auto apply) {
    double value = 0.0;
    if (!Number(st, value)) return false;
    for (LibPort* port : ports) apply(*port, value * scale);
    return true;
  };
  if (st.IsGroup()) {
    if (name == "timing") {
      std::shared_ptr<LibTimingAttr> attr;
      if (!TimingGroup(cell, st, attr)) return false;
      for (LibPort* port : ports) port->timing_.push_back(attr);
    } else if (name == "internal_power") {
      std::shared_ptr<LibPowerAttr> attr;
      if (!InternalPowerGroup(cell, st, attr)) return false;
      for (LibPort* port : ports) port->power_.push_back(attr);
    }
    return true;
  }
  if (name == "capacitance")
    return set_number(cap, [](LibPort& p, double v) { p.capacitance_ = v; });
  if (name == "rise_capacitance")
    return set_number(cap, [](LibPort& p, double v) { p.edge_cap_[0] = v; });
  if (name == "fall_capacitance")
    return set_number(cap, [](LibPort& p, double v) { p.edge_cap_[1] = v; });
  if (name == "max_capacitance")
    return set_number(cap, [](LibPort& p, double v) { p.cap_limit_[1] = v; });
  if (name == "min_capacitance")
    return set_number(cap, [](LibPort& p, double v) { p.cap_limit_[0] = v; });
  if (name == "max_transition") {
    return set_number(units.time.scale, [](LibPort& p, double v) { p.max_transition_ = v; });
  }
  if (name == "max_fanout") return set_number(1.0, [](LibPort& p, double v) { p.max_fanout_ = v; });
  if (name == "fanout_load")
    return set_number(1.0, [](LibPort& p, double v) { p.fanout_load_ = v; });
  if (name == "rise_capacitance_range" || name == "fall_capacitance_range") {
    double low = 0.0;
    double high = 0.0;
    if (!NeedValues(st, 2) || !Number(st, low, 0) || !Number(st, high, 1)) return false;
    const int edge = name[0] == 'r' ? 0 : 1;
    for (LibPort* port : ports) {
      port->edge_cap_range_[edge][0] = low * cap;
      port->edge_cap_range_[edge][1] = high * cap;
    }
    return true;
  }
  if (name == "function" || name == "state_function" || name == "three_state") {
    LibBoolFuncExpr function;
    if (!Function(cell, st, function)) return false;
    for (LibPort* port : ports) {
      auto copy = std::make_unique<LibBoolFuncExpr>(function);
      if (name == "function") port->function_ = std::move(copy);
      if (name == "state_function") port->state_function_ = std::move(copy);
      if (name == "three_state") port->three_state_ = std::move(copy);
    }
    return true;
  }
  if (name == "clock") {
    bool value = false;
    if (!Bool(st, value)) return false;
    for (LibPort* port : ports) port->is_clock_ = value;
    return true;
  }
  if (name == "related_power_pin" || name == "related_ground_pin") {
    for (LibPort* port : ports) {
      (name == "related_power_pin" ? port->related_power_pin_ : port->related_ground_pin_) =
          std::string(st.Value());
    }
  }
  return true;
}

bool LibEditor::BusGroup(LibCell* cell, const Statement& st) {
  LibPort* bus = port_index_.at(st.Value());
  std::vector<LibPort*> all{bus};
  all.insert(all.end(), bus->members_.begin(), bus->members_.end());
  for (const Statement& child : st.children) {
    if (child.IsGroup() && child.name == "pin") {
      for (const liberty::LibValue& value : child.values) {
        auto found = port_index_.find(value.text);
        if (found == port_index_.end()) {
          return Fail(child, "unknown pin '" + std::string(value.text) + "' in bus '" +
                                 std::string(st.Value()) + "'");
        }
        for (const Statement& attr : child.children) {
          if (!PinStatement(cell, {found->second}, attr)) return false;
        }
      }
      continue;
    }
    if (!PinStatement(cell, all, child)) return false;
  }
  return true;
}

bool LibEditor::CellStatement(LibCell* cell, const Statement& st) {
  const std::string_view name = st.name;
  if (st.IsGroup()) {
    if (name == "pin") {
      std::vector<LibPort*> ports;
      for (const liberty::LibValue& value : st.values) ports.push_back(port_index_.at(value.text));
      for (const Statement& child : st.children) {
        if (!PinStatement(cell, ports, child)) return false;
      }
    } else if (name == "bus") {
      return BusGroup(cell, st);
    } else if (name == "leakage_power") {
      return LeakageGroup(cell, st);
    } else if (name == "pg_pin") {
      if (!NeedValues(st, 1)) return false;
      std::string voltage;
      PgType type = PgType::kUnknown;
      for (const Statement& child : st.children) {
        if (child.name == "voltage_name") voltage = std::string(child.Value());
        if (child.name == "pg_type" && !ParsePgType(std::string(child.Value()), type))
          type = PgType::kUnknown;
      }
      cell->pg_ports_.push_back(std::make_unique<LibPgPort>(Intern(st.Value()), voltage, type));
    } else if (name == "ff" || name == "latch" || name == "ff_bank" || name == "latch_bank") {
      return SequentialGroup(cell, st);
    } else if (name == "statetable") {
      return StateTableGroup(cell, st);
    } else if (name == "memory") {
      cell->is_memory_ = true;
    }
    return true;
  }
  if (name == "area") return Number(st, cell->area_);
  if (name == "dont_touch") return Bool(st, cell->dont_touch_);
  if (name == "dont_use") return Bool(st, cell->dont_use_);
  if (name == "is_macro_cell") return Bool(st, cell->is_macro_);
  if (name == "pad_cell") return Bool(st, cell->is_pad_);
  if (name == "is_memory_cell") return Bool(st, cell->is_memory_);
  if (name == "is_clock_gating_cell") return Bool(st, cell->is_clock_gating_cell_);
  if (name == "cell_footprint") {
    cell->footprint_ = std::string(st.Value());
  } else if (name == "clock_gating_integrated_cell") {
    cell->clock_gating_ = std::string(st.Value());
  } else if (name == "cell_leakage_power") {
    if (!Number(st, cell->cell_leakage_power_)) return false;
    cell->cell_leakage_power_ *= double{lib_->units_.power.scale};
  } else if (name == "drive_strength") {
    if (!Number(st, cell->drive_strength_)) return false;
  } else if (name == "scaling_factors") {
    auto found = lib_->scale_factor_map_.find(std::string(st.Value()));
    if (found == lib_->scale_factor_map_.end()) {
      return Fail(st, "unknown scaling_factors group '" + std::string(st.Value()) + "'");
    }
    cell->scaling_factor_ = found->second;
  }
  if (!st.IsGroup() && lib_->user_attr_map_.count(std::string(name))) {
    cell->user_attrs_.emplace_back(std::string(name), std::string(st.Value()));
  }
  return true;
}

bool LibEditor::CellGroup(const Statement& st) {
  if (!NeedValues(st, 1)) return false;
  const std::string name(st.Value());
  if (lib_->cell_index_.count(name)) return Fail(st, "cell '" + name + "' is defined twice");
  auto cell = std::make_unique<LibCell>(Intern(name), lib_);
  port_index_.clear();
  if (!DeclarePorts(cell.get(), st)) return false;
  for (const Statement& child : st.children) {
    if (!CellStatement(cell.get(), child)) return false;
  }
  FinishCell(cell.get());
  lib_->cell_index_.emplace(name, cell.get());
  lib_->cells_.push_back(cell.get());
  lib_->owned_cells_.push_back(std::move(cell));
  return true;
}

void LibEditor::FinishCell(LibCell* cell) {
  for (LibPort* port : cell->ports_) {
    for (const auto& attr : port->timing_) {
      if (attr->GetRelatedPorts().empty()) {
        cell->arc_sets_.push_back(std::make_unique<LibTimingArcSet>(port, port, attr.get()));
      }
      for (LibPort* from : attr->GetRelatedPorts()) {
        cell->arc_sets_.push_back(std::make_unique<LibTimingArcSet>(from, port, attr.get()));
      }
    }
  }
  for (const auto& arc : cell->arc_sets_) cell->arc_set_ptrs_.push_back(arc.get());
  std::vector<LibPort*> with_power(cell->buses_);
  with_power.insert(with_power.end(), cell->ports_.begin(), cell->ports_.end());
  for (LibPort* port : with_power) {
    for (const auto& attr : port->power_) {
      if (std::find(cell->internal_powers_.begin(), cell->internal_powers_.end(), attr) ==
          cell->internal_powers_.end()) {
        cell->internal_powers_.push_back(attr);
      }
    }
  }
  // Buffer / inverter: one input, and outputs whose functions are all that
  // input (a buffer, also one with several outputs) or all its inverse.
  LibPort* input = nullptr;
  std::vector<LibPort*> output_ports;
  int inputs = 0;
  int outputs = 0;
  int const0 = 0;
  int const1 = 0;
  for (LibPort* port : cell->ports_) {
    if (port->direction == kDirInput) {
      ++inputs;
      input = port;
    } else if (port->direction == kDirOutput || port->direction == kDirInout) {
      ++outputs;
      output_ports.push_back(port);
      const LibBoolFuncExpr* function = port->GetFunction();
      if (function && function->GetFuncPorts().empty() && !function->IsEmpty()) {
        (function->Evaluate([](const LibPort*) { return 0; }) ? const1 : const0)++;
      }
    }
  }
  int kind = inputs == 1 && outputs >= 1 && !cell->IsSequentialCell() ? -1 : 0;
  for (size_t i = 0; kind != 0 && i < output_ports.size(); ++i) {
    const LibBoolFuncExpr* function = output_ports[i]->GetFunction();
    int this_kind = 0;
    if (function && function->GetFuncPorts().size() == 1 && function->GetFuncPorts()[0] == input) {
      const std::vector<bool> table = function->TruthTable();
      if (table.size() == 2 && !table[0] && table[1]) this_kind = 1;
      if (table.size() == 2 && table[0] && !table[1]) this_kind = 2;
    }
    kind = kind == -1 || kind == this_kind ? this_kind : 0;
  }
  if (kind > 0) cell->one_input_kind_ = kind;
  if (outputs > 0 && const0 == outputs) cell->const_value_ = 0;
  if (outputs > 0 && const1 == outputs) cell->const_value_ = 1;
}

}  // namespace cdm
