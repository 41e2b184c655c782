// The statements of a structural netlist as the parser hands them to the
// builder, one at a time: views into the source buffer plus line numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace verilog {

// A net name's number in its module (NameNumbering), or none yet.
constexpr uint32_t kNoSymbol = UINT32_MAX;

struct Range {
  bool present = false;
  int msb = 0;
  int lsb = 0;
};

// A net expression of a connection or an assign.
struct Expr {
  enum Kind : uint8_t { kNone, kName, kBitSelect, kPartSelect, kConstant, kConcat };
  Kind kind = kNone;
  std::string_view name;
  int index = 0;                // bit select
  int msb = 0, lsb = 0;         // part select
  std::string bits;             // constant: '0' '1' 'x' 'z', most significant first
  std::vector<Expr> items;      // concatenation: its items, once
  uint32_t repeat = 1;          // concatenation: how often the items stand ({N{...}})
  uint32_t symbol = kNoSymbol;  // name, bit or part select: the name's number
  uint32_t name_hash = 0;       // of the name, for NameNumbering; 0: not worked out yet
  uint32_t line = 0;
};

struct AttrAst {
  std::string_view name;
  std::string value;  // empty when the attribute has no value
  bool is_number = false;
};

enum class DeclKind : uint8_t { kInput, kOutput, kInout, kWire };

struct DeclAst {
  DeclKind kind = DeclKind::kWire;
  Range range;
  std::vector<std::string_view> names;
  std::vector<uint32_t> symbols;  // the names' numbers
  uint32_t line = 0;
};

struct ModuleHeaderAst {
  std::string_view name;
  uint32_t line = 0;
  std::vector<AttrAst> attrs;
  std::vector<std::string_view> ports;  // in header order
  std::vector<DeclAst> ansi_decls;      // ANSI style: declarations in the header
};

struct ConnAst {
  std::string_view port;  // empty for a connection by position
  bool empty = false;     // ".A()" or a hole in an ordered list
  Expr expr;
};

struct InstanceAst {
  std::string_view ref;
  std::string_view name;
  std::vector<ConnAst> conns;
  std::vector<AttrAst> attrs;
  uint32_t name_hash = 0;  // NameIndex::Hash of the name
  uint32_t line = 0;
};

struct AssignAst {
  Expr lhs;
  Expr rhs;
  uint32_t line = 0;
};

// Receives the statements in file order. A false return stops the parse;
// the receiver's Error() then says why.
class StatementSink {
 public:
  virtual ~StatementSink() = default;
  virtual const std::string& Error() const = 0;
  // The line the complaint is about, when not the statement's own; 0 else.
  virtual uint32_t ErrorLine() const { return 0; }
  // A statement is the parser's own, reused: a sink may fill in what the
  // parser leaves out (the names' numbers) before passing it on.
  virtual bool BeginModule(ModuleHeaderAst& header) = 0;
  virtual bool Declare(DeclAst& decl, const std::vector<AttrAst>& attrs) = 0;
  virtual bool Instance(InstanceAst& instance) = 0;
  virtual bool Assign(AssignAst& assign) = 0;
  virtual bool EndModule(uint32_t line) = 0;
  // Between statements: how far into the text the parser is.
  virtual void Checkpoint(size_t offset, size_t total) = 0;
  // A hint, a few statements ahead: the names a declaration or an
  // instance's connections will bring, so that a sink that looks them up
  // can have its table fetched into cache while it works on others.
  virtual void LookAhead(const DeclAst& /*decl*/) {}
  virtual void LookAhead(const ConnAst* /*conns*/, size_t /*count*/) {}
};

}  // namespace verilog
