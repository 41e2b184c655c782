#include "verilog/SourceBuffer.h"

#include "io/FileLoader.h"

namespace verilog {

bool ReadSourceFile(const std::string& path, io::TextBuffer& text, std::string& error) {
  return io::LoadFile(path, text, error);
}

}  // namespace verilog
