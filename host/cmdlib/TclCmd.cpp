#include "cmdlib/TclCmd.h"

#include <boost/any.hpp>

#include "cmdlib/TclBinding.h"
#include "msg/MessageBook.h"

namespace cmdlib {

int TclCmd::Fail(Tcl_Interp* interp, const std::string& why) {
  msg::MessageBook::Get().CountError();
  Tcl_SetObjResult(interp, NewTextObj("Error: " + name() + ": " + why));
  return TCL_ERROR;
}

std::string TclCmd::StringOption(const std::string& option) {
  boost::any value;
  if (!getOptionValue(option, value)) return std::string();
  return boost::any_cast<std::string>(value);
}

}  // namespace cmdlib
