module m (a, a);
  input a;
endmodule
