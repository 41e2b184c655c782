// report_reference: the distinct references of the current design with
// their unit area and count, and with -hierarchy one table per sub-design.
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>

#include "cmd/TclCmd.h"
#include "design/DesignArea.h"
#include "format/ReportMgr.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/msg/Msg.h"

// Rows come in the order of the reference objects' identity: their place in
// the database (designs in reading order, then library cells library by
// library in file order), so that the order is the same on every build.
// References link could not resolve follow, by name.
class ReferenceIdentity {
 public:
  ReferenceIdentity()
      : rank_(std::make_shared<std::unordered_map<const cdm::Reference*, size_t>>()) {
    cdm::Root* root = cdm::DbManager::GetRoot();
    for (cdm::Design* design : root->Designs()) Add(design);
    for (cdm::LibertyLib* lib : root->LibertyLibs()) AddLibrary(lib);
    AddLibrary(cdm::DbManager::GetGenericLib());
  }
  bool operator()(const cdm::Reference* a, const cdm::Reference* b) const {
    size_t rank_a = Rank(a);
    size_t rank_b = Rank(b);
    if (rank_a != rank_b) return rank_a < rank_b;
    if (rank_a != kUnranked || a == b) return false;
    return a->Name() != b->Name() ? a->Name() < b->Name() : std::less<>()(a, b);
  }

 private:
  static constexpr size_t kUnranked = static_cast<size_t>(-1);
  void Add(const cdm::Reference* ref) { rank_->emplace(ref, rank_->size()); }
  void AddLibrary(const cdm::LibertyLib* lib) {
    if (!lib) return;
    for (const cdm::LibCell* cell : lib->GetLibCells()) Add(cell);
  }
  size_t Rank(const cdm::Reference* ref) const {
    auto found = rank_->find(ref);
    return found == rank_->end() ? kUnranked : found->second;
  }
  // Shared by the copies that each map and set keeps.
  std::shared_ptr<std::unordered_map<const cdm::Reference*, size_t>> rank_;
};

using RefCounts = std::map<cdm::Reference*, int, ReferenceIdentity>;
using DesignSet = std::set<cdm::Design*, ReferenceIdentity>;

void DesignAllRefDesign(cdm::Cell* cell, DesignSet& designs) {
  cdm::Design* design = cell->GetRefDesign();
  if (!design) return;
  designs.insert(design);
  std::unique_ptr<cdm::Iterator<cdm::Cell>> cells(design->CellIter());
  while (cells->HasNext()) {
    cdm::Cell* child = cells->Next();
    if (!child->IsLeaf()) DesignAllRefDesign(child, designs);
  }
}

void ComputeDesignArea(cdm::Reference* ref, float& area) {
  if (ref->IsLibRef()) {
    area += static_cast<cdm::LibCell*>(ref)->GetArea();
    return;
  }
  auto* design = dynamic_cast<cdm::Design*>(ref);
  if (!design) return;  // an unresolved reference has no area
  std::unique_ptr<cdm::Iterator<cdm::Cell>> cells(design->CellIter());
  while (cells->HasNext()) {
    cdm::Reference* child = cells->Next()->GetRef();
    if (child) ComputeDesignArea(child, area);
  }
}

