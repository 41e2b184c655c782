# A malformed command stops the reading at its line; what came before stays.
create_clock -name clk -period 10 [get_ports clk]
set_load 0.1 out1
foreach port {in1 in2} {
  set_input_delay 1 -clock clk $port
  if {$port eq "in2"} {
    set_input_delay abc -clock clk $port
  }
}
set_load 0.2 out2
