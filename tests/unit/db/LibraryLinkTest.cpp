// Link against a small hand-written library: resolution order, relinking
// after a library arrives, inout pins, library buses and wire-load
// estimates.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "db/Linker.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Root.h"
#include "liberty/LibertyReader.h"
#include "verilog/VerilogReader.h"

namespace {

const char* kLibrary = R"(
library (tiny) {
  time_unit : "1ns" ;
  voltage_unit : "1V" ;
  current_unit : "1mA" ;
  pulling_resistance_unit : "1kohm" ;
  leakage_power_unit : "1nW" ;
  capacitive_load_unit (1, pf) ;
  wire_load ("small") {
    resistance : 2 ;
    capacitance : 0.5 ;
    slope : 3 ;
    fanout_length (1, 1) ;
    fanout_length (2, 4) ;
  }
  default_wire_load : "small" ;
  cell (TBUF) {
    area : 2 ;
    pin (A) { direction : input ; capacitance : 0.01 ; }
    pin (Y) { direction : output ; function : "A" ; }
  }
  cell (IOBUF) {
    area : 5 ;
    pin (A) { direction : input ; capacitance : 0.01 ; }
    pin (PAD) { direction : inout ; function : "A" ; }
  }
  cell (sub) {
    area : 7 ;
    pin (i) { direction : input ; }
  }
}
)";

const char* kNetlist = R"(
module sub (i); input i; TBUF b (.A(i)); endmodule
module top (a, pad, y);
  input a; inout pad; output y;
  wire n;
  TBUF b0 (.A(a), .Y(n));
  TBUF b1 (.A(n), .Y(y));
  TBUF b2 (.A(n));
  IOBUF io (.A(a), .PAD(pad));
  sub s (.i(n));
endmodule
)";

class LibraryLinkTest : public ::testing::Test {
 protected:
  bool ReadLibrary() {
    std::string error;
    auto lib = liberty::ParseLiberty(&root_, kLibrary, "tiny.lib", error);
    EXPECT_NE(lib, nullptr) << error;
    if (!lib) return false;
    root_.AddLibertyLib(std::move(lib));
    return true;
  }
  cdm::Design* ReadAndLink() {
    std::vector<std::string> modules;
    std::string error;
    EXPECT_TRUE(verilog::ReadVerilogText(&root_, kNetlist, "top.v", modules, error)) << error;
    return Relink();
  }
  cdm::Design* Relink() {
    std::string error;
    cdm::Design* top = root_.FindDesign("top");
    warnings_.clear();
    EXPECT_TRUE(cdm::LinkDesign(&root_, top, warnings_, error)) << error;
    return top;
  }

  cdm::Root root_;
  std::vector<std::string> warnings_;
};

TEST_F(LibraryLinkTest, ModulesComeBeforeLibraryCellsOfTheSameName) {
  ASSERT_TRUE(ReadLibrary());
  cdm::Design* top = ReadAndLink();
  ASSERT_NE(top, nullptr);
  EXPECT_TRUE(warnings_.empty());
  EXPECT_EQ(top->FindCell("s")->GetRefDesign(), root_.FindDesign("sub"));
  EXPECT_EQ(top->FindCell("s")->GetRefLibCell(), nullptr);
  EXPECT_EQ(top->FindCell("b0")->GetRefLibCell()->GetLibertyLib()->Name(), "tiny");
}

TEST_F(LibraryLinkTest, LinkingAgainAfterReadingTheLibraryResolvesTheCells) {
  cdm::Design* top = ReadAndLink();
  ASSERT_NE(top, nullptr);
  ASSERT_EQ(warnings_.size(), 2u);  // TBUF and IOBUF, in no library yet
  EXPECT_EQ(top->FindNet("n")->GetDriverPin(), nullptr);
  ASSERT_TRUE(ReadLibrary());
  Relink();
  EXPECT_TRUE(warnings_.empty());
  ASSERT_NE(top->FindNet("n")->GetDriverPin(), nullptr);
  EXPECT_EQ(top->FindNet("n")->GetDriverPin()->GetFullName(), "b0/Y");
  std::vector<const cdm::Pin*> loads;
  top->FindNet("n")->GetFanoutPins(loads, cdm::kHierFlat);
  ASSERT_EQ(loads.size(), 3u);
  EXPECT_EQ(loads[2]->GetFullName(), "s/b/A");
}

