#include <memory>

#include "db/Elaboration.h"
#include "db/PathLookup.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "support/DesignTestUtil.h"

namespace {

using designtest::DesignTest;

// `pass` is used twice; inside, an unresolved gate and an assign that
// carries the input straight to the output.
const char* kTwice = R"(
module pass (i, o, x);
  input i; output o; output x;
  assign o = i;
  G g1 (.A(i), .Y(x));
endmodule
module top (a, b, y, z, x1, x2);
  input a, b; output y, z, x1, x2;
  wire m;
  pass p1 (.i(a), .o(m), .x(x1));
  pass p2 (.i(m), .o(y), .x(x2));
  G g0 (.A(b), .Y(z));
endmodule
)";

std::vector<std::string> CellNames(cdm::Iterator<cdm::Cell>* raw) {
  std::unique_ptr<cdm::Iterator<cdm::Cell>> it(raw);
  std::vector<std::string> names;
  while (it->HasNext()) names.push_back(it->Next()->GetFullName());
  return names;
}

TEST_F(DesignTest, ModuleUsedTwiceIsOneDesignWithTwoElaboratedCopies) {
  cdm::Design* top = Load(kTwice);
  ASSERT_NE(top, nullptr);
  EXPECT_EQ(root_.GetCurrentDesign(), top);
  cdm::Design* pass = root_.FindDesign("pass");
  EXPECT_EQ(top->FindCell("p1")->GetRefDesign(), pass);
  EXPECT_EQ(top->FindCell("p2")->GetRefDesign(), pass);
  EXPECT_EQ(CellNames(new cdm::DesignCellIterator(top, true, cdm::func<cdm::Cell>)),
            (std::vector<std::string>{"p1", "p1/g1", "p2", "p2/g1", "g0"}));
  EXPECT_EQ(CellNames(new cdm::DesignCellIterator(top, false, cdm::func<cdm::Cell>)),
            (std::vector<std::string>{"p1", "p2", "g0"}));
  EXPECT_EQ(CellNames(top->CellIter()), (std::vector<std::string>{"p1", "p2", "g0"}));
  // The definition is not an instance: its cells carry local names only.
  EXPECT_EQ(CellNames(pass->CellIter()), std::vector<std::string>{"g1"});
  EXPECT_NE(pass->FindCell("g1"), cdm::FindCellByPath(top, "p1/g1"));
  cdm::Cell* g1 = cdm::FindCellByPath(top, "p1/g1");
  cdm::Cell* g2 = cdm::FindCellByPath(top, "p2/g1");
  ASSERT_NE(g1, nullptr);
  ASSERT_NE(g2, nullptr);
  EXPECT_NE(g1, g2);
  EXPECT_EQ(g2->GetFullName(), "p2/g1");
  EXPECT_EQ(cdm::FindPinByPath(top, "p2/g1/Y")->GetNet()->GetFullName(), "p2/x");
  EXPECT_EQ(cdm::FindNetByPath(top, "p2/i")->GetFullName(), "p2/i");
  EXPECT_EQ(cdm::FindCellByPath(top, "p3/g1"), nullptr);
  EXPECT_EQ(cdm::FindPinByPath(top, "p1/g1/Q"), nullptr);
}

TEST_F(DesignTest, FlatWalkCrossesHierarchyBothWays) {
  cdm::Design* top = Load(kTwice);
  ASSERT_NE(top, nullptr);
  // a -> p1/i = p1/o -> m -> p2/i = p2/o -> y, with the gates' inputs on the way.
  cdm::Pin* a = top->FindPin("a");
  ASSERT_TRUE(a->IsTopPortPin());
  ASSERT_TRUE(a->IsNetDriver());
  std::vector<const cdm::Pin*> loads;
  a->GetFanoutPins(loads, cdm::kHierFlat);
  // In creation order: the top's ports, then the cells depth first.
  EXPECT_EQ(FullNames(loads), (std::vector<std::string>{"y", "p1/g1/A", "p2/g1/A"}));
  std::vector<cdm::Pin*> drivers;
  top->FindPin("y")->GetFaninPins(drivers, cdm::kHierFlat);
  EXPECT_EQ(FullNames(drivers), std::vector<std::string>{"a"});
  EXPECT_EQ(top->FindPin("y")->GetCurrentDriverPin(), a);
  cdm::Net* m = top->FindNet("m");
  EXPECT_EQ(m->GetDriverPin(), a);
  // At the level of m: the two hierarchical pins only.
  std::vector<const cdm::Pin*> level;
  m->GetFaninPins(level, cdm::kHierLevel);
  EXPECT_EQ(FullNames(level), std::vector<std::string>{"p1/o"});
  EXPECT_TRUE(level[0]->IsHierarchicalPin());
  level.clear();
  m->GetFanoutPins(level, cdm::kHierLevel);
  EXPECT_EQ(FullNames(level), std::vector<std::string>{"p2/i"});
  // Starting inside: p2's own input port pin leads out to the same flat net.
  cdm::Net* inner = cdm::FindNetByPath(top, "p2/i");
  EXPECT_EQ(inner->GetDriverPin(), a);
}

