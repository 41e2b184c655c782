// A design without ports, for report_port.
module noports;
  wire n1;
  INV u1 (.A(n1), .Z(n1));
endmodule
