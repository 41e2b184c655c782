// sizeof_collection, foreach_in_collection, get_attribute,
// get_object_name, filter_collection, add_to_collection,
// remove_from_collection and index_collection.
#include <boost/any.hpp>
#include <unordered_set>

#include "cmdlib/CommandState.h"
#include "cmdlib/HostCommands.h"
#include "msg/HostMsg.h"
#include "query/Collection.h"
#include "query/FilterExpr.h"
#include "query/ObjectArgs.h"
#include "query/ObjectAttributes.h"
#include "query/QueryCmd.h"

namespace query {
namespace {

using K = ObjectKind;

// Names given where a collection is expected are looked up as these kinds,
// in this order.
const std::vector<ObjectKind> kAnyKind = {K::kPort,   K::kCell,    K::kPin,
                                          K::kNet,    K::kClock,   K::kLibCell,
                                          K::kLibPin, K::kLibrary, K::kDesign};

bool KindByName(const std::string& name, ObjectKind& kind) {
  for (ObjectKind each : kAnyKind) {
    if (name == KindName(each)) {
      kind = each;
      return true;
    }
  }
  return false;
}

// A collection-taking command: declares -help, reads the objects of a
// positional option.
class CollectionCmd : public CommonCmd {
 public:
  using CommonCmd::CommonCmd;

