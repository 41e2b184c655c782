#include "msg/HostMsg.h"

#include <cstdio>

#include "msg/MessageBook.h"
#include "msg/ResultChannel.h"
#include "msg/SessionLog.h"

namespace msg {
namespace {

LocationFinder& Finder() {
  static LocationFinder finder;
  return finder;
}

bool to_stderr = false;

// Fills "%s" in turn from `args`; "%%" is one "%". A "%s" without an
// argument left prints as written.
std::string Fill(const char* format, const std::vector<std::string>& args) {
  std::string text;
  size_t next = 0;
  for (const char* c = format; *c; ++c) {
    if (c[0] == '%' && c[1] == '%') {
      text.push_back('%');
      ++c;
    } else if (c[0] == '%' && c[1] == 's' && next < args.size()) {
      text += args[next++];
      ++c;
    } else {
      text.push_back(*c);
    }
  }
  return text;
}

void Show(Severity severity, const std::string& line) {
  WriteResult(line);
  if (to_stderr && severity != Severity::kInfo) {
    std::fflush(stdout);
    std::fwrite(line.data(), 1, line.size(), stderr);
    std::fflush(stderr);
  }
}

}  // namespace

void SetLocationFinder(LocationFinder finder) {
  Finder() = std::move(finder);
}

void SetMessagesToStderr(bool on) {
  to_stderr = on;
}

void IssueComposed(MsgTag tag, Severity severity, const std::string& text, Location where) {
  MessageBook::Verdict verdict = MessageBook::Get().Record(tag, severity);
  if (verdict == MessageBook::Verdict::kHide) return;
  if (where.file.empty() && Finder()) Finder()(where);
  std::string line = std::string(SeverityWord(severity)) + ": ";
  if (!where.file.empty()) {
    line += where.file;
    if (where.line > 0) line += ":" + std::to_string(where.line);
    line += ": ";
  }
  line += text + " (" + TagName(tag) + ")\n";
  Show(severity, line);
  if (verdict == MessageBook::Verdict::kShowLast) {
    Show(Severity::kInfo, std::string("Information: message ") + TagName(tag) +
                              " reached its limit of " +
                              std::to_string(MessageBook::Get().Limit(tag)) +
                              "; further ones are counted but not shown.\n");
  }
}

void HostMsg(MsgTag tag, const std::vector<std::string>& args, const Location& where) {
  const CatalogueEntry* entry = FindCatalogueEntry(tag);
  if (!entry) {
    IssueComposed(tag, Severity::kError, "message without catalogue text", where);
    return;
  }
  IssueComposed(tag, entry->severity, Fill(entry->text, args), where);
}

}  // namespace msg
