#include "timingreport/TimerAccess.h"

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/msg/Msg.h"
#include "hostapi/sta/Sta.h"
#include "hostapi/sta/TimerMgr.h"
#include "search/Timer.h"

namespace sta {

Timer* UpdatedTimer() {
  TimerMgr* manager = TimerMgr::getInstance();
  Sta* sta = manager->getSta("");
  if (!sta) return nullptr;
  manager->updateTiming(false, sta);
  Timer* timer = sta->timer();
  return timer->Design() && timer->Graph() ? timer : nullptr;
}

void PrintBanner(const std::vector<std::string>& lines) {
  const std::string stars(40, '*');
  msg::Print_Result(stars.c_str());
  for (const std::string& line : lines) msg::Print_Result(line.c_str());
  const cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  msg::Print_Result(("Design : " + (design ? design->Name() : std::string())).c_str());
  msg::Print_Result(stars.c_str());
  msg::InsertEmptyLine();
}

}  // namespace sta
