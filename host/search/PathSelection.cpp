#include "search/PathSelection.h"

#include <algorithm>
#include <map>
#include <unordered_map>

#include "search/TimingSearch.h"

namespace sta {
namespace {

bool ByWorst(const TimingPath& a, const TimingPath& b) {
  return a.slack < b.slack;
}

// The worst paths to one endpoint, from all its path ends.
std::vector<TimingPath> EndpointPaths(ArrivalSearch& search,
                                      const std::vector<const PathEnd*>& ends, int nworst) {
  std::vector<TimingPath> paths;
  for (const PathEnd* end : ends) {
    std::vector<TimingPath> more = EnumeratePaths(search, *end, nworst);
    paths.insert(paths.end(), more.begin(), more.end());
  }
  std::stable_sort(paths.begin(), paths.end(), ByWorst);
  if (paths.size() > static_cast<size_t>(nworst)) paths.resize(static_cast<size_t>(nworst));
  return paths;
}

}  // namespace

std::vector<TimingPath> SelectPaths(TimingSearch& search, const PathSelection& selection) {
  const PathEnds& all = search.Ends();
  // Ends of each group, by endpoint, endpoints in order of their worst end.
  std::map<std::string, std::vector<const PathEnd*>> by_group;
  for (const PathEnd& end : all.Ends()) {
    if (end.setup != selection.setup) continue;
    const std::string& group = all.Groups()[end.group];
    if (!selection.groups.empty() && std::find(selection.groups.begin(), selection.groups.end(),
                                               group) == selection.groups.end())
      continue;
    by_group[group].push_back(&end);
  }
  std::vector<TimingPath> selected;
  for (auto& [group, ends] : by_group) {
    std::stable_sort(ends.begin(), ends.end(),
                     [](const PathEnd* a, const PathEnd* b) { return a->slack < b->slack; });
    std::vector<uint32_t> order;
    std::unordered_map<uint32_t, std::vector<const PathEnd*>> per_vertex;
    for (const PathEnd* end : ends) {
      std::vector<const PathEnd*>& list = per_vertex[end->vertex];
      if (list.empty()) order.push_back(end->vertex);
      list.push_back(end);
    }
    std::vector<TimingPath> group_paths;
    const size_t wanted = static_cast<size_t>(selection.max_paths);
    for (uint32_t vertex : order) {
      const std::vector<const PathEnd*>& list = per_vertex[vertex];
      // No path to a later endpoint beats its worst end, and one that only
      // ties it would sort after the paths already kept.
      if (group_paths.size() >= wanted && list.front()->slack >= group_paths[wanted - 1].slack)
        break;
      std::vector<TimingPath> paths = EndpointPaths(search.Arrivals(), list, selection.nworst);
      group_paths.insert(group_paths.end(), paths.begin(), paths.end());
      std::stable_sort(group_paths.begin(), group_paths.end(), ByWorst);
      if (group_paths.size() > wanted) group_paths.resize(wanted);
    }
    if (group_paths.size() > wanted) group_paths.resize(wanted);
    selected.insert(selected.end(), group_paths.begin(), group_paths.end());
  }
  return selected;
}

}  // namespace sta
