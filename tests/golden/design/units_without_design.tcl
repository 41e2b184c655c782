# No design: the one sentence and a failure.
report_units
