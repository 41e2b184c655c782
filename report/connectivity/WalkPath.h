// The pins a recursive walk stands on, from its root down to where it is.
// A pin met again on its own path closes a loop: the walk shows it and does
// not go round the loop a second time, so that a loop of gates ends.
#pragma once

#include <unordered_set>

namespace cdm {
class Pin;
}

class WalkPath {
 public:
  // Puts `pin` on the path for the life of the step, unless it is on it
  // already (a loop): then Entered() is false and nothing changes.
  class Step {
   public:
    Step(WalkPath& path, const cdm::Pin* pin)
        : path_(path), pin_(pin), entered_(path.pins_.insert(pin).second) {}
    ~Step() {
      if (entered_) path_.pins_.erase(pin_);
    }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
    bool Entered() const { return entered_; }

   private:
    WalkPath& path_;
    const cdm::Pin* pin_;
    bool entered_;
  };

 private:
  std::unordered_set<const cdm::Pin*> pins_;
};
