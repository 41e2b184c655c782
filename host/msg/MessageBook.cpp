#include "msg/MessageBook.h"

namespace msg {

MessageBook& MessageBook::Get() {
  static MessageBook book;
  return book;
}

MessageBook::Verdict MessageBook::Record(MsgTag tag, Severity severity) {
  ++by_severity_[static_cast<int>(severity)];
  const int count = ++by_tag_[tag];
  const int limit = Limit(tag);
  if (limit < 0 || count < limit) return Verdict::kShow;
  return count == limit ? Verdict::kShowLast : Verdict::kHide;
}

int MessageBook::Count(Severity severity) const {
  return by_severity_[static_cast<int>(severity)];
}

int MessageBook::Count(MsgTag tag) const {
  auto found = by_tag_.find(tag);
  return found == by_tag_.end() ? 0 : found->second;
}

int MessageBook::Total() const {
  return by_severity_[0] + by_severity_[1] + by_severity_[2];
}

void MessageBook::Reset() {
  by_severity_[0] = by_severity_[1] = by_severity_[2] = 0;
  by_tag_.clear();
}

int MessageBook::Limit(MsgTag tag) const {
  auto found = limits_.find(tag);
  return found == limits_.end() ? default_limit_ : found->second;
}

}  // namespace msg
