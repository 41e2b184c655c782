#include "query/ObjectArgs.h"

#include <algorithm>

#include "cmdlib/CommandState.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "query/Collection.h"
#include "query/ObjectFinder.h"
#include "sdc/SdcStore.h"

namespace query {
namespace {

bool FindAs(ObjectKind kind, const std::string& name, const MatchOptions& options,
            std::vector<ObjectRef>& found, std::string& error) {
  const cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  FindOptions find;
  static_cast<MatchOptions&>(find) = options;
  switch (kind) {
    case ObjectKind::kPort:
      return FindPorts(design, name, options, found, error);
    case ObjectKind::kPin: {
      if (!FindPins(design, name, find, found, error)) return false;
      // A top port names the pin that stands for it.
      if (found.empty() && design && name.find('/') == std::string::npos) {
        std::vector<ObjectRef> ports;
        if (!FindPorts(design, name, options, ports, error)) return false;
        for (const ObjectRef& port : ports)
          if (cdm::Pin* pin = design->FindPin(AsObject(port)->Name()))
            found.push_back({ObjectKind::kPin, pin});
      }
      return true;
    }
    case ObjectKind::kNet:
      return FindNets(design, name, find, found, error);
    case ObjectKind::kCell:
      return FindCells(design, name, find, found, error);
    case ObjectKind::kClock:
      return FindClocks(name, options, found, error);
    case ObjectKind::kLibrary:
      return FindLibs(name, options, found, error);
    case ObjectKind::kLibCell:
      return FindLibCells(name, options, found, error);
    case ObjectKind::kLibPin:
      return FindLibPins(name, options, found, error);
    case ObjectKind::kDesign: {
      NameMatcher matcher(name, options);
      for (cdm::Design* each : cdm::DbManager::GetRoot()->Designs())
        if (matcher.Matches(each->Name())) found.push_back({ObjectKind::kDesign, each});
      return true;
    }
  }
  return true;
}

void TakeRefs(const std::vector<ObjectRef>& refs, const std::vector<ObjectKind>& kinds,
              ObjectArgs& args) {
  for (const ObjectRef& ref : refs) {
    if (std::find(kinds.begin(), kinds.end(), ref.kind) != kinds.end())
      args.objects.push_back(ref);
    else
      args.wrong_kind.push_back(ref);
  }
}

bool ResolveName(const std::string& name, const std::vector<ObjectKind>& kinds,
                 const MatchOptions& options, char separator, ObjectArgs& args,
                 std::string& error) {
  const std::string path = WithDatabaseSeparator(name, separator);
  for (ObjectKind kind : kinds) {
    std::vector<ObjectRef> found;
    if (!FindAs(kind, IsHierarchicalKind(kind) ? path : name, options, found, error)) return false;
    if (!found.empty()) {
      args.objects.insert(args.objects.end(), found.begin(), found.end());
      return true;
    }
  }
  args.unmatched.push_back(name);
  return true;
}

}  // namespace

bool ResolveValue(Tcl_Obj* value, const std::vector<ObjectKind>& kinds, const MatchOptions& options,
                  char separator, ObjectArgs& args, std::string& error) {
  std::vector<ObjectRef> refs;
  if (CollectionRefs(value, refs)) {
    TakeRefs(refs, kinds, args);
    return true;
  }
  int count = 0;
  Tcl_Obj** elements = nullptr;
  if (Tcl_ListObjGetElements(nullptr, value, &count, &elements) != TCL_OK) {
    error = "'" + std::string(Tcl_GetString(value)) + "' is not a list of objects";
    return false;
  }
  for (int i = 0; i < count; ++i) {
    if (CollectionRefs(elements[i], refs)) {
      TakeRefs(refs, kinds, args);
    } else if (!ResolveName(Tcl_GetString(elements[i]), kinds, options, separator, args, error)) {
      return false;
    }
  }
  return true;
}

char CurrentSeparator() {
  if (!cdm::DbManager::GetCurrentDesign()) return '/';
  return sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr)->store().HierarchySeparator();
}

bool IsHierarchicalKind(ObjectKind kind) {
  return kind == ObjectKind::kCell || kind == ObjectKind::kNet || kind == ObjectKind::kPin;
}

std::string WithDatabaseSeparator(std::string name, char separator) {
  if (separator != '/') std::replace(name.begin(), name.end(), separator, '/');
  return name;
}

int OptionUses(CommonCmd& command, const std::string& option) {
  const auto& parsed = command.state().parsed;
  auto found = parsed.find(option);
  return found == parsed.end() ? 0 : static_cast<int>(found->second.arg_indices.size());
}

bool ResolveOption(CommonCmd& command, const std::string& option,
                   const std::vector<ObjectKind>& kinds, const MatchOptions& options,
                   char separator, ObjectArgs& args, std::string& error, int use) {
  CommonCmd::State& state = command.state();
  auto found = state.parsed.find(option);
  if (found == state.parsed.end()) return true;
  const std::vector<size_t>& indices = found->second.arg_indices;
  for (size_t i = 0; i < indices.size(); ++i) {
    if (use >= 0 && static_cast<size_t>(use) != i) continue;
    if (indices[i] >= state.call_objects.size()) continue;
    if (!ResolveValue(state.call_objects[indices[i]], kinds, options, separator, args, error))
      return false;
  }
  return true;
}

std::string KindsText(const std::vector<ObjectKind>& kinds) {
  std::string text;
  for (size_t i = 0; i < kinds.size(); ++i) {
    if (i > 0) text += i + 1 == kinds.size() ? " or " : ", ";
    text += KindName(kinds[i]);
  }
  return text;
}

}  // namespace query
