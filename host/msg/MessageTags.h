// Message ids and severities by name, as users type them.
#pragma once

#include <string>

#include "hostapi/msg/Msg.h"
#include "msg/MsgCatalogue.h"

namespace msg {

// "QUERY_001" (exact case) to its tag.
bool FindTag(const std::string& name, MsgTag& tag);
// "info", "warning", "error" (any case; "information" too).
bool ParseSeverity(const std::string& name, Severity& severity);

}  // namespace msg
