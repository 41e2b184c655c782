# Bytes that are no text: not a command either.
ÿþý set_load 0.4 out1
