// The libFuzzer entry of one harness; FUZZ_TARGET names its target.
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "FuzzTargets.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string problem =
      fuzz::FUZZ_TARGET(std::string_view(reinterpret_cast<const char*>(data), size));
  if (!problem.empty()) {
    std::fprintf(stderr, "broken rule: %s\n", problem.c_str());
    std::abort();
  }
  return 0;
}
