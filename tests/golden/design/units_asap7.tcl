# report_units over asap7: picoseconds and picowatts.
read_liberty asap7_small.lib.gz
read_verilog reg1_asap7.v
link_design top
report_units
