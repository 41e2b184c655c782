// Statements of a netlist recorded in file order, to be handed to a sink
// later: how the reader's parsing thread passes them to the building one.
// Names stay views into the source text, which must outlive the batch.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "verilog/VerilogAst.h"

namespace verilog {

class StatementBatch {
 public:
  // Empties the batch; what it holds keeps its memory for the next use.
  void Clear();
  size_t Size() const { return order_.size(); }

  void AddBeginModule(const ModuleHeaderAst& header);
  void AddDeclare(const DeclAst& decl, const std::vector<AttrAst>& attrs);
  void AddInstance(const InstanceAst& instance);
  void AddAssign(const AssignAst& assign);
  void AddEndModule(uint32_t line);
  // How far into the text the parser was after the last statement.
  void SetOffset(size_t offset, size_t total) {
    offset_ = offset;
    total_ = total;
  }

  // Hands the statements to `sink` in order, after a checkpoint at the
  // offset recorded last, when one was. On the first one the sink refuses,
  // false with `line` the statement's own line.
  bool Replay(StatementSink& sink, uint32_t& line);

 private:
  enum class Kind : uint8_t { kBeginModule, kDeclare, kInstance, kAssign, kEndModule };
  struct Entry {
    Kind kind;
    uint32_t index;  // into the list of its kind
  };
  struct Declaration {
    DeclAst decl;
    std::vector<AttrAst> attrs;
  };
  // An instance with its connections and attributes kept in the batch's
  // shared lists, so that recording one allocates nothing once warm.
  struct InstanceEntry {
    std::string_view ref;
    std::string_view name;
    uint32_t line = 0;
    uint32_t first_conn = 0, conn_count = 0;
    uint32_t first_attr = 0, attr_count = 0;
  };
  template <typename T>
  static T& Slot(std::vector<T>& list, size_t& used);
  bool ReplayInstance(const InstanceEntry& entry, StatementSink& sink);
  void LookAhead(const Entry& entry, StatementSink& sink) const;

  std::vector<Entry> order_;
  std::vector<ModuleHeaderAst> headers_;
  std::vector<Declaration> declarations_;
  std::vector<InstanceEntry> instances_;
  std::vector<ConnAst> conns_;
  std::vector<AttrAst> attrs_;
  std::vector<AssignAst> assigns_;
  std::vector<uint32_t> end_lines_;
  // Lists of structures are reused: only the first `used` slots are current.
  size_t headers_used_ = 0, declarations_used_ = 0, conns_used_ = 0, attrs_used_ = 0,
         assigns_used_ = 0;
  size_t offset_ = 0, total_ = 0;
  InstanceAst instance_;  // the instance handed over, reused
};

}  // namespace verilog