TEST_F(LibraryLinkTest, InoutPinsDriveAndLoad) {
  ASSERT_TRUE(ReadLibrary());
  cdm::Design* top = ReadAndLink();
  ASSERT_NE(top, nullptr);
  cdm::Pin* io_pad = top->FindCell("io")->FindPin("PAD");
  cdm::Pin* port = top->FindPin("pad");
  EXPECT_TRUE(io_pad->IsNetDriver());
  EXPECT_TRUE(io_pad->IsNetLoad());
  EXPECT_TRUE(port->IsNetDriver());
  EXPECT_TRUE(port->IsNetLoad());
  std::vector<const cdm::Pin*> drivers;
  port->GetFaninPins(drivers, cdm::kHierFlat);
  ASSERT_EQ(drivers.size(), 1u);
  EXPECT_EQ(drivers[0], io_pad);
}

// A vector connection meets a library bus most significant bit first: a bus
// type's `bit_from` is its most significant bit, whether it counts down (as
// fakeram45's addr_in[5:0]) or up; bits written as pins of their own are
// ordered by number, highest first.
TEST(BusLink, VectorConnectionsMeetLibraryBusesMostSignificantBitFirst) {
  cdm::Root root;
  std::string error;
  auto lib = liberty::ParseLiberty(&root, R"(
library (buses) {
  capacitive_load_unit (1, pf) ;
  type (down3) { base_type : array ; data_type : bit ; bit_width : 3 ; bit_from : 2 ; bit_to : 0 ; downto : true ; }
  type (up3) { base_type : array ; data_type : bit ; bit_width : 3 ; bit_from : 0 ; bit_to : 2 ; downto : false ; }
  cell (BUSES) {
    area : 1 ;
    bus (D) { bus_type : down3 ; direction : input ; }
    bus (U) { bus_type : up3 ; direction : input ; }
    pin (P[0]) { direction : input ; }
    pin (P[2]) { direction : input ; }
    pin (P[1]) { direction : input ; }
  }
}
)",
                                   "buses.lib", error);
  ASSERT_NE(lib, nullptr) << error;
  root.AddLibertyLib(std::move(lib));
  std::vector<std::string> modules, warnings;
  ASSERT_TRUE(verilog::ReadVerilogText(&root, R"(
module bus_top (d, u, p);
  input [2:0] d; input [2:0] u; input [2:0] p;
  BUSES b (.D(d), .U(u), .P(p));
endmodule)",
                                       "bus.v", modules, error))
      << error;
  cdm::Design* top = root.FindDesign("bus_top");
  ASSERT_TRUE(cdm::LinkDesign(&root, top, warnings, error)) << error;
  EXPECT_TRUE(warnings.empty());
  cdm::Cell* b = top->FindCell("b");
  auto net_of = [&](const char* pin) { return b->FindPin(pin)->GetNet()->GetFullName(); };
  EXPECT_EQ(net_of("D[2]"), "d[2]");
  EXPECT_EQ(net_of("D[0]"), "d[0]");
  EXPECT_EQ(net_of("U[0]"), "u[2]");
  EXPECT_EQ(net_of("U[1]"), "u[1]");
  EXPECT_EQ(net_of("U[2]"), "u[0]");
  EXPECT_EQ(net_of("P[2]"), "p[2]");
  EXPECT_EQ(net_of("P[0]"), "p[0]");
}

// The real memory: addr_in[5:0] bit for bit.
TEST(BusLink, Fakeram45AddressBitsMeetTheirNets) {
  cdm::Root root;
  std::string error;
  ASSERT_NE(liberty::ReadLibertyFile(&root, KELVO_TEST_DATA "/fakeram45_64x32.lib", error), nullptr)
      << error;
  std::vector<std::string> modules, warnings;
  ASSERT_TRUE(verilog::ReadVerilogText(&root, R"(
module ram_top (a);
  input [5:0] a;
  fakeram45_64x32 r (.addr_in(a));
endmodule)",
                                       "ram.v", modules, error))
      << error;
  cdm::Design* top = root.FindDesign("ram_top");
  ASSERT_TRUE(cdm::LinkDesign(&root, top, warnings, error)) << error;
  cdm::Cell* r = top->FindCell("r");
  for (int bit = 0; bit < 6; ++bit) {
    const std::string pin = "addr_in[" + std::to_string(bit) + "]";
    EXPECT_EQ(r->FindPin(pin)->GetNet()->GetFullName(), "a[" + std::to_string(bit) + "]");
  }
}

