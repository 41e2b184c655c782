// The message layer: every line of report text and every tagged complaint
// goes through these calls to the tool's result channel.
#pragma once

#include <cstddef>

enum MsgTag : int {
#define MSG_TAG(name) name,
#include "hostapi/msg/MsgTags.def"
#undef MSG_TAG
  MSG_TAG_COUNT
};

namespace msg {

// Name of a tag ("COMMAND_001"), or "" for a value outside the table.
const char* TagName(MsgTag tag);

// Looks the tag up in the catalogue and prints its text, the printf-style
// arguments filled in, e.g. "Error: report_lib: no lib specified! (COMMAND_001)".
void ReportMsg(MsgTag tag, ...);

// printf-style text on the result channel; a newline always follows it.
void PrintResultFormatted(const char* format, ...) __attribute__((format(printf, 1, 2)));

template <class First, class... Rest>
void Print_Result(const char* format, First first, Rest... rest) {
  PrintResultFormatted(format, first, rest...);
}

// A text passed with nothing to fill in, as reports pass text they composed
// themselves (a name in it may hold a "%"): "%%" prints one "%", and any
// other conversion prints as written, since no argument is there to read.
void Print_Result(const char* text);

// One empty line on the result channel.
void InsertEmptyLine();

}  // namespace msg
