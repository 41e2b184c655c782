// get_fanout_pins: the logic cone ahead of a net or pin, as an indented
// tree. The walk goes forward one net at a time and across each cell from
// an input to the first output it reaches; it stops where the database
// finds no way through (a sequential cell, a port, a cell without library
// data).
#include <string>
#include <vector>

#include "cmd/TclCmd.h"
#include "connectivity/WalkPath.h"
#include "format/ReportMgr.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cmd/Interrupt.h"
#include "hostapi/msg/Msg.h"

namespace {

// The outputs the walk has gone forward through, from the root on.
WalkPath path;

}  // namespace

// Prints the cone ahead of `pin`, one stage of net a call. `current_level`
// counts the stages printed so far; the walk ends when it reaches `level`,
// and a branch ends where it meets an output of its own path (a loop).
void DisPlayFanoutTree(int current_level, int const& level, cdm::Pin* pin, std::string indent) {
  if (level == current_level || common::InterruptRequested()) return;
  indent += "    ";
  std::vector<cdm::Pin*> fanout;
  pin->GetFanoutPins(fanout, cdm::kHierFlat);
  if (fanout.empty()) return;
  const int next = current_level + 1;
  for (cdm::Pin* p : fanout) {
    const std::string name = p->GetFullName();
    cdm::Pin* q = level == next ? nullptr : p->GetInputOutputPin(false);
    if (!q) {
      msg::Print_Result("%s%s", indent.c_str(), name.c_str());
      continue;
    }
    msg::Print_Result("%s%s -> %s", indent.c_str(), name.c_str(), q->GetFullName().c_str());
    WalkPath::Step step(path, q);
    if (step.Entered()) DisPlayFanoutTree(next, level, q, indent);
  }
}

int GetFanoutPinsCmd::exec() {
  if (!PreReport()) return 1;
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  const int level = getLevel();
  if (level < 1) return 0;
  const std::string indent = "    ";
  for (const std::string& object : getObjectList()) {
    cdm::Pin* start = cdm::DbManager::FindPin(object);
    const cdm::Net* net = nullptr;
    if (!start) {
      net = cdm::DbManager::FindNet(object);
      if (!net) {
        msg::ReportMsg(COMMON_001, object.c_str(), design->Name().c_str());
        continue;
      }
      start = net->GetCurrentDriverPin();
    }
    msg::Print_Result("root:%s", object.c_str());
    WalkPath::Step root(path, start);
    // A net without a driver pin (undriven, or tied to a constant) still
    // has its loads: the net itself is asked for them.
    std::vector<cdm::Pin*> fanout;
    if (start)
      start->GetFanoutPins(fanout, cdm::kHierFlat);
    else
      net->GetFanoutPins(fanout, cdm::kHierFlat);
    for (cdm::Pin* p : fanout) {
      const std::string name = p->GetFullName();
      cdm::Pin* q = level == 1 ? nullptr : p->GetInputOutputPin(false);
      if (!q) {
        msg::Print_Result("%s%s", indent.c_str(), name.c_str());
        continue;
      }
      msg::Print_Result("%s%s -> %s", indent.c_str(), name.c_str(), q->GetFullName().c_str());
      WalkPath::Step step(path, q);
      if (step.Entered()) DisPlayFanoutTree(1, level, q, indent);
    }
    msg::InsertEmptyLine();
    if (common::InterruptRequested()) return 1;  // Ctrl-C: stop between objects
  }
  return 0;
}
