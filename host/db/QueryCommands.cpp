// get_cells, get_nets, get_pins, get_ports, all_inputs, all_outputs: Tcl
// lists of full names from the current design; get_libs, get_lib_cells:
// names of the technology libraries and their cells.
#include <boost/any.hpp>
#include <string>
#include <vector>

#include "cmdlib/HostCommands.h"
#include "db/DesignQuery.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cmd/CommonCmd.h"
#include "hostapi/msg/Msg.h"
#include "msg/HostMsg.h"

namespace {

// A get_* command: patterns in, a list of names out. Design queries need a
// current design; library queries (`needs_design` false) do not.
class QueryCmd : public CommonCmd {
 public:
  QueryCmd(const char* name, const char* description, const char* kind, bool hierarchical,
           bool needs_design = true)
      : CommonCmd(name, description, nullptr), kind_(kind), needs_design_(needs_design) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    if (hierarchical)
      addOptions("hierarchical", "Search every level of the hierarchy", false, ValueType::kFlag,
                 std::any());
    addOptions("quiet", "Say nothing when nothing matches", false, ValueType::kFlag, std::any());
    addOptions("patterns", "Name patterns (* and ?)", true, ValueType::kStringList, std::any());
  }

  int exec() override {
    cdm::Design* design = cdm::DbManager::GetCurrentDesign();
    if (!design && needs_design_) {
      SetTclError(name() + ": no current design; run link_design first");
      return 1;
    }
    boost::any value;
    std::vector<std::string> patterns;
    if (getOptionValue("patterns", value))
      patterns = boost::any_cast<std::vector<std::string>>(value);
    bool all = patterns.empty();
    if (all) patterns.push_back(AllPattern());
    bool hierarchical = getOptionCount("hierarchical") > 0;
    std::vector<std::string> names;
    for (const std::string& pattern : patterns) {
      size_t before = names.size();
      Find(design, pattern, hierarchical, names);
      if (names.size() == before && !all && !getOptionValue("quiet"))
        msg::HostMsg(QUERY_001, {kind_, pattern});
    }
    SetTclResultList(std::move(names));
    return 0;
  }

 protected:
  virtual void Find(const cdm::Design* design, const std::string& pattern, bool hierarchical,
                    std::vector<std::string>& names) = 0;
  virtual const char* AllPattern() const { return "*"; }

 private:
  const char* kind_;
  bool needs_design_;
};

class GetCellsCmd : public QueryCmd {
 public:
  GetCellsCmd() : QueryCmd("get_cells", "Get cells of the current design", "cells", true) {}

 protected:
  void Find(const cdm::Design* design, const std::string& pattern, bool hierarchical,
            std::vector<std::string>& names) override {
    cdm::FindCellNames(design, pattern, hierarchical, names);
  }
};

class GetNetsCmd : public QueryCmd {
 public:
  GetNetsCmd() : QueryCmd("get_nets", "Get nets of the current design", "nets", true) {}

 protected:
  void Find(const cdm::Design* design, const std::string& pattern, bool hierarchical,
            std::vector<std::string>& names) override {
    cdm::FindNetNames(design, pattern, hierarchical, names);
  }
};

class GetPinsCmd : public QueryCmd {
 public:
  GetPinsCmd() : QueryCmd("get_pins", "Get cell pins of the current design", "pins", true) {}

 protected:
  void Find(const cdm::Design* design, const std::string& pattern, bool hierarchical,
            std::vector<std::string>& names) override {
    cdm::FindPinNames(design, pattern, hierarchical, names);
  }
};

class GetPortsCmd : public QueryCmd {
 public:
  GetPortsCmd() : QueryCmd("get_ports", "Get ports of the current design", "ports", false) {}

 protected:
  void Find(const cdm::Design* design, const std::string& pattern, bool,
            std::vector<std::string>& names) override {
    cdm::FindPortNames(design, pattern, names);
  }
};

class GetLibsCmd : public QueryCmd {
 public:
  GetLibsCmd() : QueryCmd("get_libs", "Get technology libraries", "libs", false, false) {}

 protected:
  void Find(const cdm::Design*, const std::string& pattern, bool,
            std::vector<std::string>& names) override {
    cdm::FindLibNames(cdm::DbManager::GetRoot(), pattern, names);
  }
};

class GetLibCellsCmd : public QueryCmd {
 public:
  GetLibCellsCmd()
      : QueryCmd("get_lib_cells", "Get library cells as library/cell", "lib_cells", false, false) {}

 protected:
  void Find(const cdm::Design*, const std::string& pattern, bool,
            std::vector<std::string>& names) override {
    cdm::FindLibCellNames(cdm::DbManager::GetRoot(), pattern, names);
  }
  const char* AllPattern() const override { return "*/*"; }
};

class AllPortsCmd : public CommonCmd {
 public:
  AllPortsCmd(const char* name, const char* description, bool inputs)
      : CommonCmd(name, description, nullptr), inputs_(inputs) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  }

  int exec() override {
    cdm::Design* design = cdm::DbManager::GetCurrentDesign();
    if (!design) {
      SetTclError(name() + ": no current design; run link_design first");
      return 1;
    }
    std::vector<std::string> names;
    cdm::FindDirectedPortNames(design, inputs_, names);
    SetTclResultList(std::move(names));
    return 0;
  }

 private:
  bool inputs_;
};

cmdlib::HostCommandRegistrar registrar([] {
  new GetCellsCmd();
  new GetNetsCmd();
  new GetPinsCmd();
  new GetPortsCmd();
  new GetLibsCmd();
  new GetLibCellsCmd();
  new AllPortsCmd("all_inputs", "All input and inout ports of the current design", true);
  new AllPortsCmd("all_outputs", "All output and inout ports of the current design", false);
});

}  // namespace
