// The block that sdc_relink.v instantiates as u1.
module sub (A, Y);
  input A;
  output Y;
  wire m;
  INV i0 (.A(A), .Z(m));
  BUF i1 (.A(m), .Z(Y));
endmodule
