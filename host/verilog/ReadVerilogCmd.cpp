// read_verilog FILE: adds the modules of a netlist to the database.
#include <boost/any.hpp>
#include <string>
#include <vector>

#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cmd/CommonCmd.h"
#include "hostapi/msg/Msg.h"
#include "verilog/VerilogReader.h"

namespace {

class ReadVerilogCmd : public CommonCmd {
 public:
  ReadVerilogCmd()
      : CommonCmd("read_verilog", "Read a structural Verilog netlist (plain or gzipped)", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("file_name", "Netlist file", true, ValueType::kString, std::any());
  }

  int exec() override {
    boost::any value;
    if (!getOptionValue("file_name", value)) {
      SetTclError("read_verilog: missing file name");
      return 1;
    }
    std::string path = boost::any_cast<std::string>(value);
    std::vector<std::string> modules;
    std::string error;
    if (!verilog::ReadVerilogFile(cdm::DbManager::GetRoot(), path, modules, error)) {
      SetTclError("read_verilog: " + error);
      return 1;
    }
    SetTclResultList(modules);
    return 0;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new ReadVerilogCmd(); });

}  // namespace
