// Reads a structural Verilog netlist (plain or gzip) into the database.
#pragma once

#include <string>
#include <vector>

namespace cdm {
class Root;
}

namespace verilog {

// Adds every module of `path` to `root`, or, on any error, nothing: then
// `error` reads "<file>:<line>: <what>" (or names the file alone when it
// cannot be read). `modules` receives the names of the modules read.
bool ReadVerilogFile(cdm::Root* root, const std::string& path, std::vector<std::string>& modules,
                     std::string& error);

// Whether the parser gets a thread of its own: by the text's size and the
// machine (kAuto), or as asked (the tests compare the two).
enum class ParseThreads { kAuto, kOne, kTwo };

// The same over text in memory; `file_name` is used in messages.
bool ReadVerilogText(cdm::Root* root, const std::string& text, const std::string& file_name,
                     std::vector<std::string>& modules, std::string& error,
                     ParseThreads threads = ParseThreads::kAuto);

}  // namespace verilog
