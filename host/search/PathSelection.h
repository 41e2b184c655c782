// Which paths a timing report shows: per path group (in name order), the
// worst paths, at most `nworst` to one endpoint and `max_paths` in all.
#pragma once

#include <string>
#include <vector>

#include "search/PathEnumerator.h"

namespace sta {

class TimingSearch;

struct PathSelection {
  bool setup = true;                // max (setup) or min (hold) paths
  std::vector<std::string> groups;  // empty: every group
  int max_paths = 1;
  int nworst = 1;
};

std::vector<TimingPath> SelectPaths(TimingSearch& search, const PathSelection& selection);

}  // namespace sta
