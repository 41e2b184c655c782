// get_cells, get_nets, get_pins, get_ports, get_clocks, get_libs,
// get_lib_cells and get_lib_pins: collections of the objects whose names
// match, or that are related to the -of_objects.
#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "query/QueryCmd.h"

namespace query {
namespace {

using K = ObjectKind;

cdm::Pin* PortPin(const ObjectRef& port) {
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  return design ? design->FindPin(AsObject(port)->Name()) : nullptr;
}

void CellPins(cdm::Cell* cell, std::vector<ObjectRef>& found) {
  for (uint32_t i = 0; i < cell->PinCount(); ++i) found.push_back({K::kPin, cell->GetPin(i)});
}

class GetCellsCmd : public QueryCmd {
 public:
  GetCellsCmd()
      : QueryCmd("get_cells", "Get cells of the current design",
                 {"cells", true, true, {K::kPin, K::kNet}}) {}

 protected:
  bool Find(const cdm::Design* design, const std::string& pattern, const FindOptions& options,
            std::vector<ObjectRef>& found, std::string& error) override {
    return FindCells(design, pattern, options, found, error);
  }
  void Related(const ObjectRef& of, std::vector<ObjectRef>& found) override {
    if (of.kind == K::kPin) {
      if (cdm::Cell* cell = static_cast<cdm::Pin*>(of.object)->GetCell())
        found.push_back({K::kCell, cell});
      return;
    }
    for (cdm::Pin* pin : static_cast<cdm::Net*>(of.object)->Pins())
      if (pin->GetCell()) found.push_back({K::kCell, pin->GetCell()});
  }
};

class GetNetsCmd : public QueryCmd {
 public:
  GetNetsCmd()
      : QueryCmd("get_nets", "Get nets of the current design",
                 {"nets", true, true, {K::kPin, K::kPort, K::kCell}}) {}

 protected:
  bool Find(const cdm::Design* design, const std::string& pattern, const FindOptions& options,
            std::vector<ObjectRef>& found, std::string& error) override {
    return FindNets(design, pattern, options, found, error);
  }
  void Related(const ObjectRef& of, std::vector<ObjectRef>& found) override {
    auto take = [&](cdm::Pin* pin) {
      if (pin && pin->GetNet()) found.push_back({K::kNet, pin->GetNet()});
    };
    if (of.kind == K::kPin) {
      take(static_cast<cdm::Pin*>(of.object));
    } else if (of.kind == K::kPort) {
      take(PortPin(of));
    } else {
      auto* cell = static_cast<cdm::Cell*>(of.object);
      for (uint32_t i = 0; i < cell->PinCount(); ++i) take(cell->GetPin(i));
    }
  }
};

class GetPinsCmd : public QueryCmd {
 public:
  GetPinsCmd()
      : QueryCmd("get_pins", "Get cell pins of the current design",
                 {"pins", true, true, {K::kCell, K::kNet}}) {}

 protected:
  bool Find(const cdm::Design* design, const std::string& pattern, const FindOptions& options,
            std::vector<ObjectRef>& found, std::string& error) override {
    return FindPins(design, pattern, options, found, error);
  }
  const char* AllPattern() const override { return "*/*"; }
  void Related(const ObjectRef& of, std::vector<ObjectRef>& found) override {
    if (of.kind == K::kCell) {
      CellPins(static_cast<cdm::Cell*>(of.object), found);
      return;
    }
    for (cdm::Pin* pin : static_cast<cdm::Net*>(of.object)->Pins())
      if (pin->GetCell()) found.push_back({K::kPin, pin});
  }
};

class GetPortsCmd : public QueryCmd {
 public:
  GetPortsCmd()
      : QueryCmd("get_ports", "Get ports of the current design",
                 {"ports", false, true, {K::kNet}}) {}

 protected:
  bool Find(const cdm::Design* design, const std::string& pattern, const FindOptions& options,
            std::vector<ObjectRef>& found, std::string& error) override {
    return FindPorts(design, pattern, options, found, error);
  }
  void Related(const ObjectRef& of, std::vector<ObjectRef>& found) override {
    for (cdm::Pin* pin : static_cast<cdm::Net*>(of.object)->Pins())
      if (pin->IsTopPortPin() && pin->GetPort()) found.push_back({K::kPort, pin->GetPort()});
  }
};

class GetClocksCmd : public QueryCmd {
 public:
  GetClocksCmd()
      : QueryCmd("get_clocks", "Get clocks of the current design", {"clocks", false, false, {}}) {}

 protected:
  bool Find(const cdm::Design*, const std::string& pattern, const FindOptions& options,
            std::vector<ObjectRef>& found, std::string& error) override {
    return FindClocks(pattern, options, found, error);
  }
};

class GetLibsCmd : public QueryCmd {
 public:
  GetLibsCmd() : QueryCmd("get_libs", "Get technology libraries", {"libs", false, false, {}}) {}

 protected:
  bool Find(const cdm::Design*, const std::string& pattern, const FindOptions& options,
            std::vector<ObjectRef>& found, std::string& error) override {
    return FindLibs(pattern, options, found, error);
  }
};

class GetLibCellsCmd : public QueryCmd {
 public:
  GetLibCellsCmd()
      : QueryCmd("get_lib_cells", "Get library cells as library/cell",
                 {"lib_cells", false, false, {K::kCell}}) {}

 protected:
  bool Find(const cdm::Design*, const std::string& pattern, const FindOptions& options,
            std::vector<ObjectRef>& found, std::string& error) override {
    return FindLibCells(pattern, options, found, error);
  }
  const char* AllPattern() const override { return "*/*"; }
  void Related(const ObjectRef& of, std::vector<ObjectRef>& found) override {
    if (cdm::LibCell* cell = static_cast<cdm::Cell*>(of.object)->GetRefLibCell())
      found.push_back({K::kLibCell, cell});
  }
};

class GetLibPinsCmd : public QueryCmd {
 public:
  GetLibPinsCmd()
      : QueryCmd("get_lib_pins", "Get library pins as library/cell/pin",
                 {"lib_pins", false, false, {K::kLibCell, K::kPin}}) {}

 protected:
  bool Find(const cdm::Design*, const std::string& pattern, const FindOptions& options,
            std::vector<ObjectRef>& found, std::string& error) override {
    return FindLibPins(pattern, options, found, error);
  }
  const char* AllPattern() const override { return "*/*/*"; }
  void Related(const ObjectRef& of, std::vector<ObjectRef>& found) override {
    if (of.kind == K::kLibCell) {
      for (cdm::LibPort* port : static_cast<cdm::LibCell*>(of.object)->GetPorts())
        found.push_back({K::kLibPin, port});
      return;
    }
    if (auto* port = dynamic_cast<cdm::LibPort*>(static_cast<cdm::Pin*>(of.object)->GetPort()))
      found.push_back({K::kLibPin, port});
  }
};

cmdlib::HostCommandRegistrar registrar([] {
  new GetCellsCmd();
  new GetNetsCmd();
  new GetPinsCmd();
  new GetPortsCmd();
  new GetClocksCmd();
  new GetLibsCmd();
  new GetLibCellsCmd();
  new GetLibPinsCmd();
});

}  // namespace
}  // namespace query
