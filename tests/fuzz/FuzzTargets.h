// What each fuzz harness does with one input: read it as the shell would,
// and check what must hold whatever the input (a message with file and
// line on failure, a database untouched by a failed read). Each returns
// an empty text when all held, else what broke. The libFuzzer mains abort
// on a broken rule; the unit suite runs the same targets over the inputs
// kept in regressions/.
#pragma once

#include <string>
#include <string_view>

namespace fuzz {

std::string FuzzLiberty(std::string_view input);
std::string FuzzVerilog(std::string_view input);
std::string FuzzLoader(std::string_view input);
std::string FuzzSdc(std::string_view input);
std::string FuzzSpef(std::string_view input);
std::string FuzzSaif(std::string_view input);
std::string FuzzVcd(std::string_view input);

}  // namespace fuzz
