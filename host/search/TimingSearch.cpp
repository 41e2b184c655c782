#include "search/TimingSearch.h"

namespace sta {

void TimingSearch::Run(SearchContext context, const PathFilterSpec* filter) {
  exceptions_.Build(*context.graph, context.store, *context.clocks, filter);
  context.exceptions = &exceptions_;
  arrivals_.Run(context);
  ends_.Find(arrivals_);
}

}  // namespace sta
