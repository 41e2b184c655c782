// get_fanin_pins: the logic cone behind a net or pin, as an indented tree.
// The walk goes back one net at a time and across each cell from its output
// to the inputs that reach it; it stops where the database finds no way
// through (a sequential cell, a port, a cell without library data).
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

// The inputs the walk has gone back through, from the root on.
WalkPath path;

}  // namespace

// Prints the cone behind `pin`, one stage of net a call. `current_level`
// counts the stages printed so far; the walk ends when it reaches `level`,
// and a branch ends where it meets an input of its own path (a loop).
void DisplayFaninTree(int current_level, int const& level, cdm::Pin const* pin,
                      std::string indent) {
  if (level == current_level || common::InterruptRequested()) return;
  indent += "    ";
  std::vector<const cdm::Pin*> fanin;
  pin->GetFaninPins(fanin, cdm::kHierFlat);
  if (fanin.empty()) return;
  const int next = current_level + 1;
  for (const cdm::Pin* p : fanin) {
    const std::string name = p->GetFullName();
    if (level == next) {
      msg::Print_Result("%s%s", indent.c_str(), name.c_str());
      continue;
    }
    std::vector<cdm::Pin*> inputs = p->GetOutputInputPins(false);
    if (inputs.empty()) {
      msg::Print_Result("%s%s", indent.c_str(), name.c_str());
      continue;
    }
    for (const cdm::Pin* q : inputs) {
      msg::Print_Result("%s%s <- %s", indent.c_str(), name.c_str(), q->GetFullName().c_str());
      WalkPath::Step step(path, q);
      if (step.Entered()) DisplayFaninTree(next, level, q, indent);
    }
  }
}

int GetFaninPinsCmd::exec() {
  if (!PreReport()) return 1;
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  const int level = getLevel();
  const std::string indent = "    ";
  for (const std::string& object : getObjectList()) {
    const cdm::Pin* start = cdm::DbManager::FindPin(object);
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
    // A net without a driver pin (undriven, or tied to a constant) has
    // nothing behind it: the net's own drivers are asked, and there are none.
    std::vector<const cdm::Pin*> fanin;
    if (start)
      start->GetFaninPins(fanin, cdm::kHierFlat);
    else
      net->GetFaninPins(fanin, cdm::kHierFlat);
    // Only the first pin that is printed at the limit or expanded runs at
    // depth 1; every later one runs at depth 0 and shows one stage more.
    int c = 1;
    for (const cdm::Pin* p : fanin) {
      const std::string name = p->GetFullName();
      if (level == c) {
        msg::Print_Result("%s%s", indent.c_str(), name.c_str());
        c = 0;
        continue;
      }
      std::vector<cdm::Pin*> inputs = p->GetOutputInputPins(false);
      if (inputs.empty()) {
        msg::Print_Result("%s%s", indent.c_str(), name.c_str());
        continue;
      }
      for (const cdm::Pin* q : inputs) {
        msg::Print_Result("%s%s <- %s", indent.c_str(), name.c_str(), q->GetFullName().c_str());
        WalkPath::Step step(path, q);
        if (step.Entered()) DisplayFaninTree(c, level, q, indent);
      }
      c = 0;
    }
    msg::InsertEmptyLine();
    if (common::InterruptRequested()) return 1;  // Ctrl-C: stop between objects
  }
  return 0;
}