namespace {

std::string ReferenceLibrary(cdm::Reference* ref) {
  if (ref->IsLibRef()) return static_cast<cdm::LibCell*>(ref)->GetLibertyLib()->Name();
  if (auto* design = dynamic_cast<cdm::Design*>(ref)) return design->Owner()->Name();
  if (auto* unresolved = dynamic_cast<cdm::UnresolvedReference*>(ref))
    return unresolved->Owner() ? unresolved->Owner()->Name() : "";
  return "";
}

std::string MainTableAttributes(cdm::Reference* ref) {
  if (ref->IsLibRef()) {
    auto* lib_cell = static_cast<cdm::LibCell*>(ref);
    if (lib_cell->IsClockGate() || lib_cell->IsClockGateLatchNegedge() ||
        lib_cell->IsClockGateLatchPosedge() || lib_cell->IsClockGateOther())
      return " n";
    return "";
  }
  return ref->IsDesign() ? " h n" : "";
}

std::string DesignTableAttributes(cdm::Reference* ref) {
  return ref->IsDesign() ? " h n" : "";
}

void CountDirectCells(const cdm::Design* design, RefCounts& counts) {
  std::unique_ptr<cdm::Iterator<cdm::Cell>> cells(design->CellIter());
  while (cells->HasNext()) {
    if (cdm::Reference* ref = cells->Next()->GetRef()) ++counts[ref];
  }
}

void PrintReferenceTable(ReportTable& table, const RefCounts& counts,
                         std::string (*attributes)(cdm::Reference*)) {
  for (const char* column :
       {"Reference", "Library", "Unit Area", "Count", "Total Area", "Attributes"})
    table.AddItem(column, std::string(column) == "Reference", "", ReportTable::kLeft, 0);
  int rows = 0;
  float total = 0.0f;
  for (const auto& entry : counts) {
    cdm::Reference* ref = entry.first;
    float unit_area = 0.0f;
    ComputeDesignArea(ref, unit_area);
    float row_area = static_cast<float>(entry.second) * unit_area;
    table.InsertValue("Reference", ref->GetRefText(), "");
    table.InsertValue("Library", ReferenceLibrary(ref), "");
    table.InsertValue("Unit Area", AreaText(unit_area), "");
    table.InsertValue("Count", entry.second);
    table.InsertValue("Total Area", AreaText(row_area), "");
    table.InsertValue("Attributes", attributes(ref), "");
    ++rows;
    total = row_area + total;
  }
  table.InsertSeparator('-');
  table.InsertValue("Reference", "Total " + std::to_string(rows) + " references", "");
  table.InsertValue("Total Area", AreaText(total), "");
  table.PrintTable(0, true);
}

}  // namespace

int ReportReferenceCmd::exec() {
  if (!PreReport()) return 1;
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  bool hierarchy = getHierarchy();

  const ReferenceIdentity identity;
  RefCounts counts(identity);
  DesignSet designs(identity);
  std::unique_ptr<cdm::Iterator<cdm::Cell>> cells(design->CellIter());
  while (cells->HasNext()) {
    cdm::Cell* cell = cells->Next();
    if (cdm::Reference* ref = cell->GetRef()) ++counts[ref];
    if (hierarchy && !cell->IsLeaf()) DesignAllRefDesign(cell, designs);
  }

  const char* stars = "****************************************";
  msg::Print_Result("%s", stars);
  msg::Print_Result("*Report : reference");
  if (getNosplit()) msg::Print_Result("*         -nosplit");
  if (hierarchy) msg::Print_Result("*         -hierarchy");
  msg::Print_Result("*Design : %s", design->Name().c_str());
  msg::Print_Result("*Version: ");
  msg::Print_Result("*Date   : ");
  msg::Print_Result("%s", stars);
  msg::InsertEmptyLine();
  for (const char* line :
       {"Attributes:", "    b  - black box (unknown)", "    bo - allows boundary optimization",
        "    d  - dont_touch", "    mo - map_only", "    h  - hierarchical",
        "    n  - noncombinational", "    r  - removable", "    s  - synthetic operator",
        "    u  - contains unmapped logic"})
    msg::Print_Result("%s", line);
  msg::InsertEmptyLine();

  ReportTable main_table;
  PrintReferenceTable(main_table, counts, MainTableAttributes);
  for (cdm::Design* sub_design : designs) {
    ReportTable table;
    table.title = std::string(stars) + "\nDesign: " + sub_design->GetRefText() + "\n" + stars;
    RefCounts sub_counts(identity);
    CountDirectCells(sub_design, sub_counts);
    PrintReferenceTable(table, sub_counts, DesignTableAttributes);
  }
  return 0;
}
