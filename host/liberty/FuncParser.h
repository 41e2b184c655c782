// Parses Boolean functions of library pins: `!` and postfix `'` for not,
// `&`, `*` or a blank for and, `|` or `+` for or, `^` for xor, parentheses,
// and the constants 0 and 1.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "hostapi/cdm/LibBoolFuncExpr.h"

namespace liberty {

// The deepest nesting of parentheses a function may have; a real library
// needs a handful. Beyond it the function is refused, so that neither the
// parser nor anything that walks the function runs out of stack.
constexpr int kMaxFunctionNesting = 256;

using PortLookup = std::function<cdm::LibPort*(std::string_view name)>;

// False with `error` set ("unknown pin 'X'", "expected ')'", ...) when the
// text is not a function over pins that `lookup` knows.
bool ParseBoolFunc(std::string_view text, const PortLookup& lookup, cdm::LibBoolFuncExpr& result,
                   std::string& error);

}  // namespace liberty
