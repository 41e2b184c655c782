// What reading an activity file (SAIF, VCD) gives: the settings of the nets
// it names that the design has, and what it named that the design lacks.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "power/ActivityAnnotations.h"

namespace power {

struct ActivityFileResult {
  // By full net name, in file order.
  std::vector<std::pair<std::string, ActivitySetting>> nets;
  // How many flat nets the settings reach (two names of one net count once).
  size_t flat_nets = 0;
  // Names the design lacks: how many, and the first.
  size_t missing = 0;
  std::string first_missing;
};

}  // namespace power

namespace power {

class ActivityAnnotations;

// Sets what `result` holds, warns once about the names the design lacks
// and says how many nets were annotated; `command` and `file` for the
// messages.
void AnnotateFromFile(const std::string& command, const std::string& file,
                      const std::string& design, const ActivityFileResult& result,
                      ActivityAnnotations& annotations);

}  // namespace power
