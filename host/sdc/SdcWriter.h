// Writes what the store holds as SDC that reads back to the same store:
// values in the units set_units gave (else the default library's), each
// printed with the fewest digits that read back to the same value.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "hostapi/cdm/Selectors.h"
#include "query/ObjectRef.h"
#include "sdc/SdcStore.h"

namespace sta::sdc {

class SdcWriter {
 public:
  SdcWriter(SdcStore& store, std::ostream& out) : store_(store), out_(out) {}
  void Write();

  // The shortest text of `si / scale` that reads back, times `scale`, to
  // the same float.
  static std::string Value(float si, double scale);

 private:
  void WriteUnitsAndDesign();
  void WriteClocks();
  void WriteClock(const Clock* clock);
  bool SharesSource(const Clock* clock) const;
  void WriteClockAttributes();
  void WriteDelays();
  void WritePorts();
  void WritePins();
  void WriteNetsAndCells();
  void WriteExceptions();

  std::string Time(float si) const;
  std::string Cap(float si) const;
  std::string Res(float si) const;
  // "[get_ports {a}]" and the like; the design is [current_design].
  static std::string Object(const query::ObjectRef& ref);
  static std::string PinObject(const cdm::Pin* pin);
  static std::string QueryCommand(query::ObjectKind kind);
  // "[get_ports {a b}]": one query for names of one kind.
  static std::string Query(query::ObjectKind kind, const std::vector<std::string>& names);
  static std::string Quote(const std::string& text);
  // The word that gives a get_* command the one name `name`: the command
  // reads its argument as a Tcl list of patterns, so a name that does not
  // read back alone as a list is quoted as a list element first.
  static std::string Pattern(const std::string& name);
  // One command per group of equal values of a record: `head` + flags +
  // value + `tail` (value printed by `print`).
  template <class Print>
  void WriteSlots(const cdm::RiseFallMinMax& values, const std::string& head,
                  const std::string& tail, Print print, const char* min_flag = "-min",
                  const char* max_flag = "-max");

  SdcStore& store_;
  std::ostream& out_;
};

}  // namespace sta::sdc
