// The host's side of the constraint store of one design: what the SDC
// commands set, kept on the design's objects and found again by name when
// the netlist changes. SdcMgr is the face that reports read; the commands
// and the timer use this class.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "hostapi/cdm/Selectors.h"
#include "hostapi/sta/Clock.h"
#include "hostapi/sta/InputDrive.h"
#include "hostapi/sta/PortDelay.h"
#include "hostapi/sta/PortExtLoad.h"
#include "sdc/CellConstraints.h"
#include "sdc/ClockGroups.h"
#include "sdc/DesignConstraints.h"
#include "sdc/DisabledTiming.h"
#include "sdc/InterClockUncertainty.h"
#include "sdc/NetConstraints.h"
#include "sdc/PathException.h"
#include "sdc/PinConstraints.h"
#include "sdc/PortConstraints.h"
#include "sdc/RecordTable.h"
#include "sdc/SdcUnits.h"

namespace cdm {
class Design;
class Cell;
class LibCell;
class LibPort;
class Net;
class Pin;
class Port;
}  // namespace cdm

namespace sta::sdc {

// Which of min and max a command sets: -min, -max, or (neither) both.
enum class MinMaxAll { kMin, kMax, kAll };
bool Covers(MinMaxAll which, const cdm::MinMax* minmax);

// What set_driving_cell gives, before it is put on a port.
struct DrivingCellSpec {
  cdm::LibCell* lib_cell = nullptr;
  cdm::LibPort* from_port = nullptr;
  cdm::LibPort* to_port = nullptr;
  float multiply_by = 1.0f;
  bool dont_scale = false;
  bool no_design_rule = false;
  std::optional<float> input_transition[2];
};

class SdcStore {
 public:
  explicit SdcStore(std::string design_name);
  ~SdcStore();
  SdcStore(const SdcStore&) = delete;
  SdcStore& operator=(const SdcStore&) = delete;

  // Brings the store up to date with the database: after a change of the
  // netlist it finds its objects again by name and drops, with a warning
  // each, the constraints whose objects are gone. False when the store's
  // design is not the current design: the store then answers nothing.
  bool Sync();
  // The design the store belongs to, when it is the current one.
  cdm::Design* GetDesign();
  const std::string& DesignName() const { return design_name_; }

  SdcUnits& Units() { return units_; }
  const SdcUnits& Units() const { return units_; }

  // Ports, by the port object. Find gives null when nothing is set.
  PortConstraints* FindPort(const cdm::Port* port);
  PortConstraints& Port(cdm::Port* port);
  // Pins, by the pin object (a top port's pin or a cell pin).
  PinConstraints* FindPin(const cdm::Pin* pin);
  PinConstraints& Pin(cdm::Pin* pin);
  // Nets (set_load on a net) and hierarchical cells (set_wire_load_model).
  NetConstraints* FindNet(const cdm::Net* net);
  NetConstraints& Net(cdm::Net* net);
  CellConstraints* FindCell(const cdm::Cell* cell);
  CellConstraints& Cell(cdm::Cell* cell);
  // Every record, for writing and for the timer, in the order the first
  // constraint was set on each object.
  std::vector<std::pair<cdm::Port*, PortConstraints*>> PortRecords();
  std::vector<std::pair<cdm::Pin*, PinConstraints*>> PinRecords();
  std::vector<std::pair<cdm::Net*, NetConstraints*>> NetRecords();
  std::vector<std::pair<cdm::Cell*, CellConstraints*>> CellRecords();

  // Drives and loads of input and output ports.
  void SetDriveResistance(cdm::Port* port, const cdm::RiseFallBoth* edges, MinMaxAll which,
                          float ohms);
  void SetInputSlew(cdm::Port* port, const cdm::RiseFallBoth* edges, MinMaxAll which,
                    float seconds);
  void SetDrivingCell(cdm::Port* port, const cdm::RiseFallBoth* edges, MinMaxAll which,
                      const DrivingCellSpec& spec);
  // set_load: pin capacitance, or wire capacitance with `wire`.
  void SetPortLoad(cdm::Port* port, const cdm::RiseFallBoth* edges, MinMaxAll which, bool wire,
                   float farads);
  void SetPortFanout(cdm::Port* port, MinMaxAll which, float fanout);
  bool HasDrivingCell() const { return driving_cells_ > 0; }

