// read_liberty FILES and set_default_library NAME.
#include <boost/any.hpp>
#include <string>
#include <vector>

#include "cmdlib/HostCommands.h"
#include "cmdlib/ReadFiles.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/cmd/CommonCmd.h"
#include "liberty/LibertyReader.h"

namespace {

class ReadLibertyCmd : public CommonCmd {
 public:
  ReadLibertyCmd()
      : CommonCmd("read_liberty", "Read Liberty libraries (plain or gzip-compressed)", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    cmdlib::AddFileListOption(*this, "Liberty files to read");
  }

  // The result is the names of the libraries read, one per file.
  int exec() override {
    std::vector<std::string> names;
    std::string error;
    bool read = cmdlib::ReadFiles(
        cmdlib::GivenFiles(*this),
        [&names](const std::string& path, std::string& why) {
          cdm::LibertyLib* lib = liberty::ReadLibertyFile(cdm::DbManager::GetRoot(), path, why);
          if (lib) names.push_back(lib->Name());
          return lib != nullptr;
        },
        error);
    if (!read) {
      SetTclError("read_liberty: " + error);
      return 1;
    }
    SetTclResultList(std::move(names));
    return 0;
  }
};

class SetDefaultLibraryCmd : public CommonCmd {
 public:
  SetDefaultLibraryCmd()
      : CommonCmd("set_default_library", "Make a library read before the default one", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("library", "Name of the library", true, ValueType::kString, std::any());
  }

  int exec() override {
    boost::any value;
    if (!getOptionValue("library", value)) {
      SetTclError("set_default_library: expected a library name");
      return 1;
    }
    const std::string name = boost::any_cast<std::string>(value);
    cdm::Root* root = cdm::DbManager::GetRoot();
    cdm::LibertyLib* lib = root->GetLibertyLib(name);
    if (!lib) {
      SetTclError("set_default_library: library '" + name + "' is not loaded");
      return 1;
    }
    root->SetDefaultLiberty(lib);
    SetTclResult(lib->Name());
    return 0;
  }
};

cmdlib::HostCommandRegistrar registrar([] {
  new ReadLibertyCmd();
  new SetDefaultLibraryCmd();
});

}  // namespace
