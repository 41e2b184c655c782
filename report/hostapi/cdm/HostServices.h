// Services of the host that reports call outside the database classes.
#pragma once

#include <string>

namespace cdm {
class Design;
}

namespace common {

// Gives every generic-library cell of the design an estimated area: that of
// the smallest default-library cell with the same function, 0 if none.
void EnsureGtechReportReady(cdm::Design* design);

}  // namespace common

// The date text of report banners: "Sun Nov 22 22:43:35 2026".
std::string GetTimeDesign();
