#include "verilog/VerilogReader.h"

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
    error = file_name + ":" + std::to_string(parse_error.line) + ": " + parse_error.message;
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
  std::string text;
  if (!ReadSourceFile(path, text, error)) return false;
  return ReadVerilogText(root, text, path, modules, error);
}

}  // namespace verilog
