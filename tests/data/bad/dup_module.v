module m (a);
  input a;
endmodule
module m (b);
  input b;
endmodule
