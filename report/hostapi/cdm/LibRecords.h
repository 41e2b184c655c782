// Plain records of a technology library: operating conditions, wire loads,
// table templates, user-defined attributes and scaling factors.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "hostapi/cdm/LibEnums.h"

namespace cdm {

class LibertyLib;

class OperatingConditions {
 public:
  std::string name;
  double process = 1.0;
  double voltage = 0.0;      // volts, whatever the library's voltage unit
  double temperature = 0.0;  // degrees Celsius
  WireLoadTree tree = WireLoadTree::kUnknown;
};

// A `wire_load` group: per-unit-length resistance and capacitance as the
// library writes them, and the fan-out to length table.
class WireLoad {
 public:
  std::string name;
  LibertyLib* library = nullptr;  // the library that holds the model
  double resistance = 0.0;
  double capacitance = 0.0;
  double area = 0.0;
  double slope = 0.0;
  std::vector<std::pair<int, double>> points;  // fan-out, length

  // The length for a fan-out: the table's entry, else extrapolated from
  // the last entry with the slope.
  double LengthFor(int fanout) const;
};

// A `wire_load_selection` group: which wire load a design takes by its
// area (`wire_load_from_area (min, max, name)` entries).
class WireLoadSelection {
 public:
  struct Range {
    double min_area;
    double max_area;
    std::string wire_load;
  };
  std::string name;
  LibertyLib* library = nullptr;  // the library that holds the group
  std::vector<Range> ranges;      // in file order

  // The wire load of the first range with min <= area <= max; null when
  // no range holds the area.
  const std::string* WireLoadFor(double area) const;
};

// A `lu_table_template` or `power_lut_template` group.
class LibTableTemplate {
 public:
  LibTableTemplate(std::string template_name, TemplateClass template_class)
      : name(std::move(template_name)), kind(template_class) {}

  std::string name;
  TemplateClass kind;
  std::vector<TableAxisVariable> variables;
  std::vector<std::vector<float>> indices;  // as written in the library

  int GetAxisCount() const { return static_cast<int>(variables.size()); }
  // Axis `i` counted from 1; kUnknown out of range.
  TableAxisVariable GetVariableType(int i) const;
  // A new vector owned by the caller; empty when the axis has no index.
  std::vector<float>* GetOriginalIndex(int i) const;
};

// A `define (name, group, type)` of the library.
class LibUserDefinedAttr {
 public:
  LibUserDefinedAttr(std::string attr_name, std::string group, std::string type)
      : name_(std::move(attr_name)), group_(std::move(group)), type_(std::move(type)) {}
  const std::string& GetName() const { return name_; }
  const std::string& GetGroup() const { return group_; }  // "cell", "pin", ...
  const std::string& GetType() const { return type_; }    // "float", "string", ...
  // One line: "   <name>  <group>  <type>" and a newline.
  std::string DumpSelf() const;

 private:
  std::string name_;
  std::string group_;
  std::string type_;
};

// A `scaling_factors` group, or the k-factors of the library itself.
class LibScaleFactor {
 public:
  struct Factor {
    ScaleFactorType type;
    ScaleFactorPVT pvt;
    int edge;  // 0 rise, 1 fall, -1 neither
    float value;
  };

  explicit LibScaleFactor(std::string group_name) : name(std::move(group_name)) {}
  std::string name;
  std::vector<Factor> factors;  // in file order

  // Value of one k-factor, or `fallback` when absent.
  float Get(ScaleFactorType type, ScaleFactorPVT pvt, int edge, float fallback) const;
  // One line per factor, indented: "k_<pvt>_<type>[_rise|_fall] : <value>".
  // Returns the number of lines written.
  int DumpSelfForReport(std::ostream& os, int indent) const;
};

// Parses a k-factor attribute name ("k_volt_cell_rise"); false if it is none.
bool ParseScaleFactorName(const std::string& attr, LibScaleFactor::Factor& factor);

}  // namespace cdm

// Joins the values with `separator`, each in its shortest "%g" form.
std::string floatlist2string(const std::vector<float>& values, char separator);
