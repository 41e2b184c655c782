// The statement layer of the netlist reader: tokens to statements, which
// go to a StatementSink as they are read.
#pragma once

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
};

// Bits of a number literal, most significant first ('0','1','x','z'), or
// false for a malformed literal.
bool ConstantBits(std::string_view literal, std::string& bits);

}  // namespace verilog
