// Commands about what comes in from outside (drives, input transitions,
// input delays, logic values) leave out ports that are no inputs, and
// set_output_delay ports that are no outputs, each with a warning; the other
// objects of the command are set, inout ports and cell pins alike.
#include <gtest/gtest.h>

#include <functional>

#include "support/SdcTestUtil.h"

namespace {

using cdm::MinMax;
using cdm::RiseFall;

// An input, an output and an inout port; `top` names the module, as a
// module once read stays.
class PortDirectionTest : public sdctest::SdcShellTest {
 protected:
  void LoadDesign(const std::string& top) {
    Load("module " + top + R"( (in, out, bidi);
  input in; output out; inout bidi;
  BUF u1 (.A(in), .Z(out));
  BUF u2 (.A(bidi), .Z(bidi));
endmodule)",
         top);
    Eval("create_clock -name clk -period 10");
    Printed();
  }
  const sta::sdc::PortConstraints* PortRecord(const char* name) {
    return Store().FindPort(Port(name));
  }
};

TEST_F(PortDirectionTest, InputCommandsLeaveOutOutputPortsAndSetTheRest) {
  const std::vector<std::pair<std::string, std::function<bool(const char*)>>> commands = {
      {"set_driving_cell -lib_cell BUF",
       [&](const char* port) {
         const sta::sdc::PortConstraints* record = PortRecord(port);
         return record && record->drive &&
                record->drive->getDriveCell(RiseFall::rise_, MinMax::max_) != nullptr;
       }},
      {"set_drive 100",
       [&](const char* port) {
         const sta::sdc::PortConstraints* record = PortRecord(port);
         return record && record->drive &&
                record->drive->hasDriveResistance(RiseFall::fall_, MinMax::min_);
       }},
      {"set_input_transition 0.2",
       [&](const char* port) {
         const sta::sdc::PortConstraints* record = PortRecord(port);
         float slew = 0.0f;
         bool exists = false;
         if (record && record->drive)
           record->drive->getSlew(RiseFall::rise_, MinMax::max_, slew, exists);
         return exists;
       }},
      {"set_input_delay 1 -clock clk",
       [&](const char* port) { return Sdc()->getInputDelays(Pin(port)) != nullptr; }},
      {"set_logic_one",
       [&](const char* port) {
         const sta::sdc::PortConstraints* record = PortRecord(port);
         return record && record->logic.has_value();
       }},
  };
  for (size_t i = 0; i < commands.size(); ++i) {
    const auto& [command, is_set] = commands[i];
    LoadDesign("dir_in" + std::to_string(i));
    Eval(command + " {in out bidi}");
    const std::string name = command.substr(0, command.find(' '));
    EXPECT_EQ(Printed(),
              "Warning: " + name + ": port 'out' is no input port; it is left out. (SDC_008)\n");
    EXPECT_FALSE(is_set("out")) << command;
    EXPECT_TRUE(is_set("in")) << command;
    EXPECT_TRUE(is_set("bidi")) << command;
  }
}

TEST_F(PortDirectionTest, OutputDelaysLeaveOutInputPortsButTakeCellPins) {
  LoadDesign("dir_out");
  Eval("set_output_delay 2 -clock clk [get_ports *]");
  EXPECT_EQ(Printed(),
            "Warning: set_output_delay: port 'in' is no output port; it is left out. (SDC_008)\n");
  EXPECT_EQ(Sdc()->getOutputDelays(Pin("in")), nullptr);
  EXPECT_NE(Sdc()->getOutputDelays(Pin("out")), nullptr);
  EXPECT_NE(Sdc()->getOutputDelays(Pin("bidi")), nullptr);
  // Pins of cells have no port direction to check.
  Eval("set_output_delay 1 -clock clk u1/A");
  Eval("set_input_delay 1 -clock clk u1/Z");
  EXPECT_EQ(Printed(), "");
  EXPECT_NE(Sdc()->getOutputDelays(Pin("u1/A")), nullptr);
  EXPECT_NE(Sdc()->getInputDelays(Pin("u1/Z")), nullptr);
}

}  // namespace