 protected:
  bool Objects(const std::string& option, const std::vector<ObjectKind>& kinds,
               std::vector<ObjectRef>& objects, bool quiet = false) {
    ObjectArgs args;
    std::string error;
    if (!ResolveOption(*this, option, kinds, MatchOptions{}, CurrentSeparator(), args, error)) {
      SetTclError(name() + ": " + error);
      return false;
    }
    if (!quiet)
      for (const std::string& unknown : args.unmatched)
        msg::HostMsg(SDC_001, {name(), "object", unknown});
    objects = std::move(args.objects);
    return true;
  }
  Tcl_Obj* Argument(const std::string& option) {
    auto found = state().parsed.find(option);
    if (found == state().parsed.end() || found->second.arg_indices.empty()) return nullptr;
    return state().call_objects.at(found->second.arg_indices.front());
  }
  std::string Text(const std::string& option) {
    boost::any value;
    return getOptionValue(option, value) ? boost::any_cast<std::string>(value) : std::string();
  }
};

class SizeofCollectionCmd : public CollectionCmd {
 public:
  SizeofCollectionCmd()
      : CollectionCmd("sizeof_collection", "The number of objects in a collection", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("collection", "The collection", true, ValueType::kString, std::any());
  }
  int exec() override {
    Tcl_Obj* value = Argument("collection");
    std::vector<ObjectRef> refs;
    int count = 0;
    if (value && CollectionRefs(value, refs)) {
      count = static_cast<int>(refs.size());
    } else if (value && Tcl_ListObjLength(nullptr, value, &count) != TCL_OK) {
      SetTclError(name() + ": '" + Tcl_GetString(value) + "' is no collection");
      return 1;
    }
    SetTclResult(std::to_string(count));
    return 0;
  }
};

class ForeachInCollectionCmd : public CollectionCmd {
 public:
  ForeachInCollectionCmd()
      : CollectionCmd("foreach_in_collection",
                      "Run a script for each object of a collection, the variable holding it",
                      nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("variable", "Variable that holds each object in turn", true, ValueType::kString,
               std::any());
    addOptions("collection", "The collection", true, ValueType::kString, std::any());
    addOptions("body", "Script to run for each object", true, ValueType::kString, std::any());
  }
  int exec() override {
    const std::string variable = Text("variable");
    Tcl_Obj* body = Argument("body");
    Tcl_Interp* interp = state().interp;
    if (variable.empty() || !body || !interp) {
      SetTclError(name() + ": expected a variable, a collection and a script");
      return 1;
    }
    std::vector<ObjectRef> refs;
    if (!Objects("collection", kAnyKind, refs)) return 1;
    // The body may run this command again: nothing of this call's state is
    // read after the first run of the body.
    Tcl_IncrRefCount(body);
    int status = TCL_OK;
    for (const ObjectRef& ref : refs) {
      if (!Tcl_SetVar2Ex(interp, variable.c_str(), nullptr, NewCollection({ref}),
                         TCL_LEAVE_ERR_MSG)) {
        status = TCL_ERROR;
        break;
      }
      status = Tcl_EvalObjEx(interp, body, 0);
      if (status == TCL_CONTINUE) status = TCL_OK;
      if (status != TCL_OK) break;
    }
    Tcl_DecrRefCount(body);
    if (status == TCL_ERROR) {
      std::string message = Tcl_GetStringResult(interp);
      if (message.compare(0, 7, "Error: ") == 0) message.erase(0, 7);
      SetTclError(message);
      return 1;
    }
    SetTclResult(std::string());
    return 0;
  }
};

class GetAttributeCmd : public CollectionCmd {
 public:
  GetAttributeCmd()
      : CollectionCmd("get_attribute", "The value of an attribute of objects", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("class",
               "Kind of the objects named: port, pin, net, cell, clock, lib, lib_cell, "
               "lib_pin or design",
               false, ValueType::kString, std::any());
    addOptions("quiet", "Say nothing about objects without the attribute", false, ValueType::kFlag,
               std::any());
    addOptions("objects", "Objects (a collection or names)", true, ValueType::kString, std::any());
    addOptions("attribute", "Attribute name", true, ValueType::kString, std::any());
  }
  int exec() override {
    std::vector<ObjectKind> kinds = kAnyKind;
    if (getOptionCount("class") > 0) {
      ObjectKind kind;
      if (!KindByName(Text("class"), kind)) {
        SetTclError(name() + ": unknown object class '" + Text("class") + "'");
        return 1;
      }
      kinds = {kind};
    }
    const std::string attribute = Text("attribute");
    if (attribute.empty()) {
      SetTclError(name() + ": expected objects and an attribute name");
      return 1;
    }
    const bool quiet = getOptionValue("quiet");
    std::vector<ObjectRef> refs;
    if (!Objects("objects", kinds, refs, quiet)) return 1;
    std::vector<std::string> values;
    for (const ObjectRef& ref : refs) {
      std::string value;
      if (GetAttribute(ref, attribute, value)) {
        values.push_back(value);
      } else if (!quiet) {
        SetTclError(name() + ": " + KindName(ref.kind) + " '" + FullName(ref) +
                    "' has no attribute '" + attribute + "'");
        return 1;
      }
    }
    if (values.size() == 1)
      SetTclResult(values.front());
    else
      SetTclResultList(std::move(values));
    return 0;
  }
};

class GetObjectNameCmd : public CollectionCmd {
 public:
  GetObjectNameCmd()
      : CollectionCmd("get_object_name", "The full names of the objects of a collection", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("collection", "The collection", true, ValueType::kString, std::any());
  }
  int exec() override {
    std::vector<ObjectRef> refs;
    if (!Objects("collection", kAnyKind, refs)) return 1;
    std::vector<std::string> names;
    for (const ObjectRef& ref : refs) names.push_back(FullName(ref));
    if (names.size() == 1)
      SetTclResult(names.front());
    else
      SetTclResultList(std::move(names));
    return 0;
  }
};

class FilterCollectionCmd : public CollectionCmd {
 public:
  FilterCollectionCmd()
      : CollectionCmd("filter_collection",
                      "The objects of a collection for which an expression holds", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("regexp", "=~ and !~ take regular expressions", false, ValueType::kFlag, std::any());
    addOptions("nocase", "Match without regard to case", false, ValueType::kFlag, std::any());
    addOptions("collection", "The collection", true, ValueType::kString, std::any());
    addOptions("expression", "The filter expression", true, ValueType::kString, std::any());
  }
  int exec() override {
    MatchOptions options;
    options.regexp = getOptionValue("regexp");
    options.nocase = getOptionValue("nocase");
    FilterExpr filter(Text("expression"), options);
    if (!filter.Valid()) {
      SetTclError(name() + ": " + filter.Error());
      return 1;
    }
    std::vector<ObjectRef> refs, kept;
    if (!Objects("collection", kAnyKind, refs)) return 1;
    std::string error;
    for (const ObjectRef& ref : refs) {
      if (filter.Matches(ref, error)) kept.push_back(ref);
      if (!error.empty()) {
        SetTclError(name() + ": " + error);
        return 1;
      }
    }
    SetCollectionResult(*this, std::move(kept));
    return 0;
  }
};

struct RefHash {
  size_t operator()(const ObjectRef& ref) const {
    return std::hash<void*>()(ref.object) ^ static_cast<size_t>(ref.kind);
  }
};

class AddToCollectionCmd : public CollectionCmd {
 public:
  AddToCollectionCmd()
      : CollectionCmd("add_to_collection", "A collection with further objects added", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("unique", "Leave out objects already in the result", false, ValueType::kFlag,
               std::any());
    addOptions("collection", "The collection", true, ValueType::kString, std::any());
    addOptions("objects", "Objects to add (collections or names)", true, ValueType::kStringList,
               std::any());
  }
  int exec() override {
    std::vector<ObjectRef> refs, more;
    if (!Objects("collection", kAnyKind, refs) || !Objects("objects", kAnyKind, more)) return 1;
    refs.insert(refs.end(), more.begin(), more.end());
    if (getOptionValue("unique")) {
      std::unordered_set<ObjectRef, RefHash> seen;
      std::vector<ObjectRef> unique;
      for (const ObjectRef& ref : refs)
        if (seen.insert(ref).second) unique.push_back(ref);
      refs.swap(unique);
    }
    SetCollectionResult(*this, std::move(refs));
    return 0;
  }
};

class RemoveFromCollectionCmd : public CollectionCmd {
 public:
  RemoveFromCollectionCmd()
      : CollectionCmd("remove_from_collection",
                      "A collection less the objects of another (or only those, -intersect)",
                      nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("intersect", "Keep only the objects that are also in the other", false,
               ValueType::kFlag, std::any());
    addOptions("collection", "The collection", true, ValueType::kString, std::any());
    addOptions("objects", "Objects to remove (collections or names)", true, ValueType::kStringList,
               std::any());
  }
  int exec() override {
    std::vector<ObjectRef> refs, other;
    if (!Objects("collection", kAnyKind, refs) || !Objects("objects", kAnyKind, other)) return 1;
    const std::unordered_set<ObjectRef, RefHash> named(other.begin(), other.end());
    const bool keep_named = getOptionValue("intersect");
    std::vector<ObjectRef> kept;
    for (const ObjectRef& ref : refs)
      if ((named.count(ref) > 0) == keep_named) kept.push_back(ref);
    SetCollectionResult(*this, std::move(kept));
    return 0;
  }
};

class IndexCollectionCmd : public CollectionCmd {
 public:
  IndexCollectionCmd()
      : CollectionCmd("index_collection", "The object at an index of a collection", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("collection", "The collection", true, ValueType::kString, std::any());
    addOptions("index", "Index, from 0", true, ValueType::kInteger, std::any());
  }
  int exec() override {
    std::vector<ObjectRef> refs;
    if (!Objects("collection", kAnyKind, refs)) return 1;
    boost::any value;
    const int index = getOptionValue("index", value) ? boost::any_cast<int>(value) : -1;
    if (index < 0 || static_cast<size_t>(index) >= refs.size()) {
      SetTclError(name() + ": index " + std::to_string(index) + " is outside the collection of " +
                  std::to_string(refs.size()));
      return 1;
    }
    SetCollectionResult(*this, {refs[static_cast<size_t>(index)]});
    return 0;
  }
};

cmdlib::HostCommandRegistrar registrar([] {
  new SizeofCollectionCmd();
  new ForeachInCollectionCmd();
  new GetAttributeCmd();
  new GetObjectNameCmd();
  new FilterCollectionCmd();
  new AddToCollectionCmd();
  new RemoveFromCollectionCmd();
  new IndexCollectionCmd();
});

}  // namespace
}  // namespace query