// Generic gates left from before mapping resolve to the generic library.
TEST(GenericLink, UnmappedGenericCellsAreGtechCells) {
  cdm::Root* root = cdm::DbManager::GetRoot();
  std::vector<std::string> modules, warnings;
  std::string error;
  ASSERT_TRUE(verilog::ReadVerilogText(root, R"(
module gen_top (a, y);
  input a; output y;
  BUF g (.A(a), .Z(y));
endmodule
module gen_mapped (a, y);
  input a; output y;
  wire n;
  gen_leaf l (.a(a), .y(y));
endmodule
module gen_leaf (a, y); input a; output y; assign y = a; endmodule)",
                                       "gen.v", modules, error))
      << error;
  cdm::Design* top = root->FindDesign("gen_top");
  ASSERT_TRUE(cdm::LinkDesign(root, top, warnings, error)) << error;
  EXPECT_TRUE(warnings.empty());
  cdm::Cell* g = top->FindCell("g");
  ASSERT_NE(g->GetRefLibCell(), nullptr);
  EXPECT_TRUE(g->IsGTechCell());
  EXPECT_EQ(g->GetRefLibCell()->GetLibertyLib(), cdm::DbManager::GetGenericLib());
  EXPECT_TRUE(cdm::DbManager::HasUnmappedGtechCell(top));
  cdm::Design* mapped = root->FindDesign("gen_mapped");
  ASSERT_TRUE(cdm::LinkDesign(root, mapped, warnings, error)) << error;
  EXPECT_FALSE(cdm::DbManager::HasUnmappedGtechCell(mapped));
}

// The estimate reads the default library through DbManager: this case
// works on the process's own root, with names no other case uses.
TEST(WireLoadEstimate, FollowsTheDefaultWireLoadByFanout) {
  cdm::Root* root = cdm::DbManager::GetRoot();
  std::string error;
  auto lib = liberty::ParseLiberty(root, kLibrary, "tiny.lib", error);
  ASSERT_NE(lib, nullptr) << error;
  root->SetDefaultLiberty(root->AddLibertyLib(std::move(lib)));
  std::vector<std::string> modules, warnings;
  ASSERT_TRUE(verilog::ReadVerilogText(root, R"(
module wl_top (a, c, y);
  input a, c; output y;
  wire n, p;
  TBUF b0 (.A(a), .Y(n));
  TBUF b1 (.A(n), .Y(y));
  TBUF b2 (.A(n));
  TBUF b3 (.A(n));
  IOBUF io0 (.A(c), .PAD(p));
  IOBUF io1 (.A(c), .PAD(p));
  TBUF b4 (.A(p));
endmodule)",
                                       "wl.v", modules, error))
      << error;
  cdm::Design* top = root->FindDesign("wl_top");
  ASSERT_TRUE(cdm::LinkDesign(root, top, warnings, error)) << error;
  float cap = -1.0f, res = -1.0f;
  top->FindNet("a")->NetCapAndRes(nullptr, cap, res, cdm::MinMax::max_, cdm::kHierNetRC);
  EXPECT_FLOAT_EQ(cap, 0.5f * 1e-12f);  // fanout 1: length 1
  EXPECT_FLOAT_EQ(res, 2.0f * 1e3f);
  // n: three loads, beyond the table: 4 + 3 * (3 - 2) = 7.
  top->FindNet("n")->NetCapAndRes(nullptr, cap, res, cdm::MinMax::max_, cdm::kHierNetRC);
  EXPECT_FLOAT_EQ(cap, 7 * 0.5f * 1e-12f);
  EXPECT_FLOAT_EQ(res, 7 * 2.0f * 1e3f);
  // p: the inout pads drive it as well as load it and are left out of the
  // fan-out; b4 alone makes it 1.
  top->FindNet("p")->NetCapAndRes(nullptr, cap, res, cdm::MinMax::max_, cdm::kHierNetRC);
  EXPECT_FLOAT_EQ(cap, 0.5f * 1e-12f);
  // y has no load inside the design: the output port is its only one.
  top->FindNet("y")->NetCapAndRes(nullptr, cap, res, cdm::MinMax::max_, cdm::kHierNetRC);
  EXPECT_FLOAT_EQ(cap, 0.5f * 1e-12f);
  // Once another design is linked, wl_top's nets are walked rather than
  // read from its elaboration: the counts stay the same.
  ASSERT_TRUE(verilog::ReadVerilogText(root, "module wl_other (a); input a; endmodule\n",
                                       "wl_other.v", modules, error))
      << error;
  ASSERT_TRUE(cdm::LinkDesign(root, root->FindDesign("wl_other"), warnings, error)) << error;
  top->FindNet("n")->NetCapAndRes(nullptr, cap, res, cdm::MinMax::max_, cdm::kHierNetRC);
  EXPECT_FLOAT_EQ(cap, 7 * 0.5f * 1e-12f);
  top->FindNet("p")->NetCapAndRes(nullptr, cap, res, cdm::MinMax::max_, cdm::kHierNetRC);
  EXPECT_FLOAT_EQ(cap, 0.5f * 1e-12f);
}

}  // namespace
