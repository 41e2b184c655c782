// The power of the current design: every leaf instance's internal,
// switching and leakage power, summed by group (sequential, combinational,
// macro, pad) and up the hierarchy, and the switching of every driven net.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "hostapi/cdm/PowerRecords.h"
#include "power/CellPower.h"

namespace cdm {
class Cell;
class Design;
class LibCell;
class Net;
class Netlist;
}  // namespace cdm

namespace sta {
class Timer;
}

namespace power {

class PowerAnalysis {
 public:
  enum Group { kSequential = 0, kCombinational = 1, kMacro = 2, kPad = 3 };
  static Group GroupOf(const cdm::LibCell* lib_cell);

  // `timer` must be up to date with the current design.
  PowerAnalysis(const sta::Timer& timer, ActivityOf activity);

  // Works the whole design out; `keep_nets` keeps each driven net's
  // switching record for NetRecord. False without a current design.
  bool Run(bool keep_nets);

  const cdm::PowerResult& Total() const { return total_; }
  const cdm::PowerResult& GroupPower(Group group) const { return groups_[group]; }
  // A leaf instance's power, or the sum of the leaves below a
  // hierarchical one.
  cdm::PowerResult InstancePower(const cdm::Cell* cell) const;
  // The switching record of the flat net of `net`: its driver's figures
  // (toggle rate per nanosecond). False for a net nothing drives.
  bool NetRecord(const cdm::Net* net, cdm::SwitchPowerRecord& record) const;

 private:
  void RunNetlist(const cdm::Netlist* netlist, CellPower& cells, bool keep_nets);
  void AddInputNets(const cdm::Design* design);
  static cdm::SwitchPowerRecord Record(const DrivenNet& net);

  const sta::Timer& timer_;
  ActivityOf activity_;
  cdm::PowerResult total_;
  cdm::PowerResult groups_[4];
  // Per netlist, per cell index: the cell's power (hierarchical cells
  // hold the sum below them once Run is done).
  std::unordered_map<const cdm::Netlist*, std::vector<cdm::PowerResult>> cells_;
  std::unordered_map<uint32_t, cdm::SwitchPowerRecord> nets_;  // by flat net id
  std::vector<DrivenNet> driven_;
};

}  // namespace power
