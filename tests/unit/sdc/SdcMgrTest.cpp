// The face of the constraint store: what an empty store answers, and that
// each accessor answers from what the store holds.
#include <gtest/gtest.h>

#include <functional>

#include "hostapi/cdm/LibCell.h"
#include "support/SdcTestUtil.h"

namespace {

using cdm::MinMax;
using cdm::RiseFall;
using cdm::RiseFallBoth;
using sta::sdc::MinMaxAll;

const char* const kTwoPorts = R"(module %s(in, out);
  input in; output out;
  BUF u1(.A(in), .Z(out));
endmodule)";

std::string Netlist(const std::string& top) {
  char text[256];
  std::snprintf(text, sizeof text, kTwoPorts, top.c_str());
  return text;
}

class SdcMgrTest : public sdctest::SdcTest {
 protected:
  // Links `top` again: the database's change generation moves.
  static void Relink(const std::string& top) {
    std::vector<std::string> warnings;
    std::string error;
    EXPECT_TRUE(cdm::LinkDesign(Root(), Root()->FindDesign(top), warnings, error)) << error;
  }
};

TEST_F(SdcMgrTest, WithoutADesignTheStoreIsEmptyAndAnswersNothing) {
  // Another test of the binary may have left a design with a clock current.
  cdm::Design* kept = Root()->GetCurrentDesign();
  Root()->SetCurrentDesign(nullptr);
  sta::sdc::SdcMgr* sdc = sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr);
  ASSERT_NE(sdc, nullptr);
  EXPECT_EQ(sdc, sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr));
  EXPECT_FALSE(sdc->hasDrivingCell());
  EXPECT_EQ(sdc->getWireLoadModel(MinMax::max_), nullptr);
  EXPECT_TRUE(sdc->getClocks().empty());
  Root()->SetCurrentDesign(kept);
}

TEST_F(SdcMgrTest, AnEmptyStoreAnswersTheUnsetResultOfEveryAccessor) {
  Load(Netlist("unset_top"), "unset_top");
  sta::sdc::SdcMgr* sdc = Sdc();
  cdm::Port* in = Port("in");
  cdm::Pin* in_pin = Pin("in");
  EXPECT_EQ(sdc->getInputDrive(in), nullptr);
  EXPECT_EQ(sdc->getPortExtCap(in), nullptr);
  EXPECT_EQ(sdc->system_interface_mgr.getPortExtCap(in), nullptr);
  EXPECT_EQ(sdc->getPortExtWireCap(in, RiseFall::rise_, MinMax::max_), 0.0f);
  cdm::LogicValue value = cdm::kLogicDontCare;
  bool is_set = false;
  sdc->getLogicValue(in, value, is_set);
  EXPECT_FALSE(is_set);
  EXPECT_EQ(value, cdm::kLogicDontCare);
  EXPECT_FALSE(sdc->isSourceIdealPin(in_pin));
  EXPECT_FALSE(sdc->hasDrivingCell());
  EXPECT_EQ(sdc->getWireLoadModel(MinMax::max_), nullptr);
  EXPECT_EQ(sdc->getWireLoadModel(MinMax::min_), nullptr);
  EXPECT_EQ(sdc->getWireLoadModel(in, MinMax::max_), nullptr);
  EXPECT_EQ(sdc->getWireLoadMode(), cdm::WireLoadMode::kTop);
  EXPECT_EQ(sdc->getInputDelays(in_pin), nullptr);
  EXPECT_EQ(sdc->getOutputDelays(Pin("out")), nullptr);
  EXPECT_EQ(sdc->design_rule_mgr.getMaxTranConstraint(in), 0.0f);
  EXPECT_EQ(sdc->design_rule_mgr.getMaxCapConstraint(in), 0.0f);
  EXPECT_EQ(sdc->design_rule_mgr.getMinCapConstraint(in), 0.0f);
  EXPECT_EQ(sdc->design_rule_mgr.getMaxFanoutConstraint(in), 0.0f);
  EXPECT_TRUE(sdc->getClocks().empty());
  EXPECT_EQ(sdc->findClock("clk"), nullptr);
}

