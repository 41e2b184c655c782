// Stands a small design up over the timer test library and times it.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "db/Linker.h"
#include "graph/TimingGraph.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Root.h"
#include "liberty/LibertyReader.h"
#include "search/Timer.h"
#include "verilog/VerilogReader.h"

namespace timertest {

inline std::string DataPath(const std::string& file) {
  return std::string(KELVO_TEST_DATA) + "/" + file;
}

class TimerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_NE(liberty::ReadLibertyFile(&root_, DataPath("timer_small.lib"), error), nullptr)
        << error;
  }

  // Reads and links `text`; the timer then times it.
  cdm::Design* Load(const std::string& text) {
    std::vector<std::string> modules;
    std::string error;
    EXPECT_TRUE(verilog::ReadVerilogText(&root_, text, "t.v", modules, error)) << error;
    cdm::Design* design = cdm::FindTopDesign(&root_, error);
    EXPECT_NE(design, nullptr) << error;
    if (!design) return nullptr;
    std::vector<std::string> warnings;
    EXPECT_TRUE(cdm::LinkDesign(&root_, design, warnings, error)) << error;
    timer_ = std::make_unique<sta::Timer>(&root_);
    return design;
  }

  // The pin of a full name ("u1/Z", or a port name), which must exist.
  cdm::Pin* Pin(const std::string& name) {
    cdm::Design* design = root_.GetCurrentDesign();
    const size_t slash = name.rfind('/');
    cdm::Pin* pin = nullptr;
    if (slash == std::string::npos) {
      pin = design->FindPin(name);
    } else if (cdm::Cell* cell = design->FindCell(name.substr(0, slash))) {
      pin = cell->FindPin(name.substr(slash + 1));
    }
    EXPECT_NE(pin, nullptr) << name;
    return pin;
  }
  uint32_t Id(const std::string& name) {
    cdm::Pin* pin = Pin(name);
    return pin ? pin->GetVertexId() : 0;
  }
  uint32_t Level(const std::string& name) {
    const sta::Vertex* vertex = timer_->EnsureGraph()->vertex(Id(name));
    return vertex ? vertex->level() : 999;
  }
  // Slew in ns at a pin, max unless `mm` is 0.
  double SlewNs(const std::string& name, int rf, int mm = 1) {
    return timer_->Graph()->Slew(Id(name), rf, mm) * 1e9;
  }

  cdm::Root root_;
  std::unique_ptr<sta::Timer> timer_;
};

}  // namespace timertest
