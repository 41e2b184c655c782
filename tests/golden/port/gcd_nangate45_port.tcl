# report_port -verbose over gcd and nangate45 with the SDC a tool wrote for
# it: a named clock and one delay on every port but the clock, in ns and
# printed in the library's time unit; no drive, no transition, no load.
read_liberty nangate45_typ.lib.gz
read_verilog gcd_nangate45.v
link_design gcd
read_sdc gcd_nangate45.sdc
puts "status: [report_port -verbose]"
