# Net wire figures from the wire-load model in force (report_net's Load and
# Resist columns; pin loads: BUF/A 0.01, DFF/CK 0.02, DFF/D and AND2/B 0.01,
# ports 0). Library sdc_small: small (C 0.01, R 0.5 per unit; lengths 1, 2,
# then 3 at fan-out 4), big (C 0.02, R 1; lengths 2 at 1, 6 at 3, so 4 at
# 2), flat (C 0.01, R 1; slope 2 only). Design area 23 selects big, the
# area 3 of a blk instance selects small.
source ../golden/sdc/show_sdc.tcl
proc wires {title} {
  redirect -variable text { report_net {clk ck_buf w1 out1 b1/n1} }
  puts "--- $title"
  foreach line [split $text \n] {
    if {[regexp {^(Wire Load Model Mode:|sdc_top|b1/n1|ck_buf|clk|out1|w1) } $line]} { puts $line }
  }
}
wires "the library's default model"
set_wire_load_selection_group by_area
wires "chosen by the design's area"
set_wire_load_model -name flat
wires "set on the design"
set_wire_load_model -name small
set_wire_load_model -name flat -max [get_ports out1]
wires "small set on the design, flat on the port out1"
set_wire_load_mode enclosed
wires "enclosed: w1 and out1 span the top (small, and flat at out1), b1/n1 lies in b1 (by area, small)"
set_wire_load_model -name big [get_cells b2]
set_wire_load_model -name big [get_cells b1]
wires "enclosed, b1 and b2 set to big"
set_wire_load_mode segmented
wires "segmented: w1 is 2 loads at the top (small) and 1 in b2 (big); out1 1 in b1 (big) and 1 at the top (flat)"
