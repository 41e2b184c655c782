// check_design: tests that a current design exists; its options promise
// more than this module checks.
#include "cmd/TclCmd.h"
#include "format/ReportMgr.h"

int CheckDesignCmd::exec() {
  return PreReport() ? 0 : 1;
}
