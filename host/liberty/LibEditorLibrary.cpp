// Library-level groups and attributes.
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "hostapi/cdm/Root.h"
#include "liberty/LibEditor.h"
#include "liberty/LibParseEnums.h"

namespace cdm {

namespace {

// Bounds no real library comes near; beyond them a number is an error
// rather than a bus of millions of bits.
constexpr int kMaxBusBitIndex = 1000000;  // bit_from, bit_to
constexpr int kMaxFanout = 1000000;       // fanout_length

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower;
}

// SI factor of a metric prefix, 0 for an unknown one.
double PrefixFactor(std::string_view prefix) {
  if (prefix.empty()) return 1.0;
  if (prefix.size() != 1) return 0.0;
  switch (prefix[0]) {
    case 'f':
      return 1e-15;
    case 'p':
      return 1e-12;
    case 'n':
      return 1e-9;
    case 'u':
      return 1e-6;
    case 'm':
      return 1e-3;
    case 'k':
      return 1e3;
    case 'M':
      return 1e6;
    default:
      return 0.0;
  }
}

// Reads "<multiplier><prefix><symbol>" ("10ps", "1kohm", "1mV") with the
// symbol `symbol` (lower case); false when it is not such a text.
bool ParseUnitText(std::string_view text, const char* symbol, const char* print_symbol,
                   Unit& unit) {
  const std::string original(text);
  char* end = nullptr;
  double multiplier = std::strtod(original.c_str(), &end);
  size_t at = static_cast<size_t>(end - original.c_str());
  if (at == 0) multiplier = 1.0;
  if (multiplier <= 0.0) return false;
  std::string rest = original.substr(at);
  while (!rest.empty() && rest.front() == ' ') rest.erase(0, 1);
  const std::string lower = Lower(rest);
  const size_t symbol_len = std::strlen(symbol);
  if (lower.size() < symbol_len ||
      lower.compare(lower.size() - symbol_len, symbol_len, symbol) != 0)
    return false;
  std::string prefix = rest.substr(0, rest.size() - symbol_len);
  // Capacitance is often written in lower case ("ff", "pf"): prefixes are
  // case-sensitive only for mega.
  if (prefix != "M") prefix = Lower(prefix);
  const double factor = PrefixFactor(prefix);
  if (factor == 0.0) return false;
  std::string mult_text;
  if (multiplier != 1.0) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%g", multiplier);
    mult_text = buffer;
  }
  unit = Unit(static_cast<float>(multiplier * factor), original,
              "(" + mult_text + prefix + print_symbol + ")");
  return true;
}

}  // namespace

bool LibEditor::UnitAttribute(const Statement& st, bool& handled) {
  struct UnitKind {
    const char* attribute;
    const char* symbol;
    const char* print_symbol;
  };
  static const UnitKind kUnitKinds[] = {
      {"time_unit", "s", "s"},          {"voltage_unit", "v", "V"},
      {"current_unit", "a", "A"},       {"pulling_resistance_unit", "ohm", "ohm"},
      {"leakage_power_unit", "w", "W"},
  };
  handled = true;
  LibUnits& units = lib_->units_;
  if (st.name == "capacitive_load_unit") {
    if (!NeedValues(st, 2)) return false;
    float multiplier = 0.0f;
    if (!Number(st, multiplier)) return false;
    const std::string prefix_unit = Lower(st.values[1].text);
    Unit unit;
    char text[64];
    std::snprintf(text, sizeof text, "%g%s", multiplier, std::string(st.values[1].text).c_str());
    if (multiplier <= 0.0f || !ParseUnitText(text, "f", "F", unit)) {
      return Fail(st, "expected a capacitance unit such as (1,pf) or (1,ff), found (" +
                          std::string(st.values[0].text) + "," + std::string(st.values[1].text) +
                          ")");
    }
    units.capacitance = unit;
    return true;
  }
  for (const UnitKind& kind : kUnitKinds) {
    if (st.name != kind.attribute) continue;
    Unit unit;
    if (!ParseUnitText(st.Value(), kind.symbol, kind.print_symbol, unit)) {
      return Fail(st, "expected a unit for '" + std::string(st.name) + "' such as \"1" +
                          (kind.symbol[0] == 's' ? "ns" : std::string("m") + kind.print_symbol) +
                          "\", found \"" + std::string(st.Value()) + "\"");
    }
    if (st.name == "time_unit") units.time = unit;
    if (st.name == "voltage_unit") units.voltage = unit;
    if (st.name == "current_unit") units.current = unit;
    if (st.name == "leakage_power_unit") units.power = unit;
    if (st.name == "pulling_resistance_unit") {
      units.pulling_resistance = unit;
      units.resistance = unit;  // Liberty has no other resistance unit
    }
    return true;
  }
  handled = false;
  return true;
}

