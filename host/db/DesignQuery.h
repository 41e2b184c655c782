// What the get_* commands find: full names of the objects of the current
// design that match a glob pattern.
#pragma once

#include <string>
#include <vector>

namespace cdm {

class Design;
class Root;

// Without `hierarchical` a pattern matches local names at the top level,
// or full names through the hierarchy when it holds a "/"; with it, local
// names at every level. Names are appended in walk order.
void FindCellNames(const Design* top, const std::string& pattern, bool hierarchical,
                   std::vector<std::string>& names);
void FindNetNames(const Design* top, const std::string& pattern, bool hierarchical,
                  std::vector<std::string>& names);
// "cell pattern/pin pattern": the cell part as above, the pin part against
// pin names.
void FindPinNames(const Design* top, const std::string& pattern, bool hierarchical,
                  std::vector<std::string>& names);
// Ports by bit name ("data[3]") or bus name ("data": every bit).
void FindPortNames(const Design* top, const std::string& pattern, std::vector<std::string>& names);
// Input (and inout) or output (and inout) ports.
void FindDirectedPortNames(const Design* top, bool inputs, std::vector<std::string>& names);

// Technology libraries by name, in the order read.
void FindLibNames(const Root* root, const std::string& pattern, std::vector<std::string>& names);
// Library cells as "library/cell"; a pattern without "/" matches cell
// names in every library.
void FindLibCellNames(const Root* root, const std::string& pattern,
                      std::vector<std::string>& names);

}  // namespace cdm
