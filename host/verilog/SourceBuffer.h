// A whole source file in memory, as the host's file loader gives it (plain
// or gzip, from a file or a pipe; see io/FileLoader.h).
#pragma once

#include <string>

#include "io/TextBuffer.h"

namespace verilog {

// Reads `path` into `text`: a plain regular file is mapped, so the caller
// asks text.Damaged() once it has read the text. False with `error` set when
// the file cannot be opened or read, or its compressed stream is damaged.
bool ReadSourceFile(const std::string& path, io::TextBuffer& text, std::string& error);

}  // namespace verilog
