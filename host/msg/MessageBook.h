// Counts of the messages issued in the session, per severity and per tag,
// and how many of each tag may be shown.
#pragma once

#include <map>

#include "hostapi/msg/Msg.h"
#include "msg/MsgCatalogue.h"

namespace msg {

class MessageBook {
 public:
  static MessageBook& Get();

  enum class Verdict { kShow, kShowLast, kHide };
  // Counts one message; says whether to show it, and whether it is the last
  // one shown before its tag's limit.
  Verdict Record(MsgTag tag, Severity severity);
  // Errors that are raised as Tcl errors rather than printed are counted too.
  void CountError() { ++by_severity_[static_cast<int>(Severity::kError)]; }

  int Count(Severity severity) const;
  int Count(MsgTag tag) const;
  int Total() const;
  void Reset();

  // The limit of a tag: its own, else the default. Negative: no limit.
  int Limit(MsgTag tag) const;
  void SetLimit(MsgTag tag, int limit) { limits_[tag] = limit; }
  void SetDefaultLimit(int limit) { default_limit_ = limit; }
  int DefaultLimit() const { return default_limit_; }

 private:
  int by_severity_[3] = {0, 0, 0};
  std::map<MsgTag, int> by_tag_;
  std::map<MsgTag, int> limits_;
  int default_limit_ = -1;  // the shell sets its own (app var message_limit)
};

}  // namespace msg
