#include "search/TimingInputs.h"

#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "sdc/SdcStore.h"
#include "search/ClockNetwork.h"
#include "search/Sensitization.h"

namespace sta {
namespace {

const cdm::RiseFall* EdgeOf(int rf) {
  return rf == 0 ? cdm::RiseFall::rise_ : cdm::RiseFall::fall_;
}
const cdm::MinMax* MinOrMax(int mm) {
  return mm == 0 ? cdm::MinMax::min_ : cdm::MinMax::max_;
}

const sdc::PortConstraints* PortRecord(sdc::SdcStore* store, const cdm::Pin* port_pin) {
  if (!store || !port_pin || !port_pin->IsTopPortPin()) return nullptr;
  return store->FindPort(port_pin->GetPort());
}

}  // namespace

float TimingInputs::PortLoad(const cdm::Pin* port_pin, int rf, int mm) const {
  const sdc::PortConstraints* record = PortRecord(store_, port_pin);
  if (!record || !record->load) return 0.0f;
  return record->load->getPinCap(EdgeOf(rf), MinOrMax(mm)).value_or(0.0f) +
         record->load->getWireCap(EdgeOf(rf), MinOrMax(mm)).value_or(0.0f);
}

bool TimingInputs::InputSlew(const cdm::Pin* port_pin, int rf, int mm, float& slew) const {
  const sdc::PortConstraints* record = PortRecord(store_, port_pin);
  if (!record || !record->drive) return false;
  bool exists = false;
  record->drive->getSlew(EdgeOf(rf), MinOrMax(mm), slew, exists);
  return exists;
}

bool TimingInputs::DriveResistance(const cdm::Pin* port_pin, int rf, int mm, float& ohms) const {
  const sdc::PortConstraints* record = PortRecord(store_, port_pin);
  if (!record || !record->drive) return false;
  bool exists = false;
  record->drive->driveResistance(EdgeOf(rf), MinOrMax(mm), ohms, exists);
  return exists;
}

const sdc::DriveCell* TimingInputs::DrivingCell(const cdm::Pin* port_pin, int rf, int mm) const {
  const sdc::PortConstraints* record = PortRecord(store_, port_pin);
  if (!record || !record->drive) return nullptr;
  return record->drive->getDriveCell(EdgeOf(rf), MinOrMax(mm));
}

bool TimingInputs::IdealClockSlew(uint32_t vertex, int rf, int mm, float& slew) const {
  return clocks_.IdealSlew(vertex, rf, mm, slew);
}

bool TimingInputs::EdgeDisabled(uint32_t edge) const {
  return sensitization_.EdgeDisabled(edge);
}

}  // namespace sta

namespace sta {

void TimingInputs::WireParasitics(const cdm::Pin* driver, int mm, float& cap, float& res,
                                  bool& whole) const {
  DelayCalcInputs::WireParasitics(driver, mm, cap, res, whole);
  const cdm::Net* net = driver->GetNet();
  const sdc::NetConstraints* record = store_ && net ? store_->FindNet(net) : nullptr;
  if (!record || !record->wire_cap[mm]) return;
  cap = *record->wire_cap[mm];
  whole = record->subtract_pin_load;
}

}  // namespace sta
