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

// The same over text in memory; `file_name` is used in messages.
bool ReadVerilogText(cdm::Root* root, const std::string& text, const std::string& file_name,
                     std::vector<std::string>& modules, std::string& error);

}  // namespace verilog
