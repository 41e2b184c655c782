// all_inputs, all_outputs, all_clocks and all_registers.
#include <boost/any.hpp>
#include <memory>
#include <unordered_set>

#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "msg/HostMsg.h"
#include "query/ObjectArgs.h"
#include "query/QueryCmd.h"

namespace query {
namespace {

using K = ObjectKind;

// The clocks named by -clock (names or a collection); false on an error.
bool ClockOption(CommonCmd& command, std::unordered_set<const sta::sdc::Clock*>& clocks) {
  ObjectArgs args;
  std::string error;
  if (!ResolveOption(command, "clock", {K::kClock}, MatchOptions{}, '/', args, error)) {
    command.SetTclError(command.name() + ": " + error);
    return false;
  }
  for (const std::string& unknown : args.unmatched)
    msg::HostMsg(SDC_001, {command.name(), "clock", unknown});
  for (const ObjectRef& ref : args.objects)
    clocks.insert(static_cast<sta::sdc::Clock*>(ref.object));
  return true;
}

class AllPortsCmd : public CommonCmd {
 public:
  AllPortsCmd(const char* name, const char* description, bool inputs)
      : CommonCmd(name, description, nullptr), inputs_(inputs) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    if (inputs)
      addOptions("no_clocks", "Leave out the ports clocks are defined on", false, ValueType::kFlag,
                 std::any());
    addOptions("clock", "Only ports with delays relative to these clocks", false,
               ValueType::kStringList, std::any());
  }

  int exec() override {
    cdm::Design* design = cdm::DbManager::GetCurrentDesign();
    if (!design) {
      SetTclError(name() + ": no current design; run link_design first");
      return 1;
    }
    std::unordered_set<const sta::sdc::Clock*> clocks;
    const bool by_clock = getOptionCount("clock") > 0;
    if (by_clock && !ClockOption(*this, clocks)) return 1;
    const bool no_clocks = inputs_ && getOptionValue("no_clocks");
    sta::sdc::SdcMgr* sdc = sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr);
    std::vector<ObjectRef> found;
    for (cdm::Port* port : design->Ports()) {
      if (!(inputs_ ? port->IsInput() : port->IsOutput())) continue;
      cdm::Pin* pin = design->FindPin(port->Name());
      if (no_clocks && pin && IsClockSource(sdc, pin)) continue;
      if (by_clock && !HasDelayFor(sdc, pin, clocks)) continue;
      found.push_back({K::kPort, port});
    }
    SetCollectionResult(*this, std::move(found));
    return 0;
  }

 private:
  static bool IsClockSource(sta::sdc::SdcMgr* sdc, const cdm::Pin* pin) {
    for (const sta::sdc::Clock* clock : sdc->getClocks())
      for (const cdm::Pin* source : clock->getSources())
        if (source == pin) return true;
    return false;
  }
  bool HasDelayFor(sta::sdc::SdcMgr* sdc, const cdm::Pin* pin,
                   const std::unordered_set<const sta::sdc::Clock*>& clocks) const {
    if (!pin) return false;
    auto check = [&](const auto* delays) {
      if (!delays) return false;
      for (const sta::sdc::PortDelay* delay : *delays)
        if (clocks.count(delay->getClock())) return true;
      return false;
    };
    return inputs_ ? check(sdc->getInputDelays(pin)) : check(sdc->getOutputDelays(pin));
  }

  bool inputs_;
};

class AllClocksCmd : public CommonCmd {
 public:
  AllClocksCmd() : CommonCmd("all_clocks", "All clocks of the current design", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
  }
  int exec() override {
    std::vector<ObjectRef> found;
    for (sta::sdc::Clock* clock : sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr)->getClocks())
      found.push_back({K::kClock, clock});
    SetCollectionResult(*this, std::move(found));
    return 0;
  }
};

// Registers: instances of sequential library cells, through the hierarchy.
class AllRegistersCmd : public CommonCmd {
 public:
  AllRegistersCmd()
      : CommonCmd("all_registers", "Sequential cells of the current design, or their pins",
                  nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("cells", "The register cells (the default)", false, ValueType::kFlag, std::any());
    addOptions("data_pins", "Their data inputs", false, ValueType::kFlag, std::any());
    addOptions("clock_pins", "Their clock inputs", false, ValueType::kFlag, std::any());
    addOptions("output_pins", "Their outputs", false, ValueType::kFlag, std::any());
    addOptions("edge_triggered", "Only flip-flops", false, ValueType::kFlag, std::any());
    addOptions("level_sensitive", "Only latches", false, ValueType::kFlag, std::any());
    addOptions("clock", "Only registers clocked by these clocks", false, ValueType::kStringList,
               std::any());
  }

