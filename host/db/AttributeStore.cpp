#include "db/AttributeStore.h"

#include <unordered_map>

namespace cdm {
namespace {

using Table = std::unordered_map<const Object*, std::vector<Attribute>>;

// Never destroyed: objects that outlive static destruction may still ask.
Table& TheTable() {
  static Table* table = new Table();
  return *table;
}

}  // namespace

const std::vector<Attribute>* AttributeStore::Find(const Object* object) {
  Table& table = TheTable();
  if (table.empty()) return nullptr;
  auto found = table.find(object);
  return found == table.end() ? nullptr : &found->second;
}

std::vector<Attribute>& AttributeStore::Get(const Object* object) {
  return TheTable()[object];
}

void AttributeStore::Erase(const Object* object) {
  Table& table = TheTable();
  if (!table.empty()) table.erase(object);
}

}  // namespace cdm
