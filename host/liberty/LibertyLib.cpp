#include "hostapi/cdm/LibertyLib.h"

namespace cdm {

LibertyLib::LibertyLib(const std::string* name) : Lib(name) {
  // Units a library leaves out: 1ns, 1pf, 1V, 1kohm, 1mA, 1nW.
  units_.time = Unit(1e-9f, "1ns", "(ns)");
  units_.capacitance = Unit(1e-12f, "1pf", "(pF)");
  units_.voltage = Unit(1.0f, "1V", "(V)");
  units_.pulling_resistance = Unit(1e3f, "1kohm", "(kohm)");
  units_.resistance = Unit(1e3f, "1kohm", "(kohm)");
  units_.current = Unit(1e-3f, "1mA", "(mA)");
  units_.power = Unit(1e-9f, "1nW", "(nW)");
  units_.distance = Unit(1.0f, "1", "");
  units_.scalar = Unit(1.0f, "1", "");
}

LibertyLib::~LibertyLib() = default;

std::vector<const OperatingConditions*> LibertyLib::GetAllOperatingConditions() const {
  std::vector<const OperatingConditions*> all;
  for (const auto& cond : op_conds_) all.push_back(cond.get());
  return all;
}

const OperatingConditions* LibertyLib::GetOperatingConditions(const std::string& name) const {
  for (const auto& cond : op_conds_) {
    if (cond->name == name) return cond.get();
  }
  return nullptr;
}

const OperatingConditions* LibertyLib::GetDefaultOperatingConditions() const {
  return default_op_cond_.empty() ? nullptr : GetOperatingConditions(default_op_cond_);
}

std::vector<const WireLoad*> LibertyLib::GetAllWireLoads() const {
  std::vector<const WireLoad*> all;
  for (const auto& wire_load : wire_loads_) all.push_back(wire_load.get());
  return all;
}

const WireLoad* LibertyLib::GetWireLoad(const std::string& name) const {
  for (const auto& wire_load : wire_loads_) {
    if (wire_load->name == name) return wire_load.get();
  }
  return nullptr;
}

const WireLoad* LibertyLib::GetDefaultWireLoad() const {
  return default_wire_load_.empty() ? nullptr : GetWireLoad(default_wire_load_);
}

const WireLoadSelection* LibertyLib::GetWireLoadSelection(const std::string& name) const {
  for (const auto& selection : wire_load_selections_)
    if (selection->name == name) return selection.get();
  return nullptr;
}

const WireLoadSelection* LibertyLib::GetDefaultWireLoadSelection() const {
  return default_wire_load_selection_.empty() ? nullptr
                                              : GetWireLoadSelection(default_wire_load_selection_);
}

std::vector<const LibTableTemplate*> LibertyLib::GetAllTableTemplates(TemplateClass kind) const {
  std::vector<const LibTableTemplate*> all;
  for (const auto& table : templates_) {
    if (table->kind == kind) all.push_back(table.get());
  }
  return all;
}

const LibTableTemplate* LibertyLib::GetTableTemplate(TemplateClass kind,
                                                     const std::string& name) const {
  for (const auto& table : templates_) {
    if (table->kind == kind && table->name == name) return table.get();
  }
  return nullptr;
}

LibCell* LibertyLib::GetLibCell(const std::string& name) const {
  auto found = cell_index_.find(name);
  return found == cell_index_.end() ? nullptr : found->second;
}

}  // namespace cdm
