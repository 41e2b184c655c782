// report_hierarchy: the tree of references below the current design, one
// line per distinct reference of each parent, library cells with their
// library in a fixed column.
#include <ctime>
#include <iomanip>
#include <map>
#include <memory>
#include <sstream>
#include <string>

#include "cmd/TclCmd.h"
#include "format/ReportMgr.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/msg/Msg.h"

std::string GetTimeHier() {
  std::time_t now = std::time(nullptr);
  std::ostringstream out;
  out << std::put_time(std::localtime(&now), "%a %b %e %T %Y");
  return out.str();
}

void PrintRef(cdm::Reference* ref, unsigned long depth, bool isLeaf) {
  std::string line(2 * depth, ' ');
  line += ref->GetRefText();
  if (isLeaf) {
    auto* lib_cell = static_cast<cdm::LibCell*>(ref);
    if (lib_cell->GetLibertyLib() == cdm::DbManager::GetGenericLib()) return;
    if (line.size() < 60) line.resize(60, ' ');
    line += lib_cell->GetLibertyLib()->Name();
  }
  msg::Print_Result("%s", line.c_str());
}

void ListModuleInCDM(cdm::Design* design, unsigned long depth, bool printLeaf, bool withOperator) {
  if (design->IsOperDesign()) return;
  std::map<std::string, cdm::Reference*> children;
  std::unique_ptr<cdm::Iterator<cdm::Cell>> cells(design->CellIter());
  while (cells->HasNext()) {
    cdm::Reference* ref = cells->Next()->GetRef();
    if (ref) children[ref->GetRefText()] = ref;
  }
  unsigned long child_depth = depth + 1;
  for (const auto& entry : children) {
    cdm::Reference* ref = entry.second;
    if (ref->IsLibRef()) {
      if (printLeaf) PrintRef(ref, child_depth, true);
      continue;
    }
    // A reference link could not resolve is neither a cell nor a design.
    auto* child = dynamic_cast<cdm::Design*>(ref);
    if (!child) continue;
    if (child->IsOperDesign()) {
      if (withOperator) PrintRef(ref, child_depth, false);
      continue;
    }
    PrintRef(ref, child_depth, false);
    ListModuleInCDM(child, child_depth, printLeaf, withOperator);
  }
}

int ReportHierarchyCmd::exec() {
  const char* stars = "*******************************";
  msg::Print_Result("%s", stars);
  msg::Print_Result("Report : hierarchy");
  if (getFull()) msg::Print_Result("        -full");
  bool noleaf = getNoleaf();
  if (noleaf) msg::Print_Result("        -noleaf");
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  if (!design) {
    msg::Print_Result("Can't show hierarchy information now.");
    return 1;
  }
  msg::Print_Result("Design : %s", design->Name().c_str());
  msg::Print_Result("Version: ");
  msg::Print_Result("Date   : %s", GetTimeHier().c_str());
  msg::Print_Result("%s", stars);
  msg::Print_Result("\nInformation: This design contains unmapped logic.\n");
  msg::Print_Result("%s", design->Name().c_str());
  ListModuleInCDM(design, 1, !noleaf, false);
  return 0;
}
