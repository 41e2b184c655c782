// Reads switching activity from a VCD dump: per bit of every variable below
// one scope (the outermost unless another is named), its transitions
// between 0 and 1 over the dump's duration (from its first time stamp to
// its last), and its time at 1 of the time it is at 0 or 1. Names are the variables' references,
// joined with '/' through the scopes between; a vector stands for one net
// per bit, "name[i]". A scope that is a leaf cell of the design holds its
// pins, which the nets already cover: it is passed over.
#pragma once

#include <string>

#include "power/ActivityFileResult.h"

namespace cdm {
class Design;
}

namespace power {

// `scope` is a path of scope names from the outermost, with '/' or '.'
// between them; empty for the outermost scope. False with `error`
// ("FILE:LINE: why") on malformed text or a scope the dump lacks.
bool ReadVcd(const std::string& file, const std::string& text, const cdm::Design& design,
             const std::string& scope, ActivityFileResult& result, std::string& error);

}  // namespace power
