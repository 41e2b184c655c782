#include "verilog/VerilogReader.h"

#include <new>

#include "msg/SafeText.h"
#include "verilog/NetlistBuilder.h"
#include "verilog/SourceBuffer.h"
#include "verilog/VerilogLexer.h"
#include "verilog/VerilogParser.h"

namespace verilog {

bool ReadVerilogText(cdm::Root* root, const std::string& text, const std::string& file_name,
                     std::vector<std::string>& modules, std::string& error) {
  VerilogLexer lexer(text);
  NetlistBuilder builder(root, file_name);
  VerilogParser parser(lexer, builder);
  ParseError parse_error;
  if (!parser.Parse(parse_error)) {
    error = file_name + ":" + std::to_string(parse_error.line) + ": " +
            msg::CutQuotes(parse_error.message);
    return false;
  }
  modules = builder.Commit();
  if (modules.empty()) {
    error = file_name + ": no module found";
    return false;
  }
  return true;
}

bool ReadVerilogFile(cdm::Root* root, const std::string& path, std::vector<std::string>& modules,
                     std::string& error) {
  try {
    std::string text;
    if (!ReadSourceFile(path, text, error)) return false;
    return ReadVerilogText(root, text, path, modules, error);
  } catch (const std::bad_alloc&) {
    // The modules are added only once all of the file is read.
    error = "out of memory while reading '" + path + "'; no module was added";
    return false;
  }
}

}  // namespace verilog
