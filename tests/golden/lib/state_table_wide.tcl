# State tables of any width are unfolded. st2 (ST2) reads both its internal
# pins back: the running row sum passes its 8 rows at 4 + 6 = 10, and one
# line ends that cell's table. st3 (ST3) has 21 bits, one input and twenty
# internal pins: A low (row 0) sets every pin high, A high (row 2^20)
# matches no line (X). l (S) reads all twenty pins back: the sum of the
# first 1449 patterns passes its 2^20 rows; only row 0 matches a line (H).
read_liberty statetable_two_used.lib
report_lib st2 -full_table
read_liberty statetable_wide21.lib
report_lib st3 -full_table
read_liberty statetable_internal20.lib
report_lib l -table
