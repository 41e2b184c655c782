// A small hierarchy for the query and link tests: `stage` is used twice.
module stage (clk, d, q);
  input clk;
  input [1:0] d;
  output [1:0] q;
  DFF_X1 r0 (.D(d[0]), .CK(clk), .Q(q[0]));
  DFF_X1 r1 (.D(d[1]), .CK(clk), .Q(q[1]));
endmodule

module chip (clk, d, q);
  input clk;
  input [1:0] d;
  output [1:0] q;
  wire [1:0] mid;
  stage u1 (.clk(clk), .d(d), .q(mid));
  stage u2 (.clk(clk), .d(mid), .q(q));
endmodule
