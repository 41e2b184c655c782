// Reading the spellings of library enumerations (the inverse of to_string).
#pragma once

#include <string>

#include "hostapi/cdm/LibEnums.h"

namespace cdm {

bool ParseDelayModel(const std::string& text, DelayModelType& value);
bool ParsePowerModel(const std::string& text, PowerModelType& value);
bool ParseWireLoadTree(const std::string& text, WireLoadTree& value);
bool ParseWireLoadMode(const std::string& text, WireLoadMode& value);
bool ParsePgType(const std::string& text, PgType& value);

}  // namespace cdm
