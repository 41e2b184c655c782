# packed state tables: sequential groups, a state table without used
# internal pins, one that reads its own state through an edge input
read_liberty rptlib_full.lib
read_liberty rptlib_plain.lib
report_lib rptlib_full -table
# FFMIX: its last output reads no flop state, so the cell prints nothing;
# STNOOUT: no output reads its state, its internal pin still prints
report_lib rptlib_plain -table {BUFX2 EDGEFF FFMIX STNOOUT}
# two internal pins read back: the running row sum passes the last row on
# the last input pattern (60 + 6 = 66 of 64 rows); the cell's table ends
# with one line there, and the next cell follows
report_lib rptlib_plain -table {JKST EDGEFF}
