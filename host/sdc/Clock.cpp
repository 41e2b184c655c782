#include "hostapi/sta/Clock.h"

namespace sta::sdc {

Clock::Clock(const std::string* name)
    : cdm::Object(name),
      rise_edge_(this, cdm::RiseFall::rise_),
      fall_edge_(this, cdm::RiseFall::fall_) {}

Clock::~Clock() = default;

float ClockEdge::getTime() const {
  const std::vector<float>& waveform = clock_->getWaveform();
  const size_t index = static_cast<size_t>(rise_fall_->index());
  return index < waveform.size() ? waveform[index] : 0.0f;
}

}  // namespace sta::sdc
