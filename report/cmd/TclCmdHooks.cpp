#include "cmd/TclCmd.h"

#include "hostapi/msg/Msg.h"

// Hooks around exec: nothing to do before or after, except the option
// check of report_buffer_tree.

int CheckDesignCmd::prevExec() {
  return 0;
}
int GetFaninPinsCmd::prevExec() {
  return 0;
}
int GetFanoutPinsCmd::prevExec() {
  return 0;
}
int ReportAreaCmd::prevExec() {
  return 0;
}
int ReportAttributeCmd::prevExec() {
  return 0;
}
int ReportBusCmd::prevExec() {
  return 0;
}
int ReportCellCmd::prevExec() {
  return 0;
}
int ReportConstraintCmd::prevExec() {
  return 0;
}
int ReportDesignCmd::prevExec() {
  return 0;
}
int ReportHierarchyCmd::prevExec() {
  return 0;
}
int ReportLibCmd::prevExec() {
  return 0;
}
int ReportNetCmd::prevExec() {
  return 0;
}
int ReportNetFanoutCmd::prevExec() {
  return 0;
}
int ReportPortCmd::prevExec() {
  return 0;
}
int ReportReferenceCmd::prevExec() {
  return 0;
}
int ReportUnitsCmd::prevExec() {
  return 0;
}
int CheckDesignCmd::postExec() {
  return 0;
}
int GetFaninPinsCmd::postExec() {
  return 0;
}
int GetFanoutPinsCmd::postExec() {
  return 0;
}
int ReportAreaCmd::postExec() {
  return 0;
}
int ReportAttributeCmd::postExec() {
  return 0;
}
int ReportBufferTreeCmd::postExec() {
  return 0;
}
int ReportBusCmd::postExec() {
  return 0;
}
int ReportCellCmd::postExec() {
  return 0;
}
int ReportHierarchyCmd::postExec() {
  return 0;
}
int ReportLibCmd::postExec() {
  return 0;
}
int ReportNetCmd::postExec() {
  return 0;
}
int ReportPortCmd::postExec() {
  return 0;
}
int ReportReferenceCmd::postExec() {
  return 0;
}
int ReportUnitsCmd::postExec() {
  return 0;
}

// -from and -net name the same start point two ways; only one may be given.
int ReportBufferTreeCmd::prevExec() {
  static const char* const kExclusive[] = {"from", "net"};
  const char* found = "";
  bool have_found = false;
  for (const char* name : kExclusive) {
    if (getOptionCount(name) == 0) continue;
    if (have_found) {
      msg::ReportMsg(COMMAND_010, name, found);
      return 1;
    }
    found = name;
    have_found = true;
  }
  return 0;
}
