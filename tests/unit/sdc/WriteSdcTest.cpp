// write_sdc writes every option the commands set, and what it writes reads
// back to the same store: into another design with the same netlist, and
// on top of the same constraints.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "sdc/SdcWriter.h"
#include "support/SdcTestUtil.h"

namespace {

// Two registers between an input and an output.
std::string Netlist(const std::string& top) {
  return "module " + top + R"( (in1, clk, out1);
  input in1, clk; output out1; wire n1, q1, n2, q2;
  BUF u1 (.A(in1), .Z(n1));
  DFF r1 (.D(n1), .CK(clk), .Q(q1));
  INV u2 (.A(q1), .Z(n2));
  DFF r2 (.D(n2), .CK(clk), .Q(q2));
  BUF u3 (.A(q2), .Z(out1));
endmodule)";
}

class WriteSdcTest : public sdctest::SdcShellTest {
 protected:
  // What write_sdc gives for the current design, without its first line
  // (which names the design).
  static std::string Written() {
    std::ostringstream out;
    sta::sdc::SdcWriter(Store(), out).Write();
    const std::string text = out.str();
    return text.substr(text.find('\n') + 1);
  }
  // Reads `text` as an SDC file into the current design.
  void Read(const std::string& text) {
    const std::string path = ::testing::TempDir() + "write_sdc_test.sdc";
    std::ofstream(path) << text;
    Eval("read_sdc " + path);
    std::remove(path.c_str());
  }
};

TEST_F(WriteSdcTest, EachOptionIsWrittenAndReadsBackToTheSameStore) {
  // Each command, and the line write_sdc gives for it.
  const std::vector<std::pair<const char*, const char*>> commands = {
      {"create_clock -name clk -period 10 -waveform {1 6} clk",
       "create_clock -name {clk} -period 10 -waveform {1 6} [get_ports {clk}]"},
      {"create_clock -name vclk -period 4", "create_clock -name {vclk} -period 4 -waveform {0 2}"},
      {"create_generated_clock -name gen -source clk -multiply_by 2 -invert r1/Q",
       "create_generated_clock -name {gen} -source [get_ports {clk}] -master_clock [get_clocks "
       "{clk}] -multiply_by 2 -invert [get_pins {r1/Q}]"},
      {"create_generated_clock -name ed -source clk -edges {1 3 5} -edge_shift {0 1 0} r2/Q",
       "create_generated_clock -name {ed} -source [get_ports {clk}] -master_clock [get_clocks "
       "{clk}] -edges {1 3 5} -edge_shift {0 1 0} [get_pins {r2/Q}]"},
      {"set_clock_latency -source -early -fall 0.3 [get_clocks clk]",
       "set_clock_latency -source -fall -min 0.3 [get_clocks {clk}]"},
      {"set_clock_uncertainty -rise_from clk -fall_to vclk -setup 0.2",
       "set_clock_uncertainty -setup -rise_from [get_clocks {clk}] -fall_to [get_clocks {vclk}] "
       "0.2"},
      {"set_clock_transition -rise -min 0.05 [get_clocks clk]",
       "set_clock_transition -rise -min 0.05 [get_clocks {clk}]"},
      {"set_clock_groups -asynchronous -group clk -group {vclk gen}",
       "set_clock_groups -name {group_1} -asynchronous -group [get_clocks {clk}] -group "
       "[get_clocks {vclk gen}]"},
      {"set_input_delay 0.5 -clock vclk -clock_fall -rise -min in1",
       "set_input_delay -rise -min 0.5 -clock [get_clocks {vclk}] -clock_fall -add_delay "
       "[get_ports {in1}]"},
      {"set_output_delay 0.7 -clock clk -network_latency_included out1",
       "set_output_delay 0.7 -clock [get_clocks {clk}] -network_latency_included -add_delay "
       "[get_ports {out1}]"},
      {"set_load -pin_load -max -rise 0.02 out1",
       "set_load -pin_load -rise -max 0.02 [get_ports {out1}]"},
      {"set_load -subtract_pin_load 0.03 [get_nets n1]",
       "set_load -subtract_pin_load 0.03 [get_nets {n1}]"},
      {"set_driving_cell -lib_cell DFF -from_pin CK -dont_scale -no_design_rule "
       "-input_transition_rise 0.1 -input_transition_fall 0.2 in1",
       "set_driving_cell -lib_cell {DFF} -library {timer_small} -from_pin {CK} -dont_scale "
       "-no_design_rule -input_transition_rise 0.1 -input_transition_fall 0.2 [get_ports {in1}]"},
      {"set_input_transition -rise -max 0.15 in1",
       "set_input_transition -rise -max 0.15 [get_ports {in1}]"},
      {"set_logic_zero in1", "set_logic_zero [get_ports {in1}]"},
      {"set_case_analysis rise u2/A", "set_case_analysis rising [get_pins {u2/A}]"},
      {"set_ideal_network -no_propagate n2", "set_ideal_network -no_propagate [get_pins {u2/Z}]"},
      {"set_max_transition 0.3 out1", "set_max_transition 0.3 [get_ports {out1}]"},
      {"set_false_path -fall_from clk -rise_to out1 -hold",
       "set_false_path -hold -fall_from [get_clocks {clk}] -rise_to [get_ports {out1}]"},
      {"set_max_delay 3 -ignore_clock_latency -from in1",
       "set_max_delay 3 -ignore_clock_latency -from [get_ports {in1}]"},
      {"group_path -default -weight 3 -to out1",
       "group_path -default -weight 3 -to [get_ports {out1}]"},
      {"set_disable_timing [get_lib_pins timer_small/INV/A]",
       "set_disable_timing [get_lib_pins {timer_small/INV/A}]"},
      {"set_hierarchy_separator |", "set_hierarchy_separator |"},
  };
  Load(Netlist("write_a"), "write_a");
  for (const auto& [command, line] : commands) Eval(command);
  const std::string written = Written();
  for (const auto& [command, line] : commands)
    EXPECT_NE(written.find(std::string(line) + "\n"), std::string::npos) << command << "\nwrote:\n"
                                                                         << written;
  EXPECT_EQ(Printed(), "");

  Load(Netlist("write_b"), "write_b");
  Read(written);
  EXPECT_EQ(Written(), written) << "another design with the same netlist";
  Read(written);
  EXPECT_EQ(Written(), written) << "on top of the same constraints";
}

