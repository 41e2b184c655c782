// A design or library object of any kind, as collections and the
// constraint store hold it: the kind says what the pointer is.
#pragma once

#include <cstdint>
#include <string>

namespace cdm {
class Object;
}

namespace query {

enum class ObjectKind : uint8_t {
  kPort,     // cdm::Port of the current design
  kPin,      // cdm::Pin: a cell pin, or a top port's pin
  kNet,      // cdm::Net
  kCell,     // cdm::Cell
  kClock,    // sta::sdc::Clock
  kLibrary,  // cdm::LibertyLib
  kLibCell,  // cdm::LibCell
  kLibPin,   // cdm::LibPort
  kDesign,   // cdm::Design
};

struct ObjectRef {
  ObjectKind kind = ObjectKind::kPort;
  void* object = nullptr;

  bool operator==(const ObjectRef& other) const {
    return kind == other.kind && object == other.object;
  }
};

// "port", "pin", "net", "cell", "clock", "lib", "lib_cell", "lib_pin",
// "design": the word messages and get_attribute's object_class use.
const char* KindName(ObjectKind kind);

// The object as the database's base class (every kind is one).
cdm::Object* AsObject(const ObjectRef& ref);

// The name a collection prints: full path names for pins, nets and cells,
// "library/cell" and "library/cell/pin" for library objects.
std::string FullName(const ObjectRef& ref);

// The object of that kind and full name in the current design or the
// loaded libraries; a null object when there is none.
ObjectRef FindByFullName(ObjectKind kind, const std::string& name);

}  // namespace query
