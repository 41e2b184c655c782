// current_design [NAME]: names the current design, or moves it (linking the
// design first when it is not linked yet).
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

class CurrentDesignCmd : public CommonCmd {
 public:
  CurrentDesignCmd() : CommonCmd("current_design", "Report or set the current design", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("design", "Design to make current", true, ValueType::kString, std::any());
  }

  int exec() override {
    cdm::Root* root = cdm::DbManager::GetRoot();
    boost::any value;
    if (!getOptionValue("design", value)) {
      cdm::Design* current = root->GetCurrentDesign();
      SetTclResult(current ? current->Name() : std::string());
      return 0;
    }
    std::string name = boost::any_cast<std::string>(value);
    cdm::Design* design = root->FindDesign(name);
    if (!design) {
      SetTclError("current_design: design '" + name + "' is not loaded");
      return 1;
    }
    if (!cdm::IsLinked(design)) return LinkAndReport(*this, design);
    std::string error;
    if (design != root->GetCurrentDesign() && !cdm::ElaborateHierarchy(root, design, error)) {
      SetTclError("current_design: " + error);
      return 1;
    }
    SetTclResult(design->Name());
    return 0;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new CurrentDesignCmd(); });

}  // namespace
