#include "verilog/SourceBuffer.h"

#include "io/FileLoader.h"

namespace verilog {

bool ReadSourceFile(const std::string& path, io::TextBuffer& text, std::string& error) {
  io::LoadOptions options;
  options.map_file = true;  // the text goes once the netlist is read
  return io::LoadFile(path, text, error, options);
}

}  // namespace verilog
