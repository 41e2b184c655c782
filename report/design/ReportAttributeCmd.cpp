// report_attribute: accepted with its options, prints nothing.
#include "cmd/TclCmd.h"

int ReportAttributeCmd::exec() {
  return 0;
}
