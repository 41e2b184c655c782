#include <string>

#include "FuzzTargets.h"
#include "parasitics/SpefReader.h"

namespace fuzz {

std::string FuzzSpef(std::string_view input) {
  parasitics::SpefFile spef;
  std::string error;
  if (parasitics::ParseSpef(std::string(input), "fuzz.spef", spef, error)) return std::string();
  if (error.rfind("fuzz.spef", 0) != 0) return "a message without the file: " + error;
  if (error.size() > 1000) return "a message of " + std::to_string(error.size()) + " bytes";
  return std::string();
}

}  // namespace fuzz
