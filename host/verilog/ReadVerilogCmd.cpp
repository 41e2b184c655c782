// read_verilog FILES: adds the modules of netlists to the database.
#include <boost/any.hpp>
#include <string>
#include <vector>

#include "cmdlib/HostCommands.h"
#include "cmdlib/ReadFiles.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cmd/CommonCmd.h"
#include "verilog/VerilogReader.h"

namespace {

class ReadVerilogCmd : public CommonCmd {
 public:
  ReadVerilogCmd()
      : CommonCmd("read_verilog", "Read structural Verilog netlists (plain or gzipped)", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    cmdlib::AddFileListOption(*this, "Netlist files to read");
  }

  // The result is the names of the modules read, in file order.
  int exec() override {
    std::vector<std::string> modules;
    std::string error;
    bool read = cmdlib::ReadFiles(
        cmdlib::GivenFiles(*this),
        [&modules](const std::string& path, std::string& why) {
          std::vector<std::string> names;
          if (!verilog::ReadVerilogFile(cdm::DbManager::GetRoot(), path, names, why)) return false;
          modules.insert(modules.end(), names.begin(), names.end());
          return true;
        },
        error);
    if (!read) {
      SetTclError("read_verilog: " + error);
      return 1;
    }
    SetTclResultList(std::move(modules));
    return 0;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new ReadVerilogCmd(); });

}  // namespace
