# Warnings name the file and line and let the rest apply; an error names the
# file and line, stops the reading and keeps what was set before it. A
# gzipped file reads like a plain one; a missing file and errors at the
# prompt fail without a location.
source ../golden/sdc/show_sdc.tcl
read_sdc sdc_warnings.sdc
puts "--- errors"
if {[catch {read_sdc sdc_errors.sdc} message]} { puts $message }
puts "delays on in1: [sizeof_collection [all_inputs -clock clk]]"
if {[catch {read_sdc nosuch.sdc} message]} { puts $message }
if {[catch {set_load abc out1} message]} { puts $message }
if {[catch {set_load 0.1} message]} { puts $message }
if {[catch {set_load -bogus 0.1 out1} message]} { puts $message }
if {[catch {create_clock -period -2 clk} message]} { puts $message }
if {[catch {set_case_analysis maybe in1} message]} { puts $message }
if {[catch {set_units -time parsec} message]} { puts $message }
puts "--- gzipped"
read_sdc sdc_small.sdc.gz
show_sdc
