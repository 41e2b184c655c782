#include <memory>
#include <string>

#include "FuzzTargets.h"
#include "hostapi/cdm/LibBoolFuncExpr.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibStateTable.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"
#include "liberty/LibertyReader.h"

namespace fuzz {

namespace {

// Walks what the reports walk: every function of every port, as a truth
// table, and each cell's state table.
size_t Visit(const cdm::LibertyLib& lib) {
  size_t seen = 0;
  for (const cdm::LibCell* cell : lib.GetLibCells()) {
    for (const cdm::LibPort* port : cell->GetPorts()) {
      for (const cdm::LibBoolFuncExpr* function :
           {port->GetFunction(), port->GetStateFunction(), port->GetThreeState()}) {
        if (function) seen += function->TruthTable().size() + function->GetFuncPorts().size();
      }
    }
    if (const cdm::LibStateTable* table = cell->GetStateTable())
      seen += table->expanded_rows.size();
  }
  return seen;
}

}  // namespace

std::string FuzzLiberty(std::string_view input) {
  cdm::Root root;
  std::string error;
  std::unique_ptr<cdm::LibertyLib> lib =
      liberty::ParseLiberty(&root, std::string(input), "fuzz.lib", error);
  if (!lib) {
    if (error.rfind("fuzz.lib:", 0) != 0) return "a message without file and line: " + error;
    if (error.size() > 1000) return "a message of " + std::to_string(error.size()) + " bytes";
    return std::string();
  }
  if (!error.empty()) return "a library read with an error: " + error;
  Visit(*lib);
  return std::string();
}

}  // namespace fuzz
