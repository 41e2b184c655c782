// Runs the reader's first layer (lexer and parser) over a text into a sink.
#pragma once

#include <cstddef>
#include <string_view>

#include "verilog/VerilogAst.h"
#include "verilog/VerilogParser.h"

namespace verilog {

// Parses `text` into `sink` on the calling thread, or, with `two_threads`,
// with the lexer and parser on a thread of their own, a few thousand
// statements ahead of the sink, which stays on the calling thread. Either
// way the sink sees the same statements in the same order, and the error
// is the same: the first in the file, the sink's or the parser's.
bool ParseStatements(std::string_view text, StatementSink& sink, bool two_threads,
                     ParseError& error);

// Texts from this size on are parsed in two threads when the machine has
// more than one processor: below it the second thread gains nothing.
constexpr size_t kTwoThreadParseSize = size_t{4} << 20;

}  // namespace verilog
