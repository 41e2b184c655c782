// Units of a technology library. Values in the database are SI; a Unit says
// how one library unit reads in SI and how to print a value in it.
#pragma once

#include <string>

namespace cdm {

class Unit {
 public:
  float scale = 1.0f;  // SI value of one library unit, e.g. 1e-09 for "1ns"

  Unit() = default;
  Unit(float unit_scale, std::string lib_text, std::string suffix)
      : scale(unit_scale), lib_text_(std::move(lib_text)), suffix_(std::move(suffix)) {}

  // value / scale with `digits` decimals ("%.*f").
  std::string asString(double value, int digits) const;
  // The unit as the library writes it: "1ns", "1ff", "1kohm".
  const std::string& libval() const { return lib_text_; }
  // The prefixed symbol in parentheses: "(ns)", "(fF)", "(kohm)".
  const std::string& transSuffix() const { return suffix_; }

 private:
  std::string lib_text_;
  std::string suffix_;
};

// The nine unit records of a library, side by side in this order.
struct LibUnits {
  Unit time;
  Unit capacitance;
  Unit voltage;
  Unit pulling_resistance;
  Unit resistance;
  Unit current;
  Unit power;
  Unit distance;  // read by no report
  Unit scalar;    // plain numbers: counts and averages
};

}  // namespace cdm
