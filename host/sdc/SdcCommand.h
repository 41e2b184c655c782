// The base of the SDC commands: options in the units of the default
// library (or of set_units), objects as collections or names, warnings
// with the file and line read_sdc is at, and the store of the current
// design.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "hostapi/cdm/Selectors.h"
#include "hostapi/cmd/CommonCmd.h"
#include "query/ObjectRef.h"
#include "sdc/SdcStore.h"
#include "sdc/SdcUnits.h"

namespace cdm {
class Pin;
}

namespace sta::sdc {

class SdcCommand : public CommonCmd {
 public:
  SdcCommand(const char* name, const char* description);
  int exec() final;

 protected:
  // The command's work; false after Fail.
  virtual bool Run(SdcStore& store) = 0;

  // Declaring options (the first positional declared is the first bare
  // argument).
  void Flag(const char* option, const char* help);
  void Number(const char* option, const char* help, bool positional = false);
  void Integer(const char* option, const char* help, bool positional = false);
  void Text(const char* option, const char* help, bool positional = false);
  void Numbers(const char* option, const char* help);
  void Objects(const char* option, const char* help, bool positional = false);
  // -rise/-fall and -min/-max.
  void EdgeFlags(const char* what);
  void MinMaxFlags(const char* what);

  // Reading them.
  bool Has(const char* option) { return getOptionCount(option) > 0; }
  double NumberOf(const char* option);
  int IntegerOf(const char* option);
  std::string TextOf(const char* option);
  std::vector<double> NumbersOf(const char* option);
  // The value of a required option, or Fail naming it.
  bool Need(const char* option);
  // A value given in the SDC units of `quantity`, in SI.
  float Si(double value, SdcUnits::Quantity quantity);
  const cdm::RiseFallBoth* Edges(const char* rise = "rise", const char* fall = "fall");
  MinMaxAll Which(const char* min = "min", const char* max = "max");

  // The objects of an option, of the kinds taken (a name is looked up as
  // each kind in turn). Names that match nothing and objects of other
  // kinds are warned about and left out. `use` picks one use of an option
  // given several times.
  bool ObjectsOf(const char* option, const std::vector<query::ObjectKind>& kinds,
                 std::vector<query::ObjectRef>& objects, int use = -1);
  // Leaves out, with one warning each, the ports of `objects` (a port's pin
  // too) that carry no signal in (`input`) or out: the ports of commands
  // about what comes in from outside, or goes out. Inout ports stay.
  void KeepDirection(std::vector<query::ObjectRef>& objects, bool input);
  // The pins of ports and pins (a port stands for its pin).
  static std::vector<cdm::Pin*> PinsOf(const std::vector<query::ObjectRef>& objects);

  bool Fail(const std::string& message);
  // A warning with the location, through the message catalogue.
  void WarnUnknown(const std::string& what, const std::string& name);

  SdcStore* store_ = nullptr;  // while Run runs

 private:
  // False, after Fail, when a number given is not finite or too large to
  // keep in SI.
  bool NumbersInRange();
};

}  // namespace sta::sdc
