# The group table over power_small.lib: clk toggles twice a period (10 ns),
# every other net 0.1 times a period with probability 0.5 (the inputs'
# default, which the buffers, the inverter and the flop pass on). By hand,
# each energy table charged at its arc's whole rate: f1 CK 2e8 x 3 pJ + Q
# 1e7 x 6 pJ = 6.6e-4 W; u1 1e7 x (1.5 + 1.25) pJ, the rise table at na's
# rising slew 0.1, the fall table at its falling slew 0.3; u2 A 1e7 x 0.5 x
# 4 pJ + B 1e7 x 0.5 x 8 pJ; switching 0.5 C V^2 x 1e7 on na (0.015 pF),
# nb (0.01 pF at 2 V), n1 (0.015 pF); leakage 1 + 2 + 3 + 5 + 7 nW, the
# macro 100, the pad 50.
read_liberty power_small.lib
read_verilog power_small.v
link_design pw
create_clock -period 10 [get_ports clk]
report_power
