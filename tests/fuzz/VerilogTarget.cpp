#include <string>
#include <vector>

#include "FuzzTargets.h"
#include "hostapi/cdm/Root.h"
#include "verilog/VerilogReader.h"

namespace fuzz {

std::string FuzzVerilog(std::string_view input) {
  cdm::Root root;
  std::vector<std::string> modules;
  std::string error;
  const bool ok = verilog::ReadVerilogText(&root, std::string(input), "fuzz.v", modules, error);
  if (!ok) {
    if (error.rfind("fuzz.v", 0) != 0) return "a message without the file: " + error;
    if (error.size() > 1000) return "a message of " + std::to_string(error.size()) + " bytes";
    if (!root.Designs().empty()) return "modules added by a failed read: " + error;
    return std::string();
  }
  if (modules.size() != root.Designs().size())
    return "the read names " + std::to_string(modules.size()) + " modules, the root holds " +
           std::to_string(root.Designs().size());
  return std::string();
}

}  // namespace fuzz
