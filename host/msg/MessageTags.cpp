#include "msg/MessageTags.h"

#include <algorithm>
#include <cctype>

namespace msg {

bool FindTag(const std::string& name, MsgTag& tag) {
  for (int i = 0; i < MSG_TAG_COUNT; ++i) {
    if (name == TagName(static_cast<MsgTag>(i))) {
      tag = static_cast<MsgTag>(i);
      return true;
    }
  }
  return false;
}

bool ParseSeverity(const std::string& name, Severity& severity) {
  std::string lower = name;
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  if (lower == "info" || lower == "information") {
    severity = Severity::kInfo;
  } else if (lower == "warning") {
    severity = Severity::kWarning;
  } else if (lower == "error") {
    severity = Severity::kError;
  } else {
    return false;
  }
  return true;
}

}  // namespace msg
