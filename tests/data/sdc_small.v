// Design of the constraint tests: a top with a clock buffer, two flops,
// and two instances of a small block; the port clk and the net clk share a
// name.
module blk (a, b, y);
  input a, b;
  output y;
  wire n1;
  AND2 u_and (.A(a), .B(b), .Z(n1));
  INV u_inv (.A(n1), .Z(y));
endmodule

module sdc_top (clk, rst, in1, in2, data, out1, out2, q);
  input clk, rst, in1, in2;
  input [1:0] data;
  output out1, out2, q;
  wire w1, w2, ck_buf;
  BUF u_ckbuf (.A(clk), .Z(ck_buf));
  DFF r1 (.D(w1), .CK(ck_buf), .Q(q));
  DFF r2 (.D(data[0]), .CK(ck_buf), .Q(w2));
  XOR2 u_xor (.A(in1), .B(data[1]), .Z(w1));
  blk b1 (.a(in2), .b(w2), .y(out1));
  blk b2 (.a(rst), .b(w1), .y(out2));
endmodule