TEST_F(SdcMgrTest, SplitRiseFallGivesRiseFirst) {
  using List = std::vector<const RiseFall*>;
  EXPECT_EQ(sta::sdc::splitRiseFall(RiseFallBoth::rise_fall_),
            (List{RiseFall::rise_, RiseFall::fall_}));
  EXPECT_EQ(sta::sdc::splitRiseFall(RiseFallBoth::rise_), (List{RiseFall::rise_}));
  EXPECT_EQ(sta::sdc::splitRiseFall(RiseFallBoth::fall_), (List{RiseFall::fall_}));
}

TEST_F(SdcMgrTest, AStoreAnswersPerPortAndLeavesOtherSlotsUnset) {
  Load(Netlist("answer_top"), "answer_top");
  sta::sdc::SdcStore& store = Store();
  cdm::Port* in = Port("in");
  cdm::Port* out = Port("out");
  store.SetPortLoad(out, RiseFallBoth::rise_, MinMaxAll::kMax, false, 2e-12f);
  store.SetPortLoad(out, RiseFallBoth::rise_fall_, MinMaxAll::kAll, true, 3e-12f);
  store.SetPortFanout(out, MinMaxAll::kMin, 4.0f);
  store.SetDriveResistance(in, RiseFallBoth::fall_, MinMaxAll::kMin, 100.0f);
  store.SetInputSlew(in, RiseFallBoth::rise_fall_, MinMaxAll::kMax, 0.2e-9f);
  store.Port(in).max_transition = 0.5e-9f;

  sta::sdc::SdcMgr* sdc = Sdc();
  const sta::sdc::PortExtLoad* load = sdc->getPortExtCap(out);
  ASSERT_NE(load, nullptr);
  EXPECT_EQ(load->getPinCap(RiseFall::rise_, MinMax::max_), 2e-12f);
  EXPECT_FALSE(load->getPinCap(RiseFall::fall_, MinMax::max_).has_value());
  EXPECT_FALSE(load->getPinCap(RiseFall::rise_, MinMax::min_).has_value());
  EXPECT_EQ(load->getWireCap(RiseFall::fall_, MinMax::min_), 3e-12f);
  EXPECT_EQ(load->getFanout(MinMax::min_), 4.0f);
  EXPECT_FALSE(load->getFanout(MinMax::max_).has_value());
  EXPECT_EQ(sdc->getPortExtWireCap(out, RiseFall::rise_, MinMax::max_), 3e-12f);
  EXPECT_EQ(sdc->getPortExtCap(in), nullptr);

  const sta::sdc::InputDrive* drive = sdc->getInputDrive(in);
  ASSERT_NE(drive, nullptr);
  float value = -1.0f;
  bool exists = false;
  drive->driveResistance(RiseFall::rise_, MinMax::min_, value, exists);
  EXPECT_FALSE(exists);
  EXPECT_EQ(value, -1.0f);
  EXPECT_TRUE(drive->hasDriveResistance(RiseFall::fall_, MinMax::min_));
  drive->driveResistance(RiseFall::fall_, MinMax::min_, value, exists);
  EXPECT_TRUE(exists);
  EXPECT_EQ(value, 100.0f);
  exists = false;
  drive->getSlew(RiseFall::fall_, MinMax::min_, value, exists);
  EXPECT_FALSE(exists);
  drive->getSlew(RiseFall::fall_, MinMax::max_, value, exists);
  EXPECT_TRUE(exists);
  EXPECT_FLOAT_EQ(value, 0.2e-9f);
  EXPECT_EQ(drive->getDriveCell(RiseFall::rise_, MinMax::max_), nullptr);
  EXPECT_EQ(drive->getDriveCellFactor(RiseFall::rise_, MinMax::max_), 1.0f);
  EXPECT_FALSE(drive->getDriveCellDontScale(RiseFall::rise_, MinMax::max_));
  EXPECT_FALSE(drive->getDriveCellNoDR(RiseFall::rise_, MinMax::max_));
  EXPECT_FALSE(sdc->hasDrivingCell());
  EXPECT_FLOAT_EQ(sdc->design_rule_mgr.getMaxTranConstraint(in), 0.5e-9f);
  EXPECT_EQ(sdc->design_rule_mgr.getMaxTranConstraint(out), 0.0f);
}

