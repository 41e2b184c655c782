// Design of the port report tests: ports of every direction, a bus, and
// a header whose order differs from the order of the declarations.
module port_top (clk, out1, in1, in2, data, bidir, in3, in4, in5, in6, in7, clk2, out2,
                 out3, out4);
  input clk, clk2;
  input in1, in2, in3, in4, in5, in6, in7;
  input [1:0] data;
  inout bidir;
  output out1, out2, out3, out4;
  wire ck, n1, n2, n3, n4;
  BUF u_ck (.A(clk), .Z(ck));
  AND2 u_and (.A(in1), .B(in3), .Z(n1));
  DFF r1 (.D(n1), .CK(ck), .Q(out1));
  DFF r2 (.D(in2), .CK(clk2), .Q(out2));
  INV u_inv (.A(in4), .Z(out3));
  BUF u_b (.A(data[0]), .Z(n2));
  AND2 u_a2 (.A(data[1]), .B(n2), .Z(n3));
  AND2 u_a3 (.A(n3), .B(bidir), .Z(n4));
  AND2 u_a4 (.A(n4), .B(in5), .Z(out4));
  AND2 u_a5 (.A(in6), .B(in7), .Z(bidir));
endmodule
