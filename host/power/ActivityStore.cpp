#include "power/ActivityStore.h"

#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/sta/Sta.h"
#include "hostapi/sta/TimerMgr.h"
#include "power/ActivityPropagator.h"
#include "sdc/SdcStore.h"
#include "search/Timer.h"

namespace power {
namespace {

const NetActivity kOutside{0.0, 0.0, ActivityOrigin::kUnknown};

}  // namespace

ActivityStore::ActivityStore(sta::Timer& timer) : timer_(timer) {}

ActivityStore::~ActivityStore() = default;

ActivityStore& ActivityStore::Current() {
  static ActivityStore store(*TimerMgr::getInstance()->getSta("")->timer());
  return store;
}

ActivityAnnotations& ActivityStore::Annotations() {
  const cdm::Design* design = timer_.Design();
  if (!design) return no_design_;
  return annotations_[design->Name()];
}

bool ActivityStore::Update() {
  if (!timer_.Update(false)) {
    nets_.clear();
    valid_ = false;
    return false;
  }
  Stamp stamp;
  stamp.design = timer_.Design();
  stamp.database = timer_.Root()->ChangeGeneration();
  if (sta::sdc::SdcStore* store = timer_.Store()) stamp.constraints = store->Generation();
  ActivityAnnotations& annotations = Annotations();
  stamp.annotations = annotations.Generation();
  if (valid_ && stamp == computed_) return true;
  valid_ = false;
  ActivityPropagator propagator(timer_, annotations);
  propagator.Run(nets_);
  last_passes_ = propagator.Passes();
  ++compute_count_;
  computed_ = stamp;
  valid_ = true;
  return true;
}

const NetActivity& ActivityStore::OfFlatNet(uint32_t id) const {
  return id != 0 && id < nets_.size() ? nets_[id] : kOutside;
}

const NetActivity& ActivityStore::OfNet(const cdm::Net* net) const {
  return net ? OfFlatNet(net->FlatNetId()) : kOutside;
}

const NetActivity& ActivityStore::OfPin(const cdm::Pin* pin) const {
  return pin ? OfNet(pin->GetNet()) : kOutside;
}

}  // namespace power
