// Units of SDC values and the numbers write_sdc prints.
#include <gtest/gtest.h>

#include <sstream>

#include "sdc/SdcUnits.h"
#include "sdc/SdcWriter.h"
#include "support/SdcTestUtil.h"

namespace {

using sta::sdc::SdcUnits;

TEST(SdcUnitsTest, UnitsReadWithOrWithoutANumberAndAPrefix) {
  SdcUnits units;
  std::string error;
  EXPECT_FALSE(units.AnySet());
  ASSERT_TRUE(units.Set(SdcUnits::kTime, "ps", error)) << error;
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kTime), 1e-12);
  EXPECT_EQ(units.UserText(SdcUnits::kTime), "1ps");
  ASSERT_TRUE(units.Set(SdcUnits::kCapacitance, "10fF", error)) << error;
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kCapacitance), 1e-14);
  EXPECT_EQ(units.UserText(SdcUnits::kCapacitance), "10fF");
  ASSERT_TRUE(units.Set(SdcUnits::kTime, "1.23456789ns", error)) << error;
  EXPECT_EQ(units.UserText(SdcUnits::kTime), "1.23456789ns");            // written back as given
  ASSERT_TRUE(units.Set(SdcUnits::kCapacitance, "ff", error)) << error;  // femto farad
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kCapacitance), 1e-15);
  ASSERT_TRUE(units.Set(SdcUnits::kResistance, "kOhm", error)) << error;
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kResistance), 1e3);
  ASSERT_TRUE(units.Set(SdcUnits::kPower, "mW", error)) << error;
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kPower), 1e-3);
  ASSERT_TRUE(units.Set(SdcUnits::kVoltage, "V", error)) << error;
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kVoltage), 1.0);
  EXPECT_TRUE(units.AnySet());
}

TEST(SdcUnitsTest, ANoUnitIsRefusedAndChangesNothing) {
  SdcUnits units;
  std::string error;
  ASSERT_TRUE(units.Set(SdcUnits::kTime, "ns", error));
  for (const char* bad : {"parsec", "nF", "xs", "-1ns", "0ns", ""}) {
    error.clear();
    EXPECT_FALSE(units.Set(SdcUnits::kTime, bad, error)) << bad;
    EXPECT_FALSE(error.empty());
  }
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kTime), 1e-9);
}

// Makes `lib` the default library while it lives. The database's root
// outlives each test: a library another test of the binary read stays the
// default one.
class DefaultLibrary {
 public:
  explicit DefaultLibrary(cdm::LibertyLib* lib)
      : kept_(cdm::DbManager::GetRoot()->GetDefaultLiberty()) {
    cdm::DbManager::GetRoot()->SetDefaultLiberty(lib);
  }
  ~DefaultLibrary() { cdm::DbManager::GetRoot()->SetDefaultLiberty(kept_); }
  DefaultLibrary(const DefaultLibrary&) = delete;
  DefaultLibrary& operator=(const DefaultLibrary&) = delete;

 private:
  cdm::LibertyLib* kept_;
};

TEST(SdcUnitsTest, WithoutLibraryOrSetUnitsValuesAreNanosecondsPicofaradsKiloohms) {
  DefaultLibrary none(nullptr);
  SdcUnits units;
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kTime), 1e-9);
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kCapacitance), 1e-12);
  EXPECT_DOUBLE_EQ(units.Scale(SdcUnits::kResistance), 1e3);
}

TEST(SdcUnitsTest, TheDefaultLibrarysUnitsAreTheDecimalsItsFloatsStandFor) {
  cdm::Root* root = cdm::DbManager::GetRoot();
  // Reading a library may make it the default: the one before comes back.
  DefaultLibrary before(root->GetDefaultLiberty());
  cdm::LibertyLib* asap7 = root->GetLibertyLib("asap7_small");
  std::string error;
  if (!asap7)
    asap7 = liberty::ReadLibertyFile(root, sdctest::DataPath("asap7_small.lib.gz"), error);
  ASSERT_NE(asap7, nullptr) << error;
  DefaultLibrary ps_ff(asap7);
  SdcUnits units;
  EXPECT_EQ(units.Scale(SdcUnits::kTime), 1e-12);
  EXPECT_EQ(units.Scale(SdcUnits::kCapacitance), 1e-15);
  EXPECT_EQ(units.Scale(SdcUnits::kResistance), 1e3);
  ASSERT_TRUE(units.Set(SdcUnits::kTime, "ns", error));
  EXPECT_EQ(units.Scale(SdcUnits::kTime), 1e-9) << "set_units comes before the library";
}

