// Which wire-load model and mode are in force: for the design, set by
// set_wire_load_model, else chosen by the design's area from a selection
// group (set_wire_load_selection_group, else the default library's
// default_wire_load_selection), else the default library's
// default_wire_load; for a hierarchical instance, its own model, else the
// one its area selects, else the design's.
#pragma once

#include <string>

#include "hostapi/cdm/LibEnums.h"
#include "hostapi/cdm/Selectors.h"

namespace cdm {
class WireLoad;
class WireLoadSelection;
}  // namespace cdm

namespace sta::sdc {

class SdcStore;

struct WireLoadChoice {
  enum class Source { kNone, kUser, kArea, kLibraryDefault };
  const cdm::WireLoad* model = nullptr;
  Source source = Source::kNone;
  // With kArea: the group and the area it was chosen by.
  const cdm::WireLoadSelection* selection = nullptr;
  double area = 0.0;
};

// The model of the design.
WireLoadChoice ChooseDesignWireLoad(SdcStore& store, const cdm::MinMax* minmax);
// The model of the hierarchical instance at `path` ("u1/u2"; "" is the
// design itself).
WireLoadChoice ChooseInstanceWireLoad(SdcStore& store, const std::string& path,
                                      const cdm::MinMax* minmax);
// The selection group that applies, or null.
const cdm::WireLoadSelection* SelectionInForce(SdcStore& store, const cdm::MinMax* minmax);
// The area of the leaf cells of the current design, or below an instance,
// as the libraries write areas.
double InstanceArea(const std::string& path);

// set_wire_load_mode, else the default library's default_wire_load_mode,
// else top.
cdm::WireLoadMode WireLoadModeInForce(const SdcStore& store);

}  // namespace sta::sdc
