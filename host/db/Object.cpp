#include "hostapi/cdm/Object.h"

namespace cdm {

const std::string& Object::EmptyName() {
  static const std::string empty;
  return empty;
}

const Attribute* Object::FindAttribute(AttrId id) const {
  if (!attributes_) return nullptr;
  for (const Attribute& attribute : *attributes_)
    if (attribute.id == id) return &attribute;
  return nullptr;
}

float Object::GetFloatAttribute(AttrId id) const {
  const Attribute* attribute = FindAttribute(id);
  return attribute && attribute->kind == AttrKind::kFloat ? attribute->float_value : 0.0f;
}

void Object::SetAttribute(Attribute attribute) {
  if (!attributes_) attributes_ = std::make_unique<std::vector<Attribute>>();
  for (Attribute& existing : *attributes_) {
    bool same = existing.id == attribute.id &&
                (attribute.id != AttrId::kUser || existing.name == attribute.name);
    if (same) {
      existing = std::move(attribute);
      return;
    }
  }
  attributes_->push_back(std::move(attribute));
}

}  // namespace cdm