  int exec() override {
    cdm::Design* design = cdm::DbManager::GetCurrentDesign();
    if (!design) {
      SetTclError(name() + ": no current design; run link_design first");
      return 1;
    }
    std::unordered_set<const sta::sdc::Clock*> clocks;
    const bool by_clock = getOptionCount("clock") > 0;
    if (by_clock && !ClockOption(*this, clocks)) return 1;
    std::unordered_set<const cdm::Pin*> clock_sources;
    for (const sta::sdc::Clock* clock : clocks)
      clock_sources.insert(clock->getSources().begin(), clock->getSources().end());
    const bool edge_only = getOptionValue("edge_triggered");
    const bool level_only = getOptionValue("level_sensitive");
    const bool data = getOptionValue("data_pins"), clock_pins = getOptionValue("clock_pins"),
               outputs = getOptionValue("output_pins");
    std::vector<ObjectRef> found;
    std::unique_ptr<cdm::Iterator<cdm::Cell>> cells(
        new cdm::DesignCellIterator(design, true, [](const cdm::Cell* cell) {
          return cell->GetRefLibCell() && cell->GetRefLibCell()->IsSequentialCell();
        }));
    while (cells->HasNext()) {
      cdm::Cell* cell = cells->Next();
      const bool latch = IsLatch(cell->GetRefLibCell());
      if ((edge_only && latch) || (level_only && !latch)) continue;
      if (by_clock && !ClockedBy(cell, clock_sources)) continue;
      if (!data && !clock_pins && !outputs) {
        found.push_back({K::kCell, cell});
        continue;
      }
      for (uint32_t i = 0; i < cell->PinCount(); ++i) {
        cdm::Pin* pin = cell->GetPin(i);
        auto* port = dynamic_cast<cdm::LibPort*>(pin->GetPort());
        if (!port) continue;
        const bool is_clock = port->IsClock();
        if ((clock_pins && is_clock && port->IsInput()) ||
            (data && !is_clock && port->GetDirection() == cdm::kDirInput) ||
            (outputs && port->IsOutput()))
          found.push_back({K::kPin, pin});
      }
    }
    SetCollectionResult(*this, std::move(found));
    return 0;
  }

 private:
  static bool IsLatch(const cdm::LibCell* cell) {
    return !cell->GetSequentials().empty() && cell->GetSequentials().front()->IsLatch();
  }
  // The clock pin's net, followed back through buffers and inverters,
  // reaches a source of one of the clocks.
  static bool ClockedBy(const cdm::Cell* cell, const std::unordered_set<const cdm::Pin*>& sources) {
    for (uint32_t i = 0; i < cell->PinCount(); ++i) {
      cdm::Pin* pin = cell->GetPin(i);
      auto* port = dynamic_cast<cdm::LibPort*>(pin->GetPort());
      if (!port || !port->IsClock()) continue;
      for (int steps = 0; pin && steps < 1000; ++steps) {
        if (sources.count(pin)) return true;
        cdm::Pin* driver = pin->GetNet() ? pin->GetNet()->GetDriverPin() : nullptr;
        if (!driver || driver == pin) break;
        if (sources.count(driver)) return true;
        const cdm::Cell* owner = driver->GetCell();
        const cdm::LibCell* lib_cell = owner ? owner->GetRefLibCell() : nullptr;
        if (!lib_cell || !(lib_cell->IsBuffer() || lib_cell->IsInverter())) break;
        std::vector<cdm::Pin*> inputs = driver->GetOutputInputPins(false);
        pin = inputs.empty() ? nullptr : inputs.front();
      }
    }
    return false;
  }
};

cmdlib::HostCommandRegistrar registrar([] {
  new AllPortsCmd("all_inputs", "All input and inout ports of the current design", true);
  new AllPortsCmd("all_outputs", "All output and inout ports of the current design", false);
  new AllClocksCmd();
  new AllRegistersCmd();
});

}  // namespace
}  // namespace query
