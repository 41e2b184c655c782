// The command table: commands enter it on construction and leave it when a
// constructor fails half-way, so that no Tcl command points at a dead object.
#include <gtest/gtest.h>

#include <stdexcept>

#include "cmdlib/CommandTable.h"
#include "hostapi/cmd/CommonCmd.h"

namespace {

class Plain : public CommonCmd {
 public:
  explicit Plain(const char* name) : CommonCmd(name, "kept", nullptr) {}
  int exec() override { return 0; }
};

class Thrower : public CommonCmd {
 public:
  Thrower() : CommonCmd("table_thrower", "never finished", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    throw std::runtime_error("option table refused");
  }
  int exec() override { return 0; }
};

TEST(CommandTable, FailedConstructionLeavesNoEntry) {
  auto& table = cmdlib::CommandTable::Get();
  Plain* before = new Plain("table_before");
  EXPECT_THROW(new Thrower(), std::runtime_error);
  Plain* after = new Plain("table_after");
  EXPECT_EQ(table.Find("table_thrower"), nullptr);
  EXPECT_EQ(table.Find("table_before"), before);
  EXPECT_EQ(table.Find("table_after"), after);
  EXPECT_EQ(after->description(), "kept");
}

}  // namespace