// Thresholds, nominal values and defaults are kept as the library writes
// them, in its own units: report_lib prints the defaults as they stand, and
// tells an unset one by its -1.
bool LibEditor::ThresholdOrDefault(const Statement& st, bool& handled) {
  struct Slot {
    const char* attribute;
    double* target;
  };
  LibertyLib& lib = *lib_;
  const Slot slots[] = {
      {"input_threshold_pct_rise", &lib.input_threshold_[0]},
      {"input_threshold_pct_fall", &lib.input_threshold_[1]},
      {"output_threshold_pct_rise", &lib.output_threshold_[0]},
      {"output_threshold_pct_fall", &lib.output_threshold_[1]},
      {"slew_lower_threshold_pct_rise", &lib.slew_lower_[0]},
      {"slew_lower_threshold_pct_fall", &lib.slew_lower_[1]},
      {"slew_upper_threshold_pct_rise", &lib.slew_upper_[0]},
      {"slew_upper_threshold_pct_fall", &lib.slew_upper_[1]},
      {"slew_derate_from_library", &lib.slew_derate_},
      {"nom_voltage", &lib.nom_voltage_},
      {"nom_temperature", &lib.nom_temperature_},
      {"nom_process", &lib.nom_process_},
      {"default_max_transition", &lib.default_max_slew_},
      {"default_max_fanout", &lib.default_max_fanout_},
      {"default_fanout_load", &lib.default_fanout_load_},
      {"default_max_capacitance", &lib.default_max_capacitance_},
      {"default_input_pin_cap", &lib.default_input_pin_cap_},
      {"default_cell_leakage_power", &lib.default_cell_leakage_power_},
      {"default_leakage_power_density", &lib.default_leakage_power_density_},
  };
  handled = false;
  for (const Slot& slot : slots) {
    if (st.name != slot.attribute) continue;
    handled = true;
    return Number(st, *slot.target);
  }
  return true;
}

// The voltage of a condition is kept in volts: the library writes it in its
// voltage unit (1200 in a library of "1mV" is 1.2 V).
bool LibEditor::OperatingConditionsGroup(const Statement& st) {
  if (!NeedValues(st, 1)) return false;
  auto cond = std::make_unique<OperatingConditions>();
  cond->name = std::string(st.Value());
  for (const Statement& child : st.children) {
    if (child.name == "process") {
      if (!Number(child, cond->process)) return false;
    } else if (child.name == "voltage") {
      if (!Number(child, cond->voltage)) return false;
      cond->voltage *= double{lib_->units_.voltage.scale};
    } else if (child.name == "temperature") {
      if (!Number(child, cond->temperature)) return false;
    } else if (child.name == "tree_type") {
      if (!ParseWireLoadTree(std::string(child.Value()), cond->tree)) {
        return Fail(child, "expected worst_case_tree, best_case_tree or balanced_tree, found '" +
                               std::string(child.Value()) + "'");
      }
    }
  }
  lib_->op_conds_.push_back(std::move(cond));
  return true;
}

bool LibEditor::WireLoadSelectionGroup(const Statement& st) {
  if (!NeedValues(st, 1)) return false;
  auto selection = std::make_unique<WireLoadSelection>();
  selection->name = std::string(st.Value());
  selection->library = lib_;
  for (const Statement& child : st.children) {
    if (child.name != "wire_load_from_area") continue;
    WireLoadSelection::Range range{0.0, 0.0, std::string()};
    if (!NeedValues(child, 3) || !Number(child, range.min_area, 0) ||
        !Number(child, range.max_area, 1))
      return false;
    range.wire_load = std::string(child.values[2].text);
    selection->ranges.push_back(std::move(range));
  }
  lib_->wire_load_selections_.push_back(std::move(selection));
  return true;
}

