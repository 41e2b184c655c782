// report_area: counts and areas of the cells over the whole hierarchy, with
// an area table per hierarchy level and tables of cell types on request.
#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "cmd/TclCmd.h"
#include "design/DesignArea.h"
#include "format/ReportMgr.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/HostServices.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/msg/Msg.h"

namespace {

struct HierarchyCellInfo {
  std::string cell_name;
  float global_area = 0.0f;
  float percent_area = 0.0f;  // never added to; the table prints it as it stands
  float combinational_area = 0.0f;
  float noncombinational_area = 0.0f;
  float black_box_area = 0.0f;
  std::string design_name;
};

// Library name -> cell type name -> reference -> instances.
using TypeTable =
    std::map<std::string, std::map<std::string, std::unordered_map<cdm::Reference*, int>>>;

struct AreaTotals {
  size_t ports = 0;
  size_t nets = 0;
  int cells = 0;
  int combinational = 0;
  int sequential = 0;
  int macros = 0;
  int buf_inv = 0;
  float combinational_area = 0.0f;
  float buf_inv_area = 0.0f;
  float noncombinational_area = 0.0f;
  float macro_area = 0.0f;
  float total_area = 0.0f;
  std::unordered_set<std::string> references;
  std::vector<std::unique_ptr<HierarchyCellInfo>> records;
  TypeTable combinational_types;
  TypeTable sequential_types;
  TypeTable buf_inv_types;
  TypeTable macro_types;
  TypeTable unknown_types;
};

void AddType(TypeTable& table, const std::string& lib, const std::string& type,
             cdm::Reference* ref) {
  ++table[lib][type][ref];
}

// A cell the libraries cannot classify: filed under its library and type
// when it has a library cell, else under the file that names its reference.
void AddUnknown(AreaTotals& totals, const cdm::Cell* cell) {
  cdm::Reference* ref = cell->GetRef();
  if (!ref) return;  // a design that was never linked: nothing to file it under
  if (const cdm::LibCell* lib_cell = cell->GetRefLibCell()) {
    AddType(totals.unknown_types, lib_cell->GetLibertyLib()->Name(), lib_cell->GetCellTypeName(),
            ref);
    return;
  }
  std::string owner;
  if (const cdm::Design* design = cell->GetRefDesign())
    owner = design->Owner()->Name();
  else if (auto* unresolved = dynamic_cast<const cdm::UnresolvedReference*>(ref))
    owner = unresolved->Owner() ? unresolved->Owner()->Name() : "";
  AddType(totals.unknown_types, owner, ref->GetRefText(), ref);
}

// Area of one instance of a type-table entry: a library cell's own, or the
// leaf area below a design that stands for a black box (the figure its
// instances add to the macro area).
float TypeEntryArea(cdm::Reference* ref) {
  float area = 0.0f;
  ComputeDesignArea(ref, area);
  return area;
}

bool IsBlackBoxDesign(const cdm::Design* design) {
  return design->HasAttribute(cdm::AttrId::kBlackBox);
}

class AreaWalk {
 public:
  AreaWalk(AreaTotals& totals, cdm::Design* top, bool keep_records)
      : totals_(totals), top_(top), keep_records_(keep_records) {}

  // Returns the level's record; it is kept in the list (pre-order) when the
  // hierarchy table is wanted.
  HierarchyCellInfo* Walk(const cdm::Cell* hier_cell, const std::string& path) {
    auto owned = std::make_unique<HierarchyCellInfo>();
    HierarchyCellInfo* record = owned.get();
    const cdm::Design* design = hier_cell ? hier_cell->GetRefDesign() : top_;
    record->cell_name = path;
    record->design_name = design->GetRefText();
    if (keep_records_)
      totals_.records.push_back(std::move(owned));
    else
      scratch_.push_back(std::move(owned));

    totals_.ports += design->PortCount();
    totals_.nets += design->NetCount();
    std::unique_ptr<cdm::Iterator<cdm::Cell>> cells(design->CellIter());
    while (cells->HasNext()) VisitCell(cells->Next(), path, *record);
    return record;
  }

 private:
  void VisitCell(cdm::Cell* cell, const std::string& path, HierarchyCellInfo& record) {
    cdm::LibCell* lib_cell = cell->GetRefLibCell();
    if (cell->IsConstCell()) {
      if (cell->IsGTechCell()) return;
      if (lib_cell && lib_cell->GetLibertyLib() != cdm::DbManager::GetGenericLib()) {
        float area = lib_cell->GetArea();
        AddType(totals_.combinational_types, lib_cell->GetLibertyLib()->Name(),
                lib_cell->GetCellTypeName(), lib_cell);
        ++totals_.cells;
        ++totals_.combinational;
        totals_.total_area += area;
        totals_.combinational_area += area;
        record.global_area += area;
        record.combinational_area += area;
        return;
      }
      AddUnknown(totals_, cell);
      return;
    }
    ++totals_.cells;
    cdm::Design* child = cell->GetRefDesign();
    if (!child) {
      if (!lib_cell) {
        AddUnknown(totals_, cell);
        return;
      }
      ClassifyLeaf(lib_cell, record);
      return;
    }
    totals_.references.insert(child->GetRefText());
    if (!IsBlackBoxDesign(child)) {
      // A path built from the parent's keeps the names of every instance
      // apart, also below a module that is instantiated more than once.
      std::string child_path = path.empty() ? cell->Name() : path + "/" + cell->Name();
      record.global_area += Walk(cell, child_path)->global_area;
      return;
    }
    AddType(totals_.macro_types, child->Owner()->Name(), child->GetRefText(), child);
    ++totals_.macros;
    totals_.macro_area += TypeEntryArea(child);
  }

