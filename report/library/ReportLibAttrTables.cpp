// Legends of report_lib and its one-line-per-cell tables: cell attributes,
// timing arcs, power attributes.
#include <iomanip>

#include "library/ReportLibSections.h"

namespace {

const char* const kArcTypeList[] = {
    "       nih - noise_immunity_high",
    "       nil - noise_immunity_low",
    "      niah - noise_immunity_above_high",
    "      nibl - noise_immunity_below_low",
    "       hnh - hyperbolic_noise_high",
    "       hnl - hyperbolic_noise_low",
    "      hnah - hyperbolic_noise_above_high",
    "      hnbl - hyperbolic_noise_below_low",
    "      ssch - steady_state_current_high",
    "      sscl - steady_state_current_low",
    "      ssct - steady_state_current_tristate",
    "      pnwh - propagated_noise_width_high",
    "      pnwl - propagated_noise_width_low",
    "      pnhh - propagated_noise_height_high",
    "      pnhl - propagated_noise_height_low",
    "     pnwah - propagated_noise_width_above_high",
    "     pnwbl - propagated_noise_width_below_low",
    "     pnhah - propagated_noise_height_above_high",
    "     pnhbl - propagated_noise_height_below_low",
    "     ccsnf - ccs noise first stage",
    "     ccsnl - ccs noise last stage",
    "        ub - unbuffered",
    "       pgt - has_pass_gate",
    "      ipgt - is_pass_gate",
};

const char* const kAttributeList[] = {
    "       af - active falling",
    "       ah - active high",
    "       al - active low",
    "       ar - active rising",
    "        b - black box (function unknown)",
    "       ce - clock enable",
    "       cg - clock gating integrated cell",
    "    short - has shorted pin",
    "       ub - unbuffered",
    "      pgt - pass gate",
    "      ctl - has CTL test model",
    "        d - dont_touch",
    "      iso - isolation cell",
    "  clk_iso - clock isolation cell",
    "       ls - level shifter",
    "      dls - differential level shifter",
    "       mo - map_only",
    "     1p0g - power only, no ground",
    "     0p1g - ground only, no power",
    "     0p0g - no power/ground",
    "        p - preferred",
    "      pad - pad cell",
    "       hp - hold_preferred",
    "     pwrg - power gating cell",
    "        r - removable",
    "        s - statetable",
    "      sa0 - dont_fault stuck-at-0",
    "      sa1 - dont_fault stuck-at-1",
    "     sa01 - dont_fault both stuck-at-0 and stuck-at-1",
    "       sz - use_for_size_only",
    "      soi - silicon on insulator",
    "        t - test cell. t(scan_type) as",
    "          t(mux_ff) - muxed flip-flop",
    "          t(mux_ld) - muxed latch",
    "          t(clk_scan) - clocked scan",
    "          t(clk_scan_ld) - clocked scan latch",
    "          t(lssd_dld) - double latch LSSD",
    "          t(lssd_sld) - single latch LSSD",
    "          t(lssd_clk) - clocked LSSD",
    "          t(lssd_auxclk) - auxiliary clock LSSD",
    "          t(lssd_se) - scan enabled LSSD",
    "        u - dont_use",
    "      udp - usable for datapath generators",
    "      ufc - user_function_class. ufc(type) as",
    "          ufc(u) - user-defined",
    "          ufc(a) - automatically generated",
    "      ccs - composite current source",
    "    c_ccs - compact ccs timing modeling",
    "     ccsn - ccs noise data modeling",
    "     ccsp - ccs power data modeling",
    "     recv - receiver model",
    "      lvf - lvf modeling",
    "      imc - macro cell",
    "switch_cg - switch cell (coarse grain)",
    "      ret - retention cell",
    " ret(zpr) - zero pin retention cell",
    "       ao - always on cell",
    "     gicg - generic integrated clock gating",
    "       va - variation-aware ccs timing modeling",
    "      val - variation-aware ccs leakage power modeling",
    "      fil - filler cell",
    "      tap - tap cell",
    "    decap - decap cell",
    "      pll - pll cell",
    "      mem - memory cell",
    "      adt - antenna diode type. adt(type) as",
    "          adt(pg) - power_and_ground",
    "          adt(p) - power",
    "          adt(g) - ground",
};

// The first pin attribute line is written by each legend: their indents differ.
const char* const kPinAttributeRest[] = {
    "      lse - level shifter enable pin", "     isoe - isolation cell enable pin",
    "     scmr - standard cell main rail",  "    short - shorted pin",
    "       uc - unconnected pin",
};

template <size_t N>
void PrintLines(std::ostream& os, const char* const (&lines)[N]) {
  for (const char* line : lines) os << line << "\n";
}

// The unate, fall and rise words of an arc, by its timing sense.
const char* UnateWord(int sense) {
  return sense == 0 ? "pos unate" : sense == 1 ? "neg unate" : "non unate";
}
const char* FallWord(int sense) {
  return sense == 0 ? "fall to fall" : sense == 1 ? "rise to fall" : "non to fall";
}
const char* RiseWord(int sense) {
  return sense == 0 ? "rise to rise" : sense == 1 ? "fall to rise" : "non to rise";
}

}  // namespace