// Escaped names may hold what a Tcl list reads otherwise: a backslash, a
// brace, a quote, a semicolon. Each reads back as the name it was.
TEST_F(WriteSdcTest, NamesThatAreNoPlainListElementsReadBack) {
  auto netlist = [](const std::string& top) {
    return "module " + top + R"( (\a{b , \e\f , \g;h , clk, \c}d , \x"y );
  input \a{b , \e\f , \g;h , clk; output \c}d , \x"y ;
  BUF u1 (.A(\a{b ), .Z(\c}d ));
  BUF \u\2 (.A(\e\f ), .Z(\x"y ));
endmodule)";
  };
  Load(netlist("escaped_a"), "escaped_a");
  Eval("create_clock -name {odd\\clk} -period 10 clk");
  Eval("set_input_delay 1 -clock [all_clocks] [remove_from_collection [all_inputs] clk]");
  Eval("set_load 0.1 [all_outputs]");
  Eval("set_case_analysis 0 [get_pins -of_objects [get_cells -quiet *2]]");
  const std::string written = Written();
  for (const char* port : {"a{b", "e\\f", "g;h"})
    EXPECT_NE(Store().FindPin(Pin(port)), nullptr) << port;
  Load(netlist("escaped_b"), "escaped_b");
  Read(written);
  EXPECT_EQ(Printed(), "") << "no name went unmatched";
  EXPECT_EQ(Written(), written);
  const sta::sdc::InputDelaySet* delays = Sdc()->getInputDelays(Pin("e\\f"));
  ASSERT_NE(delays, nullptr);
  EXPECT_EQ(delays->front()->getClock()->Name(), "odd\\clk");
}

}  // namespace
