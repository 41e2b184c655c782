// The parser numbers net names in the order the builder meets them: new
// names take the next number, known ones keep theirs, a selected name that
// was never met gets none.
#include "verilog/NameNumbering.h"

#include <gtest/gtest.h>

#include <string>
#include <unordered_map>
#include <vector>

#include "db/NameIndex.h"

namespace {

using verilog::Expr;

Expr Name(std::string_view name, Expr::Kind kind = Expr::kName) {
  Expr expr;
  expr.kind = kind;
  expr.name = name;
  return expr;
}

Expr Concat(std::vector<Expr> items) {
  Expr expr;
  expr.kind = Expr::kConcat;
  expr.items = std::move(items);
  return expr;
}

TEST(NameNumbering, NamesAreNumberedInTheOrderTheyAreMet) {
  verilog::NameNumbering numbering;
  verilog::DeclAst decl;
  decl.names = {"a", "b"};
  numbering.Number(decl);
  EXPECT_EQ(decl.symbols, (std::vector<uint32_t>{0, 1}));
  decl.names = {"b", "c"};
  numbering.Number(decl);
  EXPECT_EQ(decl.symbols, (std::vector<uint32_t>{1, 2}));

  // Items of a concatenation left to right, nested ones in place; a bit
  // or part select of a name never met is not numbered.
  Expr expr = Concat({Name("x"), Concat({Name("y"), Name("a")}), Name("z", Expr::kBitSelect),
                      Name("c", Expr::kPartSelect), Name("w")});
  numbering.Number(expr);
  EXPECT_EQ(expr.items[0].symbol, 3u);
  EXPECT_EQ(expr.items[1].items[0].symbol, 4u);
  EXPECT_EQ(expr.items[1].items[1].symbol, 0u);
  EXPECT_EQ(expr.items[2].symbol, verilog::kNoSymbol);
  EXPECT_EQ(expr.items[3].symbol, 2u);
  EXPECT_EQ(expr.items[4].symbol, 5u);

  // An instance: its connections in order, open ones passed over, and the
  // hash its name is checked for duplicates under.
  verilog::InstanceAst instance;
  instance.name = "u1";
  instance.conns.resize(3);
  instance.conns[0].expr = Name("v");
  instance.conns[1].empty = true;
  instance.conns[2].expr = Name("x");
  numbering.Number(instance);
  EXPECT_EQ(instance.conns[0].expr.symbol, 6u);
  EXPECT_EQ(instance.conns[1].expr.symbol, verilog::kNoSymbol);
  EXPECT_EQ(instance.conns[2].expr.symbol, 3u);
  EXPECT_EQ(instance.name_hash, cdm::NameIndex::Hash("u1"));

  // A new module numbers from 0 again.
  numbering.BeginModule();
  Expr again = Name("x");
  numbering.Number(again);
  EXPECT_EQ(again.symbol, 0u);
}

// Short names are kept in the table, longer ones are views into the text:
// both must be told apart by every byte, and found from other copies.
TEST(NameNumbering, ManyNamesKeepTheirNumbers) {
  verilog::NameNumbering numbering;
  std::vector<std::string> names = {"", "12345678", "123456789", "12345679", "1234567"};
  for (int i = 0; i < 20000; ++i)
    names.push_back(i % 2 ? "n" + std::to_string(i) : "a_long_prefix/" + std::to_string(i));
  verilog::DeclAst decl;
  decl.names.assign(names.begin(), names.end());
  numbering.Number(decl);
  for (uint32_t i = 0; i < names.size(); ++i) ASSERT_EQ(decl.symbols[i], i);
  const std::vector<std::string> copies = names;
  for (uint32_t i = 0; i < copies.size(); i += i < 10 ? 1 : 7) {
    Expr expr = Name(copies[i], Expr::kBitSelect);
    numbering.Number(expr);
    ASSERT_EQ(expr.symbol, i) << copies[i];
  }
  Expr unknown = Name("a_long_prefix/20001", Expr::kBitSelect);
  numbering.Number(unknown);
  EXPECT_EQ(unknown.symbol, verilog::kNoSymbol);
}

// Two names of one length under one hash are two names: the first pair of
// `prefix` and six digits that collide (a 32-bit hash gives one among some
// 10^5 names).
void ExpectCollidingNamesApart(const std::string& prefix) {
  std::unordered_map<uint32_t, std::string> seen;
  std::string first, second;
  for (int i = 100000; first.empty() && i < 1000000; ++i) {
    std::string name = prefix + std::to_string(i);
    auto [known, added] = seen.emplace(verilog::NameNumbering::HashOf(name), name);
    if (!added) {
      first = known->second;
      second = name;
    }
  }
  ASSERT_FALSE(first.empty());
  verilog::NameNumbering numbering;
  verilog::DeclAst decl;
  decl.names = {first, second, first};
  numbering.Number(decl);
  EXPECT_EQ(decl.symbols, (std::vector<uint32_t>{0, 1, 0})) << first << " " << second;
}

TEST(NameNumbering, NamesUnderOneHashStayApart) {
  ExpectCollidingNamesApart("n");                   // kept in the slot
  ExpectCollidingNamesApart("a_long_prefix/net_");  // views into the text
}

}  // namespace
