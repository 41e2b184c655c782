#include "sdc/WireLoadChoice.h"

#include <memory>
#include <unordered_map>

#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"
#include "sdc/SdcStore.h"

namespace sta::sdc {
namespace {

// Areas of the design and of every hierarchical instance, made in one walk
// and kept until the database changes.
struct AreaCache {
  uint64_t generation = 0;
  std::unordered_map<std::string, double> by_path;
};

const AreaCache& Areas() {
  static AreaCache cache;
  const uint64_t generation = cdm::DbManager::GetRoot()->ChangeGeneration();
  if (cache.generation == generation) return cache;
  cache.by_path.clear();
  cache.generation = generation;
  const cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  if (!design) return cache;
  cdm::DesignCellIterator cells(
      design, true, [](const cdm::Cell* cell) { return cell->GetRefLibCell() != nullptr; });
  while (cells.HasNext()) {
    const cdm::Cell* cell = cells.Next();
    const double area = cell->GetRefLibCell()->GetArea();
    // The cell's area counts for the design and for every instance above it.
    const std::string name = cell->GetFullName();
    cache.by_path[""] += area;
    for (size_t slash = name.find('/'); slash != std::string::npos;
         slash = name.find('/', slash + 1))
      cache.by_path[name.substr(0, slash)] += area;
  }
  return cache;
}

WireLoadChoice ByArea(SdcStore& store, const std::string& path, const cdm::MinMax* minmax) {
  WireLoadChoice choice;
  const cdm::WireLoadSelection* selection = SelectionInForce(store, minmax);
  if (!selection || !selection->library) return choice;
  const double area = InstanceArea(path);
  const std::string* name = selection->WireLoadFor(area);
  const cdm::WireLoad* model = name ? selection->library->GetWireLoad(*name) : nullptr;
  if (!model) return choice;
  choice.model = model;
  choice.source = WireLoadChoice::Source::kArea;
  choice.selection = selection;
  choice.area = area;
  return choice;
}

}  // namespace

double InstanceArea(const std::string& path) {
  const AreaCache& areas = Areas();
  auto found = areas.by_path.find(path);
  return found == areas.by_path.end() ? 0.0 : found->second;
}

const cdm::WireLoadSelection* SelectionInForce(SdcStore& store, const cdm::MinMax* minmax) {
  const DesignConstraints& design = store.DesignRef();
  const int index = minmax->index();
  if (!design.selection_group[index].empty() && design.selection_library[index])
    return design.selection_library[index]->GetWireLoadSelection(design.selection_group[index]);
  const cdm::LibertyLib* lib = cdm::DbManager::GetDefaultLiberty();
  return lib ? lib->GetDefaultWireLoadSelection() : nullptr;
}

WireLoadChoice ChooseDesignWireLoad(SdcStore& store, const cdm::MinMax* minmax) {
  WireLoadChoice choice;
  if (const cdm::WireLoad* model = store.DesignRef().wire_load[minmax->index()]) {
    choice.model = model;
    choice.source = WireLoadChoice::Source::kUser;
    return choice;
  }
  choice = ByArea(store, "", minmax);
  if (choice.model) return choice;
  const cdm::LibertyLib* lib = cdm::DbManager::GetDefaultLiberty();
  if (const cdm::WireLoad* model = lib ? lib->GetDefaultWireLoad() : nullptr) {
    choice.model = model;
    choice.source = WireLoadChoice::Source::kLibraryDefault;
  }
  return choice;
}

WireLoadChoice ChooseInstanceWireLoad(SdcStore& store, const std::string& path,
                                      const cdm::MinMax* minmax) {
  if (path.empty()) return ChooseDesignWireLoad(store, minmax);
  WireLoadChoice choice;
  if (cdm::Cell* cell = cdm::DbManager::FindCell(path)) {
    const CellConstraints* record = store.FindCell(cell);
    if (record && record->wire_load[minmax->index()]) {
      choice.model = record->wire_load[minmax->index()];
      choice.source = WireLoadChoice::Source::kUser;
      return choice;
    }
  }
  choice = ByArea(store, path, minmax);
  return choice.model ? choice : ChooseDesignWireLoad(store, minmax);
}

cdm::WireLoadMode WireLoadModeInForce(const SdcStore& store) {
  if (store.DesignRef().wire_load_mode) return *store.DesignRef().wire_load_mode;
  const cdm::LibertyLib* lib = cdm::DbManager::GetDefaultLiberty();
  return lib ? lib->GetDefaultWireloadMode() : cdm::WireLoadMode::kTop;
}

}  // namespace sta::sdc
