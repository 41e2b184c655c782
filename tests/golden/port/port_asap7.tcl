# report_port -verbose over reg1 and asap7, whose units are ps, fF and
# kohm: the figures of the constraints print in those units, a delay given
# in ns too, and a later -add_delay for the same clock edge fills the other
# corners of the same delay; a driving cell whose output has a maximum
# capacitance but no minimum gives the port no derived limit; a load of 0
# and a negative minimum load of one edge.
read_liberty asap7_small.lib.gz
read_verilog reg1_asap7.v
link_design top
read_sdc port_asap7.sdc
puts "status: [report_port -verbose]"
