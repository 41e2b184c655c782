// Levels of the timing graph and the cutting of combinational loops.
#include <gtest/gtest.h>

#include "support/CaptureResult.h"
#include "support/TimerTestUtil.h"

namespace {

using timertest::TimerTest;

class LevelTest : public TimerTest {};

TEST_F(LevelTest, EachEdgeAddsOneFromTheInputsAndRegistersFollowTheirClock) {
  Load(R"(module top(in, clk, out);
  input in, clk; output out;
  wire n1, n2, q;
  BUF u1(.A(in), .Z(n1));
  INV u2(.A(n1), .Z(n2));
  DFF r1(.D(n2), .CK(clk), .Q(q));
  AND2 u3(.A(q), .B(n1), .Z(out));
endmodule)");
  EXPECT_EQ(Level("in"), 0u);
  EXPECT_EQ(Level("clk"), 0u);
  EXPECT_EQ(Level("u1/A"), 1u);
  EXPECT_EQ(Level("u1/Z"), 2u);
  EXPECT_EQ(Level("u2/Z"), 4u);
  EXPECT_EQ(Level("r1/D"), 5u);  // a check edge D <- CK does not count
  EXPECT_EQ(Level("r1/CK"), 1u);
  EXPECT_EQ(Level("r1/Q"), 2u);  // clock to output counts
  EXPECT_EQ(Level("u3/A"), 3u);
  EXPECT_EQ(Level("u3/B"), 3u);
  EXPECT_EQ(Level("u3/Z"), 4u);  // the longer of its two fan-ins
  EXPECT_EQ(Level("out"), 5u);
}

TEST_F(LevelTest, AnUndrivenInputAndAPinOfAnUnknownCellAreRoots) {
  Load(R"(module top(out);
  output out; wire floating, x;
  MYSTERY m1(.P(x));
  AND2 u1(.A(floating), .B(x), .Z(out));
endmodule)");
  EXPECT_EQ(Level("u1/A"), 0u);
  EXPECT_EQ(Level("m1/P"), 0u);
  EXPECT_EQ(Level("u1/B"), 0u);  // pins of an unresolved cell drive nothing
  EXPECT_EQ(Level("u1/Z"), 1u);
  EXPECT_EQ(Level("out"), 2u);
}

TEST_F(LevelTest, ALoopIsCutOnceAtTheSameEdgeAndReportedWithItsPins) {
  const char* ring = R"(module top(in, out);
  input in; output out; wire a, b, c;
  AND2 g1(.A(in), .B(c), .Z(a));
  INV g2(.A(a), .Z(b));
  INV g3(.A(b), .Z(c));
  BUF g4(.A(b), .Z(out));
endmodule)";
  Load(ring);
  formattest::CaptureResult capture;
  sta::TimingGraph* graph = timer_->EnsureGraph();
  ASSERT_NE(graph, nullptr);
  const std::string text = capture.Take();
  // The walk starts at `in` and runs round the loop to g1/B, whose arc to
  // g1/Z, already on the walk, closes it: that arc is cut.
  EXPECT_EQ(text,
            "Warning: Combinational loop cut at the arc from 'g1/B' to 'g1/Z'; the loop's "
            "pins: g1/Z g2/A g2/Z g3/A g3/Z g1/B. (STA_001)\n");
  int cut = 0;
  for (const sta::Edge& edge : graph->Edges()) cut += edge.BreaksLoop() ? 1 : 0;
  EXPECT_EQ(cut, 1);
  EXPECT_EQ(Level("g1/Z"), 2u);
  EXPECT_EQ(Level("g3/Z"), 6u);
  EXPECT_EQ(Level("g1/B"), 7u);
  EXPECT_EQ(Level("out"), 7u);
  // Asking again builds nothing and says nothing.
  timer_->EnsureGraph();
  EXPECT_EQ(capture.Take(), "");
}

// An inout pin has two vertices: its own identifier drives its net, the
// next one loads it. Arcs leave the loading half and reach the driving half,
// so that a pad driving and reading one net makes no loop.
TEST_F(LevelTest, AnInoutPinDrivesFromItsFirstVertexAndLoadsAtTheSecond) {
  Load(R"(module top(a, en, io, y);
  input a, en; inout io; output y;
  BIDI u1(.A(a), .EN(en), .PAD(io), .Y(y));
endmodule)");
  formattest::CaptureResult capture;
  sta::TimingGraph* graph = timer_->EnsureGraph();
  ASSERT_NE(graph, nullptr);
  EXPECT_EQ(capture.Take(), "");  // no loop
  const uint32_t pad = Id("u1/PAD");
  const uint32_t port = Id("io");
  ASSERT_NE(graph->vertex(pad + 1), nullptr);
  EXPECT_EQ(graph->vertex(pad + 1)->pin(), Pin("u1/PAD"));
  EXPECT_TRUE(graph->vertex(pad)->isDriver());
  EXPECT_TRUE(graph->vertex(pad + 1)->isLoad());
  EXPECT_TRUE(graph->vertex(port)->isDriver());
  EXPECT_TRUE(graph->vertex(port + 1)->isLoad());
  // io drives the pad's loading half; the pad's driving half loads io.
  EXPECT_EQ(graph->vertex(port)->level(), 0u);
  EXPECT_EQ(graph->vertex(pad + 1)->level(), 1u);
  EXPECT_EQ(Level("u1/Y"), 2u);
  EXPECT_EQ(Level("y"), 3u);
  EXPECT_EQ(graph->vertex(pad)->level(), 2u);  // from a, through u1/A
  EXPECT_EQ(graph->vertex(port + 1)->level(), 3u);
  auto has_edge = [&](uint32_t from, uint32_t to) {
    for (uint32_t e = graph->OutBegin(from); e < graph->OutEnd(from); ++e)
      if (graph->Edges()[e].to == to) return true;
    return false;
  };
  EXPECT_TRUE(has_edge(port, pad + 1));
  EXPECT_TRUE(has_edge(pad, port + 1));
  EXPECT_FALSE(has_edge(pad, pad + 1));
  EXPECT_FALSE(has_edge(port, port + 1));
}

// Wires follow flat nets through hierarchy; hierarchical pins have no vertex.
TEST_F(LevelTest, WiresCrossHierarchyAndHierarchicalPinsHaveNoVertex) {
  Load(R"(module inner(i, o);
  input i; output o; wire m;
  BUF b1(.A(i), .Z(m));
  BUF b2(.A(m), .Z(o));
endmodule
module top(in, out);
  input in; output out; wire x;
  inner h1(.i(in), .o(x));
  INV g1(.A(x), .Z(out));
endmodule)");
  sta::TimingGraph* graph = timer_->EnsureGraph();
  ASSERT_NE(graph, nullptr);
  cdm::Pin* hier = root_.GetCurrentDesign()->FindCell("h1")->FindPin("o");
  ASSERT_NE(hier, nullptr);
  EXPECT_EQ(hier->GetVertexId(), 0u);
  EXPECT_EQ(graph->vertex(hier->GetVertexId()), nullptr);
  // in(0) -> h1/b1/A(1) -> Z(2) -> h1/b2/A(3) -> Z(4) -> g1/A(5) -> Z(6) -> out(7)
  EXPECT_EQ(Level("g1/A"), 5u);
  EXPECT_EQ(Level("out"), 7u);
}

}  // namespace
