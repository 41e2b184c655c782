// The face the reports reach the timer through.
#include <gtest/gtest.h>

#include "cmdlib/Interrupt.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/sta/Graph.h"
#include "hostapi/sta/Sta.h"
#include "hostapi/sta/TimerMgr.h"
#include "support/TimerTestUtil.h"

namespace {

TEST(TimerMgrTest, WithoutADesignThereIsATimerButNoGraph) {
  cdm::DbManager::GetRoot()->SetCurrentDesign(nullptr);
  TimerMgr* manager = TimerMgr::getInstance();
  ASSERT_NE(manager, nullptr);
  EXPECT_EQ(manager, TimerMgr::getInstance());
  sta::Sta* timer = manager->getSta("");
  ASSERT_NE(timer, nullptr);
  EXPECT_EQ(manager->getSta("other"), nullptr);
  manager->updateTiming(false, nullptr);
  EXPECT_EQ(timer->ensureGraph(), nullptr);
  EXPECT_EQ(timer->graph(), nullptr);
}

class StaFaceTest : public timertest::TimerTest {};

TEST_F(StaFaceTest, VerticesAreFoundByThePinsIdentifierAndNoneByZeroOrPastTheEnd) {
  Load(R"(module top(in, out);
  input in; output out;
  BUF u1(.A(in), .Z(out));
endmodule)");
  sta::Sta face(&root_);
  sta::Graph* graph = face.ensureGraph();
  ASSERT_NE(graph, nullptr);
  EXPECT_EQ(face.graph(), graph);
  const sta::Vertex* vertex = graph->vertex(Id("u1/Z"));
  ASSERT_NE(vertex, nullptr);
  EXPECT_EQ(vertex->pin(), Pin("u1/Z"));
  EXPECT_TRUE(vertex->isDriver());
  EXPECT_EQ(vertex->level(), 2u);
  EXPECT_EQ(graph->vertex(0), nullptr);
  EXPECT_EQ(graph->vertex(graph->vertexCount() + 1), nullptr);
  // Slews read 0 until timing is updated.
  EXPECT_EQ(graph->slew(vertex, cdm::RiseFall::rise_, cdm::MinMax::max_->index()), 0.0f);
  face.timer()->Update(false);
  EXPECT_NEAR(graph->slew(vertex, cdm::RiseFall::rise_, 1) * 1e9, 0.05, 1e-6);
}

// Ctrl-C during an update stops it; the update counts as not done, and the
// next one computes every slew again.
TEST_F(StaFaceTest, InterruptedUpdateIsDoneAgainNextTime) {
  Load(R"(module top(in, out);
  input in; output out;
  BUF u1(.A(in), .Z(out));
endmodule)");
  sta::Sta face(&root_);
  sta::Graph* graph = face.ensureGraph();
  ASSERT_NE(graph, nullptr);
  const sta::Vertex* vertex = graph->vertex(Id("u1/Z"));
  cmdlib::RequestInterrupt();
  EXPECT_THROW(face.timer()->Update(false), cmdlib::Interrupted);
  cmdlib::ClearInterrupt();
  EXPECT_EQ(graph->slew(vertex, cdm::RiseFall::rise_, 1), 0.0f);
  face.timer()->Update(false);
  EXPECT_NEAR(graph->slew(vertex, cdm::RiseFall::rise_, 1) * 1e9, 0.05, 1e-6);
}

}  // namespace
