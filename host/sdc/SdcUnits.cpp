#include "sdc/SdcUnits.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/LibertyLib.h"

namespace sta::sdc {
namespace {

struct QuantityInfo {
  const char* option;
  const char* base;  // the SI symbol, matched without regard to case
  const char* shown;
  double fallback;  // when no library is loaded
};

const QuantityInfo kQuantities[] = {
    {"time", "s", "s", 1e-9},   {"capacitance", "f", "F", 1e-12}, {"resistance", "ohm", "Ohm", 1e3},
    {"voltage", "v", "V", 1.0}, {"current", "a", "A", 1e-3},      {"power", "w", "W", 1e-3},
};

double LibraryScale(SdcUnits::Quantity quantity) {
  const cdm::LibertyLib* lib = cdm::DbManager::GetDefaultLiberty();
  if (!lib) return kQuantities[quantity].fallback;
  const cdm::LibUnits& units = lib->GetUnits();
  const cdm::Unit* unit = nullptr;
  switch (quantity) {
    case SdcUnits::kTime:
      unit = &units.time;
      break;
    case SdcUnits::kCapacitance:
      unit = &units.capacitance;
      break;
    case SdcUnits::kResistance:
      unit = &units.resistance;
      break;
    case SdcUnits::kVoltage:
      unit = &units.voltage;
      break;
    case SdcUnits::kCurrent:
      unit = &units.current;
      break;
    case SdcUnits::kPower:
      unit = &units.power;
      break;
    default:
      break;
  }
  if (!unit || !(unit->scale > 0.0f)) return kQuantities[quantity].fallback;
  // The library keeps its scale as a float, 1e-9 as 9.99999972e-10: take
  // the decimal it stands for, or every value read would be off by a part
  // in 1e8 and often land on the float next to the one meant.
  char text[32];
  std::snprintf(text, sizeof text, "%.7g", unit->scale);
  return std::strtod(text, nullptr);
}

bool EqualNoCase(const std::string& a, const char* b) {
  size_t i = 0;
  for (; i < a.size() && b[i]; ++i)
    if (std::tolower(static_cast<unsigned char>(a[i])) != b[i]) return false;
  return i == a.size() && !b[i];
}

// "k", "m", "u", "n", "p", "f" and "M": the multiplier of an SI prefix.
bool PrefixScale(char prefix, double& scale) {
  switch (prefix) {
    case 'M':
      scale = 1e6;
      return true;
    case 'k':
    case 'K':
      scale = 1e3;
      return true;
    case 'm':
      scale = 1e-3;
      return true;
    case 'u':
      scale = 1e-6;
      return true;
    case 'n':
      scale = 1e-9;
      return true;
    case 'p':
      scale = 1e-12;
      return true;
    case 'f':
      scale = 1e-15;
      return true;
    default:
      return false;
  }
}

}  // namespace

double SdcUnits::Scale(Quantity quantity) const {
  if (user_scale_[quantity]) return *user_scale_[quantity];
  return LibraryScale(quantity);
}

bool SdcUnits::Set(Quantity quantity, const std::string& text, std::string& error) {
  const QuantityInfo& info = kQuantities[quantity];
  const char* start = text.c_str();
  char* rest = nullptr;
  double multiplier = std::strtod(start, &rest);
  if (rest == start) multiplier = 1.0;  // no number: "ns"
  std::string symbol(rest);
  double scale = 0.0;
  std::string shown_prefix;
  if (EqualNoCase(symbol, info.base)) {
    scale = 1.0;
  } else if (symbol.size() > 1 && EqualNoCase(symbol.substr(1), info.base) &&
             PrefixScale(symbol[0], scale)) {
    shown_prefix = symbol.substr(0, 1);
    if (shown_prefix == "K") shown_prefix = "k";
  }
  if (scale == 0.0 || !(multiplier > 0.0) || !std::isfinite(multiplier)) {
    error = "'" + text + "' is not a unit of " + info.option;
    return false;
  }
  user_scale_[quantity] = multiplier * scale;
  // The fewest digits that read back to the same multiplier, so that
  // write_sdc gives back the unit it was given.
  char number[32];
  for (int digits = 6; digits <= 17; ++digits) {
    std::snprintf(number, sizeof number, "%.*g", digits, multiplier);
    if (std::strtod(number, nullptr) == multiplier) break;
  }
  user_text_[quantity] = number + shown_prefix + info.shown;
  return true;
}

std::string SdcUnits::UserText(Quantity quantity) const {
  return user_text_[quantity];
}

bool SdcUnits::AnySet() const {
  for (const auto& scale : user_scale_)
    if (scale) return true;
  return false;
}

const char* SdcUnits::OptionName(Quantity quantity) {
  return kQuantities[quantity].option;
}

}  // namespace sta::sdc
