// The elaborated design: flat nets with identity across levels, timing
// vertices, objects that stay the same until the netlist changes, and
// definitions kept apart from their instances.
#include <memory>
#include <set>

#include "db/Elaboration.h"
#include "db/PathLookup.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "support/DesignTestUtil.h"

namespace {

using designtest::DesignTest;

// One signal crosses three levels and an assign on its way: in at the top
// port `a`, through mid's input, into leaf (renamed by an assign there),
// out again and up to the top port `y`.
const char* kThreeLevels = R"(
module leaf (i, o);
  input i; output o;
  wire inner;
  assign inner = i;
  G g (.A(inner), .Y(o));
  G h (.A(i));
endmodule
module mid (d, q);
  input d; output q;
  leaf l (.i(d), .o(q));
endmodule
module top (a, y, b, z);
  input a; output y; inout b; output z;
  wire w;
  mid m (.d(a), .q(w));
  G k (.A(w), .Y(y));
  G u (.A(b), .Y(z));
endmodule
)";

std::vector<std::string> Names(const std::vector<cdm::Pin*>& pins) {
  std::vector<std::string> names;
  for (const cdm::Pin* pin : pins) names.push_back(pin->GetFullName());
  return names;
}

TEST_F(DesignTest, OneFlatNetAcrossThreeLevelsAndAnAssign) {
  cdm::Design* top = Load(kThreeLevels);
  ASSERT_NE(top, nullptr);
  cdm::Net* a = top->FindNet("a");
  cdm::Net* d = cdm::FindNetByPath(top, "m/d");
  cdm::Net* i = cdm::FindNetByPath(top, "m/l/i");
  cdm::Net* inner = cdm::FindNetByPath(top, "m/l/inner");  // an alias of i
  ASSERT_TRUE(a && d && i && inner);
  EXPECT_EQ(inner, i);
  EXPECT_NE(a->FlatNetId(), 0u);
  EXPECT_EQ(d->FlatNetId(), a->FlatNetId());
  EXPECT_EQ(i->FlatNetId(), a->FlatNetId());
  // Another signal is another flat net.
  EXPECT_NE(top->FindNet("w")->FlatNetId(), a->FlatNetId());
  EXPECT_EQ(top->FindNet("w")->FlatNetId(), cdm::FindNetByPath(top, "m/l/o")->FlatNetId());
  // Every segment answers for the whole: the top port drives, the two leaf
  // inputs three levels down load.
  for (cdm::Net* segment : {a, d, i}) {
    EXPECT_EQ(segment->GetDriverPin(), top->FindPin("a")) << segment->GetFullName();
    std::vector<cdm::Pin*> loads;
    segment->GetFanoutPins(loads, cdm::kHierFlat);
    EXPECT_EQ(Names(loads), (std::vector<std::string>{"m/l/g/A", "m/l/h/A"}))
        << segment->GetFullName();
  }
  // At its own level, m/d has the hierarchical pins only.
  std::vector<cdm::Pin*> level;
  d->GetFanoutPins(level, cdm::kHierLevel);
  EXPECT_EQ(Names(level), std::vector<std::string>{"m/l/i"});
  EXPECT_TRUE(level[0]->IsHierarchicalPin());
}

