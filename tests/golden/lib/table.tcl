# packed state tables: sequential groups, a state table without used
# internal pins, one that reads its own state through an edge input
read_liberty rptlib_full.lib
read_liberty rptlib_plain.lib
report_lib rptlib_full -table
# FFMIX: its last output reads no flop state, so the cell prints nothing;
# STNOOUT: no output reads its state, its internal pin still prints
report_lib rptlib_plain -table {BUFX2 EDGEFF FFMIX STNOOUT}
# two internal pins read back: the running row sum overruns the table,
# which ends the command with an error and prints nothing
puts "failed: [catch {report_lib rptlib_plain -table JKST} message]"
puts $message
