// Libraries made to hurt the reader: deep or long functions, numbers out of
// any sane range, huge tables and tokens. Each is refused with file and line,
// or read without recursion and without memory out of proportion.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "LibTestUtil.h"
#include "hostapi/cdm/LibBoolFuncExpr.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibRecords.h"
#include "hostapi/cdm/LibStateTable.h"

namespace {

using libtest::Parse;
using libtest::Wrap;

// A cell with input pins A and P0..P(pins-1) and an output Y of `function`.
std::string CellWithFunction(const std::string& function, int pins = 0) {
  std::string text = "  cell(C) {\n    pin(A) { direction : input; }\n";
  for (int i = 0; i < pins; ++i)
    text += "    pin(P" + std::to_string(i) + ") { direction : input; }\n";
  return Wrap(text + "    pin(Y) { direction : output; function : \"" + function + "\"; }\n  }\n");
}

// The depth of the function's tree (operands come before their operator).
int TreeDepth(const cdm::LibBoolFuncExpr& function) {
  const auto& nodes = function.Nodes();
  std::vector<int> depth(nodes.size(), 1);
  for (size_t i = 0; i < nodes.size(); ++i) {
    if (nodes[i].left >= 0) depth[i] = std::max(depth[i], depth[nodes[i].left] + 1);
    if (nodes[i].right >= 0) depth[i] = std::max(depth[i], depth[nodes[i].right] + 1);
  }
  return nodes.empty() ? 0 : depth[function.Root()];
}

const cdm::LibBoolFuncExpr* FunctionOfY(const libtest::Parsed& parsed) {
  return parsed.lib->GetLibCell("C")->FindPort("Y")->GetFunction();
}

TEST(HostileInput, ParenthesesNestBoundedWithFileAndLine) {
  cdm::Root root;
  const int limit = 256;
  auto deep = Parse(
      root, CellWithFunction(std::string(limit + 1, '(') + "A" + std::string(limit + 1, ')')));
  ASSERT_FALSE(deep.lib);
  EXPECT_EQ(deep.error.rfind("t.lib:7: parentheses nested too deeply (more than 256 levels) "
                             "in function \"((((",
                             0),
            0u)
      << deep.error;
  EXPECT_LT(deep.error.size(), 200u) << deep.error;
  // Twenty thousand levels, as a fuzzer wrote them, end the same way.
  auto deeper =
      Parse(root, CellWithFunction(std::string(20000, '(') + "A" + std::string(20000, ')')));
  ASSERT_FALSE(deeper.lib);
  EXPECT_NE(deeper.error.find("nested too deeply"), std::string::npos);
  auto at_limit =
      Parse(root, CellWithFunction(std::string(limit, '(') + "!A" + std::string(limit, ')')));
  ASSERT_TRUE(at_limit.lib) << at_limit.error;
  EXPECT_EQ(FunctionOfY(at_limit)->TruthTable(), (std::vector<bool>{true, false}));
}

TEST(HostileInput, LongNotRunsCancelWithoutRecursion) {
  cdm::Root root;
  auto odd = Parse(root, CellWithFunction(std::string(200001, '!') + "A"));
  ASSERT_TRUE(odd.lib) << odd.error;
  EXPECT_EQ(FunctionOfY(odd)->TruthTable(), (std::vector<bool>{true, false}));
  EXPECT_LE(TreeDepth(*FunctionOfY(odd)), 2);
  auto even = Parse(root, CellWithFunction(std::string(200000, '!') + "A" + "''"));
  ASSERT_TRUE(even.lib) << even.error;
  EXPECT_EQ(FunctionOfY(even)->TruthTable(), (std::vector<bool>{false, true}));
  // A buffer it stays, however it is written.
  EXPECT_TRUE(even.lib->GetLibCell("C")->IsBuffer());
  auto mixed = Parse(root, CellWithFunction("!(A')' & !!A'"));
  ASSERT_TRUE(mixed.lib) << mixed.error;
  EXPECT_EQ(FunctionOfY(mixed)->TruthTable(), (std::vector<bool>{true, false}));
}

TEST(HostileInput, LongChainsStayShallowAndKeepTheirMeaning) {
  cdm::Root root;
  std::string chain = "A";
  for (int i = 1; i < 140000; ++i) chain += " A";
  auto ands = Parse(root, CellWithFunction(chain));
  ASSERT_TRUE(ands.lib) << ands.error;
  EXPECT_EQ(FunctionOfY(ands)->TruthTable(), (std::vector<bool>{false, true}));
  EXPECT_LE(TreeDepth(*FunctionOfY(ands)), 20);

  // Two hundred pins: the ports keep the order of first mention, each once.
  std::string ors = "P0";
  for (int i = 1; i < 200; ++i) ors += " | P" + std::to_string(i) + " | P" + std::to_string(i - 1);
  auto many = Parse(root, CellWithFunction(ors, 200));
  ASSERT_TRUE(many.lib) << many.error;
  const auto& ports = FunctionOfY(many)->GetFuncPorts();
  ASSERT_EQ(ports.size(), 200u);
  for (int i = 0; i < 200; ++i) EXPECT_EQ(ports[i]->Name(), "P" + std::to_string(i));
  EXPECT_LE(TreeDepth(*FunctionOfY(many)), 12);
  EXPECT_TRUE(FunctionOfY(many)->Evaluate(
      [](const cdm::LibPort* port) { return port->Name() == "P199" ? 1 : 0; }));
  EXPECT_FALSE(FunctionOfY(many)->Evaluate([](const cdm::LibPort*) { return 0; }));

  // Sixteen ports tabulate; sixteen ports over a huge tree do not.
  std::string sixteen = "P0";
  for (int i = 1; i < 16; ++i) sixteen += " & P" + std::to_string(i);
  auto tabulated = Parse(root, CellWithFunction(sixteen, 16));
  ASSERT_TRUE(tabulated.lib) << tabulated.error;
  EXPECT_EQ(FunctionOfY(tabulated)->TruthTable().size(), 65536u);
  std::string huge = sixteen;
  for (int i = 0; i < 2000; ++i) huge += " & " + sixteen;
  auto untabulated = Parse(root, CellWithFunction(huge, 16));
  ASSERT_TRUE(untabulated.lib) << untabulated.error;
  EXPECT_TRUE(FunctionOfY(untabulated)->TruthTable().empty());

  // Exclusive or keeps its parity over an odd and an even count.
  auto xor3 = Parse(root, CellWithFunction("A ^ A ^ A"));
  ASSERT_TRUE(xor3.lib) << xor3.error;
  EXPECT_EQ(FunctionOfY(xor3)->TruthTable(), (std::vector<bool>{false, true}));
  auto xor4 = Parse(root, CellWithFunction("A ^ A ^ A ^ A"));
  ASSERT_TRUE(xor4.lib) << xor4.error;
  EXPECT_EQ(FunctionOfY(xor4)->TruthTable(), (std::vector<bool>{false, false}));
}

TEST(HostileInput, NumbersOutOfRangeAreRefusedBeforeAnyConversion) {
  struct Case {
    std::string body;
    std::string expected;
  };
  const std::vector<Case> cases = {
      {"  type (bt) { bit_width : 8 ; bit_from : 1e10 ; bit_to : 0 ; }\n",
       "t.lib:5: expected a whole number from -1000000 to 1000000 for 'bit_from', found "
       "'1e10'"},
      {"  type (bt) { bit_from : 0 ; bit_to : -2000000000 ; }\n",
       "t.lib:5: expected a whole number from -1000000 to 1000000 for 'bit_to', found "
       "'-2000000000'"},
      {"  type (bt) { bit_width : 88e8 ; }\n",
       "t.lib:5: expected a whole number from 0 to 65536 for 'bit_width', found '88e8'"},
      {"  type (bt) { bit_from : 2.5 ; bit_to : 0 ; }\n",
       "t.lib:5: expected a whole number from -1000000 to 1000000 for 'bit_from', found '2.5'"},
      {"  type (bt) { bit_from : 65536 ; bit_to : 0 ; }\n",
       "t.lib:5: bus type 'bt' is too wide: 65537 bits, more than 65536"},
      {"  type (bt) { bit_from : 1000000 ; bit_to : -1000000 ; }\n",
       "t.lib:5: bus type 'bt' is too wide: 2000001 bits, more than 65536"},
      {"  wire_load (w) {\n    fanout_length (1e30, 1) ;\n  }\n",
       "t.lib:6: expected a whole number from 0 to 1000000 for 'fanout_length', found '1e30'"},
      {"  cell (C) {\n    ff_bank (IQ, IQN, 1e30) { next_state : \"D\" ; clocked_on : \"CK\" ; }\n"
       "    pin (D) { direction : input ; }\n    pin (CK) { direction : input ; }\n  }\n",
       "t.lib:6: expected a whole number from 1 to 65536 for 'ff_bank', found '1e30'"},
  };
  for (const Case& c : cases) {
    cdm::Root root;
    auto parsed = Parse(root, Wrap(c.body));
    EXPECT_FALSE(parsed.lib) << c.body;
    EXPECT_NE(parsed.error.find(c.expected), std::string::npos) << parsed.error;
  }
  // The widest bus there may be, and its members' names.
  cdm::Root root;
  auto widest =
      Parse(root, Wrap("  type (bt) { bit_from : 65535 ; bit_to : 0 ; }\n"
                       "  cell (C) { bus (D) { bus_type : bt ; direction : input ; } }\n"));
  ASSERT_TRUE(widest.lib) << widest.error;
  EXPECT_EQ(widest.lib->GetLibCell("C")->GetPorts().size(), 65536u);
  EXPECT_NE(widest.lib->GetLibCell("C")->FindPort("D[65535]"), nullptr);
  EXPECT_NE(widest.lib->GetLibCell("C")->FindPort("D[0]"), nullptr);
  auto fanout = Parse(root, Wrap("  wire_load (w) {\n    fanout_length (3, 1.5) ;\n  }\n"));
  ASSERT_TRUE(fanout.lib) << fanout.error;
  ASSERT_EQ(fanout.lib->GetAllWireLoads().size(), 1u);
  EXPECT_EQ(fanout.lib->GetAllWireLoads()[0]->points.at(0).first, 3);
}

TEST(HostileInput, BusMembersOfALibraryAreBounded) {
  // Sixteen buses of 65,536 bits fill the bound; a seventeenth passes it,
  // and the cell is refused before any of its ports is made.
  std::string buses;
  for (int i = 0; i < 17; ++i)
    buses += "    bus (D" + std::to_string(i) + ") { bus_type : bt ; direction : input ; }\n";
  cdm::Root root;
  auto parsed = Parse(root, Wrap("  type (bt) { bit_from : 65535 ; bit_to : 0 ; }\n  cell (C) {\n" +
                                 buses + "  }\n"));
  ASSERT_FALSE(parsed.lib);
  EXPECT_EQ(parsed.error, "t.lib:23: bus 'D16' takes the library past 1048576 bus members");
}

TEST(HostileInput, AStateTableOfTwentyInternalPinsStaysSmall) {
  std::string names, low, high;
  for (int i = 0; i < 20; ++i) {
    names += " Q" + std::to_string(i);
    low += " L";
    high += " H";
  }
  cdm::Root root;
  auto parsed =
      Parse(root, Wrap("  cell(S) {\n    pin(A) { direction : input ; }\n    statetable (\"\", \"" +
                       names + "\") { table : \" :" + low + " :" + high + "\" ; }\n  }\n"));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  const cdm::LibStateTable* table = parsed.lib->GetLibCell("S")->GetStateTable();
  ASSERT_NE(table, nullptr);
  ASSERT_EQ(table->internal_ports.size(), 20u);
  // Unfolded, it would hold 20 texts for each of 2^20 rows: the rows are
  // made when read instead.
  EXPECT_EQ(table->expanded_rows.size(), uint64_t{1} << 20);
  EXPECT_EQ(table->expanded_rows[0], std::vector<std::string>(20, "H"));
  EXPECT_EQ(table->expanded_rows[1], std::vector<std::string>(20, "X"));
}

TEST(HostileInput, HugeTokensAreQuotedShort) {
  cdm::Root root;
  const std::string token(10 << 20, 'x');
  auto number = Parse(root, Wrap("  cell(A) { area : 1" + token + "; }\n"));
  ASSERT_FALSE(number.lib);
  EXPECT_EQ(number.error, "t.lib:5: expected a number for 'area', found '1" + std::string(59, 'x') +
                              "... (10485761 bytes)'");
  auto name = Parse(root, Wrap("  " + token + " 1;\n"));
  ASSERT_FALSE(name.lib);
  EXPECT_LT(name.error.size(), 200u) << name.error.substr(0, 300);
  EXPECT_NE(name.error.find("t.lib:5: expected ':' or '(' after 'xxxx"), std::string::npos);
  std::string chain = "A";
  for (int i = 0; i < 100000; ++i) chain += " & A";
  auto function = Parse(root, CellWithFunction(chain + " & B"));
  ASSERT_FALSE(function.lib);
  std::string quoted;
  for (int i = 0; i < 15; ++i) quoted += "A & ";
  EXPECT_EQ(function.error,
            "t.lib:7: unknown pin 'B' in function \"" + quoted + "... (400005 bytes)\"");
}

}  // namespace
