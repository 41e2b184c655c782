// One search over a timed graph: the exceptions made ready, the arrivals,
// and the checks at the path ends. The timer keeps one for the design;
// report_timing's -from/-through/-to runs another with its filter.
#pragma once

#include "search/ArrivalSearch.h"
#include "search/ExceptionPaths.h"
#include "search/PathEnds.h"
#include "search/SearchContext.h"

namespace sta {

class TimingSearch {
 public:
  // `context.exceptions` is set here; `filter` may be null.
  void Run(SearchContext context, const PathFilterSpec* filter);

  ArrivalSearch& Arrivals() { return arrivals_; }
  const ArrivalSearch& Arrivals() const { return arrivals_; }
  const PathEnds& Ends() const { return ends_; }
  const ExceptionPaths& Exceptions() const { return exceptions_; }

 private:
  ExceptionPaths exceptions_;
  ArrivalSearch arrivals_;
  PathEnds ends_;
};

}  // namespace sta
