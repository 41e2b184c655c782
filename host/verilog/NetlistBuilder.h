// Second layer of the netlist reader: statements to designs. Designs are
// kept aside until the whole file has been read, so that a file with an
// error adds nothing to the database. Nothing here points into the text:
// names are copied as they are met, so the text may go before Commit.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "db/NameIndex.h"
#include "db/NetlistEditor.h"
#include "verilog/InternCache.h"
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

  bool BeginModule(ModuleHeaderAst& header) override;
  bool Declare(DeclAst& decl, const std::vector<AttrAst>& attrs) override;
  bool Instance(InstanceAst& instance) override;
  bool Assign(AssignAst& assign) override;
  bool EndModule(uint32_t line) override;
  // Stops the read on Ctrl-C and draws the progress line of a large file.
  void Checkpoint(size_t offset, size_t total) override;

  // The complaint behind the last false return.
  const std::string& Error() const override { return error_; }
  uint32_t ErrorLine() const override { return error_line_; }
  // Makes the finished modules designs of the root; returns their names in
  // order. False with `error` (and nothing added) when one is beyond the
  // database's limits.
  bool Commit(std::vector<std::string>& names, std::string& error);

 private:
  // A declared or implied name of the module being read.
  struct Symbol {
    uint32_t name = 0;       // offset in the module's name pool
    uint32_t length = 0;     // of the name
    uint32_t first_bit = 0;  // its bits are first_bit .. first_bit + width - 1
    int32_t msb = 0, lsb = 0;
    int8_t direction = -1;  // -1 none, else 0 in, 1 out, 2 inout
    bool ranged = false;
    bool declared = false;  // explicitly, not implied by use
    bool wire = false;      // declared by a net keyword
  };

  bool Fail(std::string message, uint32_t line = 0);
  std::string_view NameOf(const Symbol& symbol) const {
    return std::string_view(draft_.names.Data() + symbol.name, symbol.length);
  }
  // The symbol of a name's number (VerilogAst's kNoSymbol, or a number not
  // met yet: none).
  Symbol* FindSymbol(uint32_t number);
  Symbol* AddSymbol(std::string_view name, uint32_t number, const Range& range);
  uint32_t Width(const Symbol& symbol) const;
  bool AddName(std::string_view name, uint32_t& offset);
  // Bits of an expression, most significant first: bit ids, or the
  // constants of ModuleSource. Undeclared plain names become scalar nets.
  // False, with the error set, when `more` bits would make `bits` longer
  // than an expression may be.
  bool RoomFor(const std::vector<int32_t>& bits, size_t more);
  bool ExprBits(const Expr& expr, std::vector<int32_t>& bits);
  bool SymbolBit(const Symbol& symbol, int index, int32_t& bit);
  int32_t FindRoot(int32_t bit);
  std::string BitName(uint32_t bit) const;
  bool CheckInstanceNames();
  bool FinishPorts();
  bool FinishNets();

  cdm::Root* root_;
  InternCache names_;
  std::string file_name_;
  std::shared_ptr<cdm::Object> owner_;
  std::string error_;
  uint32_t error_line_ = 0;
  struct Finished {
    std::unique_ptr<cdm::Design> design;
    cdm::ModuleDraft draft;
  };
  std::vector<Finished> done_;
  std::unordered_set<std::string_view> done_names_;  // interned by the root

  // The module being read.
  std::unique_ptr<cdm::Design> design_;
  cdm::ModuleDraft draft_;
  std::vector<uint32_t> header_ports_;  // name offsets, in header order
  cdm::PodArray<Symbol> symbols_;       // by the number the parser gives names
  // The hash and line of each instance name, in order: duplicates are
  // looked for once the module is read (CheckInstanceNames).
  cdm::PodArray<uint32_t> instance_hashes_;
  cdm::PodArray<uint32_t> instance_lines_;
  cdm::PodArray<uint32_t> bit_symbol_;  // bit -> symbol
  cdm::PodArray<int32_t> parent_;       // union-find over bits
  cdm::PodArray<int8_t> tie_;           // per bit: -1, 0 or 1 from assigns
  std::vector<int32_t> scratch_lhs_, scratch_rhs_;
  std::vector<const std::string*> scratch_ports_;
};

}  // namespace verilog
