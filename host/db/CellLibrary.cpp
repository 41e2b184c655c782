// What the design objects ask of the library behind a cell. Interim: the
// library classes are not in yet, so every cell reads as having none.
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/HostServices.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"

namespace cdm {

bool Cell::IsConstCell() const {
  return false;
}
bool Cell::IsGTechCell() const {
  return false;
}

float Pin::Capacitance(const RiseFall*, const MinMax*) const {
  return 0.0f;
}
Pin* Pin::GetInputOutputPin(bool) const {
  return nullptr;
}
std::vector<Pin*> Pin::GetOutputInputPins(bool) const {
  return {};
}

void Net::NetCapAndRes(const OperatingConditions*, float& wire_cap, float& resistance,
                       const MinMax*, HierarchyMode) const {
  wire_cap = 0.0f;
  resistance = 0.0f;
}

bool DbManager::HasUnmappedGtechCell(const Design*) {
  return false;
}

}  // namespace cdm

namespace common {
void EnsureGtechReportReady(cdm::Design*) {}
}  // namespace common
