// Cell blocks of the all, timing and power forms of report_lib: cell head,
// leakage, and per pin its capacitance, timing groups and internal power.
#include "hostapi/cdm/Selectors.h"
#include "library/ReportLibSections.h"

namespace {

enum PinDirection { kInput = 0, kOutput = 1, kInout = 2 };

std::string CapText(cdm::LibertyLib* lib, double value) {
  return GetDoubleAttrString(value, lib->GetUnits().capacitance.scale, " ");
}

void PrintCellHead(std::ostream& os, cdm::LibCell* cell) {
  os << "\nCell(" << cell->Name() << "): " << cell->GetArea() << "\n";
}

void PrintCellTail(std::ostream& os, cdm::LibCell* cell) {
  os << "END_CELL " << cell->Name() << ";\n";
}

void PrintCellLeakagePowerInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell) {
  const float scale = lib->GetUnits().power.scale;
  os << "  LeakagePower : " << cell->GetCellLeakagePower() / scale << "\n";
  for (const auto& leakage : cell->GetLeakagePowers()) {
    os << "  LEAKAGE_POWER :\n"
       << "         WHEN  : " << leakage->GetWhen()->GetFuncStr() << "\n"
       << "         VALUE : " << leakage->GetValue() / scale << "\n";
  }
}

void PrintOnePinTimingGroup(std::ostream& os, cdm::LibertyLib* lib, cdm::LibPort* port) {
  for (const auto& attr : port->GetTimingAttrs()) {
    PrintTimingGroupHead(os, lib, port, attr);
    const cdm::RiseFall* rise = cdm::RiseFall::rise_;
    // Both models are dumped under the rise edge, as the report always did.
    if (const auto* model = attr->GetTimingModel(rise)) {
      os << model->DumpSelf(rise, lib->GetUnits());
    }
    if (const auto* model = attr->GetTimingModel(cdm::RiseFall::fall_)) {
      os << model->DumpSelf(rise, lib->GetUnits());
    }
  }
}

void PrintOnePinInternalPowerGroup(std::ostream& os, cdm::LibertyLib* lib, cdm::LibPort* port) {
  const cdm::LibUnits& units = lib->GetUnits();
  for (const auto& power : port->GetPowerAttrs()) {
    os << "    INTERNAL_POWER: " << power->GetRelatedPinsStr() << ", , "
       << power->GetWhen()->GetFuncStr() << ";\n";
    const cdm::LibPowerModel* rise = power->GetLibPowerModel(cdm::RiseFall::rise_);
    const cdm::LibPowerModel* fall = power->GetLibPowerModel(cdm::RiseFall::fall_);
    if (rise == fall) {
      if (rise) os << rise->DumpSelf(cdm::RiseFallBoth::rise_fall_, units);
      continue;
    }
    if (rise) os << rise->DumpSelf(cdm::RiseFallBoth::rise_, units);
    if (fall) os << fall->DumpSelf(cdm::RiseFallBoth::fall_, units);
  }
}

// The three pin walks differ in what follows the head.
enum class PinParts { kAll, kTiming, kPower };

void PrintPins(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell, PinParts parts) {
  std::unique_ptr<cdm::Iterator<cdm::LibPort>> ports(cell->LibPortIter());
  while (ports->HasNext()) {
    cdm::LibPort* port = ports->Next();
    // The full listing passes over a pin it cannot name a direction for.
    if (parts == PinParts::kAll && port->GetDirection() > kInout) continue;
    if (!PrintOnePinHead(os, lib, port)) continue;
    PrintOnePinCap(os, lib, port);
    if (parts != PinParts::kPower) PrintOnePinTimingGroup(os, lib, port);
    if (parts != PinParts::kTiming) PrintOnePinInternalPowerGroup(os, lib, port);
    os << "  END_PIN " << port->Name() << ";\n";
  }
}

void PrintPinInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell) {
  PrintPins(os, lib, cell, PinParts::kAll);
}
void PrintPinTimingInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell) {
  PrintPins(os, lib, cell, PinParts::kTiming);
}
void PrintPinPowerInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell) {
  PrintPins(os, lib, cell, PinParts::kPower);
}

void PrintOneCellInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell) {
  PrintCellHead(os, cell);
  PrintCellLeakagePowerInfo(os, lib, cell);
  PrintPinInfo(os, lib, cell);
  PrintCellTail(os, cell);
}

void PrintOneCellTimingInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell) {
  PrintCellHead(os, cell);
  PrintPinTimingInfo(os, lib, cell);
  PrintCellTail(os, cell);
}

void PrintOneCellPowerInfo(std::ostream& os, cdm::LibertyLib* lib, cdm::LibCell* cell) {
  PrintCellHead(os, cell);
  PrintCellLeakagePowerInfo(os, lib, cell);
  PrintPinPowerInfo(os, lib, cell);
  PrintCellTail(os, cell);
}

}  // namespace

