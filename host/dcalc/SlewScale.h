// Slews between libraries. The timer keeps every slew as measured between
// the default library's slew thresholds; a library whose thresholds differ,
// or whose tables are derated (slew_derate_from_library), reads and writes
// its tables in its own measure. A linear ramp is assumed in between.
#pragma once

namespace cdm {
class LibertyLib;
}

namespace sta {

class SlewScale {
 public:
  SlewScale() = default;
  // The measure of `lib` against that of `reference` (the default library);
  // either may be null, which counts as 20-80% thresholds and no derate.
  SlewScale(const cdm::LibertyLib* lib, const cdm::LibertyLib* reference);

  // A slew in the timer's measure as the library's table index reads it.
  float ToLibrary(float slew) const { return slew * to_library_; }
  // A slew the library's transition table gives, in the timer's measure.
  float FromLibrary(float slew) const { return slew / to_library_; }

 private:
  float to_library_ = 1.0f;
};

}  // namespace sta
