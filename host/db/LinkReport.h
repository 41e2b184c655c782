// What link_design and current_design share: link a design, issue what
// link found, make the design current.
#pragma once

class CommonCmd;

namespace cdm {
class Design;
}

// Links `design`, issues the warnings (at the netlist's file and line where
// they have one) and makes it current; 0, or 1 with the Tcl error set.
int LinkAndReport(CommonCmd& cmd, cdm::Design* design);