TEST_F(DesignTest, VerticesForLeafAndTopPortPinsOnlyTwoForInout) {
  cdm::Design* top = Load(kThreeLevels);
  ASSERT_NE(top, nullptr);
  cdm::Elaboration* elaboration = root_.GetElaboration();
  ASSERT_NE(elaboration, nullptr);
  // Top ports first, in header order; the inout b takes two ids.
  EXPECT_EQ(top->FindPin("a")->GetVertexId(), 1u);
  EXPECT_EQ(top->FindPin("y")->GetVertexId(), 2u);
  EXPECT_EQ(top->FindPin("b")->GetVertexId(), 3u);
  EXPECT_EQ(top->FindPin("z")->GetVertexId(), 5u);
  EXPECT_EQ(elaboration->VertexPin(3), top->FindPin("b"));
  EXPECT_EQ(elaboration->VertexPin(4), top->FindPin("b"));
  EXPECT_TRUE(elaboration->VertexDrives(3));
  EXPECT_FALSE(elaboration->VertexDrives(4));
  // Hierarchical pins and the port pins below the top have none.
  EXPECT_EQ(top->FindCell("m")->FindPin("d")->GetVertexId(), 0u);
  EXPECT_EQ(cdm::FindCellByPath(top, "m/l")->FindPin("i")->GetVertexId(), 0u);
  cdm::Net* d = cdm::FindNetByPath(top, "m/d");
  for (cdm::Pin* pin : d->Pins()) EXPECT_EQ(pin->GetVertexId(), 0u) << pin->GetFullName();
  // Ids are dense and each maps back to its pin.
  std::set<uint32_t> seen;
  for (cdm::AllPinIterator it(top, true, cdm::func<cdm::Pin>); it.HasNext();) {
    cdm::Pin* pin = it.Next();
    uint32_t id = pin->GetVertexId();
    if (!id) continue;
    EXPECT_EQ(elaboration->VertexPin(id), pin);
    seen.insert(id);
    if (pin->IsNetDriver() && pin->IsNetLoad()) seen.insert(id + 1);
  }
  EXPECT_EQ(seen.size(), elaboration->VertexCount());
  EXPECT_EQ(*seen.begin(), 1u);
  EXPECT_EQ(*seen.rbegin(), elaboration->VertexCount());
  // Leaf pins: k and u at the top with two each, g with two and h with one
  // in leaf (G is unresolved: its pins are its connections).
  EXPECT_EQ(elaboration->VertexCount(), 5u + 7u);
}

TEST_F(DesignTest, InoutTopPortDrivesAndLoadsItsFlatNet) {
  cdm::Design* top = Load(kThreeLevels);
  ASSERT_NE(top, nullptr);
  cdm::Pin* b = top->FindPin("b");
  cdm::Pin* u_a = top->FindCell("u")->FindPin("A");
  EXPECT_EQ(u_a->GetCurrentDriverPin(), b);
  std::vector<cdm::Pin*> loads;
  top->FindNet("b")->GetFanoutPins(loads, cdm::kHierFlat);
  EXPECT_EQ(Names(loads), (std::vector<std::string>{"b", "u/A"}));
  // Walking the net gives the inout pin once.
  std::vector<cdm::Pin*> all;
  for (cdm::NetConnIter it(top->FindNet("b"), false, cdm::func<cdm::Pin>); it.HasNext();)
    all.push_back(it.Next());
  EXPECT_EQ(Names(all), (std::vector<std::string>{"b", "u/A"}));
}

TEST_F(DesignTest, ObjectsStayUntilTheNetlistChangesAndAreNewAfterARelink) {
  cdm::Design* top = Load(kThreeLevels);
  ASSERT_NE(top, nullptr);
  cdm::Pin* deep = cdm::FindPinByPath(top, "m/l/g/A");
  cdm::Net* net = cdm::FindNetByPath(top, "m/l/i");
  uint32_t vertex = deep->GetVertexId();
  uint64_t generation = root_.ChangeGeneration();
  // Asking, walking and looking up change nothing.
  for (int pass = 0; pass < 2; ++pass) {
    for (cdm::DesignCellIterator it(top, true, cdm::func<cdm::Cell>); it.HasNext();) it.Next();
    std::vector<cdm::Pin*> pins;
    net->GetFanoutPins(pins, cdm::kHierFlat);
    EXPECT_EQ(cdm::FindPinByPath(top, "m/l/g/A"), deep);
    EXPECT_EQ(cdm::FindNetByPath(top, "m/l/i"), net);
    EXPECT_EQ(deep->GetVertexId(), vertex);
    EXPECT_EQ(root_.GetElaboration()->VertexPin(vertex), deep);
  }
  EXPECT_EQ(root_.ChangeGeneration(), generation);
  // A new link renews the elaborated objects and moves the generation.
  std::vector<std::string> warnings;
  std::string error;
  ASSERT_TRUE(cdm::LinkDesign(&root_, top, warnings, error)) << error;
  EXPECT_GT(root_.ChangeGeneration(), generation);
  cdm::Pin* again = cdm::FindPinByPath(top, "m/l/g/A");
  ASSERT_NE(again, nullptr);
  EXPECT_EQ(again->GetFullName(), "m/l/g/A");
  EXPECT_EQ(root_.GetElaboration()->VertexPin(again->GetVertexId()), again);
}

