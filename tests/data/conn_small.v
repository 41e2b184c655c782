// Small design for the connectivity report tests.
// A buffer tree from u0/Y three stages deep: b1 (buffer) and i1 (inverter),
// then the two-output buffer d2, then i3 and b3. The tree reaches the top
// ports out2 (level 1) and out1 (level 3), the flop r0 through a
// combinational path (level 3), and crosses the boundary of h0.
// nt is tied to 0, nf floats, nd has two drivers.
module inv_block (a, y);
  input a;
  output y;
  INVX1 i0 (.A(a), .Y(y));
endmodule

module top (in1, in2, clk, out1, out2, q);
  input in1, in2, clk;
  output out1, out2, q;
  wire n0, n2, n3, n4, n5, nh, nt, nf, nd, nl, nx;
  assign nt = 1'b0;
  NAND2X1 u0 (.A(in1), .B(in2), .Y(n0));
  BUFX1 b1 (.A(n0), .Y(out2));
  INVX1 i1 (.A(n0), .Y(n2));
  NAND2X1 l0 (.A(n0), .B(nt), .Y(nl));
  BUF2OX1 d2 (.A(out2), .Y1(n3), .Y2(n4));
  INVX1 i3 (.A(n3), .Y(n5));
  BUFX1 b3 (.A(n4), .Y(out1));
  DFFX1 r0 (.D(n5), .CK(clk), .Q(q));
  inv_block h0 (.a(n2), .y(nh));
  NAND2X1 l1 (.A(nh), .B(nf), .Y(nx));
  BUFX1 m1 (.A(in1), .Y(nd));
  BUFX1 m2 (.A(in2), .Y(nd));
  INVX1 l2 (.A(nd), .Y());
endmodule
