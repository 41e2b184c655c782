// get_cells, get_nets, get_pins, get_ports, all_inputs, all_outputs: Tcl
// lists of full names from the current design.
#include <boost/any.hpp>
#include <functional>
#include <string>
#include <vector>

#include "cmdlib/HostCommands.h"
#include "db/Glob.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cmd/CommonCmd.h"
#include "hostapi/msg/Msg.h"

namespace {

using cdm::Netlist;

// Calls `visit` for each netlist of the hierarchy below `netlist`, itself
// included, in depth-first order.
void ForEachNetlist(Netlist* netlist, const std::function<void(Netlist*)>& visit) {
  visit(netlist);
  for (cdm::Cell& cell : netlist->Cells())
    if (cell.GetChildNetlist()) ForEachNetlist(cell.GetChildNetlist(), visit);
}

class QueryCmd : public CommonCmd {
 public:
  QueryCmd(const char* name, const char* description, const char* kind, bool hierarchical)
      : CommonCmd(name, description, nullptr), kind_(kind) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    if (hierarchical)
      addOptions("hierarchical", "Search every level of the hierarchy", false, ValueType::kFlag,
                 std::any());
    addOptions("quiet", "Say nothing when nothing matches", false, ValueType::kFlag, std::any());
    addOptions("patterns", "Name patterns (* and ?)", true, ValueType::kStringList, std::any());
  }

  int exec() override {
    design_ = cdm::DbManager::GetCurrentDesign();
    if (!design_) {
      SetTclError(name() + ": no current design; run link_design first");
      return 1;
    }
    boost::any value;
    std::vector<std::string> patterns;
    if (getOptionValue("patterns", value))
      patterns = boost::any_cast<std::vector<std::string>>(value);
    bool all = patterns.empty();
    if (all) patterns.push_back("*");
    std::vector<std::string> names;
    for (const std::string& pattern : patterns) {
      size_t before = names.size();
      Collect(pattern, names);
      if (names.size() == before && !all && !getOptionValue("quiet"))
        msg::Print_Result("Warning: No %s objects matched '%s'", kind_, pattern.c_str());
    }
    SetTclResultList(std::move(names));
    return 0;
  }

 protected:
  virtual void Collect(const std::string& pattern, std::vector<std::string>& names) = 0;
  bool Hierarchical() { return getOptionCount("hierarchical") > 0; }
  cdm::Design* design_ = nullptr;

 private:
  const char* kind_;
};

// Objects of one level are matched by local name; a pattern with "/"
// reaches down by full name; -hierarchical matches local names at every
// level and gives full names.
class GetCellsCmd : public QueryCmd {
 public:
  GetCellsCmd() : QueryCmd("get_cells", "Get cells of the current design", "cells", true) {}

 protected:
  void Collect(const std::string& pattern, std::vector<std::string>& names) override {
    bool deep = Hierarchical() || pattern.find('/') != std::string::npos;
    bool by_full_name = !Hierarchical() && deep;
    auto visit = [&](Netlist* netlist) {
      for (cdm::Cell& cell : netlist->Cells()) {
        if (by_full_name ? cdm::GlobMatch(pattern, cell.GetFullName())
                         : cdm::GlobMatch(pattern, cell.Name()))
          names.push_back(cell.GetFullName());
      }
    };
    if (deep)
      ForEachNetlist(design_->GetNetlist(), visit);
    else
      visit(design_->GetNetlist());
  }
};

class GetNetsCmd : public QueryCmd {
 public:
  GetNetsCmd() : QueryCmd("get_nets", "Get nets of the current design", "nets", true) {}

 protected:
  void Collect(const std::string& pattern, std::vector<std::string>& names) override {
    bool deep = Hierarchical() || pattern.find('/') != std::string::npos;
    bool by_full_name = !Hierarchical() && deep;
    auto visit = [&](Netlist* netlist) {
      for (cdm::Net& net : netlist->Nets()) {
        if (netlist->IsTieNet(&net)) continue;
        if (by_full_name ? cdm::GlobMatch(pattern, net.GetFullName())
                         : cdm::GlobMatch(pattern, net.Name()))
          names.push_back(net.GetFullName());
      }
    };
    if (deep)
      ForEachNetlist(design_->GetNetlist(), visit);
    else
      visit(design_->GetNetlist());
  }
};

// "cell/pin": the cell part as in get_cells, the pin part by pin name.
class GetPinsCmd : public QueryCmd {
 public:
  GetPinsCmd() : QueryCmd("get_pins", "Get cell pins of the current design", "pins", true) {}

 protected:
  void Collect(const std::string& pattern, std::vector<std::string>& names) override {
    size_t slash = pattern.rfind('/');
    if (slash == std::string::npos) return;
    std::string cell_pattern = pattern.substr(0, slash), pin_pattern = pattern.substr(slash + 1);
    bool deep = Hierarchical() || cell_pattern.find('/') != std::string::npos;
    bool by_full_name = !Hierarchical() && deep;
    auto visit = [&](Netlist* netlist) {
      for (cdm::Cell& cell : netlist->Cells()) {
        if (!(by_full_name ? cdm::GlobMatch(cell_pattern, cell.GetFullName())
                           : cdm::GlobMatch(cell_pattern, cell.Name())))
          continue;
        for (uint32_t i = 0; i < cell.PinCount(); ++i)
          if (cdm::GlobMatch(pin_pattern, cell.GetPin(i)->Name()))
            names.push_back(cell.GetPin(i)->GetFullName());
      }
    };
    if (deep)
      ForEachNetlist(design_->GetNetlist(), visit);
    else
      visit(design_->GetNetlist());
  }
};

// Ports match by bit name ("data[3]") or by bus name ("data": every bit).
class GetPortsCmd : public QueryCmd {
 public:
  GetPortsCmd() : QueryCmd("get_ports", "Get ports of the current design", "ports", false) {}

 protected:
  void Collect(const std::string& pattern, std::vector<std::string>& names) override {
    for (cdm::Port* port : design_->Ports()) {
      bool bus_match = port->GetBus() && cdm::GlobMatch(pattern, port->GetBus()->Name());
      if (bus_match || cdm::GlobMatch(pattern, port->Name())) names.push_back(port->Name());
    }
  }
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
    for (cdm::Port* port : design->Ports())
      if (inputs_ ? port->IsInput() : port->IsOutput()) names.push_back(port->Name());
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
  new AllPortsCmd("all_inputs", "All input and inout ports of the current design", true);
  new AllPortsCmd("all_outputs", "All output and inout ports of the current design", false);
});

}  // namespace
