// Library model behaviour: Boolean functions, state tables, state patterns,
// sequential table text, cell type names and the generic library.
#include <gtest/gtest.h>

#include <sstream>

#include "LibTestUtil.h"
#include "liberty/FuncParser.h"

namespace {

using libtest::Parse;
using libtest::Wrap;

TEST(Model, FunctionOperatorsAndPorts) {
  cdm::Root root;
  cdm::LibPort a(root.Intern("A"), cdm::kDirInput, nullptr);
  cdm::LibPort b(root.Intern("B"), cdm::kDirInput, nullptr);
  cdm::LibPort c(root.Intern("C"), cdm::kDirInput, nullptr);
  liberty::PortLookup lookup = [&](std::string_view name) -> cdm::LibPort* {
    if (name == "A") return &a;
    if (name == "B") return &b;
    if (name == "C") return &c;
    return nullptr;
  };
  struct Case {
    const char* text;
    std::vector<bool> table;  // row bit 0 is the first port mentioned
  };
  const Case cases[] = {
      {"A & B", {false, false, false, true}},
      {"A * B", {false, false, false, true}},
      {"A B", {false, false, false, true}},
      {"A | B", {false, true, true, true}},
      {"A + B", {false, true, true, true}},
      {"A ^ B", {false, true, true, false}},
      {"!A", {true, false}},
      {"A'", {true, false}},
      {"(A+B)'", {true, false, false, false}},
      {"A | B & C", {false, true, false, true, false, true, true, true}},  // & binds tighter
      {"!(A B) + C", {true, true, true, false, true, true, true, true}},
  };
  for (const Case& c_ : cases) {
    cdm::LibBoolFuncExpr function;
    std::string error;
    ASSERT_TRUE(liberty::ParseBoolFunc(c_.text, lookup, function, error))
        << c_.text << ": " << error;
    EXPECT_EQ(function.GetFuncStr(), c_.text);
    EXPECT_EQ(function.TruthTable(), c_.table) << c_.text;
  }
  cdm::LibBoolFuncExpr function;
  std::string error;
  ASSERT_TRUE(liberty::ParseBoolFunc("B & A | B", lookup, function, error));
  EXPECT_EQ(function.GetFuncPorts(), (std::vector<cdm::LibPort*>{&b, &a}));
  ASSERT_TRUE(liberty::ParseBoolFunc("1", lookup, function, error));
  EXPECT_TRUE(function.GetFuncPorts().empty());
  EXPECT_EQ(function.TruthTable(), std::vector<bool>{true});
  ASSERT_TRUE(liberty::ParseBoolFunc("  ", lookup, function, error));
  EXPECT_TRUE(function.IsEmpty());
  EXPECT_EQ(function.GetFuncStr(), "");
  for (const char* bad : {"A &", "A | | B", "(A", "A)", "D", "A # B"}) {
    EXPECT_FALSE(liberty::ParseBoolFunc(bad, lookup, function, error)) << bad;
  }
}

TEST(Model, SmartFullPermutation) {
  EXPECT_EQ(smartFullPermutation(2, true), (std::vector<std::string>{"00", "01", "10", "11"}));
  EXPECT_EQ(smartFullPermutation(1, false), (std::vector<std::string>{"L", "H"}));
  EXPECT_EQ(smartFullPermutation(0, true), std::vector<std::string>{"0"});
  EXPECT_EQ(smartFullPermutation(0, false), std::vector<std::string>{""});
  EXPECT_EQ(smartFullPermutation(10, true).size(), 1024u);
}

// A latch written as a state table: enable EN (a level), data D, one state
// variable IQ that the table reads (hold when EN is low).
const char* kStateTableCell =
    "  cell(LT) {\n"
    "    pin(D) { direction : input; }\n"
    "    pin(EN) { direction : input; }\n"
    "    pin(CK) { direction : input; }\n"
    "    statetable(\"D EN CK\", \"IQ\") {\n"
    "      table : \"H H - : - : H, \\\n"
    "               L H - : - : L, \\\n"
    "               - L R : - : X, \\\n"
    "               - L ~R : L : L, \\\n"
    "               - L ~R : H : N\";\n"
    "    }\n"
    "    pin(IQ) { direction : internal; }\n"
    "    pin(Q) { direction : output; state_function : \"IQ\"; }\n"
    "  }\n";

TEST(Model, StateTableExpansion) {
  cdm::Root root;
  auto parsed = Parse(root, Wrap(kStateTableCell));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  cdm::LibCell* cell = parsed.lib->GetLibCell("LT");
  ASSERT_TRUE(cell && cell->GetStateTable());
  EXPECT_TRUE(cell->IsSequentialCell());
  const cdm::LibStateTable& table = *cell->GetStateTable();
  ASSERT_EQ(table.input_ports.size(), 3u);
  ASSERT_EQ(table.internal_ports.size(), 1u);
  EXPECT_EQ(table.internal_ports[0], cell->FindPort("IQ"));
  EXPECT_EQ(table.doubled_inputs, std::set<unsigned>{2});  // CK has an edge
  EXPECT_EQ(table.GetUsedInternalPortsIndex(), std::vector<int>{0});
  // Bits: D, EN, CK* (before), CK (after), IQ.
  ASSERT_EQ(table.expanded_rows.size(), 32u);
  auto row = [&](int d, int en, int ck_before, int ck, int iq) {
    return table.expanded_rows[(d << 4) | (en << 3) | (ck_before << 2) | (ck << 1) | iq][0];
  };
  EXPECT_EQ(row(1, 1, 0, 0, 0), "H");
  EXPECT_EQ(row(0, 1, 1, 1, 1), "L");
  EXPECT_EQ(row(1, 0, 0, 1, 0), "X");  // rising CK with EN low
  EXPECT_EQ(row(1, 0, 1, 1, 0), "L");  // hold, IQ low
  EXPECT_EQ(row(0, 0, 0, 0, 1), "N");  // hold, IQ high
}

TEST(Model, StateTableErrors) {
  const std::pair<std::string, std::string> cases[] = {
      {"    statetable(\"D Z\", \"IQ\") { table : \"H H : - : H\"; }\n",
       "unknown pin 'Z' in statetable"},
      {"    statetable(\"D\", \"IQ\") { table : \"H H : - : H\"; }\n",
       "expected 1 inputs and 1 state values"},
      {"    statetable(\"D\", \"IQ\") { table : \"Q : - : H\"; }\n", "unknown input value 'Q'"},
      {"    statetable(\"D\", \"IQ\") { table : \"H - H\"; }\n",
       "expected 'inputs : state : next state'"},
  };
  for (const auto& c : cases) {
    cdm::Root root;
    auto parsed =
        Parse(root, Wrap("  cell(S) {\n    pin(D) { direction : input; }\n" + c.first + "  }\n"));
    EXPECT_FALSE(parsed.lib);
    EXPECT_NE(parsed.error.find(c.second), std::string::npos) << parsed.error;
    EXPECT_NE(parsed.error.find("t.lib:7:"), std::string::npos) << parsed.error;
  }
}

TEST(Model, SequentialGroupTable) {
  cdm::Root root;
  auto parsed = Parse(
      root, Wrap("  cell(DFFN) {\n"
                 "    ff(IQ, IQN) { clocked_on : \"!CK\"; next_state : \"D\"; clear : \"!RN\"; }\n"
                 "    pin(D) { direction : input; }\n"
                 "    pin(CK) { direction : input; clock : true; }\n"
                 "    pin(RN) { direction : input; }\n"
                 "    pin(Q) { direction : output; function : \"IQ\"; }\n"
                 "    pin(QN) { direction : output; function : \"IQN\"; }\n"
                 "  }\n"));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  cdm::LibCell* cell = parsed.lib->GetLibCell("DFFN");
  cdm::LibPort* q = cell->FindPort("Q");
  cdm::LibPort* qn = cell->FindPort("QN");
  const cdm::LibSequential* group = cell->GetSequentialFromOutputPort(cell->FindPort("IQN"));
  ASSERT_TRUE(group);
  EXPECT_EQ(group->first, cell->FindPort("IQ"));
  EXPECT_EQ(cell->FindPort("IQ")->GetDirection(), cdm::kDirInternal);
  EXPECT_FALSE(cell->GetSequentialFromOutputPort(q));
  std::ostringstream packed;
  cell->PrintStateTable({q}, {qn}, packed, false, false);
  EXPECT_EQ(packed.str(),
            "  FF(IQ, IQN):\n"
            "    CLOCKED_ON: !CK\n"
            "    NEXT_STATE: D\n"
            "    CLEAR: !RN\n"
            "  PIN(Q): IQ\n"
            "    TABLE(D): LH\n"
            "  END_PIN Q;\n"
            "  PIN(QN): IQN\n"
            "    TABLE(D): HL\n"
            "  END_PIN QN;\n");
  std::ostringstream full;
  cell->PrintStateTable({qn}, {}, full, true, true);
  EXPECT_NE(
      full.str().find("  PIN(QN): IQN\n    TABLE(D): \n    0    H\n    1    L\n  END_PIN QN;\n"),
      std::string::npos)
      << full.str();
}

TEST(Model, CellTypeNames) {
  cdm::Root root;
  auto parsed = Parse(
      root,
      Wrap("  cell(BUF_X1) { }\n  cell(BUF_X4) { }\n  cell(sky130_fd_sc_hd__buf_12) { }\n"
           "  cell(BUFx12f_ASAP7_75t_R) { }\n  cell(AO21x1_ASAP7_75t_R) { }\n  cell(plain) { }\n"
           "  cell(MX) { cell_footprint : mux; }\n"));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  const std::pair<const char*, const char*> expected[] = {
      {"BUF_X1", "BUF"},
      {"BUF_X4", "BUF"},
      {"sky130_fd_sc_hd__buf_12", "sky130_fd_sc_hd__buf"},
      {"BUFx12f_ASAP7_75t_R", "BUF_ASAP7_75t_R"},
      {"AO21x1_ASAP7_75t_R", "AO21_ASAP7_75t_R"},
      {"plain", "plain"},
      {"MX", "mux"},
  };
  for (const auto& e : expected)
    EXPECT_EQ(parsed.lib->GetLibCell(e.first)->GetCellTypeName(), e.second);
  // Cells without function or timing are black boxes.
  EXPECT_TRUE(parsed.lib->GetLibCell("plain")->IsBlackBox());
}

TEST(Model, GenericLibrary) {
  cdm::Root root;
  cdm::LibertyLib* generic = root.GetGenericLib();
  ASSERT_TRUE(generic);
  EXPECT_EQ(root.GetGenericLib(), generic);
  EXPECT_EQ(generic->Name(), "generic");
  EXPECT_EQ(generic->GetLibFileName(), "");
  EXPECT_EQ(root.GetLibertyLib("generic"), nullptr);  // not among the read libraries
  EXPECT_TRUE(generic->GetLibCell("BUF")->IsBuffer());
  EXPECT_TRUE(generic->GetLibCell("INV")->IsInverter());
  EXPECT_EQ(generic->GetLibCell("LOGIC0")->GetConstOutputValue(), 0);
  EXPECT_EQ(generic->GetLibCell("LOGIC1")->GetConstOutputValue(), 1);
  EXPECT_TRUE(generic->GetLibCell("DFF")->IsSequentialCell());
  EXPECT_TRUE(generic->GetLibCell("LATCH")->GetSequentials().at(0)->IsLatch());
  const cdm::LibBoolFuncExpr* mux = generic->GetLibCell("MUX2")->FindPort("Z")->GetFunction();
  for (int row = 0; row < 8; ++row) {
    const int a = row & 1, b = (row >> 1) & 1, s = (row >> 2) & 1;
    const bool z = mux->Evaluate([&](const cdm::LibPort* port) {
      return port->Name() == "A" ? a : port->Name() == "B" ? b : s;
    });
    EXPECT_EQ(z, s ? b != 0 : a != 0) << row;  // Z is B when S, else A
  }
  for (const char* name : {"AND2", "AND3", "AND4", "NAND2", "OR4", "NOR3", "XOR2", "XNOR2", "AOI21",
                           "OAI21", "DFFR"}) {
    EXPECT_TRUE(generic->GetLibCell(name)) << name;
  }
  EXPECT_EQ(generic->GetLibCell("NAND3")->FindPort("Z")->GetFunction()->TruthTable(),
            (std::vector<bool>{true, true, true, true, true, true, true, false}));
}

TEST(Model, EnumerationSpellings) {
  EXPECT_EQ(cdm::to_string(cdm::DelayModelType::kTableLookup), "table_lookup");
  EXPECT_EQ(static_cast<int>(cdm::DelayModelType::kTableLookup), 3);
  EXPECT_EQ(cdm::to_string(cdm::TimingSense::kNonUnate), "non_unate");
  EXPECT_EQ(cdm::to_string(cdm::TimingType::kUnknown), "unknown");
  EXPECT_EQ(cdm::to_string(cdm::PgType::kPrimaryGround), "primary_ground");
  EXPECT_EQ(cdm::wireloadModeString(static_cast<cdm::WireLoadMode>(7)), nullptr);
  EXPECT_STREQ(cdm::scale_factor_type_map.find(cdm::ScaleFactorType::kMinPeriod), "min_period");
  cdm::TimingType type = cdm::TimingType::kClear;
  ASSERT_TRUE(cdm::timing_type_map.find("three_state_enable_rise", type));
  EXPECT_EQ(static_cast<int>(type), 33);
  cdm::LibScaleFactor::Factor factor{};
  ASSERT_TRUE(cdm::ParseScaleFactorName("k_temp_min_pulse_width_fall", factor));
  EXPECT_EQ(factor.type, cdm::ScaleFactorType::kMinPulseWidth);
  EXPECT_EQ(factor.pvt, cdm::ScaleFactorPVT::kTemp);
  EXPECT_EQ(factor.edge, 1);
  EXPECT_FALSE(cdm::ParseScaleFactorName("k_warp_cell_rise", factor));
  EXPECT_FALSE(cdm::ParseScaleFactorName("k_volt_bogus", factor));
}

}  // namespace