  void ClassifyLeaf(cdm::LibCell* lib_cell, HierarchyCellInfo& record) {
    float area = lib_cell->GetArea();
    const std::string& lib = lib_cell->GetLibertyLib()->Name();
    std::string type = lib_cell->GetCellTypeName();
    totals_.references.insert(lib_cell->GetRefText());
    record.global_area += area;
    totals_.total_area += area;
    if (lib_cell->IsSequentialCell()) {
      AddType(totals_.sequential_types, lib, type, lib_cell);
      ++totals_.sequential;
      totals_.noncombinational_area += area;
      record.noncombinational_area += area;
    } else if (lib_cell->IsMemory() || lib_cell->IsBlackBox() || lib_cell->IsMacro()) {
      AddType(totals_.macro_types, lib, type, lib_cell);
      ++totals_.macros;
      totals_.macro_area += area;
      record.black_box_area += area;
    } else {
      AddType(totals_.combinational_types, lib, type, lib_cell);
      ++totals_.combinational;
      totals_.combinational_area += area;
      record.combinational_area += area;
      if (lib_cell->IsInverter() || lib_cell->IsBuffer()) {
        ++totals_.buf_inv;
        totals_.buf_inv_area += area;
        AddType(totals_.buf_inv_types, lib, type, lib_cell);
      }
    }
  }

  AreaTotals& totals_;
  cdm::Design* top_;
  bool keep_records_;
  std::vector<std::unique_ptr<HierarchyCellInfo>> scratch_;
};

void PrintCountsAndAreas(const AreaTotals& totals) {
  msg::Print_Result("Number of ports:               %17d", static_cast<int>(totals.ports));
  msg::Print_Result("Number of nets:                %17d", static_cast<int>(totals.nets));
  msg::Print_Result("Number of cells:               %17d", totals.cells);
  msg::Print_Result("Number of combinational cells: %17d", totals.combinational);
  msg::Print_Result("Number of sequential cells:    %17d", totals.sequential);
  msg::Print_Result("Number of macros/black boxes:  %17d", totals.macros);
  msg::Print_Result("Number of buf/inv:             %17d", totals.buf_inv);
  msg::Print_Result("Number of references:          %17d",
                    static_cast<int>(totals.references.size()));
  msg::InsertEmptyLine();
  msg::Print_Result("Combinational area:            %17f", totals.combinational_area);
  msg::Print_Result("Buf/Inv area:                  %17f", totals.buf_inv_area);
  msg::Print_Result("Noncombinational area:         %17f", totals.noncombinational_area);
  msg::Print_Result("Macro/Black Box area:          %17f", totals.macro_area);
  msg::Print_Result("Total cell area:               %17f", totals.total_area);
  msg::InsertEmptyLine();
}

void PrintHierarchyTable(AreaTotals& totals) {
  msg::Print_Result("Hierarchical area distribution");
  msg::Print_Result("------------------------------");
  const std::string global = "Global cell area";
  const std::string local = "Local cell area";
  ReportTable table;
  table.AddItem("Hierarchical cell", true, "", ReportTable::kLeft, 0);
  table.AddItem("Absolute Total", false, global, ReportTable::kLeft, 0);
  table.AddItem("Percent Total", false, global, ReportTable::kLeft, 0);
  table.AddItem("Combi-national", false, local, ReportTable::kLeft, 0);
  table.AddItem("Noncombi-national", false, local, ReportTable::kLeft, 0);
  table.AddItem("Black-boxes", false, local, ReportTable::kLeft, 0);
  table.AddItem("Design", false, "", ReportTable::kLeft, 0);
  for (std::unique_ptr<HierarchyCellInfo>& record : totals.records) {
    table.InsertValue("Hierarchical cell", record->cell_name, "");
    table.InsertValue("Absolute Total", record->global_area, 4, global);
    table.InsertValue("Percent Total", record->percent_area / totals.total_area, 4, global);
    table.InsertValue("Combi-national", record->combinational_area, 4, local);
    table.InsertValue("Noncombi-national", record->noncombinational_area, 4, local);
    table.InsertValue("Black-boxes", record->black_box_area, 4, local);
    table.InsertValue("Design", record->design_name, "");
    record.reset();
  }
  totals.records.clear();
  table.InsertSeparator('-');
  table.InsertValue("Hierarchical cell", std::string("Total"), "");
  table.InsertValue("Combi-national", totals.combinational_area, 4, local);
  table.InsertValue("Noncombi-national", totals.noncombinational_area, 4, local);
  table.InsertValue("Black-boxes", totals.macro_area, 4, local);
  table.PrintTable(0, true);
}

std::string PortNames(const cdm::LibCell* lib_cell, uint8_t direction) {
  std::string text = "{ ";
  std::unique_ptr<cdm::Iterator<cdm::LibPort>> ports(lib_cell->LibPortIter());
  while (ports->HasNext()) {
    cdm::LibPort* port = ports->Next();
    if (port->GetDirection() == direction) text += port->Name() + " ";
  }
  return text + "}";
}

void PrintTypeTable(const std::string& title, const TypeTable& types) {
  ReportTable table;
  table.title = title;
  for (const char* column : {"Lib Name", "Type Name", "Type Count", "Name", "Count", "Area",
                             "Total Area", "Inputs", "Outputs"})
    table.AddItem(column, std::string(column) == "Lib Name", "", ReportTable::kLeft, 0);
  for (const auto& lib : types) {
    bool first_of_lib = true;
    for (const auto& type : lib.second) {
      std::vector<std::pair<cdm::Reference*, int>> cells(type.second.begin(), type.second.end());
      std::sort(cells.begin(), cells.end(), [](const auto& a, const auto& b) {
        return a.first->Name() != b.first->Name() ? a.first->Name() < b.first->Name()
                                                  : a.first < b.first;
      });
      int type_count = 0;
      for (const auto& cell : cells) type_count += cell.second;
      bool first_of_type = true;
      for (const auto& cell : cells) {
        auto* lib_cell = dynamic_cast<const cdm::LibCell*>(cell.first);
        float area = TypeEntryArea(cell.first);
        float total = area * static_cast<float>(cell.second);
        table.InsertValue("Lib Name", first_of_lib ? lib.first : std::string(), "");
        table.InsertValue("Type Name", first_of_type ? type.first : std::string(), "");
        table.InsertValue("Type Count", first_of_type ? std::to_string(type_count) : std::string(),
                          "");
        table.InsertValue("Name", cell.first->Name(), "");
        table.InsertValue("Count", cell.second);
        table.InsertValue("Area", area, 6, "");
        table.InsertValue("Total Area", total, 6, "");
        table.InsertValue("Inputs", lib_cell ? PortNames(lib_cell, cdm::kDirInput) : "{ }", "");
        table.InsertValue("Outputs", lib_cell ? PortNames(lib_cell, cdm::kDirOutput) : "{ }", "");
        first_of_lib = false;
        first_of_type = false;
      }
    }
  }
  table.PrintTable(0, true);
}

}  // namespace

