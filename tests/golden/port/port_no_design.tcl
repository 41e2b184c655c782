# report_port without a current design, and on a design without ports.
puts "status: [report_port]"
read_liberty port_small.lib
read_verilog port_noports.v
link_design noports
puts "status: [report_port -verbose]"
