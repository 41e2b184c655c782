#include "hostapi/cdm/LibRecords.h"

#include <cstdio>
#include <cstring>

namespace cdm {

double WireLoad::LengthFor(int fanout) const {
  if (points.empty()) return slope * fanout;
  const std::pair<int, double>* last = &points.front();
  const std::pair<int, double>* next = nullptr;  // the nearest entry above
  for (const auto& point : points) {
    if (point.first == fanout) return point.second;
    if (point.first < fanout && point.first >= last->first) last = &point;
    if (point.first > fanout && (!next || point.first < next->first)) next = &point;
  }
  if (fanout > last->first && next) {
    // Between two entries of the table: linear between them.
    const double share =
        static_cast<double>(fanout - last->first) / static_cast<double>(next->first - last->first);
    return last->second + share * (next->second - last->second);
  }
  if (fanout > last->first) return last->second + slope * (fanout - last->first);
  return last->second;
}

const std::string* WireLoadSelection::WireLoadFor(double area) const {
  for (const Range& range : ranges)
    if (range.min_area <= area && area <= range.max_area) return &range.wire_load;
  return nullptr;
}

TableAxisVariable LibTableTemplate::GetVariableType(int i) const {
  if (i < 1 || i > GetAxisCount()) return TableAxisVariable::kUnknown;
  return variables[i - 1];
}

std::vector<float>* LibTableTemplate::GetOriginalIndex(int i) const {
  if (i < 1 || i > static_cast<int>(indices.size())) return new std::vector<float>();
  return new std::vector<float>(indices[i - 1]);
}

std::string LibUserDefinedAttr::DumpSelf() const {
  return "   " + name_ + "  " + group_ + "  " + type_ + "\n";
}

float LibScaleFactor::Get(ScaleFactorType type, ScaleFactorPVT pvt, int edge,
                          float fallback) const {
  for (const Factor& factor : factors) {
    if (factor.type == type && factor.pvt == pvt && factor.edge == edge) return factor.value;
  }
  return fallback;
}

int LibScaleFactor::DumpSelfForReport(std::ostream& os, int indent) const {
  const std::string pad(indent > 0 ? indent : 0, ' ');
  for (const Factor& factor : factors) {
    os << pad << "k_" << scale_factor_pvt_map.find(factor.pvt) << "_"
       << scale_factor_type_map.find(factor.type);
    if (factor.edge == 0) os << "_rise";
    if (factor.edge == 1) os << "_fall";
    char value[32];
    std::snprintf(value, sizeof value, "%g", factor.value);
    os << " : " << value << "\n";
  }
  return static_cast<int>(factors.size());
}

bool ParseScaleFactorName(const std::string& attr, LibScaleFactor::Factor& factor) {
  if (attr.compare(0, 2, "k_") != 0) return false;
  std::string rest = attr.substr(2);
  bool found_pvt = false;
  for (const auto& entry : scale_factor_pvt_map.entries()) {
    const size_t len = std::strlen(entry.second);
    if (rest.compare(0, len, entry.second) == 0 && rest.size() > len && rest[len] == '_') {
      factor.pvt = entry.first;
      rest = rest.substr(len + 1);
      found_pvt = true;
      break;
    }
  }
  if (!found_pvt) return false;
  factor.edge = -1;
  auto strip = [&rest](const char* tail) {
    const size_t len = std::strlen(tail);
    if (rest.size() > len && rest.compare(rest.size() - len, len, tail) == 0) {
      rest.resize(rest.size() - len);
      return true;
    }
    return false;
  };
  // A type name may itself end like an edge ("skew_rise" is not a type), so
  // try the whole rest first.
  if (!scale_factor_type_map.find(rest, factor.type)) {
    if (strip("_rise")) {
      factor.edge = 0;
    } else if (strip("_fall")) {
      factor.edge = 1;
    }
    if (!scale_factor_type_map.find(rest, factor.type)) return false;
  }
  return factor.type != ScaleFactorType::kUnknown;
}

}  // namespace cdm

std::string floatlist2string(const std::vector<float>& values, char separator) {
  std::string text;
  char buffer[32];
  for (size_t i = 0; i < values.size(); ++i) {
    if (i) text += separator;
    std::snprintf(buffer, sizeof buffer, "%g", values[i]);
    text += buffer;
  }
  return text;
}
