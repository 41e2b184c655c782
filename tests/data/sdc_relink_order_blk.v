// The block that sdc_relink_order.v instantiates three times.
module blk (A, Y);
  input A;
  output Y;
  BUF i0 (.A(A), .Z(Y));
endmodule
