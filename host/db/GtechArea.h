// Area estimates for the gates of the generic library before mapping.
#pragma once

namespace cdm {
class LibCell;
class LibertyLib;
}  // namespace cdm

namespace common {

// The area of the smallest cell of `library` that computes the same function
// as the generic gate `generic` (inputs in any order); 0 when none does, when
// there is no library, and for sequential and constant generic cells (an
// unmapped constant is no cell of the area report).
float GenericGateArea(const cdm::LibCell* generic, const cdm::LibertyLib* library);

}  // namespace common