TEST_F(DesignTest, NetConnIterAndAllPinIterator) {
  cdm::Design* top = Load(kTwice);
  ASSERT_NE(top, nullptr);
  cdm::Net* m = top->FindNet("m");
  std::vector<cdm::Pin*> flat, with_hier;
  for (cdm::NetConnIter it(m, false, cdm::func<cdm::Pin>); it.HasNext();) flat.push_back(it.Next());
  for (cdm::NetConnIter it(m, true, cdm::func<cdm::Pin>); it.HasNext();)
    with_hier.push_back(it.Next());
  EXPECT_EQ(FullNames(flat), (std::vector<std::string>{"a", "y", "p1/g1/A", "p2/g1/A"}));
  // Segments m (p1/o p2/i), a (a p1/i), y (p2/o y), and inside each pass
  // the merged i/o net (two port pins and g1/A).
  EXPECT_EQ(with_hier.size(), 12u);
  for (cdm::Pin* pin : flat) EXPECT_FALSE(pin->IsHierarchicalPin());

  auto drivers = [](const cdm::Pin* pin) { return pin->IsNetDriver(); };
  std::vector<cdm::Pin*> level, deep;
  for (cdm::AllPinIterator it(top, false, drivers); it.HasNext();) level.push_back(it.Next());
  for (cdm::AllPinIterator it(top, true, drivers); it.HasNext();) deep.push_back(it.Next());
  // Level: the two input ports and the hierarchical output pins.
  EXPECT_EQ(FullNames(level), (std::vector<std::string>{"a", "b", "p1/o", "p1/x", "p2/o", "p2/x"}));
  // Deep adds each lower input port pin.
  EXPECT_EQ(FullNames(deep),
            (std::vector<std::string>{"a", "b", "p1/o", "p1/x", "p1/i", "p2/o", "p2/x", "p2/i"}));
}

TEST_F(DesignTest, CurrentDesignCanMoveDownAndBack) {
  cdm::Design* top = Load(kTwice);
  ASSERT_NE(top, nullptr);
  cdm::Design* pass = root_.FindDesign("pass");
  std::string error;
  ASSERT_TRUE(cdm::ElaborateHierarchy(&root_, pass, error)) << error;
  EXPECT_EQ(CellNames(pass->CellIter()), std::vector<std::string>{"g1"});
  EXPECT_TRUE(pass->FindPin("i")->IsTopPortPin());
  ASSERT_TRUE(cdm::ElaborateHierarchy(&root_, top, error)) << error;
  EXPECT_FALSE(pass->FindPin("i")->IsTopPortPin());
  EXPECT_EQ(pass->FindPin("i")->GetVertexId(), 0u);
  EXPECT_EQ(CellNames(pass->CellIter()), std::vector<std::string>{"g1"});
  EXPECT_NE(cdm::FindCellByPath(top, "p2/g1"), nullptr);
}

TEST_F(DesignTest, UnresolvedReferencesWarnAndKeepTheirConnections) {
  cdm::Design* top = Load(kTwice);
  ASSERT_NE(top, nullptr);
  ASSERT_EQ(warnings_.size(), 1u);
  // Counted as written in the modules: once in pass, once in top.
  EXPECT_NE(warnings_[0].find("'G' (2 cells)"), std::string::npos) << warnings_[0];
  cdm::Cell* g0 = top->FindCell("g0");
  ASSERT_NE(g0->GetRef(), nullptr);
  EXPECT_FALSE(g0->GetRef()->IsDesign());
  EXPECT_FALSE(g0->GetRef()->IsLibRef());
  EXPECT_EQ(g0->GetRef()->GetRefText(), "G");
  EXPECT_TRUE(g0->IsUnresolved());
  EXPECT_EQ(g0->GetRefDesign(), nullptr);
  EXPECT_EQ(g0->GetRefLibCell(), nullptr);
  EXPECT_TRUE(g0->IsLeaf());
  EXPECT_EQ(g0->GetRefName(), "G");
  ASSERT_EQ(g0->PinCount(), 2u);
  EXPECT_EQ(g0->FindPin("A")->GetNet(), top->FindNet("b"));
  EXPECT_FALSE(g0->FindPin("Y")->IsNetDriver());
}

