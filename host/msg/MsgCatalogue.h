// The texts behind the message tags. Only tags with an entry can be issued
// with a readable text; others print a placeholder with their tag name.
#pragma once

#include "hostapi/msg/Msg.h"

namespace msg {

enum class Severity { kInfo, kWarning, kError };

struct CatalogueEntry {
  MsgTag tag;
  Severity severity;
  const char* text;  // printf format; every argument is a C string
};

const CatalogueEntry* FindCatalogueEntry(MsgTag tag);
const char* SeverityWord(Severity severity);

}  // namespace msg
