// Gates for the switching-activity tests over activity_small.lib.
module activity_gates(clk, a, b, c, q, qn);
  input clk, a, b, c;
  output q, qn;
  wire n_and, n_or, n_xor, n_inv, t;
  assign t = 1'b0;
  A_AND2 u_and(.A(a), .B(b), .Z(n_and));
  A_OR2 u_or(.A(a), .B(c), .Z(n_or));
  A_XOR2 u_xor(.A(n_and), .B(n_or), .Z(n_xor));
  A_INV u_inv(.A(n_xor), .Z(n_inv));
  A_DFF u_ff(.D(n_inv), .CK(clk), .Q(q), .QN(qn));
endmodule
