// set_message_limit ?-id TAG? LIMIT: how many times a message is shown.
#include <boost/any.hpp>
#include <string>

#include "cmdlib/HostCommands.h"
#include "cmdlib/TclCmd.h"
#include "msg/MessageBook.h"
#include "msg/MessageTags.h"
#include "shell/AppVars.h"

namespace shell {
namespace {

class SetMessageLimitCmd : public cmdlib::TclCmd {
 public:
  SetMessageLimitCmd()
      : TclCmd("set_message_limit", "Show a message at most so many times (-1: no limit)") {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("id", "Message id; without it, the limit of every id (app var message_limit)", false,
               ValueType::kString, std::any());
    addOptions("limit", "Most times shown; -1 for no limit", true, ValueType::kInteger, std::any());
  }

  int run(Tcl_Interp* interp) override {
    boost::any value;
    if (!getOptionValue("limit", value)) return Fail(interp, "expected a limit");
    const int limit = boost::any_cast<int>(value);
    if (limit < -1) return Fail(interp, "the limit is -1 (none) or a count");
    if (getOptionCount("id") == 0) {
      std::string error;
      if (!AppVars::Get().Set(interp, "message_limit", std::to_string(limit), error))
        return Fail(interp, error);
    } else {
      MsgTag tag;
      if (!msg::FindTag(StringOption("id"), tag))
        return Fail(interp, "unknown message id '" + StringOption("id") + "'");
      msg::MessageBook::Get().SetLimit(tag, limit);
    }
    Tcl_SetObjResult(interp, Tcl_NewIntObj(limit));
    return TCL_OK;
  }
};

cmdlib::HostCommandRegistrar registrar([] { new SetMessageLimitCmd(); });

}  // namespace
}  // namespace shell
