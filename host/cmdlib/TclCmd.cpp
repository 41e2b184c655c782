#include "cmdlib/TclCmd.h"

#include <boost/any.hpp>

#include "msg/MessageBook.h"

namespace cmdlib {

int TclCmd::Fail(Tcl_Interp* interp, const std::string& why) {
  msg::MessageBook::Get().CountError();
  Tcl_SetObjResult(interp, Tcl_NewStringObj(("Error: " + name() + ": " + why).c_str(), -1));
  return TCL_ERROR;
}

std::string TclCmd::StringOption(const std::string& option) {
  boost::any value;
  if (!getOptionValue(option, value)) return std::string();
  return boost::any_cast<std::string>(value);
}

}  // namespace cmdlib