bool LibEditor::WireLoadGroup(const Statement& st) {
  if (!NeedValues(st, 1)) return false;
  auto wire_load = std::make_unique<WireLoad>();
  wire_load->name = std::string(st.Value());
  wire_load->library = lib_;
  for (const Statement& child : st.children) {
    if (child.name == "resistance") {
      if (!Number(child, wire_load->resistance)) return false;
    } else if (child.name == "capacitance") {
      if (!Number(child, wire_load->capacitance)) return false;
    } else if (child.name == "area") {
      if (!Number(child, wire_load->area)) return false;
    } else if (child.name == "slope") {
      if (!Number(child, wire_load->slope)) return false;
    } else if (child.name == "fanout_length") {
      int fanout = 0;
      double length = 0.0;
      if (!NeedValues(child, 2) || !Integer(child, fanout, 0, kMaxFanout, 0) ||
          !Number(child, length, 1))
        return false;
      wire_load->points.emplace_back(fanout, length);
    }
  }
  lib_->wire_loads_.push_back(std::move(wire_load));
  return true;
}

bool LibEditor::TemplateGroup(const Statement& st, TemplateClass kind) {
  if (!NeedValues(st, 1)) return false;
  auto table = std::make_unique<LibTableTemplate>(std::string(st.Value()), kind);
  std::vector<float> indices[3];
  for (const Statement& child : st.children) {
    const std::string_view name = child.name;
    if (name.size() == 10 && name.compare(0, 9, "variable_") == 0 && name[9] >= '1' &&
        name[9] <= '3') {
      const size_t axis = static_cast<size_t>(name[9] - '1');
      TableAxisVariable variable = TableAxisVariable::kUnknown;
      table_axis_variable_map.find(std::string(child.Value()), variable);
      if (table->variables.size() <= axis)
        table->variables.resize(axis + 1, TableAxisVariable::kUnknown);
      table->variables[axis] = variable;
    } else if (name.size() == 7 && name.compare(0, 6, "index_") == 0 && name[6] >= '1' &&
               name[6] <= '3') {
      if (!NeedValues(child, 1) || !Numbers(child, child.Value(), indices[name[6] - '1']))
        return false;
    }
  }
  for (size_t axis = 0; axis < table->variables.size(); ++axis)
    table->indices.push_back(indices[axis]);
  // The first of a name wins, as GetTableTemplate would find it.
  templates_[static_cast<int>(kind)].emplace(table->name, table.get());
  lib_->templates_.push_back(std::move(table));
  return true;
}

bool LibEditor::ScalingFactorsGroup(const Statement& st, LibScaleFactor& factors) {
  for (const Statement& child : st.children) {
    LibScaleFactor::Factor factor{};
    if (!ParseScaleFactorName(std::string(child.name), factor)) continue;
    if (!Number(child, factor.value)) return false;
    factors.factors.push_back(factor);
  }
  return true;
}

bool LibEditor::TypeGroup(const Statement& st) {
  if (!NeedValues(st, 1)) return false;
  BusType type;
  int width = 0;
  bool has_from = false;
  bool has_to = false;
  for (const Statement& child : st.children) {
    if (child.name == "bit_from") {
      if (!Integer(child, type.from, -kMaxBusBitIndex, kMaxBusBitIndex)) return false;
      has_from = true;
    } else if (child.name == "bit_to") {
      if (!Integer(child, type.to, -kMaxBusBitIndex, kMaxBusBitIndex)) return false;
      has_to = true;
    } else if (child.name == "bit_width") {
      if (!Integer(child, width, 0, kMaxBusWidth)) return false;
    }
  }
  if (!has_from && !has_to && width > 0) {
    type.from = width - 1;
    type.to = 0;
  } else if (!has_from || !has_to) {
    return Fail(st, "expected bit_from and bit_to in type group '" + std::string(st.Value()) + "'");
  }
  // Both within the index bounds: the difference cannot overflow.
  if (std::abs(type.from - type.to) >= kMaxBusWidth) {
    return Fail(st, "bus type '" + std::string(st.Value()) +
                        "' is too wide: " + std::to_string(std::abs(type.from - type.to) + 1) +
                        " bits, more than " + std::to_string(kMaxBusWidth));
  }
  bus_types_[std::string(st.Value())] = type;
  return true;
}

