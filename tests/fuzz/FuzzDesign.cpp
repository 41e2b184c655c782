#include "FuzzDesign.h"

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "db/Linker.h"
#include "hostapi/cdm/Root.h"
#include "liberty/LibertyReader.h"
#include "verilog/VerilogReader.h"

namespace fuzz {

const cdm::Design& GcdDesign() {
  static cdm::Design* design = [] {
    static cdm::Root root;
    const std::string data = KELVO_TEST_DATA;
    std::string error;
    std::vector<std::string> modules, warnings;
    if (!liberty::ReadLibertyFile(&root, data + "/sky130hd_tt.lib.gz", error) ||
        !verilog::ReadVerilogFile(&root, data + "/gcd_sky130hd.v", modules, error))
      std::abort();
    cdm::Design* top = cdm::FindTopDesign(&root, error);
    if (!top || !cdm::LinkDesign(&root, top, warnings, error)) std::abort();
    return top;
  }();
  return *design;
}

}  // namespace fuzz
