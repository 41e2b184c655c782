# A library whose default_wire_load_selection and default_wire_load_mode
# say how to choose: the model is chosen by the design's area (23: big)
# rather than the library's default_wire_load (small), the mode is
# segmented, and the net figures follow both. w1 has 2 loads at the top
# (r1/D and the pin b2/b: big, length 4, C 0.08, R 4) and 1 in b2 (area 3:
# small, length 1, C 0.01, R 0.5), and pin loads 0.01 + 0.01: Load 0.11,
# Resist 4.5. set_wire_load_mode and set_wire_load_model come first: top
# and small give w1 length 2, C 0.02 + 0.02, R 1.
read_liberty sdc_defaults.lib
read_verilog sdc_small.v
link_design sdc_top
report_design
proc w1 {} {
  redirect -variable text { report_net w1 }
  foreach line [split $text \n] {
    if {[regexp {^(Wire Load Model Mode:|sdc_top|w1) } $line]} { puts $line }
  }
}
w1
puts "--- set_wire_load_mode top, set_wire_load_model small"
set_wire_load_mode top
set_wire_load_model -name small
w1
