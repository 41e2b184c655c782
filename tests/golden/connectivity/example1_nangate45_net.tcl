# report_net over example1 and Nangate45 (default wire-load model
# 5K_hvratio_1_1): every net with its loads, levels and transition times,
# then the connections of two nets. The figures agree with an independent
# timer under the same wire-load model and a lumped-capacitance delay model.
read_liberty nangate45_typ.lib.gz
read_verilog example1.v
link_design top
report_net -transition_times -significant_digits 6
report_net -connections -verbose -significant_digits 6 {r2q u2z}
