#include "hostapi/msg/Msg.h"

#include <tcl.h>

#include <cstdarg>
#include <cstdio>
#include <string>
#include <vector>

#include "msg/HostMsg.h"
#include "msg/MsgCatalogue.h"
#include "msg/ResultChannel.h"

namespace msg {
namespace {

const char* const kTagNames[] = {
#define MSG_TAG(name) #name,
#include "hostapi/msg/MsgTags.def"
#undef MSG_TAG
};
static_assert(sizeof(kTagNames) / sizeof(kTagNames[0]) == MSG_TAG_COUNT, "one name per tag");

std::vector<ResultSink>& Sinks() {
  static std::vector<ResultSink> sinks;
  return sinks;
}

std::string FormatV(const char* format, va_list args) {
  if (!format) return std::string();  // nothing to print, nothing to crash on
  va_list copy;
  va_copy(copy, args);
  int length = std::vsnprintf(nullptr, 0, format, copy);
  va_end(copy);
  if (length <= 0) return std::string();
  std::string text(static_cast<size_t>(length) + 1, '\0');
  std::vsnprintf(text.data(), text.size(), format, args);
  text.resize(static_cast<size_t>(length));
  return text;
}

}  // namespace

const char* TagName(MsgTag tag) {
  if (tag < 0 || tag >= MSG_TAG_COUNT) return "";
  return kTagNames[tag];
}

void PushResultSink(ResultSink sink) {
  Sinks().push_back(std::move(sink));
}

void PopResultSink() {
  if (!Sinks().empty()) Sinks().pop_back();
}

void WriteResult(std::string_view text) {
  if (Sinks().empty()) {
    // Text a script wrote with puts must come out first (when the shell
    // routes puts through here, nothing waits in Tcl's buffer).
    if (Tcl_Channel tcl_out = Tcl_GetStdChannel(TCL_STDOUT)) Tcl_Flush(tcl_out);
    WriteScreen(text);
    return;
  }
  Sinks().back()(text);
}

void WriteScreen(std::string_view text) {
  // No flush per line: the command binding flushes when a command ends.
  std::fwrite(text.data(), 1, text.size(), stdout);
}

void WriteText(std::string_view text) {
  if (Sinks().empty()) {
    WriteScreen(text);
    return;
  }
  Sinks().back()(text);
}

void PrintResultFormatted(const char* format, ...) {
  va_list args;
  va_start(args, format);
  std::string text = FormatV(format, args);
  va_end(args);
  text.push_back('\n');
  WriteResult(text);
}

void Print_Result(const char* text) {
  std::string line;
  for (const char* c = text ? text : ""; *c; ++c) {
    line.push_back(*c);
    if (c[0] == '%' && c[1] == '%') ++c;
  }
  line.push_back('\n');
  WriteResult(line);
}

void InsertEmptyLine() {
  WriteResult("\n");
}

void ReportMsg(MsgTag tag, ...) {
  const CatalogueEntry* entry = FindCatalogueEntry(tag);
  if (!entry) {
    IssueComposed(tag, Severity::kError, "message without catalogue text", Location());
    return;
  }
  va_list args;
  // The tag's type is fixed as int, so it is passed as the int it promotes
  // to; clang still warns that va_start follows an enum parameter.
#if defined(__clang__)
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wvarargs"
#endif
  va_start(args, tag);
#if defined(__clang__)
#pragma clang diagnostic pop
#endif
  std::string body = FormatV(entry->text, args);
  va_end(args);
  IssueComposed(tag, entry->severity, body, Location());
}

}  // namespace msg
