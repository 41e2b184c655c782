// The reader over small hand-written libraries: each construct, and each
// kind of error with its file, line and what was expected.
#include <gtest/gtest.h>

#include "LibTestUtil.h"

namespace {

using libtest::Parse;
using libtest::Wrap;

const char* kInv =
    "  cell(INV) {\n"
    "    area : 1.5;\n"
    "    pin(A) { direction : input; capacitance : 2.0; }\n"
    "    pin(Y) { direction : output; function : \"!A\"; }\n"
    "  }\n";

TEST(ReaderSyntax, CommentsQuotesAndContinuations) {
  cdm::Root root;
  auto parsed = Parse(root,
                      "/* leading\n comment */ library(\"quoted_name\") {\n"
                      "  // line comment\n"
                      "  date : \"2024 \\\n   May\";\n"
                      "  revision : 1.5 ;\n"
                      "  comment : unquoted_word;\n"
                      "  voltage_map (VDD, \\\n 1.2);\n"
                      "}\n");
  ASSERT_TRUE(parsed.lib) << parsed.error;
  EXPECT_EQ(parsed.lib->Name(), "quoted_name");
  EXPECT_EQ(parsed.lib->GetDate(), "2024    May");
  EXPECT_EQ(parsed.lib->GetRevision(), "1.5");
  EXPECT_EQ(parsed.lib->GetComment(), "unquoted_word");
  ASSERT_EQ(parsed.lib->GetVoltageMap().count("VDD"), 1u);
  EXPECT_FLOAT_EQ(parsed.lib->GetVoltageMap().at("VDD"), 1.2f);
}

TEST(ReaderSyntax, SimpleAttributeEndedByLineAndComplexWithoutSemicolon) {
  cdm::Root root;
  auto parsed = Parse(root, Wrap("  cell(A) {\n    area : 3\n    pin(X) { direction : output }\n"
                                 "  }\n  voltage_map (VDD, 1.0)\n"));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  EXPECT_FLOAT_EQ(parsed.lib->GetLibCell("A")->GetArea(), 3.0f);
  EXPECT_EQ(parsed.lib->GetLibCell("A")->GetPorts().at(0)->GetDirection(), cdm::kDirOutput);
}

TEST(ReaderSyntax, Errors) {
  struct Case {
    std::string text;
    std::string expected;  // part of the message
  };
  const std::vector<Case> cases = {
      {"library(x) {\n  cell(A) {\n    area : 1;\n", "t.lib:2: expected '}' to close group 'cell'"},
      {Wrap("  cell(A) { area : 1x; }\n"), "t.lib:5: expected a number for 'area', found '1x'"},
      {Wrap("  cell(A) { area : 1 dont_use : true; }\n"),
       ":5: expected ';' after the value of attribute 'area', found 'dont_use'"},
      {Wrap("  date : \"open\n\n"), ":5: expected the closing '\"'"},
      {Wrap("  cell(A) { area 1; }\n"), ":5: expected ':' or '(' after 'area', found '1'"},
      {Wrap("  /* never closed\n"), "t.lib:5: expected '*/' to close the comment opened here"},
      {"cell(A) { }\n", ":1: expected a 'library' group, found 'cell'"},
      {"", ":1: expected a 'library' group, found the end of the file"},
      {Wrap("") + "junk", "expected the end of the file after the library group, found 'junk'"},
      {Wrap("  operating_conditions(t) { tree_type : spiral; }\n"), ":5: expected worst_case_tree"},
      {Wrap("  cell(A) { pin(Y) { direction : sideways; } }\n"),
       ":5: expected input, output, inout or internal"},
      {Wrap("  cell(A) { pin(Y) { direction : output; function : \"B & C\"; } }\n"),
       ":5: unknown pin 'B' in function \"B & C\""},
      {Wrap("  cell(A) { pin(Y) { direction : output; function : \"(Y\"; } }\n"), "expected ')'"},
      {Wrap("  cell(A) { pin(Y) { timing() { related_pin : \"Q\"; } } }\n"),
       "unknown pin 'Q' in 'related_pin'"},
      {Wrap(std::string(kInv) + kInv), ":10: cell 'INV' is defined twice"},
      {Wrap("  time_unit : \"1 parsec\";\n"), ":5: expected a unit for 'time_unit'"},
      {Wrap("  capacitive_load_unit (1, gallon);\n"), "expected a capacitance unit"},
      {Wrap("  lu_table_template(t) { variable_1 : total_output_net_capacitance; index_1 (\"1, "
            "2\"); }\n"
            "  cell(A) { pin(Y) { direction : output; timing() { cell_rise(t) { values (\"1, 2, "
            "3\"); } } } }\n"),
       ":6: expected 2 values in table 'cell_rise', found 3"},
      {Wrap("  cell(A) { pin(Y) { direction : output; timing() { cell_rise(nope) { values (\"1\"); "
            "} } } }\n"),
       "unknown lu_table_template 'nope'"},
      {Wrap("  cell(A) { bus(D) { direction : input; } }\n"), "expected a bus_type in bus 'D'"},
      {Wrap("  cell(A) { leakage_power() { when : \"\"; } }\n"),
       "expected a 'value' in leakage_power"},
  };
  for (const Case& c : cases) {
    cdm::Root root;
    auto parsed = Parse(root, c.text);
    EXPECT_FALSE(parsed.lib) << c.text;
    EXPECT_NE(parsed.error.find(c.expected), std::string::npos)
        << "got: " << parsed.error << "\nwant: " << c.expected;
  }
}

TEST(ReaderSyntax, LibraryAttributesUnitsAndDefaults) {
  cdm::Root root;
  auto parsed = Parse(
      root,
      "library(u) {\n"
      "  default_max_transition : 0.5;\n"  // kept as written, in the library's time unit
      "  time_unit : \"1ps\";\n"
      "  voltage_unit : \"1mV\";\n"
      "  current_unit : \"1uA\";\n"
      "  pulling_resistance_unit : \"1ohm\";\n"
      "  leakage_power_unit : \"1pW\";\n"
      "  capacitive_load_unit (1, pf);\n"
      "  delay_model : table_lookup;\n"
      "  bus_naming_style : \"%s<%d>\";\n"
      "  in_place_swap_mode : match_footprint;\n"
      "  input_threshold_pct_rise : 40;\n"
      "  slew_upper_threshold_pct_fall : 90;\n"
      "  default_wire_load_mode : enclosed;\n"
      "  operating_conditions(slow) { process : 1.2; voltage : 0.9; temperature : 125; "
      "tree_type : worst_case_tree; }\n"
      "  default_operating_conditions : slow;\n"
      "  wire_load(small) { resistance : 2; capacitance : 3; slope : 4; fanout_length(1, 1.5); "
      "fanout_length(2, 2.5); }\n"
      "  default_wire_load : small;\n"
      "  wire_load_selection(by_area) { wire_load_from_area(0, 100, small); "
      "wire_load_from_area(100, 500, \"big\"); }\n"
      "  default_wire_load_selection : by_area;\n"
      "  define(drive_strength, cell, float);\n"
      "  k_volt_cell_rise : 1.5;\n"
      "  k_temp_pin_cap : 0.25;\n"
      "  scaling_factors(fast) { k_process_hold_fall : 2; }\n"
      "}\n");
  ASSERT_TRUE(parsed.lib) << parsed.error;
  const cdm::LibertyLib& lib = *parsed.lib;
  EXPECT_DOUBLE_EQ(lib.GetDefaultMaxSlew(), 0.5);
  EXPECT_FLOAT_EQ(lib.GetDefaultMaxFanout(), -1.0f);
  EXPECT_FLOAT_EQ(lib.GetTimeUnit().scale, 1e-12f);
  EXPECT_EQ(lib.GetTimeUnit().libval(), "1ps");
  EXPECT_EQ(lib.GetTimeUnit().transSuffix(), "(ps)");
  EXPECT_EQ(lib.GetCapacitanceUnit().libval(), "1pf");
  EXPECT_EQ(lib.GetCapacitanceUnit().transSuffix(), "(pF)");
  EXPECT_FLOAT_EQ(lib.GetUnits().voltage.scale, 1e-3f);
  EXPECT_FLOAT_EQ(lib.GetUnits().current.scale, 1e-6f);
  EXPECT_FLOAT_EQ(lib.GetResistanceUnit().scale, 1.0f);
  EXPECT_FLOAT_EQ(lib.GetUnits().pulling_resistance.scale, 1.0f);
  EXPECT_EQ(lib.GetUnits().power.transSuffix(), "(pW)");
  EXPECT_EQ(lib.GetBusOpenChar(), '<');
  EXPECT_EQ(lib.GetBusCloseChar(), '>');
  EXPECT_EQ(lib.GetInPlaceSwapMode(), "match_footprint");
  EXPECT_FLOAT_EQ(lib.GetInputThreshold(cdm::RiseFall::rise_), 40.0f);
  EXPECT_FLOAT_EQ(lib.GetInputThreshold(cdm::RiseFall::fall_), 50.0f);
  EXPECT_FLOAT_EQ(lib.GetSlewUpperThreshold(cdm::RiseFall::fall_), 90.0f);
  EXPECT_STREQ(cdm::wireloadModeString(lib.GetDefaultWireloadMode()), "enclosed");
  ASSERT_TRUE(lib.GetDefaultOperatingConditions());
  EXPECT_FLOAT_EQ(lib.GetDefaultOperatingConditions()->temperature, 125.0f);
  // 0.9 in the library's unit of 1mV: the record holds volts.
  EXPECT_NEAR(lib.GetDefaultOperatingConditions()->voltage, 0.9e-3, 1e-9);
  EXPECT_EQ(cdm::to_string(lib.GetDefaultOperatingConditions()->tree), "worst_case_tree");
  ASSERT_TRUE(lib.GetDefaultWireLoad());
  EXPECT_EQ(lib.GetDefaultWireLoad()->library, &lib);
  const cdm::WireLoadSelection* selection = lib.GetDefaultWireLoadSelection();
  ASSERT_TRUE(selection);
  EXPECT_EQ(selection, lib.GetWireLoadSelection("by_area"));
  EXPECT_EQ(selection->library, &lib);
  ASSERT_TRUE(selection->WireLoadFor(50.0f));
  EXPECT_EQ(*selection->WireLoadFor(50.0f), "small");
  EXPECT_EQ(*selection->WireLoadFor(250.0f), "big");
  EXPECT_EQ(selection->WireLoadFor(600.0f), nullptr);
  EXPECT_FLOAT_EQ(lib.GetDefaultWireLoad()->LengthFor(2), 2.5f);
  EXPECT_FLOAT_EQ(lib.GetDefaultWireLoad()->LengthFor(4), 2.5f + 2 * 4.0f);
  ASSERT_EQ(lib.GetUserDefinedAttrs().count("drive_strength"), 1u);
  EXPECT_EQ(lib.GetUserDefinedAttrs().at("drive_strength")->DumpSelf(),
            "   drive_strength  cell  float\n");
  std::ostringstream defaults;
  EXPECT_EQ(lib.GetDefaultScaleFactorAttrs()->DumpSelfForReport(defaults, 2), 2);
  EXPECT_EQ(defaults.str(), "  k_volt_cell_rise : 1.5\n  k_temp_pin_cap : 0.25\n");
  ASSERT_EQ(lib.GetScaleFactors().count("fast"), 1u);
  EXPECT_FLOAT_EQ(lib.GetScaleFactors().at("fast")->Get(cdm::ScaleFactorType::kHold,
                                                        cdm::ScaleFactorPVT::kProcess, 1, 0),
                  2.0f);
}

TEST(ReaderSyntax, UnitsDefaultWhenOmitted) {
  cdm::Root root;
  auto parsed = Parse(root, "library(bare) { }\n");
  ASSERT_TRUE(parsed.lib) << parsed.error;
  const cdm::LibUnits& units = parsed.lib->GetUnits();
  EXPECT_EQ(units.time.libval(), "1ns");
  EXPECT_EQ(units.capacitance.libval(), "1pf");
  EXPECT_EQ(units.resistance.libval(), "1kohm");
  EXPECT_EQ(units.voltage.libval(), "1V");
  EXPECT_EQ(units.current.libval(), "1mA");
  EXPECT_EQ(units.power.libval(), "1nW");
  EXPECT_EQ(units.time.asString(2.5e-9, 3), "2.500");
}

// A fan-out the table skips lies on the line between its neighbours; past
// the last entry the slope goes on; below the first the first entry holds.
TEST(ReaderSyntax, WireLoadLengthBetweenAndBeyondTheTable) {
  cdm::Root root;
  auto parsed = Parse(root, Wrap("  wire_load(w) { resistance : 1; capacitance : 1; slope : 10; "
                                 "fanout_length(2, 1); fanout_length(5, 7); }\n"));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  const cdm::WireLoad* wire_load = parsed.lib->GetWireLoad("w");
  ASSERT_TRUE(wire_load);
  EXPECT_FLOAT_EQ(wire_load->LengthFor(3), 3.0f);
  EXPECT_FLOAT_EQ(wire_load->LengthFor(4), 5.0f);
  EXPECT_FLOAT_EQ(wire_load->LengthFor(5), 7.0f);
  EXPECT_FLOAT_EQ(wire_load->LengthFor(7), 27.0f);
  EXPECT_FLOAT_EQ(wire_load->LengthFor(1), 1.0f);
}

// Prefixes are read without regard to case ("1ff", "1PF"), except that "M"
// is mega and "m" milli.
TEST(ReaderSyntax, UnitPrefixMIsMegaAndmIsMilli) {
  cdm::Root root;
  auto parsed = Parse(root,
                      "library(mega) {\n"
                      "  pulling_resistance_unit : \"1Mohm\";\n"
                      "  leakage_power_unit : \"1mW\";\n"
                      "  capacitive_load_unit (1, PF);\n"
                      "}\n");
  ASSERT_TRUE(parsed.lib) << parsed.error;
  const cdm::LibUnits& units = parsed.lib->GetUnits();
  EXPECT_FLOAT_EQ(units.pulling_resistance.scale, 1e6f);
  EXPECT_FLOAT_EQ(units.resistance.scale, 1e6f);
  EXPECT_EQ(units.resistance.transSuffix(), "(Mohm)");
  EXPECT_FLOAT_EQ(units.power.scale, 1e-3f);
  EXPECT_EQ(units.power.transSuffix(), "(mW)");
  EXPECT_FLOAT_EQ(units.capacitance.scale, 1e-12f);
}

TEST(ReaderSyntax, TemplatesTablesAndModels) {
  cdm::Root root;
  auto parsed = Parse(
      root,
      Wrap("  lu_table_template(d2) { variable_1 : input_net_transition; variable_2 : "
           "total_output_net_capacitance;\n"
           "    index_1 (\"0.1, 0.2\"); index_2 (\"1, 2, 4\"); }\n"
           "  power_lut_template(p1) { variable_1 : input_transition_time; index_1 (\"0.1, 0.2\"); "
           "}\n"
           "  cell(BUF) {\n"
           "    pin(A) { direction : input; capacitance : 1; rise_capacitance_range (0.5, 1.5); }\n"
           "    pin(Y) { direction : output; function : \"A\"; max_capacitance : 40;\n"
           "      timing() { related_pin : \"A\"; timing_sense : positive_unate; when : \"A\";\n"
           "        cell_rise(d2) { index_2 (\"1, 3, 9\"); values (\"1, 2, 3\", \\\n \"4, 5, 6\"); "
           "}\n"
           "        fall_transition(scalar) { values (\"0.5\"); } }\n"
           "      internal_power() { related_pin : \"A\"; power(p1) { values (\"7, 8\"); } }\n"
           "    }\n"
           "  }\n"));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  const auto templates = parsed.lib->GetAllTableTemplates(cdm::TemplateClass::kDelay);
  ASSERT_EQ(templates.size(), 1u);
  EXPECT_EQ(templates[0]->GetAxisCount(), 2);
  EXPECT_EQ(templates[0]->GetVariableType(2), cdm::TableAxisVariable::kTotalOutputNetCapacitance);
  std::unique_ptr<std::vector<float>> index(templates[0]->GetOriginalIndex(2));
  EXPECT_EQ(floatlist2string(*index, ' '), "1 2 4");
  EXPECT_EQ(parsed.lib->GetAllTableTemplates(cdm::TemplateClass::kPower).size(), 1u);

  cdm::LibCell* cell = parsed.lib->GetLibCell("BUF");
  ASSERT_TRUE(cell);
  cdm::LibPort* a = cell->FindPort("A");
  cdm::LibPort* y = cell->FindPort("Y");
  EXPECT_FLOAT_EQ(a->GetCapacitance(), 1e-15f);
  EXPECT_FLOAT_EQ(a->GetCapacitance(cdm::RiseFall::rise_, cdm::MinMax::min_), 0.5e-15f);
  EXPECT_FLOAT_EQ(a->GetCapacitance(cdm::RiseFall::rise_, cdm::MinMax::max_), 1.5e-15f);
  EXPECT_FLOAT_EQ(a->GetCapacitance(cdm::RiseFall::fall_, cdm::MinMax::max_), 1e-15f);
  EXPECT_FLOAT_EQ(y->GetCapacitanceLimits(cdm::MinMax::max_), 40e-15f);
  EXPECT_FLOAT_EQ(y->GetCapacitanceLimits(cdm::MinMax::min_), -1.0f);
  ASSERT_EQ(y->GetTimingAttrs().size(), 1u);
  const cdm::LibTimingAttr& timing = *y->GetTimingAttrs()[0];
  EXPECT_EQ(timing.GetTimingType(), cdm::TimingType::kDefault);
  EXPECT_EQ(cdm::to_string(timing.GetTimingType()), "combinational");
  EXPECT_EQ(timing.GetWhen()->GetFuncStr(), "A");
  const cdm::LibTimingModel* rise = timing.GetTimingModel(cdm::RiseFall::rise_);
  ASSERT_TRUE(rise && rise->GetDelayTable());
  EXPECT_EQ(rise->GetDelayTable()->GetAxis(1).size(), 3u);
  EXPECT_FLOAT_EQ(rise->GetDelayTable()->GetAxis(1)[2], 9e-15f);  // the table's own index
  EXPECT_FLOAT_EQ(rise->GetDelayTable()->GetValues()[5], 6e-9f);
  EXPECT_EQ(rise->DumpSelf(cdm::RiseFall::rise_, parsed.lib->GetUnits()),
            "      cell_rise(d2):\n"
            "        index_1 (input_net_transition): 0.1, 0.2\n"
            "        index_2 (total_output_net_capacitance): 1, 3, 9\n"
            "        values: 1, 2, 3\n"
            "                4, 5, 6\n");
  const cdm::LibTimingModel* fall = timing.GetTimingModel(cdm::RiseFall::fall_);
  ASSERT_TRUE(fall && fall->GetTransitionTable() && !fall->GetDelayTable());
  EXPECT_EQ(fall->DumpSelf(cdm::RiseFall::fall_, parsed.lib->GetUnits()),
            "      fall_transition(scalar):\n        values: 0.5\n");

  ASSERT_EQ(cell->GetInternalPowers().size(), 1u);
  const cdm::LibPowerAttr& power = *cell->GetInternalPowers()[0];
  EXPECT_EQ(power.GetRelatedPinsStr(), "A");
  EXPECT_TRUE(power.HasRiseModel() && power.HasFallModel());
  EXPECT_EQ(power.GetLibPowerModel(cdm::RiseFall::rise_),
            power.GetLibPowerModel(cdm::RiseFall::fall_));
  EXPECT_EQ(power.GetWhenStr(), "");
  EXPECT_EQ(power.GetLibPowerModel(cdm::RiseFall::rise_)
                ->DumpSelf(cdm::RiseFallBoth::rise_fall_, parsed.lib->GetUnits()),
            "      power(p1):\n        index_1 (input_transition_time): 0.1, 0.2\n        values: "
            "7, 8\n");
  ASSERT_EQ(cell->GetTimingArcSetCout(), 1);
  EXPECT_EQ(cell->GetTimingArcSets()[0]->GetFromPort(), a);
  EXPECT_EQ(cell->GetTimingArcSets()[0]->GetToPort(), y);
  EXPECT_EQ(cell->GetTimingArcSets()[0]->GetWhenStr(), "A");
  EXPECT_EQ(cell->GetCellToPorts(a), std::vector<cdm::LibPort*>{y});
  EXPECT_TRUE(cell->IsBuffer());
}

TEST(ReaderSyntax, CellAttributesBusesAndPgPins) {
  cdm::Root root;
  auto parsed =
      Parse(root, Wrap("  define(drive_strength, cell, float);\n"
                       "  type(bus4) { base_type : array; data_type : bit; bit_width : 4; bit_from "
                       ": 3; bit_to : 0; }\n"
                       "  cell(RAM) {\n"
                       "    area : 100; dont_use : true; dont_touch : true; is_macro_cell : true; "
                       "cell_footprint : ram;\n"
                       "    drive_strength : 2; cell_leakage_power : 3;\n"
                       "    memory() { type : ram; address_width : 2; word_width : 4; }\n"
                       "    pg_pin(VDD) { voltage_name : VDD; pg_type : primary_power; }\n"
                       "    leakage_power() { when : \"!CK\"; value : 1.5; }\n"
                       "    pin(CK) { direction : input; clock : true; related_power_pin : VDD; "
                       "related_ground_pin : VSS; }\n"
                       "    bus(Q) { bus_type : bus4; direction : output;\n"
                       "      timing() { related_pin : \"CK\"; timing_type : rising_edge; }\n"
                       "      pin(Q[0]) { max_capacitance : 5; } }\n"
                       "  }\n"));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  cdm::LibCell* cell = parsed.lib->GetLibCell("RAM");
  ASSERT_TRUE(cell);
  EXPECT_TRUE(cell->DontUse() && cell->DontTouch() && cell->IsMacro() && cell->IsMemory());
  EXPECT_FALSE(cell->IsBlackBox());
  EXPECT_EQ(cell->GetCellTypeName(), "ram");
  EXPECT_FLOAT_EQ(cell->GetDriveStrength(), 2.0f);
  EXPECT_FLOAT_EQ(cell->GetCellLeakagePower(), 3e-9f);
  ASSERT_EQ(cell->GetLeakagePowers().size(), 1u);
  EXPECT_FLOAT_EQ(cell->GetLeakagePowers()[0]->GetValue(), 1.5e-9f);
  EXPECT_EQ(cell->GetLeakagePowers()[0]->GetWhenStr(), "!CK");
  std::unique_ptr<cdm::Iterator<cdm::LibPgPort>> pg(cell->LibPgPortIter());
  ASSERT_TRUE(pg->HasNext());
  const cdm::LibPgPort* vdd = pg->Next();
  EXPECT_EQ(vdd->Name(), "VDD");
  EXPECT_EQ(cdm::to_string(vdd->type), "primary_power");
  EXPECT_FALSE(pg->HasNext());
  EXPECT_EQ(cell->FindPort("CK")->GetRelatedGroundPin(), "VSS");
  // Bus bits in declared order, each carrying the bus's timing.
  std::vector<std::string> names;
  std::unique_ptr<cdm::Iterator<cdm::LibPort>> ports(cell->LibPortIter());
  while (ports->HasNext()) names.push_back(ports->Next()->Name());
  EXPECT_EQ(names, (std::vector<std::string>{"CK", "Q[3]", "Q[2]", "Q[1]", "Q[0]"}));
  std::unique_ptr<cdm::Iterator<cdm::LibPort>> buses(cell->LibPortBusIter());
  ASSERT_TRUE(buses->HasNext());
  EXPECT_EQ(buses->Next()->GetMembers().size(), 4u);
  EXPECT_EQ(cell->GetTimingArcSetCout(), 4);
  EXPECT_EQ(cell->FindPort("Q[2]")->GetTimingAttrs()[0],
            cell->FindPort("Q[0]")->GetTimingAttrs()[0]);
  EXPECT_FLOAT_EQ(cell->FindPort("Q[0]")->GetCapacitanceLimits(cdm::MinMax::max_), 5e-15f);
  EXPECT_FLOAT_EQ(cell->FindPort("Q[1]")->GetCapacitanceLimits(cdm::MinMax::max_), -1.0f);
  ASSERT_EQ(cell->GetUserAttributes().size(), 1u);
  EXPECT_EQ(cell->GetUserAttributes()[0].first, "drive_strength");
}

TEST(ReaderSyntax, UnknownGroupsAndAttributesAreSkipped) {
  cdm::Root root;
  auto parsed = Parse(
      root,
      Wrap("  vendor_thing : 42;\n  vendor_group(x) { anything (1, 2, 3); nested() { a : b; } }\n" +
           std::string(kInv)));
  ASSERT_TRUE(parsed.lib) << parsed.error;
  EXPECT_EQ(parsed.lib->GetCellCount(), 1u);
}

}  // namespace
