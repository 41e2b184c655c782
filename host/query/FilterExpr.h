// The -filter expressions of the query commands: comparisons of an
// attribute with a value (==, !=, =~, !~, <, <=, >, >=), a bare boolean
// attribute, !, && and ||, with parentheses. =~ and !~ match a glob
// pattern, or a regular expression under -regexp; -nocase ignores case.
// Values are bare words or quoted with "..." or {...}. Numbers compare as
// numbers when both sides read as numbers, else as text.
#pragma once

#include <memory>
#include <string>

#include "query/NameMatcher.h"
#include "query/ObjectRef.h"

namespace query {

class FilterExpr {
 public:
  // Parses `text`; on a syntax error `Valid` is false and `Error` says
  // where.
  FilterExpr(const std::string& text, const MatchOptions& options);
  ~FilterExpr();
  FilterExpr(const FilterExpr&) = delete;
  FilterExpr& operator=(const FilterExpr&) = delete;

  bool Valid() const { return error_.empty(); }
  const std::string& Error() const { return error_; }

  // Whether the object passes. An attribute its kind does not have is an
  // error (`error` set, false returned).
  bool Matches(const ObjectRef& ref, std::string& error) const;

  struct Node;

 private:
  std::unique_ptr<Node> root_;
  MatchOptions options_;
  std::string error_;
};

}  // namespace query
