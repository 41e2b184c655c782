#include "hostapi/cdm/Object.h"

#include "db/AttributeStore.h"

namespace cdm {

Object::~Object() {
  AttributeStore::Erase(this);
}

const std::string& Object::EmptyName() {
  static const std::string empty;
  return empty;
}

const std::vector<Attribute>* Object::Attributes() const {
  return AttributeStore::Find(this);
}

const Attribute* Object::FindAttribute(AttrId id) const {
  const std::vector<Attribute>* attributes = AttributeStore::Find(this);
  if (!attributes) return nullptr;
  for (const Attribute& attribute : *attributes)
    if (attribute.id == id) return &attribute;
  return nullptr;
}

float Object::GetFloatAttribute(AttrId id) const {
  const Attribute* attribute = FindAttribute(id);
  return attribute && attribute->kind == AttrKind::kFloat ? attribute->float_value : 0.0f;
}

void Object::SetAttribute(Attribute attribute) {
  std::vector<Attribute>& attributes = AttributeStore::Get(this);
  for (Attribute& existing : attributes) {
    bool same = existing.id == attribute.id &&
                (attribute.id != AttrId::kUser || existing.name == attribute.name);
    if (same) {
      existing = std::move(attribute);
      return;
    }
  }
  attributes.push_back(std::move(attribute));
}

}  // namespace cdm
