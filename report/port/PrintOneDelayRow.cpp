// One row of the input or output delay table: the delay per edge and
// min/max, the clock (with "(f)" for its falling edge) and the reference pin.
#include <string>
#include <utility>

#include "hostapi/cdm/Pin.h"
#include "hostapi/sta/PortDelay.h"
#include "port/ReportPortSections.h"

void PrintOneDelayRow(ReportTable& table, const cdm::LibUnits& units,
                      const sta::sdc::PortDelay* delay, const std::string& group, int digits) {
  const cdm::RiseFallMinMax& values = delay->getDelays();
  const std::pair<const char*, std::pair<const cdm::RiseFall*, const cdm::MinMax*>> cells[] = {
      {"Min Rise", {cdm::RiseFall::rise_, cdm::MinMax::min_}},
      {"Min Fall", {cdm::RiseFall::fall_, cdm::MinMax::min_}},
      {"Max Rise", {cdm::RiseFall::rise_, cdm::MinMax::max_}},
      {"Max Fall", {cdm::RiseFall::fall_, cdm::MinMax::max_}},
  };
  for (const auto& [column, corner] : cells) {
    if (values.hasValue(corner.first, corner.second))
      table.InsertValue(
          column, units.time.asString(values.value(corner.first, corner.second), digits), group);
  }
  // A delay set without -clock has no clock to show.
  if (const sta::sdc::Clock* clock = delay->getClock()) {
    std::string text = clock->Name();
    if (delay->getClockEdge()->getRiseFall() == cdm::RiseFall::fall_) text += "(f)";
    table.InsertValue("Related Clock", text);
  }
  if (const cdm::Pin* pin = delay->getRefPin())
    table.InsertValue("Related Pin", pin->GetFullName());
}
