#include <string>
#include <vector>

#include "FuzzTargets.h"
#include "hostapi/cdm/Root.h"
#include "verilog/VerilogReader.h"

namespace fuzz {

namespace {

// The input read again with the parser on a thread of its own (what a
// large file gets) must give the same modules, or the same error.
std::string CompareWithTwoThreads(const std::string& text, bool ok,
                                  const std::vector<std::string>& modules,
                                  const std::string& error) {
  cdm::Root root;
  std::vector<std::string> modules_two;
  std::string error_two;
  const bool ok_two = verilog::ReadVerilogText(&root, text, "fuzz.v", modules_two, error_two,
                                               verilog::ParseThreads::kTwo);
  if (ok_two != ok || error_two != error || modules_two != modules)
    return "two threads read otherwise: '" + error_two + "' against '" + error + "'";
  return std::string();
}

}  // namespace

std::string FuzzVerilog(std::string_view input) {
  cdm::Root root;
  std::vector<std::string> modules;
  std::string error;
  const std::string text(input);
  const bool ok =
      verilog::ReadVerilogText(&root, text, "fuzz.v", modules, error, verilog::ParseThreads::kOne);
  const std::string differs = CompareWithTwoThreads(text, ok, modules, error);
  if (!differs.empty()) return differs;
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
