#include "cmdlib/ReadFiles.h"

#include <sys/stat.h>

#include <boost/any.hpp>
#include <memory>

#include "cmdlib/Interrupt.h"
#include "hostapi/cmd/CommonCmd.h"
#include "io/FileLoader.h"
#include "msg/Progress.h"

namespace cmdlib {
namespace {

constexpr const char* kFileOption = "file_names";

// Why `path` cannot be read at all, or "" when it looks readable: the file
// loader's own words.
std::string Unreadable(const std::string& path) {
  std::string error;
  return io::CheckFile(path, error) ? std::string() : error;
}

// The file being read through ReadFiles, for the progress line.
struct CurrentRead {
  std::string what;  // "Reading FILE", or "" for a small file
  std::unique_ptr<msg::Progress> progress;
};

CurrentRead& Current() {
  static CurrentRead current;
  return current;
}

// Names the file being read for the length of one read_one call.
class ReadScope {
 public:
  explicit ReadScope(const std::string& path) {
    struct stat info;
    if (msg::Progress::Enabled() && ::stat(path.c_str(), &info) == 0 &&
        static_cast<size_t>(info.st_size) > kProgressFileSize)
      Current().what = "Reading " + path;
  }
  ~ReadScope() {
    Current().progress.reset();
    Current().what.clear();
  }
  ReadScope(const ReadScope&) = delete;
  ReadScope& operator=(const ReadScope&) = delete;
};

std::string JoinNames(const std::vector<std::string>& files, size_t from, size_t to) {
  std::string text;
  for (size_t i = from; i < to; ++i) text += (text.empty() ? "" : ", ") + files[i];
  return text;
}

}  // namespace

void AddFileListOption(CommonCmd& command, const char* help) {
  command.addOptions(kFileOption, help, true, ValueType::kFileList, std::any());
}

std::vector<std::string> GivenFiles(CommonCmd& command) {
  boost::any value;
  if (!command.getOptionValue(kFileOption, value)) return {};
  return boost::any_cast<std::vector<std::string>>(value);
}

bool ReadFiles(const std::vector<std::string>& files, const ReadOneFile& read_one,
               std::string& error) {
  if (files.empty()) {
    error = "no file given";
    return false;
  }
  for (const std::string& path : files) {
    error = Unreadable(path);
    if (!error.empty()) {
      if (files.size() > 1) error += "; no file was read";
      return false;
    }
  }
  for (size_t i = 0; i < files.size(); ++i) {
    ThrowIfInterrupted();  // between files too
    ReadScope scope(files[i]);
    if (read_one(files[i], error)) continue;
    if (i > 0) error += "; read before it: " + JoinNames(files, 0, i);
    if (i + 1 < files.size()) error += "; not read: " + JoinNames(files, i + 1, files.size());
    return false;
  }
  error.clear();
  return true;
}

void ReadCheckpoint(size_t offset, size_t total) {
  ThrowIfInterrupted();
  CurrentRead& current = Current();
  if (current.what.empty()) return;
  if (!current.progress) current.progress = std::make_unique<msg::Progress>(current.what, total);
  current.progress->Update(offset);
}

}  // namespace cmdlib
