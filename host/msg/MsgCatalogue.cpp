#include "msg/MsgCatalogue.h"

namespace msg {
namespace {

const CatalogueEntry kCatalogue[] = {
    {COMMAND_001, Severity::kError, "%s: %s"},
    {COMMAND_010, Severity::kError, "option '-%s' cannot be used together with option '-%s'."},
    {COMMON_001, Severity::kWarning, "Cannot find object '%s' in design '%s'."},
    {DATABASE_001, Severity::kWarning, "%s"},
    {POWER_005, Severity::kWarning,
     "%s: %s names in '%s' are not in design '%s' (the first: '%s'); they are left out."},
    {POWER_006, Severity::kInfo, "%s: annotated %s nets of design '%s' from '%s'."},
    {QUERY_001, Severity::kWarning, "No %s matched '%s'"},
    {Report_001, Severity::kInfo, "%s: option '%s' is accepted and ignored by this tool."},
    {Report_002, Severity::kWarning, "Cannot find port '%s' in design '%s'."},
    {SDC_001, Severity::kWarning, "%s: no %s matches '%s'."},
    {SDC_002, Severity::kWarning, "%s: %s '%s' is no %s; it is left out."},
    {SDC_003, Severity::kWarning, "Dropped %s on %s '%s': it no longer exists in design '%s'."},
    {SDC_004, Severity::kWarning,
     "Dropped clock '%s': none of its sources exists in design '%s' any more."},
    {SDC_005, Severity::kWarning,
     "Dropped a timing exception of design '%s': all objects of one of its -from, -through "
     "or -to lists are gone."},
    {SDC_006, Severity::kWarning, "%s is accepted but not modelled; its settings are ignored."},
    {SDC_007, Severity::kWarning,
     "%s: clock '%s' is replaced by '%s' on all its sources; it is removed with the "
     "constraints relative to it."},
    {SDC_008, Severity::kWarning, "%s: port '%s' is no %s port; it is left out."},
    {SDC_009, Severity::kWarning, "Dropped %s on %s '%s': its %s '%s' no longer exists."},
    {SET_LOAD_001, Severity::kWarning,
     "%s: the load %s is negative; it is kept as given and lowers the capacitance of what it "
     "is set on."},
    {STA_001, Severity::kWarning,
     "Combinational loop cut at the arc from '%s' to '%s'; the loop's pins: %s."},
    {STA_002, Severity::kWarning,
     "SPEF net '%s' is not a net of design '%s'; its parasitics are left out."},
    {STA_003, Severity::kWarning, "SPEF %s '%s' of net '%s' is not in design '%s'."},
    {STA_004, Severity::kWarning,
     "Pin '%s' of net '%s' is missing from the net's SPEF connections; its capacitance loads "
     "the net all the same."},
};

}  // namespace

const CatalogueEntry* FindCatalogueEntry(MsgTag tag) {
  for (const CatalogueEntry& entry : kCatalogue)
    if (entry.tag == tag) return &entry;
  return nullptr;
}

const char* SeverityWord(Severity severity) {
  switch (severity) {
    case Severity::kInfo:
      return "Information";
    case Severity::kWarning:
      return "Warning";
    case Severity::kError:
      return "Error";
  }
  return "Error";
}

}  // namespace msg
