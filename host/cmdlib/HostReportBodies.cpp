// report_design and report_constraint are reported by the host. Their
// reports are not written yet: they print nothing and fail.
#include "hostapi/cmd/HostReportCmds.h"

int ReportDesignCmd::exec() {
  return 1;
}
int ReportDesignCmd::postExec() {
  return 0;
}
int ReportConstraintCmd::exec() {
  return 1;
}
int ReportConstraintCmd::postExec() {
  return 0;
}
