// A whole source file in memory, gunzipped when it is compressed.
#pragma once

#include <string>

namespace verilog {

// Reads `path` (plain or gzip) into `text`. False with `error` set when the
// file cannot be opened or its compressed stream is damaged.
bool ReadSourceFile(const std::string& path, std::string& text, std::string& error);

}  // namespace verilog
