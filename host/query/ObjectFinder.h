// What the get_* commands find: the objects of the current design, the
// clocks of its constraint store and the loaded libraries whose names
// match a pattern.
#pragma once

#include <string>
#include <vector>

#include "query/NameMatcher.h"
#include "query/ObjectRef.h"

namespace cdm {
class Design;
}

namespace query {

struct FindOptions : MatchOptions {
  bool hierarchical = false;
};

// Cells, nets and pins. Without -hierarchical a pattern matches local
// names at the top level, or full names through the hierarchy when it holds
// a "/" (a wildcard then stays within one level); with it, local names at
// every level, each level before the levels below it. Pins: "cell
// pattern/pin pattern", the cell part as above. Objects are appended in
// walk order; false only for a pattern that is no valid expression.
bool FindCells(const cdm::Design* design, const std::string& pattern, const FindOptions& options,
               std::vector<ObjectRef>& found, std::string& error);
bool FindNets(const cdm::Design* design, const std::string& pattern, const FindOptions& options,
              std::vector<ObjectRef>& found, std::string& error);
bool FindPins(const cdm::Design* design, const std::string& pattern, const FindOptions& options,
              std::vector<ObjectRef>& found, std::string& error);
// Ports by bit name ("data[3]") or bus name ("data": every bit).
bool FindPorts(const cdm::Design* design, const std::string& pattern, const MatchOptions& options,
               std::vector<ObjectRef>& found, std::string& error);
// Clocks of the current design's constraint store, in the order defined.
bool FindClocks(const std::string& pattern, const MatchOptions& options,
                std::vector<ObjectRef>& found, std::string& error);
// Libraries in the order read; library cells as "library/cell" (a pattern
// without "/" searches every library); library pins as
// "library/cell/pin" or "cell/pin".
bool FindLibs(const std::string& pattern, const MatchOptions& options,
              std::vector<ObjectRef>& found, std::string& error);
bool FindLibCells(const std::string& pattern, const MatchOptions& options,
                  std::vector<ObjectRef>& found, std::string& error);
bool FindLibPins(const std::string& pattern, const MatchOptions& options,
                 std::vector<ObjectRef>& found, std::string& error);

}  // namespace query
