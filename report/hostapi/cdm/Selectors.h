// Edge and min/max selectors: constant objects, passed by pointer and
// compared by identity.
#pragma once

#include <optional>

namespace cdm {

class RiseFall {
 public:
  static const RiseFall* const rise_;
  static const RiseFall* const fall_;
  int index() const { return index_; }
  const char* name() const { return index_ == 0 ? "rise" : "fall"; }
  explicit constexpr RiseFall(int index) : index_(index) {}

 private:
  int index_;
};

class RiseFallBoth {
 public:
  static const RiseFallBoth* const rise_;
  static const RiseFallBoth* const fall_;
  static const RiseFallBoth* const rise_fall_;
  bool HasRise() const { return index_ != 1; }
  bool HasFall() const { return index_ != 0; }
  int index() const { return index_; }
  const char* name() const;
  explicit constexpr RiseFallBoth(int index) : index_(index) {}

 private:
  int index_;  // 0 rise, 1 fall, 2 both
};

class MinMax {
 public:
  static const MinMax* const min_;
  static const MinMax* const max_;
  int index() const { return index_; }
  const char* name() const { return index_ == 0 ? "min" : "max"; }
  explicit constexpr MinMax(int index) : index_(index) {}

 private:
  int index_;
};

// Four values, one for each pair of edge and min/max, each possibly unset.
class RiseFallMinMax {
 public:
  bool hasValue(const RiseFall* rf, const MinMax* mm) const {
    return values_[Slot(rf, mm)].has_value();
  }
  float value(const RiseFall* rf, const MinMax* mm) const {
    return values_[Slot(rf, mm)].value_or(0.0f);
  }
  std::optional<float> Value(const RiseFall* rf, const MinMax* mm) const {
    return values_[Slot(rf, mm)];
  }
  void setValue(const RiseFall* rf, const MinMax* mm, float v) { values_[Slot(rf, mm)] = v; }
  void setValue(const RiseFallBoth* rfb, const MinMax* mm, float v);
  bool empty() const;

 private:
  static int Slot(const RiseFall* rf, const MinMax* mm) { return rf->index() * 2 + mm->index(); }
  std::optional<float> values_[4];
};

// How a walk treats hierarchy: stay at the level, go flat, or the mode in
// which a net's wire figures are gathered.
enum HierarchyMode : int { kHierLevel = 0, kHierFlat = 1, kHierNetRC = 2 };

}  // namespace cdm