int ReportAreaCmd::exec() {
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  if (!design) {
    msg::ReportMsg(COMMAND_001, "report_area", "Current design is not defined");
    return 1;
  }
  common::EnsureGtechReportReady(design);

  const char* stars = "****************************************";
  msg::Print_Result("%s", stars);
  msg::Print_Result("Report  : area");
  msg::Print_Result("Design  : %s", design->Name().c_str());
  msg::Print_Result("Version : ");
  msg::Print_Result("Date    : %s", ReportTable().GetData().c_str());
  msg::Print_Result("%s", stars);
  if (cdm::DbManager::HasUnmappedGtechCell(design)) {
    cdm::LibertyLib* lib = cdm::DbManager::GetDefaultLiberty();
    msg::Print_Result("Note    : pre-mapping estimate (Gtech cells annotated from library '%s')",
                      lib ? lib->Name().c_str() : "unknown");
  }
  msg::InsertEmptyLine();
  msg::Print_Result("Library(s) Used:");
  msg::InsertEmptyLine();
  std::unique_ptr<cdm::Iterator<cdm::LibertyLib>> libs(cdm::DbManager::GetRoot()->LibertyLibIter());
  while (libs->HasNext()) {
    cdm::LibertyLib* lib = libs->Next();
    const std::string& file = lib->GetLibFileName();
    if (file.empty()) continue;
    msg::Print_Result("   %s (File : %s)", lib->Name().c_str(), file.c_str());
  }
  bool hierarchy = getHierarchy();
  bool verbose = getVerbose();
  msg::InsertEmptyLine();

  AreaTotals totals;
  AreaWalk(totals, design, hierarchy).Walk(nullptr, "");
  PrintCountsAndAreas(totals);
  if (hierarchy) PrintHierarchyTable(totals);
  if (verbose) {
    msg::Print_Result("                                   \nVerbose Info");
    PrintTypeTable("Combinational Type Info", totals.combinational_types);
    PrintTypeTable("Sequential Type Info", totals.sequential_types);
    PrintTypeTable("Buf/Inv Type Info", totals.buf_inv_types);
    PrintTypeTable("Macro/Black Type Info", totals.macro_types);
    PrintTypeTable("UnKonw Type Info", totals.unknown_types);
  }
  return 0;
}
