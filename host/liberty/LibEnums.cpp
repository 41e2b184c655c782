// Spellings of the library enumerations.
#include "liberty/LibParseEnums.h"

namespace cdm {

namespace {

template <class E>
std::string Spell(const EnumNameMap<E>& map, E value) {
  const char* text = map.find(value);
  return text ? text : "unknown";
}

const EnumNameMap<DelayModelType> kDelayModelNames{
    {DelayModelType::kGenericCmos, "generic_cmos"},
    {DelayModelType::kPiecewiseCmos, "piecewise_cmos"},
    {DelayModelType::kCmos2, "cmos2"},
    {DelayModelType::kTableLookup, "table_lookup"},
    {DelayModelType::kPolynomial, "polynomial"},
    {DelayModelType::kDcm, "dcm"},
};

const EnumNameMap<PowerModelType> kPowerModelNames{
    {PowerModelType::kTableLookup, "table_lookup"},
    {PowerModelType::kNone, "none"},
    {PowerModelType::kPolynomial, "polynomial"},
};

const EnumNameMap<WireLoadTree> kTreeNames{
    {WireLoadTree::kWorstCase, "worst_case_tree"},
    {WireLoadTree::kBestCase, "best_case_tree"},
    {WireLoadTree::kBalanced, "balanced_tree"},
    {WireLoadTree::kUnknown, "unknown"},
};

const EnumNameMap<WireLoadMode> kModeNames{
    {WireLoadMode::kTop, "top"},
    {WireLoadMode::kEnclosed, "enclosed"},
    {WireLoadMode::kSegmented, "segmented"},
};

const EnumNameMap<PgType> kPgNames{
    {PgType::kPrimaryPower, "primary_power"},
    {PgType::kPrimaryGround, "primary_ground"},
    {PgType::kBackupPower, "backup_power"},
    {PgType::kBackupGround, "backup_ground"},
    {PgType::kInternalPower, "internal_power"},
    {PgType::kInternalGround, "internal_ground"},
    {PgType::kPwell, "pwell"},
    {PgType::kNwell, "nwell"},
    {PgType::kDeeppwell, "deeppwell"},
    {PgType::kDeepnwell, "deepnwell"},
    {PgType::kUnknown, "unknown"},
};

}  // namespace

std::string to_string(DelayModelType value) {
  return Spell(kDelayModelNames, value);
}
std::string to_string(PowerModelType value) {
  return Spell(kPowerModelNames, value);
}
std::string to_string(TableAxisVariable value) {
  return Spell(table_axis_variable_map, value);
}
std::string to_string(WireLoadTree value) {
  return Spell(kTreeNames, value);
}
std::string to_string(TimingSense value) {
  return Spell(timing_sense_map, value);
}
std::string to_string(PgType value) {
  return Spell(kPgNames, value);
}
std::string to_string(TimingType value) {
  if (value == TimingType::kDefault) return "combinational";
  return Spell(timing_type_map, value);
}

const char* wireloadModeString(WireLoadMode mode) {
  return kModeNames.find(mode);
}

bool ParseDelayModel(const std::string& text, DelayModelType& value) {
  return kDelayModelNames.find(text, value);
}
bool ParsePowerModel(const std::string& text, PowerModelType& value) {
  return kPowerModelNames.find(text, value);
}
bool ParseWireLoadTree(const std::string& text, WireLoadTree& value) {
  return kTreeNames.find(text, value);
}
bool ParseWireLoadMode(const std::string& text, WireLoadMode& value) {
  return kModeNames.find(text, value);
}
bool ParsePgType(const std::string& text, PgType& value) {
  return kPgNames.find(text, value);
}

}  // namespace cdm
