# The group table over power_small.lib with every net at the default
# activity (0.1 toggles a period of clk, 10 ns) and clk twice a period:
# each figure is worked out by hand in docs/power.md.
read_liberty power_small.lib
read_verilog power_small.v
link_design pw
create_clock -period 10 [get_ports clk]
report_power
