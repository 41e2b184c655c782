// A logic value that constraints put on a port or pin: set_logic_zero,
// set_logic_one, set_logic_dc and set_case_analysis.
#pragma once

#include <cstdint>

namespace cdm {

// 0 and 1 are the constants; values from 2 up are not a constant level.
enum LogicValue : uint8_t {
  kLogicZero = 0,
  kLogicOne = 1,
  kLogicDontCare = 2,  // set_logic_dc
  kLogicRise = 3,      // set_case_analysis rising
  kLogicFall = 4,      // set_case_analysis falling
};

}  // namespace cdm