TEST_F(DesignTest, ConstantsHaveNoDriverAndReachThroughHierarchy) {
  cdm::Design* top = Load(R"(
module sub (i); input i; G g (.A(i)); endmodule
module top (o);
  output o;
  wire lo;
  assign lo = 1'b0;
  assign o = 1'b1;
  sub s (.i(lo));
  G t (.A(1'b1), .B(lo), .C(1'bx));
endmodule)");
  ASSERT_NE(top, nullptr);
  cdm::Net* lo = top->FindNet("lo");
  EXPECT_EQ(lo->GetConstValue(), 0);
  EXPECT_EQ(lo->GetDriverPin(), nullptr);
  EXPECT_EQ(top->FindNet("o")->GetConstValue(), 1);
  cdm::Pin* inner = cdm::FindPinByPath(top, "s/g/A");
  EXPECT_TRUE(inner->IsConst());
  EXPECT_EQ(inner->GetConstValue(), 0);
  cdm::Cell* t = top->FindCell("t");
  EXPECT_EQ(t->FindPin("A")->GetConstValue(), 1);
  EXPECT_EQ(t->FindPin("B")->GetConstValue(), 0);
  EXPECT_EQ(t->FindPin("C")->GetNet(), nullptr);
  EXPECT_FALSE(t->FindPin("C")->IsConst());
  EXPECT_EQ(t->FindPin("C")->GetConstValue(), -1);
  // Tie nets are no named nets of the design.
  EXPECT_EQ(top->NetCount(), 2u);
  EXPECT_EQ(cdm::FindNetByPath(top, "*logic1*"), nullptr);
}

TEST_F(DesignTest, EscapedNamesWithSlashesAreFoundByPath) {
  cdm::Design* top = Load(R"(
module sub (i); input i; G \a/b (.A(i)); endmodule
module top (x);
  input x;
  sub \u/v (.i(x));
  G \u/v/w (.A(x));
endmodule)");
  ASSERT_NE(top, nullptr);
  cdm::Cell* deep = cdm::FindCellByPath(top, "u/v/a/b");
  ASSERT_NE(deep, nullptr);
  EXPECT_EQ(deep->Name(), "a/b");
  EXPECT_EQ(deep->GetFullName(), "u/v/a/b");
  EXPECT_EQ(cdm::FindCellByPath(top, "u/v/w")->Name(), "u/v/w");
  EXPECT_EQ(cdm::FindPinByPath(top, "u/v/a/b/A")->GetNet()->GetFullName(), "u/v/i");
}

TEST_F(DesignTest, PositionalConnectionsAndBusesToSubmodules) {
  cdm::Design* top = Load(R"(
module sub (d, q); input [1:0] d; output q; endmodule
module top (a, y);
  input [3:0] a; output y;
  sub s0 (a[3:2], y);
  sub s1 (.d({a[0], a[1]}), .q());
endmodule)");
  ASSERT_NE(top, nullptr);
  cdm::Cell* s0 = top->FindCell("s0");
  EXPECT_EQ(s0->FindPin("d[1]")->GetNet()->Name(), "a[3]");
  EXPECT_EQ(s0->FindPin("d[0]")->GetNet()->Name(), "a[2]");
  EXPECT_EQ(s0->FindPin("q")->GetNet()->Name(), "y");
  cdm::Cell* s1 = top->FindCell("s1");
  EXPECT_EQ(s1->FindPin("d[1]")->GetNet()->Name(), "a[0]");
  EXPECT_EQ(s1->FindPin("q")->GetNet(), nullptr);
  EXPECT_TRUE(s1->FindPin("d[1]")->IsHierarchicalPin());
  EXPECT_TRUE(s1->FindPin("d[1]")->IsNetLoad());
  EXPECT_TRUE(s1->FindPin("q")->IsNetDriver());
}

