#include "query/ObjectRef.h"

#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/sta/Clock.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"

namespace query {

const char* KindName(ObjectKind kind) {
  switch (kind) {
    case ObjectKind::kPort:
      return "port";
    case ObjectKind::kPin:
      return "pin";
    case ObjectKind::kNet:
      return "net";
    case ObjectKind::kCell:
      return "cell";
    case ObjectKind::kClock:
      return "clock";
    case ObjectKind::kLibrary:
      return "lib";
    case ObjectKind::kLibCell:
      return "lib_cell";
    case ObjectKind::kLibPin:
      return "lib_pin";
    case ObjectKind::kDesign:
      return "design";
  }
  return "object";
}

cdm::Object* AsObject(const ObjectRef& ref) {
  switch (ref.kind) {
    case ObjectKind::kPort:
      return static_cast<cdm::Port*>(ref.object);
    case ObjectKind::kPin:
      return static_cast<cdm::Pin*>(ref.object);
    case ObjectKind::kNet:
      return static_cast<cdm::Net*>(ref.object);
    case ObjectKind::kCell:
      return static_cast<cdm::Cell*>(ref.object);
    case ObjectKind::kClock:
      return static_cast<sta::sdc::Clock*>(ref.object);
    case ObjectKind::kLibrary:
      return static_cast<cdm::LibertyLib*>(ref.object);
    case ObjectKind::kLibCell:
      return static_cast<cdm::LibCell*>(ref.object);
    case ObjectKind::kLibPin:
      return static_cast<cdm::LibPort*>(ref.object);
    case ObjectKind::kDesign:
      return static_cast<cdm::Design*>(ref.object);
  }
  return nullptr;
}

std::string FullName(const ObjectRef& ref) {
  if (!ref.object) return std::string();
  switch (ref.kind) {
    case ObjectKind::kPort:
      return static_cast<const cdm::Port*>(ref.object)->Name();
    case ObjectKind::kPin:
      return static_cast<const cdm::Pin*>(ref.object)->GetFullName();
    case ObjectKind::kNet:
      return static_cast<const cdm::Net*>(ref.object)->GetFullName();
    case ObjectKind::kCell:
      return static_cast<const cdm::Cell*>(ref.object)->GetFullName();
    case ObjectKind::kClock:
      return static_cast<const sta::sdc::Clock*>(ref.object)->Name();
    case ObjectKind::kLibrary:
      return static_cast<const cdm::LibertyLib*>(ref.object)->Name();
    case ObjectKind::kLibCell: {
      const auto* cell = static_cast<const cdm::LibCell*>(ref.object);
      const cdm::LibertyLib* lib = cell->GetLibertyLib();
      return (lib ? lib->Name() + "/" : std::string()) + cell->Name();
    }
    case ObjectKind::kLibPin: {
      const auto* port = static_cast<const cdm::LibPort*>(ref.object);
      return FullName({ObjectKind::kLibCell, port->GetLibCell()}) + "/" + port->Name();
    }
    case ObjectKind::kDesign:
      return static_cast<const cdm::Design*>(ref.object)->Name();
  }
  return std::string();
}

namespace {

cdm::LibCell* FindLibCell(const std::string& name) {
  size_t slash = name.find('/');
  if (slash == std::string::npos) return nullptr;
  cdm::LibertyLib* lib = cdm::DbManager::GetRoot()->GetLibertyLib(name.substr(0, slash));
  return lib ? lib->GetLibCell(name.substr(slash + 1)) : nullptr;
}

}  // namespace

ObjectRef FindByFullName(ObjectKind kind, const std::string& name) {
  ObjectRef ref{kind, nullptr};
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  switch (kind) {
    case ObjectKind::kPort:
      ref.object = design ? design->FindPort(name) : nullptr;
      break;
    case ObjectKind::kPin:
      ref.object = cdm::DbManager::FindPin(name);
      break;
    case ObjectKind::kNet:
      ref.object = cdm::DbManager::FindNet(name);
      break;
    case ObjectKind::kCell:
      ref.object = cdm::DbManager::FindCell(name);
      break;
    case ObjectKind::kClock:
      ref.object = sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr)->findClock(name);
      break;
    case ObjectKind::kLibrary:
      ref.object = cdm::DbManager::GetRoot()->GetLibertyLib(name);
      break;
    case ObjectKind::kLibCell:
      ref.object = FindLibCell(name);
      break;
    case ObjectKind::kLibPin: {
      size_t slash = name.rfind('/');
      cdm::LibCell* cell =
          slash == std::string::npos ? nullptr : FindLibCell(name.substr(0, slash));
      ref.object = cell ? cell->FindPort(name.substr(slash + 1)) : nullptr;
      break;
    }
    case ObjectKind::kDesign:
      ref.object = cdm::DbManager::GetRoot()->FindDesign(name);
      break;
  }
  return ref;
}

}  // namespace query
