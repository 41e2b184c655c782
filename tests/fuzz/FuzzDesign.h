// The linked design the activity harnesses read their files over: gcd on
// sky130hd, read and linked once per process.
#pragma once

namespace cdm {
class Design;
}

namespace fuzz {

const cdm::Design& GcdDesign();

}  // namespace fuzz
