// What every read command (read_liberty, read_verilog, read_sdc, ...) does
// with its files: one or several, given as words or Tcl lists, each read
// whole or not at all, a failure naming its file.
#pragma once

#include <functional>
#include <string>
#include <vector>

class CommonCmd;

namespace cmdlib {

// Declares the positional file list of a read command (after its other
// options, so that bare words after the options are files).
void AddFileListOption(CommonCmd& command, const char* help);

// The files given in the current call, in order.
std::vector<std::string> GivenFiles(CommonCmd& command);

// Reads one file into the database, or nothing: on failure `error` says why,
// naming the file (with its line where there is one).
using ReadOneFile = std::function<bool(const std::string& path, std::string& error)>;

// Reads `files` in order with `read_one`. Every file is first checked to
// exist and not to be a directory, so that a misspelt third name reads nothing
// at all. A file that then fails stops the read there: the files before it
// stay read, the ones after it are not read, and `error` says both. False
// also for an empty list.
bool ReadFiles(const std::vector<std::string>& files, const ReadOneFile& read_one,
               std::string& error);

// Readers call this between statements with how far into the file's text
// they are: it stops the read on Ctrl-C (throws Interrupted, before the
// reader commits anything) and draws the progress line of a large file.
void ReadCheckpoint(size_t offset, size_t total);

// Files larger than this show a progress line while they are read.
constexpr size_t kProgressFileSize = 20u << 20;

}  // namespace cmdlib
