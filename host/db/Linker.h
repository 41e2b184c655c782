// link_design and current_design: binding every instance to what it
// instantiates, and elaborating the hierarchy below the current design.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace cdm {

class Design;
class Root;

// The module no other module instantiates; null with `error` set when
// there is none or more than one.
Design* FindTopDesign(Root* root, std::string& error);

// A problem link found and went past: an unresolved reference (no place), or
// a connection that does not fit its pin (the instance's file and line).
struct LinkWarning {
  std::string file;
  uint32_t line = 0;
  std::string text;
};

// Binds every cell of `top` and of the designs below it, connects pins and
// nets, and makes `top` the current design. False with `error` on a
// recursive instantiation (nothing changes then). Unresolved references and
// connection problems are `warnings`.
bool LinkDesign(Root* root, Design* top, std::vector<LinkWarning>& warnings, std::string& error);
// The same with each warning as one line, "Warning: FILE:LINE: text".
bool LinkDesign(Root* root, Design* top, std::vector<std::string>& warnings, std::string& error);

// Makes `top` the current design and lays the hierarchy out below it: each
// hierarchical cell gets a copy of its module's definition, nets their flat
// nets, leaf and top port pins their vertex identifiers. False with `error`
// when the hierarchy is too large to number; no design is current then.
bool ElaborateHierarchy(Root* root, Design* top, std::string& error);

// Whether `design` has been linked (its cells are bound).
bool IsLinked(const Design* design);

}  // namespace cdm
