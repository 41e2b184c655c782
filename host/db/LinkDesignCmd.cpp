// link_design [TOP]: binds the design to the libraries and modules and
// makes it current.
#include <boost/any.hpp>
#include <string>

#include "cmdlib/HostCommands.h"
#include "db/LinkReport.h"
#include "db/Linker.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/cmd/CommonCmd.h"

namespace {

class LinkDesignCmd : public CommonCmd {
 public:
  LinkDesignCmd()
      : CommonCmd("link_design", "Link the design to the libraries and modules", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("top", "Top module (default: the one no other module instantiates)", true,
               ValueType::kString, std::any());
  }

  int exec() override {
    cdm::Root* root = cdm::DbManager::GetRoot();
    boost::any value;
    cdm::Design* top = nullptr;
    std::string error;
    if (getOptionValue("top", value)) {
      std::string name = boost::any_cast<std::string>(value);
      top = root->FindDesign(name);
      if (!top) error = "module '" + name + "' is not loaded";
    } else {
      top = cdm::FindTopDesign(root, error);
    }
    if (!top) {
      SetTclError("link_design: " + error);
      return 1;
    }
    return LinkAndReport(*this, top);
  }
};

cmdlib::HostCommandRegistrar registrar([] { new LinkDesignCmd(); });

}  // namespace
