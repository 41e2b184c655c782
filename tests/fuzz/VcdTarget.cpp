#include <string>

#include "FuzzDesign.h"
#include "FuzzTargets.h"
#include "power/ActivityFileResult.h"
#include "power/VcdReader.h"

namespace fuzz {

std::string FuzzVcd(std::string_view input) {
  power::ActivityFileResult result;
  std::string error;
  if (power::ReadVcd("fuzz.vcd", std::string(input), GcdDesign(), "", result, error))
    return std::string();
  if (error.rfind("fuzz.vcd", 0) != 0) return "a message without the file: " + error;
  if (error.size() > 1000) return "a message of " + std::to_string(error.size()) + " bytes";
  return std::string();
}

}  // namespace fuzz
