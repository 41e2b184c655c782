// The driving cell table of report_port: per input port with a driving
// cell, the cells of each edge, the multipliers and the flags, each in the
// notation "min/max" with "--" for a missing side.
#include <algorithm>
#include <sstream>
#include <string>

#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/sta/SdcMgr.h"
#include "port/ReportPortSections.h"

namespace {

const char* const kNoMin = "-- ";
const char* const kDivider = "/";
const char* const kNoMax = " --";
const char* const kNone = "--";

// "min/max" of two texts, a missing one shown as "--"; with `merge_equal`
// two equal texts show once.
std::string MinMaxText(const std::string& min, const std::string& max, bool merge_equal) {
  if (min.empty() && max.empty()) return kNone;
  if (min.empty()) return kNoMin + std::string(kDivider) + max;
  if (max.empty()) return min + kDivider + kNoMax;
  if (merge_equal && min == max) return min;
  return min + kDivider + max;
}

std::string CellName(const sta::sdc::DriveCell* cell) {
  return cell ? cell->getLibCell()->Name() : std::string();
}

// A multiplier other than 1 in fixed notation; empty for 1.
std::string FactorText(float factor, int digits) {
  if (factor == 1.0f) return std::string();
  std::ostringstream text;
  text.setf(std::ios::fixed, std::ios::floatfield);
  text.precision(std::max(digits, 0));
  text << factor;
  return text.str();
}

}  // namespace

void ReportDrivingCell(sta::sdc::SdcMgr* sdc, cdm::LibertyLib* /*lib*/, PortList& ports,
                       int digits) {
  const cdm::RiseFall* rise = cdm::RiseFall::rise_;
  const cdm::RiseFall* fall = cdm::RiseFall::fall_;
  const cdm::MinMax* min = cdm::MinMax::min_;
  const cdm::MinMax* max = cdm::MinMax::max_;
  ReportTable table;
  AddPortColumns(table, {{"Input Port", ""},
                         {"Rise(min/max)", "Driving Cell"},
                         {"Fall(min/max)", "Driving Cell"},
                         {"Mult(min/max)", ""},
                         {"Attrs(min/max)", ""}});
  for (cdm::Port* port : ports) {
    const sta::sdc::InputDrive* drive = sdc->getInputDrive(port);
    if (!drive) continue;
    const sta::sdc::DriveCell* rise_min = drive->getDriveCell(rise, min);
    const sta::sdc::DriveCell* fall_min = drive->getDriveCell(fall, min);
    const sta::sdc::DriveCell* rise_max = drive->getDriveCell(rise, max);
    const sta::sdc::DriveCell* fall_max = drive->getDriveCell(fall, max);
    // The multipliers and flags are those of the rise edge.
    const float factor_min = drive->getDriveCellFactor(rise, min);
    const float factor_max = drive->getDriveCellFactor(rise, max);
    const bool dont_scale_min = drive->getDriveCellDontScale(rise, min);
    const bool dont_scale_max = drive->getDriveCellDontScale(rise, max);
    const bool no_dr_min = drive->getDriveCellNoDR(rise, min);
    const bool no_dr_max = drive->getDriveCellNoDR(rise, max);
    if (!rise_min && !fall_min && !rise_max && !fall_max) continue;

    table.InsertValue("Input Port", port->Name());
    table.InsertValue("Rise(min/max)", MinMaxText(CellName(rise_min), CellName(rise_max), true),
                      "Driving Cell");
    table.InsertValue("Fall(min/max)", MinMaxText(CellName(fall_min), CellName(fall_max), true),
                      "Driving Cell");
    if (factor_min == 1.0f && factor_max == 1.0f)
      table.InsertValue("Mult(min/max)", kNoMin + std::string(kDivider) + kNoMax);
    else
      table.InsertValue("Mult(min/max)", MinMaxText(FactorText(factor_min, digits),
                                                    FactorText(factor_max, digits), false));
    std::string attrs;
    for (const auto& [flag, letter] :
         {std::make_pair(dont_scale_min, "d"), std::make_pair(no_dr_min, "n"),
          std::make_pair(dont_scale_max, "D"), std::make_pair(no_dr_max, "N")}) {
      if (!flag) continue;
      if (!attrs.empty()) attrs += ",";
      attrs += letter;
    }
    table.InsertValue("Attrs(min/max)", attrs);
  }
  table.PrintTable(0, true);
}
