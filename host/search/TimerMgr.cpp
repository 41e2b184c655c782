#include "hostapi/sta/TimerMgr.h"

#include "hostapi/cdm/DbManager.h"
#include "hostapi/sta/Sta.h"
#include "search/Timer.h"

// One timer, kept for the life of the database it times.
TimerMgr* TimerMgr::getInstance() {
  static TimerMgr manager;
  return &manager;
}

TimerMgr::TimerMgr() : current_(std::make_unique<sta::Sta>(cdm::DbManager::GetRoot())) {}

TimerMgr::~TimerMgr() = default;

sta::Sta* TimerMgr::getSta(const std::string& name) {
  return name.empty() ? current_.get() : nullptr;
}

void TimerMgr::updateTiming(bool full, sta::Sta* timer) {
  if (!timer) timer = current_.get();
  timer->timer()->Update(full);
}
