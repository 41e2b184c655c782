#include "verilog/VerilogParser.h"

#include <cctype>
#include <cstdint>
#include <cstdlib>

namespace verilog {
namespace {

// Words that start code a structural reader cannot take.
bool IsBehaviouralWord(std::string_view word) {
  static constexpr std::string_view kWords[] = {
      "always",    "initial", "reg",       "integer",     "real",     "time",
      "function",  "task",    "generate",  "genvar",      "defparam", "specify",
      "if",        "case",    "for",       "while",       "forever",  "repeat",
      "primitive", "event",   "always_ff", "always_comb", "logic",
  };
  for (std::string_view candidate : kWords)
    if (word == candidate) return true;
  return false;
}

bool IsDirectionWord(const Token& token) {
  return token.IsWord("input") || token.IsWord("output") || token.IsWord("inout");
}

DeclKind DirectionKind(const Token& token) {
  if (token.IsWord("input")) return DeclKind::kInput;
  if (token.IsWord("output")) return DeclKind::kOutput;
  return DeclKind::kInout;
}

bool IsNetWord(const Token& token) {
  return token.IsWord("wire") || token.IsWord("tri") || token.IsWord("wand") ||
         token.IsWord("wor") || token.IsWord("supply0") || token.IsWord("supply1");
}

std::string Describe(const Token& token) {
  switch (token.kind) {
    case TokenKind::kEnd:
      return "end of file";
    case TokenKind::kString:
      return "string \"" + std::string(token.text) + "\"";
    default:
      return "'" + std::string(token.text) + "'";
  }
}

int DigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

bool ConstantBits(std::string_view literal, std::string& bits) {
  bits.clear();
  size_t quote = literal.find('\'');
  std::string size_text;
  for (size_t i = 0; i < (quote == std::string_view::npos ? literal.size() : quote); ++i) {
    char c = literal[i];
    if (std::isdigit(static_cast<unsigned char>(c)))
      size_text += c;
    else if (c != '_' && !std::isspace(static_cast<unsigned char>(c)))
      return false;
  }
  if (quote == std::string_view::npos) {
    // A plain decimal number: 32 bits.
    if (size_text.empty() || size_text.size() > 10) return false;
    unsigned long long value = std::strtoull(size_text.c_str(), nullptr, 10);
    if (value > 0xffffffffULL) return false;
    for (int i = 31; i >= 0; --i) bits += ((value >> i) & 1) ? '1' : '0';
    return true;
  }
  size_t pos = quote + 1;
  if (pos < literal.size() && (literal[pos] == 's' || literal[pos] == 'S')) ++pos;
  if (pos >= literal.size()) return false;
  char base = static_cast<char>(std::tolower(static_cast<unsigned char>(literal[pos++])));
  std::string digits;
  for (; pos < literal.size(); ++pos) {
    char c = literal[pos];
    if (c == '_' || std::isspace(static_cast<unsigned char>(c))) continue;
    digits += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  if (digits.empty()) return false;
  if (base == 'd') {
    if (digits == "x" || digits == "z" || digits == "?") {
      bits = digits == "x" ? "x" : "z";
    } else {
      if (digits.size() > 19) return false;
      for (char c : digits)
        if (!std::isdigit(static_cast<unsigned char>(c))) return false;
      unsigned long long value = std::strtoull(digits.c_str(), nullptr, 10);
      for (int i = 63; i >= 0; --i) bits += ((value >> i) & 1) ? '1' : '0';
      size_t first = bits.find('1');
      bits = first == std::string::npos ? "0" : bits.substr(first);
    }
  } else {
    int width = base == 'b' ? 1 : base == 'o' ? 3 : base == 'h' ? 4 : 0;
    if (!width) return false;
    for (char c : digits) {
      if (c == 'x' || c == 'z' || c == '?') {
        bits.append(static_cast<size_t>(width), c == 'x' ? 'x' : 'z');
        continue;
      }
      int value = DigitValue(c);
      if (value < 0 || value >= (1 << width)) return false;
      for (int i = width - 1; i >= 0; --i) bits += ((value >> i) & 1) ? '1' : '0';
    }
  }
  if (size_text.empty()) return true;  // unsized: as many bits as written
  long size = std::strtol(size_text.c_str(), nullptr, 10);
  if (size <= 0 || size > (1 << 20)) return false;
  size_t want = static_cast<size_t>(size);
  if (bits.size() > want) {
    bits = bits.substr(bits.size() - want);
  } else if (bits.size() < want) {
    char fill = bits[0] == 'x' || bits[0] == 'z' ? bits[0] : '0';
    bits.insert(0, want - bits.size(), fill);
  }
  return true;
}

bool VerilogParser::Fail(uint32_t line, std::string message) {
  error_->line = line;
  error_->message = std::move(message);
  return false;
}

bool VerilogParser::SinkFail(uint32_t line) {
  return Fail(sink_.ErrorLine() ? sink_.ErrorLine() : line, sink_.Error());
}

bool VerilogParser::FailAt(const Token& token, const std::string& what) {
  if (token.kind == TokenKind::kError) return Fail(token.line, std::string(token.text));
  return Fail(token.line, "expected " + what + ", found " + Describe(token));
}

bool VerilogParser::Expect(std::string_view punct) {
  Token token = lexer_.Next();
  if (token.Is(punct)) return true;
  return FailAt(token, "'" + std::string(punct) + "'");
}

bool VerilogParser::ExpectIdentifier(Token& token, const char* what) {
  token = lexer_.Next();
  if (token.kind == TokenKind::kIdentifier) return true;
  return FailAt(token, what);
}

bool VerilogParser::ParseInt(int& value) {
  Token token = lexer_.Next();
  bool sign = false;
  if (token.Is("-")) {
    sign = true;
    token = lexer_.Next();
  }
  if (token.kind != TokenKind::kNumber || token.text.find('\'') != std::string_view::npos)
    return FailAt(token, "an integer");
  std::string digits;
  for (char c : token.text)
    if (c != '_') digits += c;
  if (digits.size() > 9) return Fail(token.line, "index " + digits + " is too large");
  value = std::atoi(digits.c_str());
  if (sign) value = -value;
  return true;
}

bool VerilogParser::ParseRange(Range& range) {
  range = Range();
  if (!lexer_.Peek().Is("[")) return true;
  lexer_.Next();
  range.present = true;
  const uint32_t line = lexer_.Peek().line;
  if (!ParseInt(range.msb) || !Expect(":") || !ParseInt(range.lsb) || !Expect("]")) return false;
  // Both have at most nine digits: the difference fits.
  const int64_t width = std::abs(int64_t{range.msb} - range.lsb) + 1;
  if (width > kMaxRangeBits) {
    return Fail(line, "range [" + std::to_string(range.msb) + ":" + std::to_string(range.lsb) +
                          "] is " + std::to_string(width) + " bits wide, more than " +
                          std::to_string(kMaxRangeBits));
  }
  return true;
}

bool VerilogParser::CountDeclared(const Range& range, size_t names, uint32_t line) {
  const uint64_t width =
      range.present ? static_cast<uint64_t>(std::abs(int64_t{range.msb} - range.lsb)) + 1 : 1;
  declared_bits_ += width * names;
  const uint64_t budget = kBaseDeclaredBits + kDeclaredBitsPerByte * lexer_.Size();
  if (declared_bits_ <= budget) return true;
  return Fail(line, "the nets declared so far hold " + std::to_string(declared_bits_) +
                        " bits, more than the " + std::to_string(budget) +
                        " that a file of this size may declare");
}

bool VerilogParser::ParseAttributes(std::vector<AttrAst>& attrs) {
  attrs.clear();
  while (lexer_.Peek().Is("(*")) {
    lexer_.Next();
    for (;;) {
      Token name;
      if (!ExpectIdentifier(name, "an attribute name")) return false;
      AttrAst attr;
      attr.name = name.text;
      if (lexer_.Peek().Is("=")) {
        lexer_.Next();
        Token value = lexer_.Next();
        if (value.kind == TokenKind::kString) {
          attr.value = std::string(value.text);
        } else if (value.kind == TokenKind::kNumber) {
          attr.value = std::string(value.text);
          attr.is_number = true;
        } else if (value.kind == TokenKind::kIdentifier) {
          attr.value = std::string(value.text);
        } else {
          return FailAt(value, "an attribute value");
        }
      }
      attrs.push_back(std::move(attr));
      Token next = lexer_.Next();
      if (next.Is("*)")) break;
      if (!next.Is(",")) return FailAt(next, "',' or '*)'");
    }
  }
  return true;
}

bool VerilogParser::ParseConstant(const Token& token, Expr& expr) {
  expr.kind = Expr::kConstant;
  expr.line = token.line;
  if (!ConstantBits(token.text, expr.bits))
    return Fail(token.line, "malformed number '" + std::string(token.text) + "'");
  return true;
}

bool VerilogParser::ParseExpr(Expr& expr) {
  size_t cost = 0;
  return ParseExpr(expr, 0, cost);
}

bool VerilogParser::ParseExpr(Expr& expr, int depth, size_t& cost) {
  expr = Expr();
  Token token = lexer_.Next();
  expr.line = token.line;
  if (token.kind == TokenKind::kNumber) {
    if (!ParseConstant(token, expr)) return false;
    cost = expr.bits.size();
    return true;
  }
  cost = 1;
  if (token.kind == TokenKind::kIdentifier) {
    expr.name = token.text;
    expr.kind = Expr::kName;
    if (!lexer_.Peek().Is("[")) return true;
    lexer_.Next();
    int first = 0;
    if (!ParseInt(first)) return false;
    if (lexer_.Peek().Is(":")) {
      lexer_.Next();
      expr.kind = Expr::kPartSelect;
      expr.msb = first;
      if (!ParseInt(expr.lsb)) return false;
    } else {
      expr.kind = Expr::kBitSelect;
      expr.index = first;
    }
    return Expect("]");
  }
  if (!token.Is("{")) return FailAt(token, "a net expression");
  if (depth == kMaxConcatNesting) {
    return Fail(token.line, "concatenations nested too deeply (more than " +
                                std::to_string(kMaxConcatNesting) + " levels)");
  }
  expr.kind = Expr::kConcat;
  // Replication: {N{a, b}}.
  size_t count = 1;
  const bool replication = lexer_.Peek().kind == TokenKind::kNumber &&
                           lexer_.Peek().text.find('\'') == std::string_view::npos;
  if (replication) {
    int given = 0;
    if (!ParseInt(given)) return false;
    if (given <= 0 || given > 4096) return Fail(token.line, "bad replication count");
    count = static_cast<size_t>(given);
    if (!Expect("{")) return false;
  }
  // Items as parsed, each a name (a bit at least) or a constant (its bits).
  std::vector<Expr> body;
  size_t body_cost = 0;
  for (;;) {
    Expr item;
    size_t item_cost = 0;
    if (!ParseExpr(item, depth + 1, item_cost)) return false;
    body_cost += item_cost;
    if (body_cost * count > kMaxExprBits) {
      return Fail(token.line,
                  "a concatenation of more than " + std::to_string(kMaxExprBits) + " bits");
    }
    body.push_back(std::move(item));
    Token next = lexer_.Next();
    if (next.Is("}")) break;
    if (!next.Is(",")) return FailAt(next, "',' or '}'");
  }
  cost = body_cost * count;
  // Kept once with its count: the builder repeats the bits, a few bytes
  // each, where copies of the items would take a hundred.
  expr.items = std::move(body);
  expr.repeat = static_cast<uint32_t>(count);
  return !replication || Expect("}");
}

bool VerilogParser::SkipParameters() {
  // #( ... ) or #N: parameter values of an instance or module, not kept.
  if (!lexer_.Peek().Is("#")) return true;
  lexer_.Next();
  if (!lexer_.Peek().Is("(")) {
    Token value = lexer_.Next();
    if (value.kind != TokenKind::kNumber) return FailAt(value, "a parameter value");
    return true;
  }
  int depth = 0;
  do {
    Token token = lexer_.Next();
    if (token.kind == TokenKind::kEnd || token.kind == TokenKind::kError)
      return FailAt(token, "')'");
    if (token.Is("(")) ++depth;
    if (token.Is(")")) --depth;
  } while (depth > 0);
  return true;
}

bool VerilogParser::Parse(ParseError& error) {
  error_ = &error;
  std::vector<AttrAst> attrs;
  for (;;) {
    if (!ParseAttributes(attrs)) return false;
    Token token = lexer_.Next();
    if (token.kind == TokenKind::kEnd) return true;
    if (token.IsWord("module") || token.IsWord("macromodule")) {
      if (!ParseModule(attrs)) return false;
      continue;
    }
    if (token.kind == TokenKind::kIdentifier && IsBehaviouralWord(token.text))
      return Fail(token.line,
                  "'" + std::string(token.text) +
                      "' is not structural Verilog; only gate-level netlists can be read");
    return FailAt(token, "'module'");
  }
}

bool VerilogParser::ParseHeaderPorts(ModuleHeaderAst& header) {
  if (!lexer_.Peek().Is("(")) return true;
  lexer_.Next();
  if (lexer_.Peek().Is(")")) {
    lexer_.Next();
    return true;
  }
  DeclAst* current = nullptr;  // the ANSI declaration being continued
  for (;;) {
    std::vector<AttrAst> attrs;
    if (!ParseAttributes(attrs)) return false;
    Token token = lexer_.Next();
    if (IsDirectionWord(token)) {
      header.ansi_decls.emplace_back();
      current = &header.ansi_decls.back();
      current->kind = DirectionKind(token);
      current->line = token.line;
      if (lexer_.Peek().IsWord("reg"))
        return Fail(token.line,
                    "'reg' is not structural Verilog; only gate-level netlists can be read");
      if (IsNetWord(lexer_.Peek())) lexer_.Next();
      if (!ParseRange(current->range)) return false;
      token = lexer_.Next();
    }
    if (token.kind != TokenKind::kIdentifier) return FailAt(token, "a port name");
    if (lexer_.Peek().Is("[") || lexer_.Peek().Is("."))
      return Fail(token.line, "port expressions in a module header are not supported");
    header.ports.push_back(token.text);
    if (current) {
      current->names.push_back(token.text);
      if (!CountDeclared(current->range, 1, token.line)) return false;
    }
    Token next = lexer_.Next();
    if (next.Is(")")) return true;
    if (!next.Is(",")) return FailAt(next, "',' or ')'");
  }
}

bool VerilogParser::ParseModule(const std::vector<AttrAst>& attrs) {
  ModuleHeaderAst header;
  Token name;
  if (!ExpectIdentifier(name, "a module name")) return false;
  header.name = name.text;
  header.line = name.line;
  header.attrs = attrs;
  if (!SkipParameters() || !ParseHeaderPorts(header) || !Expect(";")) return false;
  if (!sink_.BeginModule(header)) return SinkFail(name.line);
  std::vector<AttrAst> item_attrs;
  for (;;) {
    sink_.Checkpoint(lexer_.Offset(), lexer_.Size());
    if (!ParseAttributes(item_attrs)) return false;
    Token token = lexer_.Next();
    if (token.IsWord("endmodule")) {
      if (!sink_.EndModule(token.line)) return SinkFail(token.line);
      return true;
    }
    if (token.kind == TokenKind::kEnd)
      return Fail(token.line, "missing 'endmodule' of module '" + std::string(header.name) + "'");
    if (token.kind == TokenKind::kError) return FailAt(token, "");
    if (IsDirectionWord(token)) {
      if (!ParseDecl(DirectionKind(token), token.line, item_attrs)) return false;
    } else if (IsNetWord(token)) {
      // Supply nets are tied to their value.
      int tie = token.IsWord("supply0") ? 0 : token.IsWord("supply1") ? 1 : -1;
      if (!ParseDecl(DeclKind::kWire, token.line, item_attrs, tie)) return false;
    } else if (token.IsWord("assign")) {
      if (!ParseAssign(token.line)) return false;
    } else if (token.IsWord("parameter") || token.IsWord("localparam")) {
      for (Token skip = lexer_.Next(); !skip.Is(";"); skip = lexer_.Next())
        if (skip.kind == TokenKind::kEnd || skip.kind == TokenKind::kError)
          return FailAt(skip, "';'");
    } else if (token.kind == TokenKind::kIdentifier && !token.escaped &&
               IsBehaviouralWord(token.text)) {
      return Fail(token.line,
                  "'" + std::string(token.text) +
                      "' is not structural Verilog; only gate-level netlists can be read");
    } else if (token.kind == TokenKind::kIdentifier) {
      if (!ParseInstance(token, item_attrs)) return false;
    } else {
      return FailAt(token, "a declaration, an assign, an instance or 'endmodule'");
    }
  }
}

bool VerilogParser::ParseDecl(DeclKind kind, uint32_t line, const std::vector<AttrAst>& attrs,
                              int tie) {
  DeclAst& decl = decl_;
  decl.names.clear();
  decl.range = Range();
  decl.kind = kind;
  decl.line = line;
  if (kind != DeclKind::kWire) {
    if (lexer_.Peek().IsWord("reg"))
      return Fail(line, "'reg' is not structural Verilog; only gate-level netlists can be read");
    if (IsNetWord(lexer_.Peek())) lexer_.Next();
  }
  if (!ParseRange(decl.range)) return false;
  for (;;) {
    Token name;
    if (!ExpectIdentifier(name, "a name")) return false;
    decl.names.push_back(name.text);
    if (!CountDeclared(decl.range, 1, name.line)) return false;
    Token next = lexer_.Next();
    if (next.Is("=")) {
      // "wire a = b;" is an assign.
      AssignAst assign;
      assign.line = next.line;
      assign.lhs.kind = Expr::kName;
      assign.lhs.name = name.text;
      assign.lhs.line = name.line;
      if (!ParseExpr(assign.rhs)) return false;
      if (!sink_.Declare(decl, attrs)) return SinkFail(line);
      decl.names.clear();
      if (!sink_.Assign(assign)) return SinkFail(assign.line);
      next = lexer_.Next();
    }
    if (next.Is(";")) break;
    if (!next.Is(",")) return FailAt(next, "',' or ';'");
  }
  if (!decl.names.empty() && !sink_.Declare(decl, attrs)) return SinkFail(line);
  if (tie < 0) return true;
  size_t width = decl.range.present ? std::abs(decl.range.msb - decl.range.lsb) + 1 : 1;
  for (std::string_view name : decl.names) {
    AssignAst assign;
    assign.line = line;
    assign.lhs.kind = Expr::kName;
    assign.lhs.name = name;
    assign.lhs.line = line;
    assign.rhs.kind = Expr::kConstant;
    assign.rhs.bits.assign(width, tie ? '1' : '0');
    assign.rhs.line = line;
    if (!sink_.Assign(assign)) return SinkFail(line);
  }
  return true;
}

bool VerilogParser::ParseAssign(uint32_t line) {
  if (lexer_.Peek().Is("#")) return Fail(line, "delays on assign are not supported");
  for (;;) {
    AssignAst assign;
    assign.line = line;
    if (!ParseExpr(assign.lhs)) return false;
    if (assign.lhs.kind == Expr::kConstant) return Fail(line, "cannot assign to a constant");
    if (!Expect("=")) return false;
    if (!ParseExpr(assign.rhs)) return false;
    Token next = lexer_.Next();
    if (!next.Is(",") && !next.Is(";")) {
      return Fail(next.line,
                  "only nets and constants can be assigned; expressions with operators "
                  "are not structural Verilog");
    }
    if (!sink_.Assign(assign)) return SinkFail(line);
    if (next.Is(";")) return true;
  }
}

bool VerilogParser::ParseInstance(const Token& ref, const std::vector<AttrAst>& attrs) {
  if (!SkipParameters()) return false;
  for (;;) {
    InstanceAst& inst = instance_;
    inst.conns.clear();
    inst.ref = ref.text;
    inst.attrs = attrs;
    Token name;
    if (!ExpectIdentifier(name, "an instance name")) return false;
    inst.name = name.text;
    inst.line = name.line;
    if (lexer_.Peek().Is("[")) return Fail(name.line, "arrays of instances are not supported");
    if (!Expect("(")) return false;
    if (lexer_.Peek().Is(")")) {
      lexer_.Next();
    } else if (lexer_.Peek().Is(".")) {
      for (;;) {
        if (!Expect(".")) return false;
        Token port;
        if (!ExpectIdentifier(port, "a port name")) return false;
        if (!Expect("(")) return false;
        inst.conns.emplace_back();
        ConnAst& conn = inst.conns.back();
        conn.port = port.text;
        if (lexer_.Peek().Is(")")) {
          conn.empty = true;
        } else if (!ParseExpr(conn.expr)) {
          return false;
        }
        if (!Expect(")")) return false;
        Token next = lexer_.Next();
        if (next.Is(")")) break;
        if (!next.Is(",")) return FailAt(next, "',' or ')'");
      }
    } else {
      for (;;) {
        inst.conns.emplace_back();
        ConnAst& conn = inst.conns.back();
        if (lexer_.Peek().Is(",") || lexer_.Peek().Is(")")) {
          conn.empty = true;
        } else if (!ParseExpr(conn.expr)) {
          return false;
        }
        Token next = lexer_.Next();
        if (next.Is(")")) break;
        if (!next.Is(",")) return FailAt(next, "',' or ')'");
      }
    }
    if (!sink_.Instance(inst)) return SinkFail(inst.line);
    Token next = lexer_.Next();
    if (next.Is(";")) return true;
    if (!next.Is(",")) return FailAt(next, "',' or ';'");
  }
}

}  // namespace verilog
