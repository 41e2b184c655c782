// link_design [TOP] and current_design [NAME].
#include <boost/any.hpp>
#include <string>
#include <vector>

#include "cmdlib/HostCommands.h"
#include "db/Linker.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/cmd/CommonCmd.h"
#include "hostapi/msg/Msg.h"
#include "msg/HostMsg.h"

namespace {

// Links `design`, prints the warnings, and makes it current.
int LinkAndReport(CommonCmd& cmd, cdm::Design* design) {
  std::vector<std::string> warnings;
  std::string error;
  if (!cdm::LinkDesign(cdm::DbManager::GetRoot(), design, warnings, error)) {
    cmd.SetTclError(cmd.name() + ": " + error);
    return 1;
  }
  for (const std::string& warning : warnings) {
    const std::string kSeverity = "Warning: ";
    const bool marked = warning.compare(0, kSeverity.size(), kSeverity) == 0;
    msg::HostMsg(DATABASE_001, {marked ? warning.substr(kSeverity.size()) : warning});
  }
  cmd.SetTclResult(design->Name());
  return 0;
}

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
    if (design != root->GetCurrentDesign()) {
      cdm::ElaborateHierarchy(root, design);
      root->SetCurrentDesign(design);
    }
    SetTclResult(design->Name());
    return 0;
  }
};

cmdlib::HostCommandRegistrar registrar([] {
  new LinkDesignCmd();
  new CurrentDesignCmd();
});

}  // namespace
