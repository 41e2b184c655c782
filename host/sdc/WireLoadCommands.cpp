// set_wire_load_model, set_wire_load_mode, set_wire_load_selection_group
// and set_operating_conditions.
#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/cdm/Root.h"
#include "sdc/SdcCommand.h"

namespace sta::sdc {
namespace {

using K = query::ObjectKind;

// -library, else the default library, then every library in the order
// read: the first that `has` the name.
template <class Has>
cdm::LibertyLib* FindLibrary(const std::string& library, Has has) {
  cdm::Root* root = cdm::DbManager::GetRoot();
  if (!library.empty()) return root->GetLibertyLib(library);
  if (cdm::LibertyLib* lib = root->GetDefaultLiberty(); lib && has(lib)) return lib;
  for (cdm::LibertyLib* lib : root->LibertyLibs())
    if (has(lib)) return lib;
  return nullptr;
}

class SetWireLoadModelCmd : public SdcCommand {
 public:
  SetWireLoadModelCmd()
      : SdcCommand("set_wire_load_model",
                   "Set the wire-load model of the design, of ports or of hierarchical cells") {
    Text("name", "The wire-load model");
    Text("library", "The library of the model (default: the default library, then any)");
    MinMaxFlags("model");
    Objects("object_list", "The design (the default), ports or hierarchical cells", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("name")) return false;
    const std::string name = TextOf("name");
    cdm::LibertyLib* lib = FindLibrary(TextOf("library"), [&](cdm::LibertyLib* each) {
      return each->GetWireLoad(name) != nullptr;
    });
    const cdm::WireLoad* model = lib ? lib->GetWireLoad(name) : nullptr;
    if (!model) {
      WarnUnknown("wire-load model",
                  TextOf("library").empty() ? name : TextOf("library") + "/" + name);
      return true;
    }
    std::vector<query::ObjectRef> objects;
    if (Has("object_list")) {
      if (!ObjectsOf("object_list", {K::kDesign, K::kPort, K::kCell}, objects)) return false;
    } else {
      objects.push_back({K::kDesign, store.GetDesign()});
    }
    for (const query::ObjectRef& ref : objects) {
      for (const cdm::MinMax* mm : {cdm::MinMax::min_, cdm::MinMax::max_}) {
        if (!Covers(Which(), mm)) continue;
        if (ref.kind == K::kDesign) {
          store.Design().wire_load[mm->index()] = model;
        } else if (ref.kind == K::kPort) {
          store.Port(static_cast<cdm::Port*>(ref.object)).wire_load[mm->index()] = model;
        } else {
          auto* cell = static_cast<cdm::Cell*>(ref.object);
          if (!cell->IsHierarchical()) {
            WarnUnknown("hierarchical cell", cell->GetFullName());
            break;
          }
          store.Cell(cell).wire_load[mm->index()] = model;
        }
      }
    }
    store.NoteChange();
    return true;
  }
};

class SetWireLoadModeCmd : public SdcCommand {
 public:
  SetWireLoadModeCmd()
      : SdcCommand("set_wire_load_mode",
                   "Choose which level's wire-load model a net across hierarchy takes") {
    Text("mode_name", "top, enclosed or segmented", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("mode_name")) return false;
    const std::string mode = TextOf("mode_name");
    if (mode == "top")
      store.Design().wire_load_mode = cdm::WireLoadMode::kTop;
    else if (mode == "enclosed")
      store.Design().wire_load_mode = cdm::WireLoadMode::kEnclosed;
    else if (mode == "segmented")
      store.Design().wire_load_mode = cdm::WireLoadMode::kSegmented;
    else
      return Fail("'" + mode + "' is no wire-load mode (top, enclosed or segmented)");
    store.NoteChange();
    return true;
  }
};

class SetWireLoadSelectionGroupCmd : public SdcCommand {
 public:
  SetWireLoadSelectionGroupCmd()
      : SdcCommand("set_wire_load_selection_group",
                   "Choose wire-load models by area from a library's selection group") {
    Text("group_name", "The wire_load_selection group", true);
    Text("library", "The library of the group (default: the default library, then any)");
    MinMaxFlags("selection");
    Objects("object_list", "The design (the default)", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Need("group_name")) return false;
    const std::string name = TextOf("group_name");
    cdm::LibertyLib* lib = FindLibrary(TextOf("library"), [&](cdm::LibertyLib* each) {
      return each->GetWireLoadSelection(name) != nullptr;
    });
    if (!lib || !lib->GetWireLoadSelection(name)) {
      WarnUnknown("wire-load selection group", name);
      return true;
    }
    if (Has("object_list")) {
      std::vector<query::ObjectRef> objects;
      if (!ObjectsOf("object_list", {K::kDesign}, objects)) return false;
      if (objects.empty()) return true;
    }
    for (const cdm::MinMax* mm : {cdm::MinMax::min_, cdm::MinMax::max_}) {
      if (!Covers(Which(), mm)) continue;
      store.Design().selection_group[mm->index()] = name;
      store.Design().selection_library[mm->index()] = lib;
    }
    store.NoteChange();
    return true;
  }
};

class SetOperatingConditionsCmd : public SdcCommand {
 public:
  SetOperatingConditionsCmd()
      : SdcCommand("set_operating_conditions",
                   "Choose the library's operating conditions for analysis") {
    Text("library", "The library of the conditions (default: the default library, then any)");
    Text("analysis_type", "single, bc_wc or on_chip_variation");
    Text("max", "Conditions for maximum delays");
    Text("min", "Conditions for minimum delays");
    Text("max_library", "The library of the -max conditions");
    Text("min_library", "The library of the -min conditions");
    Text("condition", "Conditions for both", true);
  }

 protected:
  bool Run(SdcStore& store) override {
    if (!Has("condition") && !Has("max") && !Has("min"))
      return Fail("give the conditions, or -max and -min");
    if (Has("analysis_type")) {
      const std::string type = TextOf("analysis_type");
      if (type != "single" && type != "bc_wc" && type != "on_chip_variation")
        return Fail("'" + type + "' is no analysis type (single, bc_wc, on_chip_variation)");
    }
    struct Pick {
      const char* option;
      const char* library_option;
      const cdm::MinMax* minmax;
    };
    const Pick picks[] = {{"condition", "library", nullptr},
                          {"max", "max_library", cdm::MinMax::max_},
                          {"min", "min_library", cdm::MinMax::min_}};
    for (const Pick& pick : picks) {
      if (!Has(pick.option)) continue;
      const std::string name = TextOf(pick.option);
      std::string library = TextOf(pick.library_option);
      if (library.empty()) library = TextOf("library");
      cdm::LibertyLib* lib = FindLibrary(library, [&](cdm::LibertyLib* each) {
        return each->GetOperatingConditions(name) != nullptr;
      });
      const cdm::OperatingConditions* conditions =
          lib ? lib->GetOperatingConditions(name) : nullptr;
      if (!conditions) {
        WarnUnknown("operating conditions", name);
        continue;
      }
      for (const cdm::MinMax* mm : {cdm::MinMax::min_, cdm::MinMax::max_}) {
        if (pick.minmax && pick.minmax != mm) continue;
        store.Design().operating_conditions[mm->index()] = conditions;
        store.Design().operating_library[mm->index()] = lib;
      }
    }
    store.NoteChange();
    return true;
  }
};

cmdlib::HostCommandRegistrar registrar([] {
  new SetWireLoadModelCmd();
  new SetWireLoadModeCmd();
  new SetWireLoadSelectionGroupCmd();
  new SetOperatingConditionsCmd();
});

}  // namespace
}  // namespace sta::sdc
