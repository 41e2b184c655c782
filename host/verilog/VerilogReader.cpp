#include "verilog/VerilogReader.h"

#include <new>
#include <thread>

#include "io/FileLoader.h"
#include "msg/SafeText.h"
#include "verilog/NetlistBuilder.h"
#include "verilog/ParseStatements.h"
#include "verilog/SourceBuffer.h"

namespace verilog {
namespace {

bool InTwoThreads(std::string_view text, ParseThreads threads) {
  if (threads != ParseThreads::kAuto) return threads == ParseThreads::kTwo;
  return text.size() >= kTwoThreadParseSize && std::thread::hardware_concurrency() > 1;
}

// Parses `text` into `builder`; `text` may go once this returns.
bool Parse(std::string_view text, const std::string& file_name, NetlistBuilder& builder,
           ParseThreads threads, std::string& error) {
  ParseError parse_error;
  if (ParseStatements(text, builder, InTwoThreads(text, threads), parse_error)) return true;
  error = file_name + ":" + std::to_string(parse_error.line) + ": " +
          msg::CutQuotes(parse_error.message);
  return false;
}

bool Commit(NetlistBuilder& builder, const std::string& file_name,
            std::vector<std::string>& modules, std::string& error) {
  if (!builder.Commit(modules, error)) {
    error = file_name + ": " + error;
    return false;
  }
  if (modules.empty()) {
    error = file_name + ": no module found";
    return false;
  }
  return true;
}

}  // namespace

bool ReadVerilogText(cdm::Root* root, const std::string& text, const std::string& file_name,
                     std::vector<std::string>& modules, std::string& error, ParseThreads threads) {
  NetlistBuilder builder(root, file_name);
  return Parse(text, file_name, builder, threads, error) &&
         Commit(builder, file_name, modules, error);
}

bool ReadVerilogFile(cdm::Root* root, const std::string& path, std::vector<std::string>& modules,
                     std::string& error) {
  try {
    NetlistBuilder builder(root, path);
    {
      io::TextBuffer text;
      if (!ReadSourceFile(path, text, error)) return false;
      const bool parsed = Parse(text.view(), path, builder, ParseThreads::kAuto, error);
      // A file that shrank under the mapping reads as zeros from there on.
      if (text.Damaged()) {
        error = "cannot read '" + path + "': " + io::kDamaged;
        return false;
      }
      if (!parsed) return false;
    }  // the text goes before the definitions are made
    return Commit(builder, path, modules, error);
  } catch (const std::bad_alloc&) {
    // The modules are added only once all of the file is read.
    error = "out of memory while reading '" + path + "'; no module was added";
    return false;
  }
}

}  // namespace verilog