TEST_F(DesignTest, ConnectionProblemsWarnWithFileAndLine) {
  cdm::Design* top = Load(R"(module sub (d); input [1:0] d; endmodule
module top (a);
  input [2:0] a;
  sub s0 (.d(a), .nope(a[0]));
endmodule)");
  ASSERT_NE(top, nullptr);
  ASSERT_EQ(warnings_.size(), 2u);
  EXPECT_NE(warnings_[0].find("test.v:4: instance 's0' of 'sub' connects 3 bits"),
            std::string::npos)
      << warnings_[0];
  EXPECT_NE(warnings_[1].find("has no pin 'nope'"), std::string::npos) << warnings_[1];
  // The low bits meet.
  EXPECT_EQ(top->FindCell("s0")->FindPin("d[0]")->GetNet()->Name(), "a[0]");
  EXPECT_EQ(top->FindCell("s0")->FindPin("d[1]")->GetNet()->Name(), "a[1]");
}

TEST_F(DesignTest, TopIsTheModuleNobodyInstantiates) {
  std::vector<std::string> modules;
  std::string error;
  ASSERT_TRUE(verilog::ReadVerilogText(&root_, "module a (); endmodule\nmodule b (); endmodule",
                                       "t.v", modules, error));
  EXPECT_EQ(cdm::FindTopDesign(&root_, error), nullptr);
  EXPECT_EQ(error, "several modules could be the top (a, b); name one");
  ASSERT_TRUE(verilog::ReadVerilogText(&root_, "module c (); a u1 (); b u2 (); endmodule", "u.v",
                                       modules, error));
  EXPECT_EQ(cdm::FindTopDesign(&root_, error), root_.FindDesign("c"));
}

TEST_F(DesignTest, RecursiveInstantiationIsRefusedAndChangesNothing) {
  std::vector<std::string> modules;
  std::string error;
  ASSERT_TRUE(verilog::ReadVerilogText(
      &root_, "module a (); b u (); endmodule\nmodule b (); a u (); endmodule", "t.v", modules,
      error));
  EXPECT_EQ(cdm::FindTopDesign(&root_, error), nullptr);
  EXPECT_EQ(error, "every module is instantiated by another; name the top module");
  std::vector<std::string> warnings;
  EXPECT_FALSE(cdm::LinkDesign(&root_, root_.FindDesign("a"), warnings, error));
  EXPECT_NE(error.find("instantiates itself"), std::string::npos) << error;
  EXPECT_EQ(root_.GetCurrentDesign(), nullptr);
  EXPECT_FALSE(cdm::IsLinked(root_.FindDesign("a")));
}

TEST_F(DesignTest, RelinkRebuildsPinsWithoutDuplicates) {
  cdm::Design* top = Load(kTwice);
  ASSERT_NE(top, nullptr);
  std::vector<std::string> warnings;
  std::string error;
  ASSERT_TRUE(cdm::LinkDesign(&root_, top, warnings, error));
  cdm::Net* m = top->FindNet("m");
  EXPECT_EQ(m->Pins().size(), 2u);
  std::vector<const cdm::Pin*> loads;
  top->FindPin("a")->GetFanoutPins(loads, cdm::kHierFlat);
  EXPECT_EQ(loads.size(), 3u);
}

// What stays valid between commands is judged by this counter: every read,
// link and change of the current design must move it, and nothing else.
TEST_F(DesignTest, ChangeGenerationMovesOnReadLinkAndCurrentDesign) {
  const uint64_t empty = root_.ChangeGeneration();
  cdm::Design* top = Load(
      "module leaf (a); input a; endmodule\nmodule top (x); input x; leaf u (.a(x)); endmodule\n");
  ASSERT_NE(top, nullptr);
  const uint64_t linked = root_.ChangeGeneration();
  EXPECT_GT(linked, empty);
  EXPECT_EQ(root_.ChangeGeneration(), linked) << "reading the counter must not move it";
  root_.SetCurrentDesign(root_.FindDesign("leaf"));
  EXPECT_GT(root_.ChangeGeneration(), linked);
}

}  // namespace

