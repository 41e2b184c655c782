#include "sdc/SdcSource.h"

#include <set>
#include <vector>

namespace sta::sdc {
namespace {

struct Frame {
  std::string file;
  int line = 0;
};

std::vector<Frame>& Frames() {
  static std::vector<Frame> frames;
  return frames;
}

std::set<std::string>& Seen() {
  static std::set<std::string> seen;
  return seen;
}

}  // namespace

msg::Location SdcSource::Where() {
  if (Frames().empty()) return msg::Location{};
  return msg::Location{Frames().back().file, Frames().back().line};
}

void SdcSource::Enter(const std::string& file) {
  Frames().push_back({file, 0});
}

void SdcSource::SetLine(int line) {
  if (!Frames().empty()) Frames().back().line = line;
}

void SdcSource::Leave() {
  if (!Frames().empty()) Frames().pop_back();
}

bool SdcSource::FirstUse(const std::string& command) {
  return Seen().insert(command).second;
}

void SdcSource::ResetFirstUses() {
  Seen().clear();
}

}  // namespace sta::sdc
