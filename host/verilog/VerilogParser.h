// The statement layer of the netlist reader: tokens to statements, which
// go to a StatementSink as they are read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "verilog/VerilogAst.h"
#include "verilog/VerilogLexer.h"

namespace verilog {

struct ParseError {
  uint32_t line = 0;
  std::string message;
};

class VerilogParser {
 public:
  // Bounds no real netlist comes near: beyond them a file is refused with
  // its line, rather than exhausting the stack or the memory.
  static constexpr int kMaxConcatNesting = 256;               // {{{...}}}
  static constexpr size_t kMaxExprBits = size_t{1} << 20;     // replications expanded
  static constexpr int64_t kMaxRangeBits = int64_t{1} << 20;  // one [msb:lsb]
  // All declarations of a file together: a base, and more for a larger
  // file (a net bit costs the reader about 80 bytes).
  static constexpr uint64_t kBaseDeclaredBits = uint64_t{1} << 21;
  static constexpr uint64_t kDeclaredBitsPerByte = 4;

  VerilogParser(VerilogLexer& lexer, StatementSink& sink) : lexer_(lexer), sink_(sink) {}

  // Reads every module. False with `error` filled on the first syntax error,
  // refused construct or complaint of the sink.
  bool Parse(ParseError& error);

 private:
  bool ParseModule(const std::vector<AttrAst>& attrs);
  bool ParseHeaderPorts(ModuleHeaderAst& header);
  bool ParseDecl(DeclKind kind, uint32_t line, const std::vector<AttrAst>& attrs, int tie = -1);
  bool ParseInstance(const Token& ref, const std::vector<AttrAst>& attrs);
  bool ParseAssign(uint32_t line);
  bool ParseAttributes(std::vector<AttrAst>& attrs);
  bool ParseRange(Range& range);
  bool ParseExpr(Expr& expr);
  // `cost` gets the bits the expression is known to hold: a constant's, or
  // one a name, at `depth` concatenations deep.
  bool ParseExpr(Expr& expr, int depth, size_t& cost);
  bool CountDeclared(const Range& range, size_t names, uint32_t line);
  bool ParseConstant(const Token& token, Expr& expr);
  bool ParseInt(int& value);
  bool SkipParameters();
  bool Expect(std::string_view punct);
  bool ExpectIdentifier(Token& token, const char* what);
  bool Fail(uint32_t line, std::string message);
  bool FailAt(const Token& token, const std::string& what);
  bool SinkFail(uint32_t line);

  VerilogLexer& lexer_;
  StatementSink& sink_;
  ParseError* error_ = nullptr;
  InstanceAst instance_;  // reused: instances are most of a netlist
  DeclAst decl_;          // reused: a flat netlist declares a wire a line
  uint64_t declared_bits_ = 0;
};

// Bits of a number literal, most significant first ('0','1','x','z'), or
// false for a malformed literal.
bool ConstantBits(std::string_view literal, std::string& bits);

}  // namespace verilog