TEST_F(DesignTest, CopiesOfDifferentModulesBetweenLeafCellsKeepTheirOwnContents) {
  cdm::Design* top = Load(R"(
module one (i, o);
  input i; output o;
  G g (.A(i), .Y(o));
endmodule
module two (i, o);
  input i; output o;
  wire t;
  one u (.i(i), .o(t));
  G h (.A(t), .Y(o));
endmodule
module top (a, y);
  input a; output y;
  wire n1, n2, n3, n4;
  G l1 (.A(a), .Y(n1));
  two x (.i(n1), .o(n2));
  G l2 (.A(n2), .Y(n3));
  one w (.i(n3), .o(n4));
  two z (.i(n4), .o(y));
endmodule
)");
  ASSERT_NE(top, nullptr);
  EXPECT_EQ(CellNames(new cdm::DesignCellIterator(top, true, cdm::func<cdm::Cell>)),
            (std::vector<std::string>{"l1", "x", "x/u", "x/u/g", "x/h", "l2", "w", "w/g", "z",
                                      "z/u", "z/u/g", "z/h"}));
  // The chain a -> l1 -> x/u/g -> x/h -> l2 -> w/g -> z/u/g -> z/h -> y:
  // each stage's output is on the flat net of the next one's input, through
  // the copies' port pins, and no two stages share one.
  const char* chain[] = {"l1", "x/u/g", "x/h", "l2", "w/g", "z/u/g", "z/h"};
  for (size_t i = 0; i + 1 < sizeof(chain) / sizeof(chain[0]); ++i) {
    cdm::Cell* from = cdm::FindCellByPath(top, chain[i]);
    cdm::Cell* to = cdm::FindCellByPath(top, chain[i + 1]);
    ASSERT_NE(from, nullptr) << chain[i];
    ASSERT_NE(to, nullptr) << chain[i + 1];
    uint32_t id = from->FindPin("Y")->GetNet()->FlatNetId();
    EXPECT_EQ(to->FindPin("A")->GetNet()->FlatNetId(), id) << chain[i + 1];
    EXPECT_NE(from->FindPin("A")->GetNet()->FlatNetId(), id) << chain[i];
  }
  EXPECT_EQ(top->FindPin("y")->GetNet()->FlatNetId(),
            cdm::FindCellByPath(top, "z/h")->FindPin("Y")->GetNet()->FlatNetId());
}

TEST_F(DesignTest, AHierarchyTooLargeToNumberOrToHoldIsRefusedAtLinkAndASmallerOneLinksAfter) {
  // 2^40 leaves from a few lines: refused from the module counts, before
  // anything is made.
  std::string text = "module m40 (a, y); input a; output y; G g (.A(a), .Y(y)); endmodule\n";
  for (int level = 39; level >= 0; --level)
    text += "module m" + std::to_string(level) + " (a, y); input a; output y; wire t; m" +
            std::to_string(level + 1) + " u0 (.a(a), .y(t)); m" + std::to_string(level + 1) +
            " u1 (.a(t), .y(y)); endmodule\n";
  std::vector<std::string> modules;
  std::string error;
  ASSERT_TRUE(verilog::ReadVerilogText(&root_, text, "tree.v", modules, error)) << error;
  EXPECT_FALSE(cdm::LinkDesign(&root_, root_.FindDesign("m0"), warnings_, error));
  EXPECT_EQ(error,
            "design 'm0' would elaborate into 2199023255550 hierarchical instances, more than the "
            "4294967294 the database can number");
  EXPECT_EQ(root_.GetCurrentDesign(), nullptr);
  EXPECT_EQ(root_.GetElaboration(), nullptr);
  // 29 levels below m11: few enough to number, far too many to hold (some
  // 500 GB).
  EXPECT_FALSE(cdm::LinkDesign(&root_, root_.FindDesign("m11"), warnings_, error));
  EXPECT_EQ(error.rfind("design 'm11' would need about ", 0), 0u) << error;
  EXPECT_NE(error.find(" GB of memory this machine has"), std::string::npos) << error;
  EXPECT_EQ(root_.GetCurrentDesign(), nullptr);
  // Twelve levels below m28: 4096 leaves.
  ASSERT_TRUE(cdm::LinkDesign(&root_, root_.FindDesign("m28"), warnings_, error)) << error;
  EXPECT_EQ(root_.GetCurrentDesign(), root_.FindDesign("m28"));
  EXPECT_EQ(root_.GetElaboration()->Instances().size(), 8190u);
  EXPECT_NE(cdm::FindCellByPath(root_.FindDesign("m28"), "u1/u1/u1/u1/u1/u1/u1/u1/u1/u1/u1/u1/g"),
            nullptr);
}
