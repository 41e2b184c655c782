// The base of the get_* commands: name patterns (or -of_objects) in, a
// collection out, with -regexp, -nocase, -quiet and -filter.
#pragma once

#include <string>
#include <vector>

#include "hostapi/cmd/CommonCmd.h"
#include "query/ObjectFinder.h"
#include "query/ObjectRef.h"

namespace query {

class QueryCmd : public CommonCmd {
 public:
  struct Shape {
    const char* plural;                // "cells": the word of the no-match warning
    bool hierarchical;                 // takes -hierarchical; names run through levels
    bool needs_design;                 // design objects rather than library objects
    std::vector<ObjectKind> of_kinds;  // what -of_objects takes; empty: no -of_objects
  };
  QueryCmd(const char* name, const char* description, Shape shape);

  int exec() override;

 protected:
  // The objects of one pattern.
  virtual bool Find(const cdm::Design* design, const std::string& pattern,
                    const FindOptions& options, std::vector<ObjectRef>& found,
                    std::string& error) = 0;
  // Every object, when neither a pattern nor -of_objects is given.
  virtual const char* AllPattern() const { return "*"; }
  // The objects related to `of` (for -of_objects), appended.
  virtual void Related(const ObjectRef& of, std::vector<ObjectRef>& found);

 private:
  Shape shape_;
};

// The result of a command: the collection of `refs`.
void SetCollectionResult(CommonCmd& command, std::vector<ObjectRef> refs);

}  // namespace query
