// Where reports find the timer and ask it to bring timing up to date.
#pragma once

#include <memory>
#include <string>

namespace sta {
class Sta;
}

class TimerMgr {
 public:
  static TimerMgr* getInstance();

  // The timer of that name; the empty name is the current timer. Null for
  // a name no timer has.
  sta::Sta* getSta(const std::string& name);

  // Brings `timer` (the current one when null) up to date with the netlist
  // and the constraints. Nothing is recomputed when neither changed since
  // the last update, unless `full` asks for it.
  void updateTiming(bool full, sta::Sta* timer);

 private:
  TimerMgr();
  ~TimerMgr();
  std::unique_ptr<sta::Sta> current_;
};
