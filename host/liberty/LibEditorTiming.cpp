// Timing, internal power and leakage groups, and their lookup tables.
#include "hostapi/cdm/Units.h"
#include "liberty/LibEditor.h"

namespace cdm {

double LibPort::GetCapacitance(const RiseFall* edge, const MinMax* minmax) const {
  const int e = edge->index();
  const double range = edge_cap_range_[e][minmax->index()];
  if (range >= 0.0) return range;
  if (edge_cap_[e] >= 0.0) return edge_cap_[e];
  return capacitance_;
}

bool LibEditor::TableGroup(const Statement& st, TemplateClass kind, float value_scale,
                           std::unique_ptr<LibTable>& table) {
  const LibUnits& units = lib_->units_;
  const std::string_view template_name = st.Value();
  const LibTableTemplate* table_template = nullptr;
  if (!template_name.empty() && template_name != "scalar") {
    // Some libraries name a delay template in a power table and back.
    const int own = static_cast<int>(kind);
    for (int k : {own, 1 - own}) {
      auto found = templates_[k].find(template_name);
      if (found != templates_[k].end()) {
        table_template = found->second;
        break;
      }
    }
    if (!table_template) {
      return Fail(st,
                  std::string("unknown ") +
                      (kind == TemplateClass::kDelay ? "lu_table_template" : "power_lut_template") +
                      " '" + std::string(template_name) + "'");
    }
  }
  std::vector<TableAxisVariable> variables;
  std::vector<std::vector<float>> axes;
  if (table_template) {
    variables = table_template->variables;
    axes = table_template->indices;
  }
  std::vector<float> values;
  bool has_values = false;
  for (const Statement& child : st.children) {
    const std::string_view name = child.name;
    if (name.size() == 7 && name.compare(0, 6, "index_") == 0 && name[6] >= '1' && name[6] <= '3') {
      const size_t axis = static_cast<size_t>(name[6] - '1');
      if (axis >= variables.size())
        return Fail(child, "'" + std::string(name) + "' has no variable in its template");
      std::vector<float> index;
      if (!NeedValues(child, 1) || !Numbers(child, child.Value(), index)) return false;
      axes[axis] = std::move(index);
    } else if (name == "values") {
      if (!NeedValues(child, 1)) return false;
      for (const liberty::LibValue& row : child.values) {
        if (!Numbers(child, row.text, values)) return false;
      }
      has_values = true;
    }
  }
  if (!has_values) return Fail(st, "expected 'values' in table '" + std::string(st.name) + "'");
  size_t expected = 1;
  for (const auto& axis : axes) expected *= axis.size();
  if (values.size() != expected) {
    return Fail(st, "expected " + std::to_string(expected) + " values in table '" +
                        std::string(st.name) + "', found " + std::to_string(values.size()));
  }
  for (size_t axis = 0; axis < axes.size(); ++axis) {
    const float scale = AxisUnit(variables[axis], units).scale;
    for (float& value : axes[axis]) value *= scale;
  }
  for (float& value : values) value *= value_scale;
  table = std::make_unique<LibTable>(table_template, std::move(variables), std::move(axes),
                                     std::move(values));
  return true;
}

bool LibEditor::TimingGroup(LibCell* cell, const Statement& st,
                            std::shared_ptr<LibTimingAttr>& attr) {
  attr = std::make_shared<LibTimingAttr>();
  const float time = lib_->units_.time.scale;
  for (const Statement& child : st.children) {
    const std::string_view name = child.name;
    if (name == "related_pin") {
      std::vector<LibPort*> ports;
      if (!RelatedPorts(cell, child, ports)) return false;
      std::string text;
      for (const liberty::LibValue& value : child.values)
        text += (text.empty() ? "" : " ") + std::string(value.text);
      attr->SetRelatedPins(text, std::move(ports));
    } else if (name == "timing_type") {
      TimingType type = TimingType::kUnknown;
      timing_type_map.find(std::string(child.Value()), type);
      attr->SetTimingType(type);
    } else if (name == "timing_sense") {
      TimingSense sense = TimingSense::kUnknown;
      if (!timing_sense_map.find(std::string(child.Value()), sense)) {
        return Fail(child, "expected positive_unate, negative_unate or non_unate, found '" +
                               std::string(child.Value()) + "'");
      }
      attr->SetTimingSense(sense);
    } else if (name == "when") {
      LibBoolFuncExpr when;
      if (!Function(cell, child, when)) return false;
      attr->SetWhen(std::move(when));
    } else if (child.IsGroup()) {
      const bool rise =
          name == "cell_rise" || name == "rise_transition" || name == "rise_constraint";
      const bool fall =
          name == "cell_fall" || name == "fall_transition" || name == "fall_constraint";
      if (!rise && !fall) continue;  // ocv, ccs and other models are not kept
      std::unique_ptr<LibTable> table;
      if (!TableGroup(child, TemplateClass::kDelay, time, table)) return false;
      LibTimingModel* model = attr->MutableModel(rise ? RiseFall::rise_ : RiseFall::fall_);
      if (name.find("transition") != std::string_view::npos) {
        model->SetTransitionTable(std::move(table));
      } else {
        model->SetDelayTable(std::move(table), name.find("constraint") != std::string_view::npos);
      }
    }
  }
  return true;
}

bool LibEditor::InternalPowerGroup(LibCell* cell, const Statement& st,
                                   std::shared_ptr<LibPowerAttr>& attr) {
  attr = std::make_shared<LibPowerAttr>();
  const float energy = lib_->units_.voltage.scale * lib_->units_.capacitance.scale;
  for (const Statement& child : st.children) {
    const std::string_view name = child.name;
    if (name == "related_pin") {
      std::vector<LibPort*> ports;
      if (!RelatedPorts(cell, child, ports)) return false;
      std::string text;
      for (const liberty::LibValue& value : child.values)
        text += (text.empty() ? "" : " ") + std::string(value.text);
      attr->SetRelatedPins(text.empty() ? "undefined" : text, std::move(ports));
    } else if (name == "when") {
      LibBoolFuncExpr when;
      if (!Function(cell, child, when)) return false;
      attr->SetWhen(std::move(when));
    } else if (child.IsGroup() &&
               (name == "rise_power" || name == "fall_power" || name == "power")) {
      std::unique_ptr<LibTable> table;
      if (!TableGroup(child, TemplateClass::kPower, energy, table)) return false;
      auto model = std::make_shared<LibPowerModel>(std::move(table));
      if (name != "fall_power") attr->SetModel(RiseFall::rise_, model);
      if (name != "rise_power") attr->SetModel(RiseFall::fall_, model);
    }
  }
  return true;
}

bool LibEditor::LeakageGroup(LibCell* cell, const Statement& st) {
  double value = 0.0;
  bool has_value = false;
  LibBoolFuncExpr when;
  for (const Statement& child : st.children) {
    if (child.name == "value") {
      if (!Number(child, value)) return false;
      has_value = true;
    } else if (child.name == "when") {
      if (!Function(cell, child, when)) return false;
    }
  }
  if (!has_value) return Fail(st, "expected a 'value' in leakage_power");
  cell->leakage_.push_back(
      std::make_unique<LibLeakagePower>(value * double{lib_->units_.power.scale}, std::move(when)));
  return true;
}

}  // namespace cdm
