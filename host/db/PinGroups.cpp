#include "db/PinGroups.h"

#include <algorithm>
#include <cstdlib>

#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/Port.h"

namespace cdm {

PinGroups::PinGroups(const std::vector<Port*>& ports) {
  for (uint32_t i = 0; i < ports.size(); ++i) {
    const std::string& name = ports[i]->Name();
    size_t bracket = name.rfind('[');
    bool is_bit = bracket != std::string::npos && bracket > 0 && name.back() == ']';
    std::string_view group = is_bit ? std::string_view(name).substr(0, bracket) : name;
    int bit = is_bit ? std::atoi(name.c_str() + bracket + 1) : 0;
    auto found = index_.find(group);
    if (found == index_.end()) {
      order_.push_back(group);
      found = index_.emplace(group, Group()).first;
    }
    found->second.members.emplace_back(bit, i);
    if (is_bit) bits_.emplace(name, i);
  }
  for (auto& entry : index_) {
    Group& group = entry.second;
    if (group.members.size() < 2 || ports[group.members[0].second]->GetDesign()) continue;
    // A library bus lists its bits as its type declares them, the most
    // significant (`bit_from`) first. Bits a library writes as pins of their
    // own come in any order: the highest number is the most significant.
    const auto* bit = dynamic_cast<const LibPort*>(ports[group.members[0].second]);
    const LibPort* bus = bit ? bit->GetLibCell()->FindPort(std::string(entry.first)) : nullptr;
    if (bus && bus->IsBus()) continue;
    std::stable_sort(group.members.begin(), group.members.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
  }
}

void PinGroups::ByName(const std::string& name, std::vector<uint32_t>& pins) const {
  pins.clear();
  auto found = index_.find(name);
  if (found != index_.end()) {
    for (const auto& member : found->second.members) pins.push_back(member.second);
    return;
  }
  auto bit = bits_.find(name);
  if (bit != bits_.end()) pins.push_back(bit->second);
}

void PinGroups::ByPosition(uint32_t position, std::vector<uint32_t>& pins) const {
  pins.clear();
  if (position >= order_.size()) return;
  for (const auto& member : index_.at(order_[position]).members) pins.push_back(member.second);
}

}  // namespace cdm