bool PrintOnePinHead(std::ostream& os, cdm::LibertyLib* lib, cdm::LibPort* port) {
  os << "\n";
  const int direction = port->GetDirection();
  if (direction == kInput) {
    os << "  Pin(" << port->Name() << "): in, " << CapText(lib, port->GetCapacitance()) << ", , "
       << CapText(lib, port->GetCapacitance(cdm::RiseFall::rise_, cdm::MinMax::max_)) << ", "
       << CapText(lib, port->GetCapacitance(cdm::RiseFall::fall_, cdm::MinMax::max_)) << ";\n";
    return true;
  }
  if (direction == kOutput || direction == kInout) {
    const std::string limit = CapText(lib, port->GetCapacitanceLimits(cdm::MinMax::max_));
    os << "  Pin(" << port->Name() << "): " << (direction == kOutput ? "out, " : "inout, ")
       << CapText(lib, port->GetCapacitance()) << ", , " << limit << ", " << limit << ";\n";
    return true;
  }
  return false;
}

void PrintOnePinCap(std::ostream& os, cdm::LibertyLib* lib, cdm::LibPort* port) {
  const int direction = port->GetDirection();
  if (direction != kInput && direction != kInout) return;
  const cdm::MinMax* min = cdm::MinMax::min_;
  const cdm::MinMax* max = cdm::MinMax::max_;
  const cdm::RiseFall* rise = cdm::RiseFall::rise_;
  const cdm::RiseFall* fall = cdm::RiseFall::fall_;
  os << "    RISE_CAPACITANCE_RANGE(" << CapText(lib, port->GetCapacitance(rise, min)) << ", "
     << CapText(lib, port->GetCapacitance(rise, max)) << ")\n"
     << "    FALL_CAPACITANCE_RANGE(" << CapText(lib, port->GetCapacitance(fall, min)) << ", "
     << CapText(lib, port->GetCapacitance(fall, max)) << ")\n";
}

void PrintTimingGroupHead(std::ostream& os, cdm::LibertyLib* /*lib*/, cdm::LibPort* port,
                          const std::shared_ptr<cdm::LibTimingAttr>& attr) {
  const std::string related = attr->GetRelatedPinsStr();
  const std::string& pin = port->Name();
  const std::string sense = cdm::to_string(attr->GetTimingSense());
  const auto delay = [&](const char* kind) {
    return "    DELAY: " + related + ", " + pin + ", " + kind + ", " + sense;
  };
  std::string line;
  switch (attr->GetTimingType()) {
    case cdm::TimingType::kClear:
      line = delay("clear");
      break;
    case cdm::TimingType::kCombinational:
    case cdm::TimingType::kDefault:
      line = delay("prop");
      break;
    case cdm::TimingType::kCombinationalFall:
      line = delay("prop_f");
      break;
    case cdm::TimingType::kCombinationalRise:
      line = delay("prop_r");
      break;
    case cdm::TimingType::kPreset:
      line = delay("preset");
      break;
    case cdm::TimingType::kThreeStateDisable:
      line = delay("disable");
      break;
    case cdm::TimingType::kThreeStateDisableFall:
      line = delay("disable_f");
      break;
    case cdm::TimingType::kThreeStateDisableRise:
      line = delay("disable_r");
      break;
    case cdm::TimingType::kThreeStateEnable:
      line = delay("enable");
      break;
    case cdm::TimingType::kThreeStateEnableFall:
      line = delay("enable_f");
      break;
    case cdm::TimingType::kThreeStateEnableRise:
      line = delay("enable_r");
      break;
    case cdm::TimingType::kFallingEdge:
      line = "    SAMPLE: " + related + ", fall, " + pin + ", " + sense;
      break;
    case cdm::TimingType::kRisingEdge:
      line = "    SAMPLE: " + related + ", rise, " + pin + ", " + sense;
      break;
    case cdm::TimingType::kHoldFalling:
      line = "    HOLD: " + related + ", fall" + pin + ", ,";
      break;
    case cdm::TimingType::kHoldRising:
      line = "    HOLD: " + related + ", rise" + pin + ", ,";
      break;
    case cdm::TimingType::kSetupFalling:
      line = "    SETUP: " + pin + ", " + related + ", fall, ,";
      break;
    case cdm::TimingType::kSetupRising:
      line = "    SETUP: " + pin + ", " + related + ", rise, ,";
      break;
    case cdm::TimingType::kRecoveryFalling:
      line = "    RECOV: " + related + ", fall " + pin + ",  ,";
      break;
    case cdm::TimingType::kRecoveryRising:
      line = "    RECOV: " + related + ", rise " + pin + ",  ,";
      break;
    case cdm::TimingType::kRemovalFalling:
      line = "    REMOVAL: " + related + ", fall " + pin + ",  ,";
      break;
    case cdm::TimingType::kRemovalRising:
      line = "    REMOVAL: " + related + ", rise " + pin + ",  ,";
      break;
    case cdm::TimingType::kMinPulseWidth:
      line = "    MPW: " + pin + ",  ,";
      break;
    default:
      return;
  }
  os << line << ", " << attr->GetWhen()->GetFuncStr() << "\n";
}

int PrintCellInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  return WalkLibCells(lib, names,
                      [&os, lib](cdm::LibCell* cell) { PrintOneCellInfo(os, lib, cell); });
}

int PrintCellTimingInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  return WalkLibCells(lib, names,
                      [&os, lib](cdm::LibCell* cell) { PrintOneCellTimingInfo(os, lib, cell); });
}

int PrintCellPowerInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  return WalkLibCells(lib, names,
                      [&os, lib](cdm::LibCell* cell) { PrintOneCellPowerInfo(os, lib, cell); });
}
