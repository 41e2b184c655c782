// write_sdc FILE: the constraints of the current design as SDC.
#include <boost/any.hpp>
#include <fstream>
#include <sstream>

#include "cmdlib/HostCommands.h"
#include "hostapi/cmd/CommonCmd.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "sdc/SdcWriter.h"

namespace sta::sdc {
namespace {

class WriteSdcCmd : public CommonCmd {
 public:
  WriteSdcCmd()
      : CommonCmd("write_sdc", "Write the constraints of the current design as SDC", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("file", "SDC file to write", true, ValueType::kString, std::any());
  }

  int exec() override {
    boost::any value;
    if (!getOptionValue("file", value)) {
      SetTclError("write_sdc: expected a file name");
      return 1;
    }
    const std::string path = boost::any_cast<std::string>(value);
    SdcStore& store = SdcMain::getOrCreateSdcMgr(nullptr)->store();
    if (!store.Sync()) {
      SetTclError("write_sdc: no current design; run link_design first");
      return 1;
    }
    // Written whole first: a file that cannot be written is left alone.
    std::ostringstream text;
    SdcWriter(store, text).Write();
    std::ofstream file(path, std::ios::trunc);
    if (!file) {
      SetTclError("write_sdc: cannot open '" + path + "' for writing");
      return 1;
    }
    file << text.str();
    file.flush();
    if (!file) {
      SetTclError("write_sdc: cannot write '" + path + "'");
      return 1;
    }
    SetTclResult(std::string());
    return 0;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new WriteSdcCmd(); });

}  // namespace
}  // namespace sta::sdc
