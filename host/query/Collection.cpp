#include "query/Collection.h"

#include <cstring>
#include <string>

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"

namespace query {
namespace {

// Shared by the duplicates Tcl makes of a value.
struct CollectionData {
  std::vector<ObjectRef> refs;
  uint64_t generation = 0;  // of the database when the objects were found
  size_t users = 1;
};

CollectionData* DataOf(Tcl_Obj* value) {
  return static_cast<CollectionData*>(value->internalRep.twoPtrValue.ptr1);
}

void FreeRep(Tcl_Obj* value) {
  CollectionData* data = DataOf(value);
  if (--data->users == 0) delete data;
  value->typePtr = nullptr;
}

void DupRep(Tcl_Obj* source, Tcl_Obj* copy);
void UpdateString(Tcl_Obj* value);

const Tcl_ObjType kCollectionType = {
    const_cast<char*>("kelvo_collection"), FreeRep, DupRep, UpdateString, nullptr,
};

void DupRep(Tcl_Obj* source, Tcl_Obj* copy) {
  CollectionData* data = DataOf(source);
  ++data->users;
  copy->internalRep.twoPtrValue.ptr1 = data;
  copy->typePtr = &kCollectionType;
}

// The Tcl list of the full names, properly quoted.
void SetStringFromNames(Tcl_Obj* value, const std::vector<ObjectRef>& refs) {
  std::vector<std::string> names;
  names.reserve(refs.size());
  for (const ObjectRef& ref : refs) names.push_back(FullName(ref));
  std::vector<const char*> argv;
  argv.reserve(names.size());
  for (const std::string& name : names) argv.push_back(name.c_str());
  char* merged = Tcl_Merge(static_cast<int>(argv.size()), argv.data());
  const size_t length = std::strlen(merged);
  value->bytes = Tcl_Alloc(static_cast<unsigned>(length + 1));
  std::memcpy(value->bytes, merged, length + 1);
  value->length = static_cast<int>(length);
  Tcl_Free(merged);
}

void UpdateString(Tcl_Obj* value) {
  SetStringFromNames(value, DataOf(value)->refs);
}

// Clocks are not database objects: each is checked against the store.
bool ClockStillDefined(const ObjectRef& ref) {
  auto* clock = static_cast<sta::sdc::Clock*>(ref.object);
  return sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr)->findClock(clock->Name()) == clock;
}

}  // namespace

Tcl_Obj* NewCollection(std::vector<ObjectRef> refs) {
  Tcl_Obj* value = Tcl_NewObj();
  Tcl_InvalidateStringRep(value);
  SetStringFromNames(value, refs);
  auto* data = new CollectionData;
  data->refs = std::move(refs);
  data->generation = cdm::DbManager::GetRoot()->ChangeGeneration();
  value->internalRep.twoPtrValue.ptr1 = data;
  value->typePtr = &kCollectionType;
  return value;
}

bool IsCollection(Tcl_Obj* value) {
  return value && value->typePtr == &kCollectionType;
}

bool CollectionRefs(Tcl_Obj* value, std::vector<ObjectRef>& refs) {
  if (!IsCollection(value)) return false;
  CollectionData* data = DataOf(value);
  const uint64_t generation = cdm::DbManager::GetRoot()->ChangeGeneration();
  if (data->generation != generation) {
    // The pointers may be stale: find the objects again by the names the
    // value reads as (its string form was made with the objects).
    int count = 0;
    const char** names = nullptr;
    std::vector<ObjectRef> found;
    if (Tcl_SplitList(nullptr, Tcl_GetString(value), &count, &names) == TCL_OK) {
      for (int i = 0; i < count && i < static_cast<int>(data->refs.size()); ++i) {
        ObjectRef now = FindByFullName(data->refs[i].kind, names[i]);
        if (now.object) found.push_back(now);
      }
      Tcl_Free(reinterpret_cast<char*>(names));
    }
    data->refs = std::move(found);
    data->generation = generation;
  }
  refs.clear();
  refs.reserve(data->refs.size());
  for (const ObjectRef& ref : data->refs)
    if (ref.kind != ObjectKind::kClock || ClockStillDefined(ref)) refs.push_back(ref);
  return true;
}

}  // namespace query
