#include "db/LinkReport.h"

#include <string>
#include <vector>

#include "db/Linker.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cmd/CommonCmd.h"
#include "msg/HostMsg.h"

int LinkAndReport(CommonCmd& cmd, cdm::Design* design) {
  std::vector<cdm::LinkWarning> warnings;
  std::string error;
  if (!cdm::LinkDesign(cdm::DbManager::GetRoot(), design, warnings, error)) {
    cmd.SetTclError(cmd.name() + ": " + error);
    return 1;
  }
  for (const cdm::LinkWarning& warning : warnings) {
    msg::Location where;
    where.file = warning.file;
    where.line = static_cast<int>(warning.line);
    msg::HostMsg(DATABASE_001, {warning.text}, where);
  }
  cmd.SetTclResult(design->Name());
  return 0;
}