bool LibEditor::LibraryStatement(const Statement& st) {
  LibertyLib& lib = *lib_;
  const std::string_view name = st.name;
  bool handled = false;
  if (!UnitAttribute(st, handled)) return false;
  if (handled) return true;  // read in the first pass
  if (!ThresholdOrDefault(st, handled)) return false;
  if (handled) return true;
  if (st.IsGroup()) {
    if (name == "cell") return CellGroup(st);
    if (name == "operating_conditions") return OperatingConditionsGroup(st);
    if (name == "wire_load") return WireLoadGroup(st);
    if (name == "wire_load_selection") return WireLoadSelectionGroup(st);
    if (name == "lu_table_template") return TemplateGroup(st, TemplateClass::kDelay);
    if (name == "power_lut_template") return TemplateGroup(st, TemplateClass::kPower);
    if (name == "type") return TypeGroup(st);
    if (name == "scaling_factors") {
      if (!NeedValues(st, 1)) return false;
      auto factors = std::make_unique<LibScaleFactor>(std::string(st.Value()));
      if (!ScalingFactorsGroup(st, *factors)) return false;
      lib.scale_factor_map_[factors->name] = factors.get();
      lib.scale_factors_.push_back(std::move(factors));
    }
    return true;  // other groups are vendor extensions
  }
  const std::string value(st.Value());
  if (name == "date") {
    lib.date_ = value;
  } else if (name == "revision") {
    lib.revision_ = value;
  } else if (name == "comment") {
    lib.comment_ = value;
  } else if (name == "in_place_swap_mode") {
    lib.in_place_swap_mode_ = value;
  } else if (name == "bus_naming_style") {
    lib.bus_naming_style_ = value;
    const size_t at = value.find("%d");
    if (at == std::string::npos || at == 0 || at + 2 >= value.size()) {
      return Fail(st, "expected a bus naming style such as \"%s[%d]\", found \"" + value + "\"");
    }
    lib.bus_open_ = value[at - 1];
    lib.bus_close_ = value[at + 2];
  } else if (name == "delay_model") {
    if (!ParseDelayModel(value, lib.delay_model_)) {
      return Fail(st, "expected a delay model such as table_lookup, found '" + value + "'");
    }
  } else if (name == "power_model") {
    if (!ParsePowerModel(value, lib.power_model_)) {
      return Fail(st, "expected a power model such as table_lookup, found '" + value + "'");
    }
  } else if (name == "default_operating_conditions") {
    lib.default_op_cond_ = value;
  } else if (name == "default_wire_load") {
    lib.default_wire_load_ = value;
  } else if (name == "default_wire_load_selection") {
    lib.default_wire_load_selection_ = value;
  } else if (name == "default_wire_load_mode") {
    if (!ParseWireLoadMode(value, lib.wire_load_mode_)) {
      return Fail(st, "expected top, enclosed or segmented, found '" + value + "'");
    }
  } else if (name == "voltage_map") {
    double volts = 0.0;
    if (!NeedValues(st, 2) || !Number(st, volts, 1)) return false;
    lib.voltage_map_[value] = volts;
  } else if (name == "define") {
    if (!NeedValues(st, 3)) return false;
    auto attr = std::make_unique<LibUserDefinedAttr>(value, std::string(st.values[1].text),
                                                     std::string(st.values[2].text));
    lib.user_attr_map_.emplace(value, attr.get());
    lib.user_attrs_.push_back(std::move(attr));
  } else if (name.compare(0, 2, "k_") == 0) {
    LibScaleFactor::Factor factor{};
    if (ParseScaleFactorName(std::string(name), factor)) {
      if (!Number(st, factor.value)) return false;
      lib.default_scale_factors_.factors.push_back(factor);
    }
  }
  return true;
}

}  // namespace cdm
