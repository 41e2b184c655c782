# report_port -drive: without any driving cell only the drive table of the
# input side, without banner; with the constraints the driving cells come
# first; a list of outputs only gives both tables without rows; -drive with
# -verbose prints the whole verbose report and the banner line of -drive.
read_liberty port_small.lib
read_verilog port_small.v
link_design port_top
puts "status: [report_port -drive {in1 out1 bidir}]"
read_sdc port_small.sdc
puts "status: [report_port -drive]"
puts "status: [report_port -drive {out1 out2}]"
puts "status: [report_port -drive -verbose {in5 out3}]"