// Through the commands, over a small design read with timer_small.lib (ns,
// pF, kohm).
class SetUnitsCommandTest : public sdctest::SdcShellTest {};

TEST_F(SetUnitsCommandTest, ValuesAreReadInTheUnitsInForceKeptInSiAndWrittenBackInThem) {
  LoadOnce(R"(module units_top (a, o1, o2);
  input a; output o1, o2;
  BUF u1 (.A(a), .Z(o1));
  INV u2 (.A(a), .Z(o2));
endmodule)",
           "units_top");
  sta::sdc::SdcStore& store = Store();
  Eval("create_clock -name clk -period 10");
  Eval("set_input_delay 3 -clock clk a");
  Eval("set_load 0.02 o1");
  Eval("set_drive 2 a");
  const sta::sdc::InputDelaySet* delays = Sdc()->getInputDelays(Pin("a"));
  ASSERT_NE(delays, nullptr);
  EXPECT_EQ(delays->front()->getDelays().value(cdm::RiseFall::rise_, cdm::MinMax::max_), 3e-9f);
  EXPECT_EQ(store.FindPort(Port("o1"))->load->getPinCap(cdm::RiseFall::fall_, cdm::MinMax::min_),
            static_cast<float>(0.02 * 1e-12));
  float ohms = 0.0f;
  bool exists = false;
  store.FindPort(Port("a"))->drive->driveResistance(cdm::RiseFall::rise_, cdm::MinMax::max_, ohms,
                                                    exists);
  EXPECT_EQ(ohms, 2000.0f);

  Eval("set_units -time 10ps -capacitance fF -resistance ohm");
  Eval("set_output_delay 30 -clock clk o2");
  Eval("set_load 5 o2");
  Eval("set_drive 50 a");
  EXPECT_EQ(Sdc()->getOutputDelays(Pin("o2"))->front()->getDelays().value(cdm::RiseFall::fall_,
                                                                          cdm::MinMax::min_),
            static_cast<float>(30 * 1e-11));
  EXPECT_EQ(store.FindPort(Port("o2"))->load->getPinCap(cdm::RiseFall::rise_, cdm::MinMax::max_),
            static_cast<float>(5e-15));
  store.FindPort(Port("a"))->drive->driveResistance(cdm::RiseFall::rise_, cdm::MinMax::max_, ohms,
                                                    exists);
  EXPECT_EQ(ohms, 50.0f);
  EXPECT_EQ(delays->front()->getDelays().value(cdm::RiseFall::rise_, cdm::MinMax::max_), 3e-9f)
      << "a value set before keeps its SI value";
  // A bad unit changes none, also of those given beside it.
  EXPECT_EQ(Error("set_units -time ns -capacitance parsec"),
            "Error: set_units: 'parsec' is not a unit of capacitance");
  EXPECT_DOUBLE_EQ(store.Units().Scale(SdcUnits::kTime), 1e-11);

  std::ostringstream written;
  sta::sdc::SdcWriter(store, written).Write();
  for (const char* line : {
           "set_units -time 10ps -capacitance 1fF -resistance 1Ohm\n",
           "create_clock -name {clk} -period 1000 -waveform {0 500}\n",
           "set_input_delay 300 -clock [get_clocks {clk}] -add_delay [get_ports {a}]\n",
           "set_output_delay 30 -clock [get_clocks {clk}] -add_delay [get_ports {o2}]\n",
           "set_drive 50 [get_ports {a}]\n",
           "set_load -pin_load 20 [get_ports {o1}]\n",
           "set_load -pin_load 5 [get_ports {o2}]\n",
       })
    EXPECT_NE(written.str().find(line), std::string::npos) << line << written.str();
}

TEST(SdcWriterValueTest, TheFewestDigitsThatReadBackToTheSameFloat) {
  using sta::sdc::SdcWriter;
  EXPECT_EQ(SdcWriter::Value(0.092e-9f, 1e-9), "0.092");
  EXPECT_EQ(SdcWriter::Value(5e-9f, 1e-9), "5");
  EXPECT_EQ(SdcWriter::Value(5000.0f, 1.0), "5000");
  EXPECT_EQ(SdcWriter::Value(-0.5e-12f, 1e-12), "-0.5");
  EXPECT_EQ(SdcWriter::Value(0.0f, 1e-9), "0");
  for (float value : {1.0f / 3.0f, 0.1f, 123456.7f, 1e-7f}) {
    const std::string text = SdcWriter::Value(value * 1e-9f, 1e-9);
    EXPECT_EQ(static_cast<float>(std::strtod(text.c_str(), nullptr) * 1e-9), value * 1e-9f) << text;
  }
}

}  // namespace
