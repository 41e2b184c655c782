// Loops for the connectivity walks: a ring of two buffers (a, b) with an
// inverter hanging off it, and a ring through a NAND gate and an inverter.
module loops (in1, out1);
  input in1;
  output out1;
  wire r1, r2, n0, n1;
  BUFX1 a (.A(r1), .Y(r2));
  BUFX1 b (.A(r2), .Y(r1));
  INVX1 l (.A(r2), .Y(out1));
  NAND2X1 g (.A(in1), .B(n1), .Y(n0));
  INVX1 f (.A(n0), .Y(n1));
endmodule
