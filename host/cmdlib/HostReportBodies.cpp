// report_constraint is reported by the host. Its report is not written
// yet: it prints nothing and fails. (report_design: host/reports.)
#include "hostapi/cmd/HostReportCmds.h"

int ReportConstraintCmd::exec() {
  return 1;
}
int ReportConstraintCmd::postExec() {
  return 0;
}