  // Clocks, in the order defined. MakeClock gives the clock of that name,
  // made when missing, with its definition cleared (a redefinition keeps
  // the object, so that delays relative to it stay).
  const std::vector<Clock*>& Clocks() const { return clocks_; }
  Clock* FindClock(const std::string& name) const;
  Clock* MakeClock(const std::string& name);
  void SetClockWaveform(Clock* clock, float period, std::vector<float> waveform);
  void SetClockSources(Clock* clock, const std::vector<cdm::Pin*>& sources, bool add);
  void SetGeneratedClock(Clock* clock, cdm::Pin* source, const Clock* master, int divide_by,
                         int multiply_by, bool invert);
  void SetGeneratedShape(Clock* clock, std::vector<int> edges, std::vector<float> edge_shifts,
                         float duty_cycle, bool combinational);
  void SetClockComment(Clock* clock, std::string comment);
  void SetClockPropagated(Clock* clock, bool propagated);
  void SetClockUncertainty(Clock* clock, MinMaxAll setup_hold, float seconds);
  void SetClockLatency(Clock* clock, bool source, const cdm::RiseFallBoth* edges, MinMaxAll which,
                       float seconds);
  void SetClockTransition(Clock* clock, const cdm::RiseFallBoth* edges, MinMaxAll which,
                          float seconds);
  // Removes a clock, and with it the delays relative to it and its place in
  // clock groups and inter-clock uncertainties.
  void RemoveClock(Clock* clock);
  std::vector<InterClockUncertainty>& InterClockUncertainties() { return inter_clock_; }
  // The clocks defined on a pin.
  std::vector<Clock*> ClocksAt(const cdm::Pin* pin) const;

  // set_input_delay / set_output_delay on a pin. Without `add`, the delays
  // of the pin relative to other clock edges or reference pins go.
  void SetPortDelay(bool input, cdm::Pin* pin, const ClockEdge* edge, cdm::Pin* ref_pin,
                    const cdm::RiseFallBoth* edges, MinMaxAll which, float seconds, bool add,
                    bool network_latency_included, bool source_latency_included);

  DesignConstraints& Design() { return design_; }
  const DesignConstraints& DesignRef() const { return design_; }
  std::vector<PathException>& Exceptions() { return exceptions_; }
  std::vector<ClockGroups>& ClockGroupList() { return clock_groups_; }
  std::vector<DisabledTiming>& Disabled() { return disabled_; }
  // set_hierarchy_separator; '/' by default.
  char HierarchySeparator() const { return separator_; }
  void SetHierarchySeparator(char separator) { separator_ = separator; }

  // Counts every change of the constraints, so that the timer knows when to
  // compute again.
  uint64_t Generation() const { return generation_; }
  void NoteChange() { ++generation_; }

 private:
  void Relink(cdm::Design* design);
  void RelinkClocks(cdm::Design* design);
  void RelinkPorts(cdm::Design* design);
  void RelinkPins(cdm::Design* design);
  void RelinkNetsAndCells();
  void RelinkObjects(std::vector<SdcObject>& objects, const char* what);
  void RelinkExceptions();
  void RelinkDisabled();
  void RelinkWireLoads(const cdm::WireLoad* (&models)[2], const char* kind,
                       const std::string& name);
  void RetireClock(Clock* clock);
  void Dropped(const std::string& kind, const std::string& name, const std::string& what);
  // `what` on an object that stays is dropped, as a `part_kind` it needs
  // (its clock, reference pin, library cell) is gone.
  void DroppedPart(const std::string& what, const std::string& kind, const std::string& name,
                   const std::string& part_kind, const std::string& part_name);

  std::string design_name_;
  uint64_t db_generation_ = 0;  // of the database when last linked; 0 never
  bool active_ = false;
  uint64_t generation_ = 1;
  SdcUnits units_;
  DesignConstraints design_;
  RecordTable<cdm::Port, PortConstraints> ports_;
  RecordTable<cdm::Pin, PinConstraints> pins_;
  RecordTable<cdm::Net, NetConstraints> nets_;
  RecordTable<cdm::Cell, CellConstraints> cells_;
  std::vector<InterClockUncertainty> inter_clock_;
  std::vector<std::unique_ptr<Clock>> owned_clocks_;
  std::vector<Clock*> clocks_;
  std::unordered_map<std::string, Clock*> clock_index_;
  std::vector<PathException> exceptions_;
  std::vector<ClockGroups> clock_groups_;
  std::vector<DisabledTiming> disabled_;
  char separator_ = '/';
  int driving_cells_ = 0;  // ports with a driving cell
};

}  // namespace sta::sdc