void PrintCellPinAttrList(std::ostream& os) {
  os << "\nComponents:\n    Attributes:\n";
  PrintLines(os, kAttributeList);
  os << "\n\nPin Attributes:\n"
     << "           ao - always on pin\n";
  PrintLines(os, kPinAttributeRest);
  os << "\n";
}

void PrintCellAndArcTypeAttrList(std::ostream& os) {
  os << "Components:\n    Arc Types:\n";
  PrintLines(os, kArcTypeList);
  os << "\n    Attributes:\n";
  PrintLines(os, kAttributeList);
  os << "\nPin Attributes:\n"
     << "       ao - always on pin\n";
  PrintLines(os, kPinAttributeRest);
  os << "\n";
}

std::string GetCellAttibutes(const cdm::LibCell* cell) {
  std::string text;
  if (cell->IsBlackBox()) text += "b,";
  if (cell->IsClockGate()) text += "cg,";
  if (cell->DontTouch()) text += "d,";
  if (cell->DontUse()) text += "u,";
  if (!text.empty()) text.pop_back();
  return text;
}

void PrintCellAttrInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  const std::string& swap_mode = lib->GetInPlaceSwapMode();
  if (swap_mode == "match_footprint") {
    os << "   Cell                Footprint    Attributes\n"
       << "   -------------------------------------------\n";
    WalkLibCells(lib, names, [&os](cdm::LibCell* cell) {
      os << "   " << std::left << std::setw(20) << cell->Name() << std::string(16, ' ')
         << GetCellAttibutes(cell) << "\n";
    });
  } else if (swap_mode.empty()) {
    os << "   Cell      Attributes\n"
       << "   ------------------------------\n";
    WalkLibCells(lib, names, [&os](cdm::LibCell* cell) {
      os << "   " << std::left << std::setw(20) << cell->Name() << GetCellAttibutes(cell) << "\n";
    });
  }
}

std::string GetArcTypeSense(const cdm::LibTimingArcSet* arc) {
  const int sense = static_cast<int>(arc->GetTimingSense());
  const std::string unate = UnateWord(sense);
  const std::string fall = FallWord(sense);
  const std::string rise = RiseWord(sense);
  switch (arc->GetTimingType()) {
    case cdm::TimingType::kClear:
      return "clear " + unate;
    case cdm::TimingType::kCombinational:
    case cdm::TimingType::kDefault:
      return unate;
    case cdm::TimingType::kCombinationalFall:
      return fall;
    case cdm::TimingType::kCombinationalRise:
      return rise;
    case cdm::TimingType::kFallingEdge:
      return "falling edge";
    case cdm::TimingType::kHoldFalling:
      return "hold falling";
    case cdm::TimingType::kHoldRising:
      return "hold rising";
    case cdm::TimingType::kMinPulseWidth:
      return "min pulse width";
    case cdm::TimingType::kPreset:
      return "preset " + unate;
    case cdm::TimingType::kRecoveryFalling:
      return "recovery falling";
    case cdm::TimingType::kRecoveryRising:
      return "recovery rising";
    case cdm::TimingType::kRemovalFalling:
      return "removal falling";
    case cdm::TimingType::kRemovalRising:
      return "removal rising";
    case cdm::TimingType::kRisingEdge:
      return "rising edge";
    case cdm::TimingType::kSetupFalling:
      return "setup falling";
    case cdm::TimingType::kSetupRising:
      return "setup rising";
    case cdm::TimingType::kSkewFalling:
      return "skew falling";
    case cdm::TimingType::kSkewRising:
      return "skew rising";
    case cdm::TimingType::kThreeStateDisable:
      return "3_state_disable " + unate;
    case cdm::TimingType::kThreeStateDisableFall:
      return "3_state_disable " + fall;
    case cdm::TimingType::kThreeStateDisableRise:
      return "3_state_disable " + rise;
    case cdm::TimingType::kThreeStateEnable:
      return "3_state_enable " + unate;
    case cdm::TimingType::kThreeStateEnableFall:
      return "3_state_enable " + fall;
    case cdm::TimingType::kThreeStateEnableRise:
      return "3_state_enable " + rise;
    default:
      return "";
  }
}

void PrintCellAttrTimingArcInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  os << "                            Arc                   Arc Pins\n"
     << "   Cell      Attributes    #  Sense/Type      From        To         When         Id\n"
     << "   ----------------------------------------------------------------------------------"
        "------\n";
  WalkLibCells(lib, names,
               [&os, lib](cdm::LibCell* cell) { PrintOneCellAttrTimingArcInfo(os, lib, cell); });
}

void PrintOneCellAttrTimingArcInfo(std::ostream& os, cdm::LibertyLib* /*lib*/, cdm::LibCell* cell) {
  const std::string& name = cell->Name();
  const int pad = 23 - static_cast<int>(name.size());
  os << "   " << name << std::setw(pad > 0 ? pad : 0) << "   " << GetCellAttibutes(cell);
  if (cell->GetTimingArcSetCout() == 0) {
    os << "\n";
    return;
  }
  int number = 0;
  for (const cdm::LibTimingArcSet* arc : cell->GetTimingArcSets()) {
    if (number > 0) os << std::string(26, ' ');
    os << std::right << std::setw(2) << number << "  " << std::left << std::setw(16)
       << GetArcTypeSense(arc) << " " << std::left << std::setw(11) << arc->GetFromPort()->Name()
       << " " << std::left << std::setw(10) << arc->GetToPort()->Name() << " " << arc->GetWhenStr()
       << "\n";
    ++number;
  }
}

void PrintCellAttrPowerInfo(std::ostream& os, cdm::LibertyLib* lib, const CellNames& names) {
  os << "Power Information:\n"
     << "    Attributes:\n"
     << "       a - average power specification\n"
     << "      dc - dynamic current\n"
     << "       i - internal power\n"
     << "      ip - intrinsic parasitic\n"
     << "       l - leakage power\n"
     << "      lc - leakage current\n"
     << "      rf - rise and fall power specification\n"
     << "      va - cell_based variation-aware leakage current\n"
     << "                            Power\n"
     << "   Cell          #  Attr    Toggling pin   source of path  When            Mode\n"
     << "   ---------------------------------------------------------------------------------"
        "--------------\n";
  WalkLibCells(lib, names,
               [&os, lib](cdm::LibCell* cell) { PrintOneCellAttrPowerInfo(os, lib, cell); });
  os << "\n";
}

void PrintOneCellAttrPowerInfo(std::ostream& os, cdm::LibertyLib* /*lib*/, cdm::LibCell* cell) {
  os << "   " << std::left << std::setw(13) << cell->Name();
  int row = 0;
  if (cell->HasLeakagePowers()) {
    os << " " << std::left << std::setw(3) << 0 << "l\n";
    row = 1;
    for (const auto& leakage : cell->GetLeakagePowers()) {
      os << std::string(16, ' ') << std::left << std::setw(3) << row << "l" << std::string(38, ' ')
         << leakage->GetWhenStr() << "\n";
      ++row;
    }
  }
  if (cell->GetInternalPowers().empty()) return;
  std::unique_ptr<cdm::Iterator<cdm::LibPort>> ports(cell->LibPortIter());
  while (ports->HasNext()) {
    cdm::LibPort* port = ports->Next();
    for (const auto& power : port->GetPowerAttrs()) {
      std::string attr = "i";
      if (power->HasFallModel() && power->HasRiseModel()) {
        attr += ", rf";
      } else if (power->HasRiseModel()) {
        attr += ", r";
      } else if (power->HasFallModel()) {
        attr += ", f";
      }
      os << std::string(16, ' ') << std::left << std::setw(3) << row << std::left << std::setw(8)
         << attr << std::left << std::setw(15) << port->Name() << std::left << std::setw(16)
         << power->GetRelatedPinsStr() << power->GetWhenStr() << "\n";
      ++row;
    }
  }
}
