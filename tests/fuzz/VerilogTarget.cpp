#include <string>
#include <vector>

#include "FuzzTargets.h"
#include "hostapi/cdm/Root.h"
#include "verilog/VerilogReader.h"

namespace fuzz {

namespace {

// Shapes the netlist parser does not bound yet (deep concatenations,
// replications nested into huge products, ranges of a billion bits): they
// exhaust the stack or the memory, and are known. Skipped until the parser
// bounds them; then this filter goes.
bool KnownOpenShape(std::string_view input) {
  size_t braces = 0;
  size_t digits = 0;
  for (size_t i = 0; i < input.size(); ++i) {
    const char c = input[i];
    if (c == '{') ++braces;
    digits = (c >= '0' && c <= '9') ? digits + 1 : 0;
    if (digits > 5 || braces > 200) return true;
    // A replication: a count, then '{'.
    if (c == '{' && i > 0 && input[i - 1] >= '0' && input[i - 1] <= '9') return true;
  }
  return false;
}

}  // namespace

std::string FuzzVerilog(std::string_view input) {
  if (KnownOpenShape(input)) return std::string();
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
