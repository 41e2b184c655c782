// The host's one way of issuing a catalogued message: a tag of the message
// catalogue, its arguments, and where there is one the file and line it is
// about. Every message prints in one format:
//   Severity: FILE:LINE: text (TAG)
// without "FILE:LINE: " when there is no place. A message without a place
// of its own takes the file and line of the script being run, if any.
// Messages are counted per severity and tag, and each tag is shown at most
// its limit of times (a note says when the limit is reached).
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "hostapi/msg/Msg.h"
#include "msg/MsgCatalogue.h"

namespace msg {

struct Location {
  std::string file;  // empty: no place
  int line = 0;      // 0: the file as a whole
};

// Issues `tag` with its catalogue text, each "%s" filled from `args` in turn.
void HostMsg(MsgTag tag, const std::vector<std::string>& args, const Location& where = {});

// Issues a text already composed (as ReportMsg does after formatting).
void IssueComposed(MsgTag tag, Severity severity, const std::string& text, Location where);

// The shell tells the message layer where the running script is; false
// when no script file is being run.
using LocationFinder = std::function<bool(Location& where)>;
void SetLocationFinder(LocationFinder finder);

// Warnings and errors go to standard error as well (and still to the result
// channel and the log).
void SetMessagesToStderr(bool on);

}  // namespace msg
