// What report_constraint reports: one row per checked constraint (setup and
// hold per path group, then the design rules), each with every endpoint or
// pin it checks, its worst slack and its cost (the sum of its violations).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sta {

class Timer;

struct ConstraintItem {
  std::string name;  // the endpoint or pin (the design for max area)
  double required = 0.0;
  double actual = 0.0;
  double slack = 0.0;  // negative when violated
};

struct ConstraintRow {
  enum class Kind {
    kSetup,
    kHold,
    kMaxTransition,
    kMaxCapacitance,
    kMinCapacitance,
    kMaxFanout,
    kMaxArea
  };
  enum class Measure { kTime, kCapacitance, kCount };
  Kind kind = Kind::kSetup;
  Measure measure = Measure::kTime;
  std::string label;                  // "max_delay/setup ('clk' group)", "max_transition", ...
  std::string group;                  // setup and hold: the path group
  std::vector<ConstraintItem> items;  // worst first, then by name
  double worst_slack = 0.0;
  double cost = 0.0;  // the sum of -slack over the violators, 0 when met
  bool Met() const { return cost <= 0.0; }
};

// The rows of the timer's design (timed already), in the order the report
// prints them: setup rows by group name, hold rows likewise, max transition,
// max capacitance, min capacitance, max fanout, max area. A constraint that
// nothing in the design is checked against has no row.
std::vector<ConstraintRow> ConstraintRows(Timer& timer);

}  // namespace sta
