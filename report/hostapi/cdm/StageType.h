// The stages of optimisation by code and by name. Each table is a
// file-local object, so that every source file has its own copy.
#pragma once

#include <map>
#include <string>

enum StageType : int {
  kStageRemapping = 0,
  kStagePreOpt = 1,
  kStageDRVFixer = 2,
  kStageTailWnsOpt = 3,
  kStageWnsOpt = 4,
  kStageTNSOpt = 5,
  kStageResynth = 6,
  kStageDetail = 7,
  kStageAreaRecovery = 8,
  kStageAreaRecoverySub = 9,
  kStageTail = 10,
  kStageUnknown = 11,
};

static const std::map<StageType, std::string> stage_type_name_map{
    {kStageRemapping, "Remapping"},
    {kStagePreOpt, "PreOpt"},
    {kStageDRVFixer, "DRVFixer"},
    {kStageTailWnsOpt, "TailWnsOpt"},
    {kStageWnsOpt, "WnsOpt"},
    {kStageTNSOpt, "TNSOpt"},
    {kStageResynth, "Resynth"},
    {kStageDetail, "Detail"},
    {kStageAreaRecovery, "AreaRecovery"},
    {kStageAreaRecoverySub, "AreaRecovery_Sub"},
    {kStageTail, "Tail"},
    {kStageUnknown, "Unknown"},
};

// No entry for "Unknown": a name that is not a stage finds nothing.
static const std::map<std::string, StageType> stage_name_type_map{
    {"Remapping", kStageRemapping},
    {"PreOpt", kStagePreOpt},
    {"DRVFixer", kStageDRVFixer},
    {"TailWnsOpt", kStageTailWnsOpt},
    {"WnsOpt", kStageWnsOpt},
    {"TNSOpt", kStageTNSOpt},
    {"Resynth", kStageResynth},
    {"Detail", kStageDetail},
    {"AreaRecovery", kStageAreaRecovery},
    {"AreaRecovery_Sub", kStageAreaRecoverySub},
    {"Tail", kStageTail},
};
