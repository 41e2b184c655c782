#include "power/ActivityAnnotations.h"

namespace power {
namespace {

ActivitySetting InputDefault() {
  ActivitySetting setting;
  setting.rate = RateSetting{0.1, true};
  setting.probability = 0.5;
  setting.origin = ActivityOrigin::kDefault;
  return setting;
}

}  // namespace

ActivityAnnotations::ActivityAnnotations() : inputs_(InputDefault()) {
  registers_.origin = ActivityOrigin::kPropagated;
}

void ActivityAnnotations::Merge(ActivitySetting& into, const ActivitySetting& from) {
  if (from.rate) into.rate = from.rate;
  if (from.probability) into.probability = from.probability;
  into.origin = from.origin;
}

void ActivityAnnotations::SetNet(const std::string& net, const ActivitySetting& setting) {
  auto found = index_.find(net);
  if (found == index_.end()) {
    index_.emplace(net, nets_.size());
    nets_.emplace_back(net, setting);
  } else {
    Merge(nets_[found->second].second, setting);
  }
  ++generation_;
}

void ActivityAnnotations::SetInputs(const ActivitySetting& setting) {
  Merge(inputs_, setting);
  ++generation_;
}

void ActivityAnnotations::SetRegisters(const ActivitySetting& setting) {
  Merge(registers_, setting);
  ++generation_;
}

void ActivityAnnotations::Clear() {
  nets_.clear();
  index_.clear();
  inputs_ = InputDefault();
  registers_ = ActivitySetting();
  registers_.origin = ActivityOrigin::kPropagated;
  ++generation_;
}

}  // namespace power
