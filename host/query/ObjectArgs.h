// Objects as commands take them: collections, or names and patterns. A
// collection gives its objects as they are; a name or pattern is looked up
// as each kind of `kinds` in turn, and the first kind with a match wins. A
// Tcl list may mix collections and names.
#pragma once

#include <tcl.h>

#include <string>
#include <vector>

#include "query/NameMatcher.h"
#include "query/ObjectRef.h"

class CommonCmd;

namespace query {

struct ObjectArgs {
  std::vector<ObjectRef> objects;
  // Names and patterns that matched nothing, and objects of a kind the
  // command does not take (by full name), in the order given.
  std::vector<std::string> unmatched;
  std::vector<ObjectRef> wrong_kind;
};

// `separator`: the hierarchy separator names of cells, nets and pins are
// written with ("/" is the database's, and is taken as well). Names of
// ports, clocks, libraries and designs are taken as written.
bool ResolveValue(Tcl_Obj* value, const std::vector<ObjectKind>& kinds, const MatchOptions& options,
                  char separator, ObjectArgs& args, std::string& error);

// The objects of every use of `option` in the call in progress, or of one
// use (`use` counted from 0). False with `error` for a bad pattern.
bool ResolveOption(CommonCmd& command, const std::string& option,
                   const std::vector<ObjectKind>& kinds, const MatchOptions& options,
                   char separator, ObjectArgs& args, std::string& error, int use = -1);

// The hierarchy separator set_hierarchy_separator gave the current
// design's constraints; "/" by default and without a design.
char CurrentSeparator();

// Whether names of `kind` run through the hierarchy (cells, nets, pins).
bool IsHierarchicalKind(ObjectKind kind);

// `name` with every `separator` replaced by the database's "/".
std::string WithDatabaseSeparator(std::string name, char separator);

// How many times the option was given in the call in progress.
int OptionUses(CommonCmd& command, const std::string& option);

// "port", "port or net", "clock, port, pin or cell".
std::string KindsText(const std::vector<ObjectKind>& kinds);

}  // namespace query
