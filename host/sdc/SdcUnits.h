// The units SDC values are read and written in: those set_units gave, else
// the default library's (ns, pF, kohm, V, mA, mW when no library is
// loaded). Values are stored in SI.
#pragma once

#include <optional>
#include <string>

namespace sta::sdc {

class SdcUnits {
 public:
  enum Quantity { kTime, kCapacitance, kResistance, kVoltage, kCurrent, kPower, kQuantityCount };

  // The SI value of one unit of the quantity.
  double Scale(Quantity quantity) const;
  // Reads a unit as set_units takes it ("ns", "1ps", "pF", "fF", "kOhm",
  // "mW"); false, with a reason, when the text is no unit of the quantity.
  bool Set(Quantity quantity, const std::string& text, std::string& error);
  // The unit as set_units gave it, normalized ("1ns", "1pF"), or empty.
  std::string UserText(Quantity quantity) const;
  bool AnySet() const;

  // "-time", "-capacitance", ...: the set_units option of the quantity.
  static const char* OptionName(Quantity quantity);

 private:
  std::optional<double> user_scale_[kQuantityCount];
  std::string user_text_[kQuantityCount];
};

}  // namespace sta::sdc
