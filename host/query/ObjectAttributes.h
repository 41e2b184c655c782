// The attributes that get_attribute reads and -filter tests, per kind of
// object. Values are text: numbers in the default library's units (areas
// as the library writes them), booleans "true" and "false", directions
// "in", "out", "inout" and "internal".
#pragma once

#include <string>
#include <vector>

#include "query/ObjectRef.h"

namespace query {

// False when objects of that kind have no attribute of that name.
bool GetAttribute(const ObjectRef& ref, const std::string& name, std::string& value);
// Whether objects of that kind have the attribute.
bool HasAttribute(ObjectKind kind, const std::string& name);
// The attribute names of a kind, in a fixed order.
std::vector<std::string> AttributeNames(ObjectKind kind);

}  // namespace query
