// Base of every named object of the database: designs, cells, nets, pins,
// ports, libraries and library cells.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace cdm {

// Attribute identifiers. Values are stable: reports test some by number.
enum class AttrId : uint16_t {
  kDontTouch = 0,
  kSizeOnly = 1,
  kDontUse = 2,
  kKeep = 3,
  kArithmeticOperator = 4,  // module written by synthesis for an operator
  kBlackBox = 5,            // module to be treated as a black box
  kSourceLine = 6,          // line of the definition in its source file
  kFanoutLoad = 7,          // a port's fanout load (a float)
  kUser = 64,               // first of the attributes read from (* ... *)
};

// Kinds of attribute value.
enum class AttrKind : uint8_t { kNone = 0, kInt = 1, kString = 2, kFloat = 3, kBool = 4 };

struct Attribute {
  AttrId id = AttrId::kUser;
  AttrKind kind = AttrKind::kNone;
  float float_value = 0.0f;
  int64_t int_value = 0;
  std::string name;  // spelling as written, for user attributes
  std::string text;
};

class Object {
 public:
  // `name` must outlive the object: the database interns every name it keeps.
  explicit Object(const std::string* name) : name_(name ? name : &EmptyName()) {}
  virtual ~Object();
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  const std::string& Name() const { return name_ ? *name_ : MaterializeName(); }
  // Printable path name: cells, pins and nets override it.
  virtual std::string GetFullName() const { return Name(); }

  // Attributes are kept beside the objects (few objects have any), so an
  // object costs no more than its own fields.
  bool HasAttribute(AttrId id) const { return FindAttribute(id) != nullptr; }
  const Attribute* FindAttribute(AttrId id) const;
  // A float attribute's value; 0.0 when absent or not a float.
  float GetFloatAttribute(AttrId id) const;
  void SetAttribute(Attribute attribute);
  // All attributes of the object; null when it has none.
  const std::vector<Attribute>* Attributes() const;

  static const std::string& EmptyName();

 protected:
  // For objects whose name lives in a pool of their netlist: the string is
  // made when the name is first asked for (MaterializeName).
  Object() : name_(nullptr) {}
  virtual const std::string& MaterializeName() const { return EmptyName(); }
  void SetName(const std::string* name) const { name_ = name ? name : &EmptyName(); }

 private:
  mutable const std::string* name_;
};

}  // namespace cdm
