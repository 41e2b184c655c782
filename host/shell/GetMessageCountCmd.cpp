// get_message_count ?-severity S? ?-id TAG?: how many messages the session
// issued.
#include <string>

#include "cmdlib/HostCommands.h"
#include "cmdlib/TclCmd.h"
#include "msg/MessageBook.h"
#include "msg/MessageTags.h"

namespace shell {
namespace {

class GetMessageCountCmd : public cmdlib::TclCmd {
 public:
  GetMessageCountCmd()
      : TclCmd("get_message_count", "How many messages were issued, by severity or by id") {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("severity", "info, warning or error", false, ValueType::kString, std::any());
    addOptions("id", "Message id, such as QUERY_001", false, ValueType::kString, std::any());
    addOptions("reset", "Start counting again from 0 (the result is the count before)", false,
               ValueType::kFlag, std::any());
  }

  // Without option: all messages (errors raised by commands included).
  int run(Tcl_Interp* interp) override {
    msg::MessageBook& book = msg::MessageBook::Get();
    int count = book.Total();
    if (getOptionCount("severity") > 0 && getOptionCount("id") > 0)
      return Fail(interp, "give -severity or -id, not both");
    if (getOptionCount("severity") > 0) {
      msg::Severity severity;
      if (!msg::ParseSeverity(StringOption("severity"), severity))
        return Fail(interp,
                    "unknown severity '" + StringOption("severity") + "' (info, warning or error)");
      count = book.Count(severity);
    }
    if (getOptionCount("id") > 0) {
      MsgTag tag;
      if (!msg::FindTag(StringOption("id"), tag))
        return Fail(interp, "unknown message id '" + StringOption("id") + "'");
      count = book.Count(tag);
    }
    if (FlagOption("reset")) book.Reset();
    Tcl_SetObjResult(interp, Tcl_NewIntObj(count));
    return TCL_OK;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new GetMessageCountCmd(); });

}  // namespace
}  // namespace shell
