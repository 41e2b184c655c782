// Finer points of cells and libraries: power models per edge, scaling
// groups on cells, banks, three-state pins, state tables with several
// state variables, the library list of the root.
#include <gtest/gtest.h>

#include <sstream>

#include "LibTestUtil.h"

namespace {

using libtest::Parse;
using libtest::Wrap;

TEST(CellDetail, PowerModelsPerEdgeAndUnknownTimingType) {
  cdm::Root root;
  auto parsed = Parse(
      root,
      Wrap("  voltage_unit : \"1V\";\n"
           "  power_lut_template(p1) { variable_1 : total_output_net_capacitance; index_1 (\"1, "
           "2\"); }\n"
           "  cell(TB) {\n"
           "    pin(A) { direction : input; }\n"
           "    pin(EN) { direction : input; }\n"
           "    pin(Y) { direction : output; function : \"A\"; three_state : \"!EN\";\n"
           "      timing() { related_pin : \"A EN\"; timing_type : vendor_special; }\n"
           "      internal_power() { related_pin : \"A\"; when : \"EN\";\n"
           "        rise_power(p1) { values (\"1, 2\"); } fall_power(p1) { values (\"3, 4\"); } }\n"
           "      internal_power() { fall_power(scalar) { values (\"5\"); } }\n"
           "    }\n"
           "  }\n"));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  cdm::LibCell* cell = parsed.lib->GetLibCell("TB");
  cdm::LibPort* y = cell->FindPort("Y");
  ASSERT_TRUE(y->GetThreeState());
  EXPECT_EQ(y->GetThreeState()->GetFuncStr(), "!EN");
  // A function-only output is not a buffer when a second input exists.
  EXPECT_FALSE(cell->IsBuffer());
  ASSERT_EQ(cell->GetTimingArcSetCout(), 2);  // one per related pin
  EXPECT_EQ(cell->GetTimingArcSets()[1]->GetFromPort(), cell->FindPort("EN"));
  EXPECT_EQ(cell->GetTimingArcSets()[0]->GetTimingType(), cdm::TimingType::kUnknown);
  EXPECT_EQ(cdm::to_string(cell->GetTimingArcSets()[0]->GetTimingType()), "unknown");
  EXPECT_EQ(y->GetTimingAttrs()[0]->GetRelatedPinsStr(), "A EN");

  ASSERT_EQ(y->GetPowerAttrs().size(), 2u);
  const cdm::LibPowerAttr& both = *y->GetPowerAttrs()[0];
  EXPECT_EQ(both.GetWhenStr(), "EN");
  ASSERT_TRUE(both.HasRiseModel() && both.HasFallModel());
  EXPECT_NE(both.GetLibPowerModel(cdm::RiseFall::rise_),
            both.GetLibPowerModel(cdm::RiseFall::fall_));
  // Energies are stored in joules (1V x 1fF here) and print back as written.
  EXPECT_FLOAT_EQ(both.GetLibPowerModel(cdm::RiseFall::fall_)->GetTable()->GetValues()[1], 4e-15f);
  EXPECT_EQ(both.GetLibPowerModel(cdm::RiseFall::fall_)
                ->DumpSelf(cdm::RiseFallBoth::fall_, parsed.lib->GetUnits()),
            "      fall_power(p1):\n        index_1 (total_output_net_capacitance): 1, 2\n        "
            "values: 3, 4\n");
  const cdm::LibPowerAttr& fall_only = *y->GetPowerAttrs()[1];
  EXPECT_EQ(fall_only.GetRelatedPinsStr(), "undefined");
  EXPECT_FALSE(fall_only.HasRiseModel());
  EXPECT_TRUE(fall_only.HasFallModel());
  EXPECT_EQ(cell->GetInternalPowers().size(), 2u);
  // Y reads A through its function and EN through the arc.
  EXPECT_EQ(cell->GetCellToPorts(cell->FindPort("EN")), std::vector<cdm::LibPort*>{y});
}

TEST(CellDetail, ScalingGroupsOnCells) {
  cdm::Root root;
  auto parsed = Parse(root, Wrap("  scaling_factors(slow) { k_volt_cell_fall : 1.25; k_temp_setup "
                                 ": 0.5; not_a_factor : 3; }\n"
                                 "  cell(S) { scaling_factors : slow; }\n"
                                 "  cell(T) { }\n"));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  const cdm::LibScaleFactor* factor = parsed.lib->GetLibCell("S")->GetScalingFactor();
  ASSERT_TRUE(factor);
  EXPECT_EQ(factor->name, "slow");
  std::ostringstream text;
  EXPECT_EQ(factor->DumpSelfForReport(text, 4), 2);
  EXPECT_EQ(text.str(), "    k_volt_cell_fall : 1.25\n    k_temp_setup : 0.5\n");
  EXPECT_FALSE(parsed.lib->GetLibCell("T")->GetScalingFactor());

  cdm::Root root2;
  auto bad = Parse(root2, Wrap("  cell(S) { scaling_factors : nowhere; }\n"));
  EXPECT_FALSE(bad.lib);
  EXPECT_NE(bad.error.find(":5: unknown scaling_factors group 'nowhere'"), std::string::npos)
      << bad.error;
}

TEST(CellDetail, BanksLatchesAndBadGroups) {
  cdm::Root root;
  auto parsed =
      Parse(root, Wrap("  cell(BANK) {\n"
                       "    ff_bank(IQ, IQN, 4) { clocked_on : \"CK\"; next_state : \"D\"; }\n"
                       "    pin(D) { direction : input; } pin(CK) { direction : input; }\n"
                       "    pin(Q) { direction : output; function : \"IQ\"; }\n"
                       "  }\n"
                       "  cell(LAT) {\n"
                       "    latch(IQ, IQN) { enable : \"G\"; data_in : \"D\"; preset : \"!SN\"; }\n"
                       "    pin(D) { direction : input; } pin(G) { direction : input; } pin(SN) { "
                       "direction : input; }\n"
                       "    pin(Q) { direction : output; function : \"IQ\"; }\n"
                       "  }\n"));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  const cdm::LibSequential* bank = parsed.lib->GetLibCell("BANK")->GetSequentials().at(0).get();
  EXPECT_EQ(bank->bank_width, 4);
  EXPECT_EQ(bank->first->Name(), "IQ");
  cdm::LibCell* lat = parsed.lib->GetLibCell("LAT");
  std::ostringstream text;
  lat->PrintStateTable({lat->FindPort("Q")}, {}, text, false, false);
  EXPECT_EQ(text.str(),
            "  LATCH(IQ, IQN):\n    ENABLE: G\n    DATA_IN: D\n    PRESET: !SN\n"
            "  PIN(Q): IQ\n    TABLE(D): LH\n  END_PIN Q;\n");
  // A port that reaches no group prints nothing.
  std::ostringstream none;
  lat->PrintStateTable({lat->FindPort("D")}, {}, none, true, false);
  EXPECT_EQ(none.str(), "");

  cdm::Root root2;
  auto bad = Parse(root2, Wrap("  cell(F) { ff(IQ, IQN) { clocked_on : \"IQ\"; } }\n"));
  EXPECT_FALSE(bad.lib);
  EXPECT_NE(bad.error.find(":5: expected 'next_state' in ff group"), std::string::npos)
      << bad.error;
}

TEST(CellDetail, StateTableWithTwoStateVariables) {
  cdm::Root root;
  auto parsed = Parse(root, Wrap("  cell(ST2) {\n"
                                 "    pin(S) { direction : input; }\n"
                                 "    statetable(\"S\", \"P1 P2\") {\n"
                                 "      table : \"H : - - : H L, L : - H : N H, L : - L : L N\";\n"
                                 "    }\n"
                                 "    pin(Q) { direction : output; state_function : \"P1\"; }\n"
                                 "  }\n"));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  const cdm::LibStateTable* table = parsed.lib->GetLibCell("ST2")->GetStateTable();
  ASSERT_TRUE(table);
  EXPECT_TRUE(table->doubled_inputs.empty());
  EXPECT_EQ(table->internal_ports.at(1)->GetDirection(),
            cdm::kDirInternal);                                        // declared by the table
  EXPECT_EQ(table->GetUsedInternalPortsIndex(), std::vector<int>{1});  // only P2 is read
  ASSERT_EQ(table->expanded_rows.size(), 8u);                          // S, P1, P2
  EXPECT_EQ(table->expanded_rows[0b100], (std::vector<std::string>{"H", "L"}));
  EXPECT_EQ(table->expanded_rows[0b001], (std::vector<std::string>{"N", "H"}));
  EXPECT_EQ(table->expanded_rows[0b010], (std::vector<std::string>{"L", "N"}));
}

TEST(CellDetail, BusNamingStyleAndEnumerationErrors) {
  const std::pair<std::string, std::string> cases[] = {
      {"  bus_naming_style : \"%s\";\n", "expected a bus naming style"},
      {"  delay_model : guesswork;\n", "expected a delay model"},
      {"  power_model : guesswork;\n", "expected a power model"},
      {"  default_wire_load_mode : everywhere;\n", "expected top, enclosed or segmented"},
      {"  type(b) { bit_from : 3; }\n", "expected bit_from and bit_to in type group 'b'"},
      {"  cell(A) { dont_use : maybe; }\n", "expected true or false for 'dont_use'"},
      {"  cell(A) { pin(Y) { timing() { timing_sense : sideways; } } }\n",
       "expected positive_unate"},
      {"  voltage_map (VDD);\n", "expected 2 values for 'voltage_map', found 1"},
      {"  lu_table_template(t) { index_1 (\"1,,2\"); }\n",
       "expected a list of numbers in 'index_1'"},
  };
  for (const auto& c : cases) {
    cdm::Root root;
    auto parsed = Parse(root, Wrap(c.first));
    EXPECT_FALSE(parsed.lib) << c.first;
    EXPECT_NE(parsed.error.find("t.lib:5: " + c.second), std::string::npos) << parsed.error;
  }
}

TEST(CellDetail, RootLibraryList) {
  cdm::Root root;
  EXPECT_EQ(root.GetDefaultLiberty(), nullptr);
  EXPECT_EQ(root.GetLibertyLib("a"), nullptr);
  std::string error;
  cdm::LibertyLib* a =
      root.AddLibertyLib(liberty::ParseLiberty(&root, "library(a) { }", "a.lib", error));
  cdm::LibertyLib* b =
      root.AddLibertyLib(liberty::ParseLiberty(&root, "library(b) { }", "b.lib", error));
  EXPECT_EQ(root.GetDefaultLiberty(), a);
  EXPECT_EQ(root.GetLibertyLib("b"), b);
  std::unique_ptr<cdm::Iterator<cdm::LibertyLib>> iter(root.LibertyLibIter());
  std::vector<cdm::LibertyLib*> order;
  while (iter->HasNext()) order.push_back(iter->Next());
  EXPECT_EQ(order, (std::vector<cdm::LibertyLib*>{a, b}));
  cdm::LibertyLib* a2 =
      root.AddLibertyLib(liberty::ParseLiberty(&root, "library(a) { }", "a2.lib", error));
  EXPECT_EQ(root.GetLibertyLib("a"), a2);
  EXPECT_EQ(root.GetDefaultLiberty(), a2);
  EXPECT_EQ(root.LibertyLibs(), (std::vector<cdm::LibertyLib*>{a2, b}));  // same place in the list
  EXPECT_EQ(a2->GetLibFileName(), "a2.lib");
}

// Buffer trees are walked through cells with one input whose outputs all
// repeat it (or all invert it); a cell that mixes the two is neither.
TEST(CellDetail, BuffersAndInvertersWithSeveralOutputs) {
  cdm::Root root;
  auto parsed = Parse(root, Wrap("  cell(B2) { pin(A) { direction : input; }\n"
                                 "    pin(Y1) { direction : output; function : \"A\"; }\n"
                                 "    pin(Y2) { direction : output; function : \"!!A\"; } }\n"
                                 "  cell(I2) { pin(A) { direction : input; }\n"
                                 "    pin(Y1) { direction : output; function : \"!A\"; }\n"
                                 "    pin(Y2) { direction : output; function : \"!A\"; } }\n"
                                 "  cell(MIX) { pin(A) { direction : input; }\n"
                                 "    pin(Y1) { direction : output; function : \"A\"; }\n"
                                 "    pin(Y2) { direction : output; function : \"!A\"; } }\n"
                                 "  cell(HALF) { pin(A) { direction : input; }\n"
                                 "    pin(Y1) { direction : output; function : \"A\"; }\n"
                                 "    pin(Y2) { direction : output; } }\n"));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  const cdm::LibCell* b2 = parsed.lib->GetLibCell("B2");
  EXPECT_TRUE(b2->IsBuffer());
  EXPECT_EQ(b2->GetCellToPorts(b2->FindPort("A")).size(), 2u);
  EXPECT_TRUE(parsed.lib->GetLibCell("I2")->IsInverter());
  for (const char* name : {"MIX", "HALF"}) {
    EXPECT_FALSE(parsed.lib->GetLibCell(name)->IsBuffer()) << name;
    EXPECT_FALSE(parsed.lib->GetLibCell(name)->IsInverter()) << name;
  }
}

}  // namespace