TEST_F(SdcMgrTest, ADrivingCellIsSharedByTheSlotsOneCommandSet) {
  Load(Netlist("cell_top"), "cell_top");
  cdm::LibCell* buf = Root()->GetLibertyLib("timer_small")->GetLibCell("BUF");
  ASSERT_NE(buf, nullptr);
  sta::sdc::DrivingCellSpec spec;
  spec.lib_cell = buf;
  spec.multiply_by = 2.0f;
  spec.no_design_rule = true;
  Store().SetDrivingCell(Port("in"), RiseFallBoth::rise_, MinMaxAll::kAll, spec);
  sta::sdc::SdcMgr* sdc = Sdc();
  EXPECT_TRUE(sdc->hasDrivingCell());
  const sta::sdc::InputDrive* drive = sdc->getInputDrive(Port("in"));
  ASSERT_NE(drive, nullptr);
  const sta::sdc::DriveCell* cell = drive->getDriveCell(RiseFall::rise_, MinMax::min_);
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(cell, drive->getDriveCell(RiseFall::rise_, MinMax::max_));
  EXPECT_EQ(cell->getLibCell(), buf);
  EXPECT_EQ(cell->getFromPort(), nullptr);
  EXPECT_EQ(drive->getDriveCell(RiseFall::fall_, MinMax::max_), nullptr);
  EXPECT_EQ(drive->getDriveCellFactor(RiseFall::rise_, MinMax::min_), 2.0f);
  EXPECT_TRUE(drive->getDriveCellNoDR(RiseFall::rise_, MinMax::max_));
  EXPECT_FALSE(drive->getDriveCellDontScale(RiseFall::rise_, MinMax::max_));
}

TEST_F(SdcMgrTest, DelaysComePerClockEdgeInTheOrderSet) {
  Load(Netlist("delay_top"), "delay_top");
  sta::sdc::SdcStore& store = Store();
  sta::sdc::Clock* clk = store.MakeClock("clk");
  store.SetClockWaveform(clk, 2e-9f, {0.0f, 1e-9f});
  cdm::Pin* in = Pin("in");
  const sta::sdc::ClockEdge* rise = clk->getEdge(RiseFall::rise_);
  const sta::sdc::ClockEdge* fall = clk->getEdge(RiseFall::fall_);
  store.SetPortDelay(true, in, rise, nullptr, RiseFallBoth::rise_fall_, MinMaxAll::kMax, 1e-9f,
                     false, false, false);
  store.SetPortDelay(true, in, rise, nullptr, RiseFallBoth::rise_fall_, MinMaxAll::kMin, 0.5e-9f,
                     false, false, false);
  store.SetPortDelay(true, in, fall, nullptr, RiseFallBoth::rise_, MinMaxAll::kAll, 0.2e-9f, true,
                     false, false);
  const sta::sdc::InputDelaySet* delays = Sdc()->getInputDelays(in);
  ASSERT_NE(delays, nullptr);
  ASSERT_EQ(delays->size(), 2u);
  const sta::sdc::InputDelay* first = delays->front();
  EXPECT_EQ(first->getClock(), clk);
  EXPECT_EQ(first->getClockEdge()->getRiseFall(), RiseFall::rise_);
  EXPECT_EQ(first->getDelays().value(RiseFall::fall_, MinMax::max_), 1e-9f);
  EXPECT_EQ(first->getDelays().value(RiseFall::fall_, MinMax::min_), 0.5e-9f);
  EXPECT_EQ(first->getRefPin(), nullptr);
  const sta::sdc::InputDelay* second = delays->back();
  EXPECT_EQ(second->getClockEdge()->getRiseFall(), RiseFall::fall_);
  EXPECT_FLOAT_EQ(second->getClockEdge()->getTime(), 1e-9f);
  EXPECT_FALSE(second->getDelays().hasValue(RiseFall::fall_, MinMax::max_));
  // Without -add_delay a delay for another edge replaces the others.
  store.SetPortDelay(true, in, fall, nullptr, RiseFallBoth::fall_, MinMaxAll::kAll, 0.3e-9f, false,
                     false, false);
  ASSERT_EQ(Sdc()->getInputDelays(in)->size(), 1u);
  EXPECT_EQ(Sdc()->getInputDelays(in)->front(), second);
  EXPECT_EQ(Sdc()->getOutputDelays(in), nullptr);
}

