// Base of libraries: the technology libraries read from Liberty files and
// the built-in generic library.
#pragma once

#include <string>

#include "hostapi/cdm/Object.h"

namespace cdm {

class Lib : public Object {
 public:
  using Object::Object;
  // The file the library was read from; empty for a library without a file.
  virtual const std::string& GetLibFileName() const { return file_name_; }
  void SetLibFileName(std::string file_name) { file_name_ = std::move(file_name); }

 private:
  std::string file_name_;
};

}  // namespace cdm
