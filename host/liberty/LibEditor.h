// Second layer of the Liberty reader: gives the parsed tree its meaning and
// fills a LibertyLib. One handler per group kind; values are stored in SI.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "hostapi/cdm/LibertyLib.h"
#include "liberty/LibertyTree.h"

namespace cdm {

class Root;

class LibEditor {
 public:
  LibEditor(Root* root, std::string file_name) : root_(root), file_(std::move(file_name)) {}

  // The library of `tree`, or null with `error` set ("<file>, line <n>: ...").
  std::unique_ptr<LibertyLib> Build(const liberty::LibTree& tree, std::string& error);

 private:
  using Statement = liberty::LibStatement;
  // The most bits of a bus or members of a bank, and bus members of all the
  // buses of a library: a line of text must not become gigabytes of ports.
  static constexpr int kMaxBusWidth = 65536;
  static constexpr int64_t kMaxBusMembers = int64_t{1} << 20;
  struct BusType {
    int from = 0;
    int to = 0;
  };

  bool Fail(const Statement& st, const std::string& what);
  bool Number(const Statement& st, float& value, size_t index = 0);
  // A whole number within [low, high]: an error names the range.
  bool Integer(const Statement& st, int& value, int low, int high, size_t index = 0);
  // The number as the library writes it, kept to double precision so that
  // a value converted to SI and back prints as written.
  bool Number(const Statement& st, double& value, size_t index = 0);
  bool Numbers(const Statement& st, std::string_view text, std::vector<float>& values);
  bool Bool(const Statement& st, bool& value);
  bool NeedValues(const Statement& st, size_t count);
  const std::string* Intern(std::string_view text);

  // Library level (LibEditorLibrary.cpp).
  bool LibraryStatement(const Statement& st);
  bool UnitAttribute(const Statement& st, bool& handled);
  bool ThresholdOrDefault(const Statement& st, bool& handled);
  bool OperatingConditionsGroup(const Statement& st);
  bool WireLoadGroup(const Statement& st);
  bool WireLoadSelectionGroup(const Statement& st);
  bool TemplateGroup(const Statement& st, TemplateClass kind);
  bool ScalingFactorsGroup(const Statement& st, LibScaleFactor& factors);
  bool TypeGroup(const Statement& st);

  // Cells and pins (LibEditorCell.cpp).
  bool CellGroup(const Statement& st);
  bool DeclarePorts(LibCell* cell, const Statement& st);
  bool CellStatement(LibCell* cell, const Statement& st);
  bool PinStatement(LibCell* cell, const std::vector<LibPort*>& ports, const Statement& st);
  bool BusGroup(LibCell* cell, const Statement& st);
  bool Function(LibCell* cell, const Statement& st, LibBoolFuncExpr& function);
  bool RelatedPorts(LibCell* cell, const Statement& st, std::vector<LibPort*>& ports);
  LibPort* AddPort(LibCell* cell, std::string_view name, uint8_t direction, bool listed);
  void FinishCell(LibCell* cell);

  // Timing, power and tables (LibEditorTiming.cpp).
  bool TimingGroup(LibCell* cell, const Statement& st, std::shared_ptr<LibTimingAttr>& attr);
  bool InternalPowerGroup(LibCell* cell, const Statement& st, std::shared_ptr<LibPowerAttr>& attr);
  bool LeakageGroup(LibCell* cell, const Statement& st);
  bool TableGroup(const Statement& st, TemplateClass kind, float value_scale,
                  std::unique_ptr<LibTable>& table);

  // Sequential groups (LibEditorSequential.cpp).
  bool SequentialGroup(LibCell* cell, const Statement& st);
  // Index of the first of the two state port names of an ff / latch group.
  static size_t StatePortsAt(const Statement& st);
  bool StateTableGroup(LibCell* cell, const Statement& st);

  Root* root_;
  std::string file_;
  std::string error_;
  LibertyLib* lib_ = nullptr;
  std::unordered_map<std::string, BusType> bus_types_;
  int64_t bus_members_ = 0;  // members of the buses read so far
  // Templates by kind and name, so that each table finds its own at once.
  std::unordered_map<std::string_view, const LibTableTemplate*> templates_[2];
  std::unordered_map<std::string_view, LibPort*>
      port_index_;  // keys: interned names  // of the cell being read
};

}  // namespace cdm
