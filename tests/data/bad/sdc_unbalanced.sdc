# A brace left open: the reading stops where its command starts; the
# commands before it stay set.
set_load 0.4 out1
set_input_delay 2 -clock clk {in1
set_load 0.5 out2
