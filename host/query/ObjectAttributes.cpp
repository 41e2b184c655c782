#include "query/ObjectAttributes.h"

#include <cstdio>
#include <functional>
#include <map>

#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/sta/Clock.h"

namespace query {
namespace {

using Getter = std::function<std::string(void*)>;
using Table = std::vector<std::pair<std::string, Getter>>;

std::string Bool(bool value) {
  return value ? "true" : "false";
}

std::string Number(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", value);
  return text;
}

std::string Direction(uint8_t direction) {
  switch (direction) {
    case cdm::kDirInput:
      return "in";
    case cdm::kDirOutput:
      return "out";
    case cdm::kDirInout:
      return "inout";
    default:
      return "internal";
  }
}

// A value in the default library's unit of `pick`, or SI without one.
std::string InLibraryUnit(double si, const cdm::Unit& (*pick)(const cdm::LibertyLib*)) {
  const cdm::LibertyLib* lib = cdm::DbManager::GetDefaultLiberty();
  const double scale = lib && pick(lib).scale > 0.0f ? pick(lib).scale : 1.0;
  return Number(si / scale);
}
const cdm::Unit& TimeUnit(const cdm::LibertyLib* lib) {
  return lib->GetTimeUnit();
}
const cdm::Unit& CapUnit(const cdm::LibertyLib* lib) {
  return lib->GetCapacitanceUnit();
}

template <class T, class F>
Getter Get(F f) {
  return [f](void* object) { return f(static_cast<T*>(object)); };
}

const Table& PortTable() {
  static const Table table = {
      {"direction", Get<cdm::Port>([](cdm::Port* p) { return Direction(p->GetDirection()); })},
      {"fanout_load", Get<cdm::Port>([](cdm::Port* p) {
         return Number(p->GetFloatAttribute(cdm::AttrId::kFanoutLoad));
       })},
  };
  return table;
}

const Table& PinTable() {
  static const Table table = {
      {"direction", Get<cdm::Pin>([](cdm::Pin* p) { return Direction(p->GetDirection()); })},
      {"lib_pin_name",
       Get<cdm::Pin>([](cdm::Pin* p) { return p->GetPort() ? p->GetPort()->Name() : ""; })},
      {"cell", Get<cdm::Pin>([](cdm::Pin* p) {
         return p->GetCell() ? p->GetCell()->GetFullName() : std::string();
       })},
      {"net", Get<cdm::Pin>([](cdm::Pin* p) {
         return p->GetNet() ? p->GetNet()->GetFullName() : std::string();
       })},
      {"is_hierarchical", Get<cdm::Pin>([](cdm::Pin* p) { return Bool(p->IsHierarchicalPin()); })},
      {"is_port", Get<cdm::Pin>([](cdm::Pin* p) { return Bool(p->IsTopPortPin()); })},
      {"is_clock_pin", Get<cdm::Pin>([](cdm::Pin* p) {
         auto* lib_port = dynamic_cast<cdm::LibPort*>(p->GetPort());
         return Bool(lib_port && lib_port->IsClock());
       })},
      {"capacitance", Get<cdm::Pin>([](cdm::Pin* p) {
         return InLibraryUnit(p->Capacitance(cdm::RiseFall::rise_, cdm::MinMax::max_), CapUnit);
       })},
  };
  return table;
}

const Table& CellTable() {
  static const Table table = {
      {"ref_name", Get<cdm::Cell>([](cdm::Cell* c) { return c->GetRefName(); })},
      {"lib_cell", Get<cdm::Cell>([](cdm::Cell* c) {
         return c->GetRefLibCell() ? c->GetRefLibCell()->Name() : std::string();
       })},
      {"is_hierarchical", Get<cdm::Cell>([](cdm::Cell* c) { return Bool(c->IsHierarchical()); })},
      {"is_sequential", Get<cdm::Cell>([](cdm::Cell* c) {
         return Bool(c->GetRefLibCell() && c->GetRefLibCell()->IsSequentialCell());
       })},
      {"is_combinational", Get<cdm::Cell>([](cdm::Cell* c) {
         return Bool(c->GetRefLibCell() && !c->GetRefLibCell()->IsSequentialCell());
       })},
      {"is_buffer", Get<cdm::Cell>([](cdm::Cell* c) {
         return Bool(c->GetRefLibCell() && c->GetRefLibCell()->IsBuffer());
       })},
      {"is_inverter", Get<cdm::Cell>([](cdm::Cell* c) {
         return Bool(c->GetRefLibCell() && c->GetRefLibCell()->IsInverter());
       })},
      {"is_unresolved", Get<cdm::Cell>([](cdm::Cell* c) { return Bool(c->IsUnresolved()); })},
      {"area", Get<cdm::Cell>([](cdm::Cell* c) {
         return Number(c->GetRefLibCell() ? c->GetRefLibCell()->GetArea() : 0.0);
       })},
      {"dont_touch",
       Get<cdm::Cell>([](cdm::Cell* c) { return Bool(c->HasAttribute(cdm::AttrId::kDontTouch)); })},
  };
  return table;
}

const Table& NetTable() {
  static const Table table = {
      {"is_constant", Get<cdm::Net>([](cdm::Net* n) { return Bool(n->GetConstValue() >= 0); })},
      {"driver", Get<cdm::Net>([](cdm::Net* n) {
         return n->GetDriverPin() ? n->GetDriverPin()->GetFullName() : std::string();
       })},
  };
  return table;
}

const Table& ClockTable() {
  using sta::sdc::Clock;
  static const Table table = {
      {"period", Get<Clock>([](Clock* c) { return InLibraryUnit(c->getPeriod(), TimeUnit); })},
      {"waveform", Get<Clock>([](Clock* c) {
         std::string times;
         for (float time : c->getWaveform())
           times += (times.empty() ? "" : " ") + InLibraryUnit(time, TimeUnit);
         return times;
       })},
      {"is_generated", Get<Clock>([](Clock* c) { return Bool(c->isGenerated()); })},
      {"is_propagated", Get<Clock>([](Clock* c) { return Bool(c->isPropagated()); })},
      {"is_virtual", Get<Clock>([](Clock* c) { return Bool(c->isVirtual()); })},
      {"sources", Get<Clock>([](Clock* c) {
         std::string names;
         for (const cdm::Pin* pin : c->getSources())
           names += (names.empty() ? "" : " ") + pin->GetFullName();
         return names;
       })},
  };
  return table;
}

const Table& LibraryTable() {
  static const Table table = {
      {"file_name", Get<cdm::LibertyLib>([](cdm::LibertyLib* l) { return l->GetLibFileName(); })},
  };
  return table;
}

const Table& LibCellTable() {
  using cdm::LibCell;
  static const Table table = {
      {"area", Get<LibCell>([](LibCell* c) { return Number(c->GetArea()); })},
      {"is_sequential", Get<LibCell>([](LibCell* c) { return Bool(c->IsSequentialCell()); })},
      {"is_combinational", Get<LibCell>([](LibCell* c) { return Bool(!c->IsSequentialCell()); })},
      {"is_buffer", Get<LibCell>([](LibCell* c) { return Bool(c->IsBuffer()); })},
      {"is_inverter", Get<LibCell>([](LibCell* c) { return Bool(c->IsInverter()); })},
      {"dont_use", Get<LibCell>([](LibCell* c) { return Bool(c->DontUse()); })},
      {"dont_touch", Get<LibCell>([](LibCell* c) { return Bool(c->DontTouch()); })},
      {"library", Get<LibCell>([](LibCell* c) {
         return c->GetLibertyLib() ? c->GetLibertyLib()->Name() : std::string();
       })},
  };
  return table;
}

const Table& LibPinTable() {
  using cdm::LibPort;
  static const Table table = {
      {"direction", Get<LibPort>([](LibPort* p) { return Direction(p->GetDirection()); })},
      {"is_clock", Get<LibPort>([](LibPort* p) { return Bool(p->IsClock()); })},
      {"capacitance", Get<LibPort>([](LibPort* p) {
         const float cap = p->GetCapacitance(cdm::RiseFall::rise_, cdm::MinMax::max_);
         return InLibraryUnit(cap < 0.0f ? 0.0f : cap, CapUnit);
       })},
  };
  return table;
}

const Table& EmptyTable() {
  static const Table table;
  return table;
}

const Table& TableOf(ObjectKind kind) {
  switch (kind) {
    case ObjectKind::kPort:
      return PortTable();
    case ObjectKind::kPin:
      return PinTable();
    case ObjectKind::kCell:
      return CellTable();
    case ObjectKind::kNet:
      return NetTable();
    case ObjectKind::kClock:
      return ClockTable();
    case ObjectKind::kLibrary:
      return LibraryTable();
    case ObjectKind::kLibCell:
      return LibCellTable();
    case ObjectKind::kLibPin:
      return LibPinTable();
    case ObjectKind::kDesign:
      return EmptyTable();
  }
  return EmptyTable();
}

std::string LocalName(const ObjectRef& ref) {
  const cdm::Object* object = AsObject(ref);
  return object ? object->Name() : std::string();
}

}  // namespace

bool GetAttribute(const ObjectRef& ref, const std::string& name, std::string& value) {
  if (name == "full_name") {
    value = FullName(ref);
    return true;
  }
  if (name == "name") {
    value = LocalName(ref);
    return true;
  }
  if (name == "object_class") {
    value = KindName(ref.kind);
    return true;
  }
  for (const auto& entry : TableOf(ref.kind)) {
    if (entry.first == name) {
      value = entry.second(ref.object);
      return true;
    }
  }
  return false;
}

bool HasAttribute(ObjectKind kind, const std::string& name) {
  if (name == "full_name" || name == "name" || name == "object_class") return true;
  for (const auto& entry : TableOf(kind))
    if (entry.first == name) return true;
  return false;
}

std::vector<std::string> AttributeNames(ObjectKind kind) {
  std::vector<std::string> names = {"full_name", "name", "object_class"};
  for (const auto& entry : TableOf(kind)) names.push_back(entry.first);
  return names;
}

}  // namespace query
