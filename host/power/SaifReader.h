// Reads switching activity from SAIF text: per net its time at 0 (T0), at 1
// (T1) and its count of transitions (TC) over the file's DURATION, in units
// of its TIMESCALE. The nets below one instance of the file (the outermost
// one unless another is named) are the design's: their names, joined with
// '/' through the instances between, are looked up in the design. An
// instance that is a leaf cell of the design (a library cell, or a cell
// whose reference did not resolve) lists its pins, which the nets already
// cover: it is passed over.
#pragma once

#include <string>

#include "power/ActivityFileResult.h"

namespace cdm {
class Design;
}

namespace power {

// `instance` is a path of instance names from the file's outermost level,
// with '/' or the file's divider between them; empty for the outermost
// instance. False with `error` ("FILE:LINE: why") on malformed text or an
// instance the file lacks; `result` is then left incomplete.
bool ReadSaif(const std::string& file, const std::string& text, const cdm::Design& design,
              const std::string& instance, ActivityFileResult& result, std::string& error);

}  // namespace power
