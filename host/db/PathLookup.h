// Full path names below a design: "u_core/u_alu/U12", ".../U12/A".
#pragma once

#include <string>

namespace cdm {

class Cell;
class Design;
class Net;
class Pin;

Cell* FindCellByPath(const Design* top, const std::string& name);
Net* FindNetByPath(const Design* top, const std::string& name);
// A port pin of `top` by port name, or "cell path/pin name".
Pin* FindPinByPath(const Design* top, const std::string& name);

}  // namespace cdm
