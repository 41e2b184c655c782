// Two registers between an input and an output over timer_small.lib.
module tc(in1, clk, out1);
  input in1, clk;
  output out1;
  wire n1, q1, n2, q2;
  BUF u1(.A(in1), .Z(n1));
  DFF r1(.D(n1), .CK(clk), .Q(q1));
  INV u2(.A(q1), .Z(n2));
  DFF r2(.D(n2), .CK(clk), .Q(q2));
  BUF u3(.A(q2), .Z(out1));
endmodule