// A store answers only while its design is current; whichever accessor is
// asked first after its design is current again answers again.
TEST_F(SdcMgrTest, EachAccessorAnswersOnlyWhileItsDesignIsCurrent) {
  cdm::Design* design = Load(Netlist("mine_top"), "mine_top");
  ASSERT_NE(design, nullptr);
  sta::sdc::SdcMgr* sdc = sta::sdc::SdcMain::getOrCreateSdcMgr(design);
  ASSERT_EQ(sdc, Sdc());
  sta::sdc::SdcStore& store = Store();
  cdm::Port* in = Port("in");
  cdm::Port* out = Port("out");
  cdm::Pin* in_pin = design->FindPin("in");
  cdm::Pin* out_pin = design->FindPin("out");
  sta::sdc::Clock* clk = store.MakeClock("clk");
  store.SetClockWaveform(clk, 2e-9f, {0.0f, 1e-9f});
  store.Port(in).logic = cdm::kLogicOne;
  store.Pin(out_pin).case_value = cdm::kLogicZero;
  store.SetPortLoad(out, RiseFallBoth::rise_fall_, MinMaxAll::kAll, true, 1e-12f);
  store.SetInputSlew(in, RiseFallBoth::rise_fall_, MinMaxAll::kAll, 1e-10f);
  store.Port(out).max_fanout = 5.0f;
  store.Pin(in_pin).ideal_source = true;
  store.SetPortDelay(true, in_pin, clk->getEdge(RiseFall::rise_), nullptr, RiseFallBoth::rise_fall_,
                     MinMaxAll::kAll, 1e-9f, false, false, false);
  store.SetPortDelay(false, out_pin, clk->getEdge(RiseFall::rise_), nullptr,
                     RiseFallBoth::rise_fall_, MinMaxAll::kAll, 1e-9f, false, false, false);
  auto logic = [&](cdm::Port* port, cdm::LogicValue expected) {
    cdm::LogicValue value = cdm::kLogicDontCare;
    bool is_set = false;
    sdc->getLogicValue(port, value, is_set);
    return is_set && value == expected;
  };
  const std::vector<std::pair<const char*, std::function<bool()>>> accessors = {
      {"getLogicValue of a port", [&] { return logic(in, cdm::kLogicOne); }},
      {"getLogicValue of a port's pin", [&] { return logic(out, cdm::kLogicZero); }},
      {"getPortExtCap", [&] { return sdc->getPortExtCap(out) != nullptr; }},
      {"getPortExtWireCap",
       [&] { return sdc->getPortExtWireCap(out, RiseFall::fall_, MinMax::min_) > 0.0f; }},
      {"getInputDrive", [&] { return sdc->getInputDrive(in) != nullptr; }},
      {"getMaxFanoutConstraint",
       [&] { return sdc->design_rule_mgr.getMaxFanoutConstraint(out) == 5.0f; }},
      {"isSourceIdealPin", [&] { return sdc->isSourceIdealPin(design->FindPin("in")); }},
      {"getInputDelays", [&] { return sdc->getInputDelays(design->FindPin("in")) != nullptr; }},
      {"getOutputDelays", [&] { return sdc->getOutputDelays(design->FindPin("out")) != nullptr; }},
      {"getClocks", [&] { return !sdc->getClocks().empty(); }},
  };
  Load(Netlist("other_top"), "other_top");
  for (const auto& [accessor, answers] : accessors) {
    Relink("other_top");
    EXPECT_FALSE(answers()) << accessor << " while another design is current";
    Relink("mine_top");
    EXPECT_TRUE(answers()) << accessor << " once its design is current again";
  }
}

}  // namespace
