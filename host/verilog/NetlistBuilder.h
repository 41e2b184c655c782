// Second layer of the netlist reader: statements to designs. Designs are
// kept aside until the whole file has been read, so that a file with an
// error adds nothing to the database.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "db/NetlistEditor.h"
#include "verilog/NameTable.h"
#include "verilog/VerilogAst.h"

namespace cdm {
class Design;
class Object;
class Root;
}  // namespace cdm

namespace verilog {

class NetlistBuilder : public StatementSink {
 public:
  NetlistBuilder(cdm::Root* root, std::string file_name);
  ~NetlistBuilder() override;

  bool BeginModule(const ModuleHeaderAst& header) override;
  bool Declare(const DeclAst& decl, const std::vector<AttrAst>& attrs) override;
  bool Instance(const InstanceAst& instance) override;
  bool Assign(const AssignAst& assign) override;
  bool EndModule(uint32_t line) override;

  // The complaint behind the last false return.
  const std::string& Error() const override { return error_; }
  uint32_t ErrorLine() const override { return error_line_; }
  // Hands the finished designs to the root; returns their names in order.
  std::vector<std::string> Commit();

 private:
  struct Symbol {
    std::string_view name;
    uint32_t first_bit = 0;
    Range range;
    int8_t direction = -1;  // -1 none, else 0 in, 1 out, 2 inout
    bool in_header = false;
    bool declared = false;  // explicitly, not implied by use
    bool wire = false;      // declared by a net keyword
    uint32_t line = 0;
  };

  bool Fail(std::string message, uint32_t line = 0);
  Symbol* FindSymbol(std::string_view name);
  Symbol& AddSymbol(std::string_view name, const Range& range, uint32_t line);
  uint32_t Width(const Symbol& symbol) const;
  // Bits of an expression, most significant first: bit ids, or the
  // constants of ModuleSource. Undeclared plain names become scalar nets.
  // False, with the error set, when `more` bits would make `bits` longer
  // than an expression may be.
  bool RoomFor(const std::vector<int32_t>& bits, size_t more);
  bool ExprBits(const Expr& expr, std::vector<int32_t>& bits);
  bool SymbolBit(const Symbol& symbol, int index, int32_t& bit);
  int32_t FindRoot(int32_t bit);
  std::string BitName(uint32_t bit) const;
  bool FinishPorts();
  bool FinishNets();

  cdm::Root* root_;
  std::string file_name_;
  std::shared_ptr<cdm::Object> owner_;
  std::string error_;
  uint32_t error_line_ = 0;
  std::vector<std::unique_ptr<cdm::Design>> done_;
  NameTable done_index_;  // names of `done_`, views into their designs

  // The module being read.
  std::unique_ptr<cdm::Design> design_;
  std::vector<std::string_view> header_ports_;
  std::vector<Symbol> symbols_;
  NameTable symbol_index_;
  NameTable instance_index_;
  std::vector<uint32_t> bit_symbol_;  // bit -> symbol
  std::vector<int32_t> parent_;       // union-find over bits
  std::vector<int8_t> tie_;           // per bit: -1, 0 or 1 from assigns
  std::vector<int32_t> scratch_lhs_, scratch_rhs_;
  std::vector<const std::string*> scratch_ports_;
  cdm::ModuleDraft draft_;
};

}  // namespace verilog