TEST_F(DesignTest, DefinitionsAreNotInstances) {
  cdm::Design* top = Load(kThreeLevels);
  ASSERT_NE(top, nullptr);
  cdm::Design* leaf = root_.FindDesign("leaf");
  cdm::Cell* defined = leaf->FindCell("g");
  cdm::Cell* placed = cdm::FindCellByPath(top, "m/l/g");
  ASSERT_TRUE(defined && placed);
  EXPECT_NE(defined, placed);
  EXPECT_EQ(defined->GetFullName(), "g");
  EXPECT_EQ(placed->GetFullName(), "m/l/g");
  // A definition's pins are no vertices, its nets no flat nets, and its
  // walks stay within it.
  EXPECT_EQ(defined->FindPin("A")->GetVertexId(), 0u);
  EXPECT_EQ(leaf->FindNet("i")->FlatNetId(), 0u);
  std::vector<cdm::Pin*> drivers;
  leaf->FindNet("i")->GetFaninPins(drivers, cdm::kHierFlat);
  EXPECT_TRUE(drivers.empty());
  EXPECT_EQ(leaf->FindNet("i")->GetDriverPin(), nullptr);
  // The instance's net knows its driver three levels up.
  EXPECT_EQ(placed->FindPin("A")->GetCurrentDriverPin(), top->FindPin("a"));
}

TEST_F(DesignTest, AssignAliasesAreFoundByName) {
  cdm::Design* top = Load(R"(
module top (a, y);
  input a; output y;
  wire [1:0] bus;
  wire other;
  assign bus[0] = a;
  assign other = bus[0];
  assign y = other;
endmodule)");
  ASSERT_NE(top, nullptr);
  // The port names the merged net; the other names still find it.
  cdm::Net* a = top->FindNet("a");
  ASSERT_NE(a, nullptr);
  EXPECT_EQ(top->FindNet("bus[0]"), a);
  EXPECT_EQ(top->FindNet("other"), a);
  EXPECT_NE(top->FindNet("bus[1]"), a);
  EXPECT_EQ(cdm::FindNetByPath(top, "other"), a);
}

// A net of many loads: every load finds its driver, and the fan-out of the
// driver lists every load once, in creation order.
TEST_F(DesignTest, DriverOfEveryPinOfALargeNet) {
  const int loads = 5000;
  std::string text = "module top (a);\n  input a;\n";
  for (int i = 0; i < loads; ++i) text += "  G g" + std::to_string(i) + " (.A(a));\n";
  text += "endmodule\n";
  cdm::Design* top = Load(text);
  ASSERT_NE(top, nullptr);
  cdm::Pin* a = top->FindPin("a");
  for (int i = 0; i < loads; ++i) {
    cdm::Pin* pin = top->FindCell("g" + std::to_string(i))->FindPin("A");
    ASSERT_EQ(pin->GetCurrentDriverPin(), a) << i;
    std::vector<const cdm::Pin*> fanin;
    pin->GetFaninPins(fanin, cdm::kHierFlat);
    ASSERT_EQ(fanin.size(), 1u);
  }
  std::vector<cdm::Pin*> fanout;
  a->GetFanoutPins(fanout, cdm::kHierFlat);
  ASSERT_EQ(fanout.size(), static_cast<size_t>(loads));
  EXPECT_EQ(fanout.front()->GetFullName(), "g0/A");
  EXPECT_EQ(fanout.back()->GetFullName(), "g" + std::to_string(loads - 1) + "/A");
}

}  // namespace
