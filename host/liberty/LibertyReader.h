// Reading Liberty files into the database.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "io/TextBuffer.h"

namespace cdm {
class LibertyLib;
class Root;
}  // namespace cdm

namespace liberty {

// Reads Liberty text (`file_name` names it in messages). Null with `error`
// set on any error; nothing is added anywhere.
std::unique_ptr<cdm::LibertyLib> ParseLiberty(cdm::Root* root, std::string_view text,
                                              const std::string& file_name, std::string& error);
// The same over text already in a buffer of its own, which it keeps.
std::unique_ptr<cdm::LibertyLib> ParseLiberty(cdm::Root* root, io::TextBuffer text,
                                              const std::string& file_name, std::string& error);

// Reads a file, plain or gzip-compressed, and adds its library to `root`
// (replacing one of the same name). Null with `error` set, and `root`
// unchanged, on any error.
cdm::LibertyLib* ReadLibertyFile(cdm::Root* root, const std::string& path, std::string& error);

}  // namespace liberty
