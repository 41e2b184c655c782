// Netlists made to hurt the reader: concatenations nested deep, replications
// nested into huge products, ranges of a billion bits, declarations out of
// proportion to the file. Each is refused with file and line, at once and
// with nothing added, where it used to exhaust the stack or the memory.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hostapi/cdm/Root.h"
#include "verilog/VerilogReader.h"

namespace {

struct Outcome {
  bool ok;
  std::string error;
  size_t designs;
};

Outcome Read(const std::string& text) {
  cdm::Root root;
  std::vector<std::string> modules;
  Outcome outcome;
  outcome.ok = verilog::ReadVerilogText(&root, text, "t.v", modules, outcome.error);
  outcome.designs = root.Designs().size();
  return outcome;
}

// A module whose instance u connects `expr` to pin A, after `decls`.
std::string Connect(const std::string& expr, const std::string& decls = "") {
  return "module m(a);\ninput a;\n" + decls + "BUF u(.A(" + expr + "));\nendmodule\n";
}

TEST(HostileNetlist, ConcatenationsNestBounded) {
  const auto nested = [](int depth) {
    return std::string(depth, '{') + "a" + std::string(depth, '}');
  };
  EXPECT_TRUE(Read(Connect(nested(256))).ok);
  Outcome deep = Read(Connect(nested(257)));
  EXPECT_FALSE(deep.ok);
  EXPECT_EQ(deep.error, "t.v:3: concatenations nested too deeply (more than 256 levels)");
  EXPECT_EQ(deep.designs, 0u);
  Outcome deeper = Read(Connect(nested(20000)));
  EXPECT_EQ(deeper.error, deep.error);
}

TEST(HostileNetlist, ReplicationsAreBoundedAsAProduct) {
  const std::string limit = "t.v:3: a concatenation of more than 1048576 bits";
  EXPECT_EQ(Read(Connect("{4096{{4096{{4096{a}}}}}}")).error, limit);
  EXPECT_EQ(Read(Connect("{1024{{1025{a}}}}")).error, limit);
  // Constants count with their bits.
  EXPECT_EQ(Read(Connect("{2{1048576'b0}}")).error, limit);
  EXPECT_EQ(Read(Connect("{1048576'b0, a}")).error, limit);
  Outcome small = Read(Connect("{2{{3{a}}, 4'b0101}}", "wire [1:0] w;\n"));
  EXPECT_TRUE(small.ok) << small.error;
  // Names count as one bit in the parser; their width is counted when the
  // connection is made.
  std::string names = "w";
  for (int i = 0; i < 1024; ++i) names += ", w";
  Outcome wide = Read(Connect("{" + names + "}", "wire [1023:0] w;\n"));
  EXPECT_EQ(wide.error, "t.v:4: a connection of more than 1048576 bits");
  EXPECT_EQ(wide.designs, 0u);
}

TEST(HostileNetlist, RangesAreBounded) {
  Outcome negative = Read("module m(a);\ninput a;\nwire [-999999999:0] w;\nendmodule\n");
  EXPECT_EQ(negative.error,
            "t.v:3: range [-999999999:0] is 1000000000 bits wide, more than 1048576");
  Outcome huge = Read("module m(a);\ninput [999999999:-999999999] a;\nendmodule\n");
  EXPECT_EQ(huge.error,
            "t.v:2: range [999999999:-999999999] is 1999999999 bits wide, more than "
            "1048576");
  Outcome header = Read("module m(input [1048576:0] a);\nendmodule\n");
  EXPECT_EQ(header.error, "t.v:1: range [1048576:0] is 1048577 bits wide, more than 1048576");
  EXPECT_TRUE(Read("module m(a);\ninput a;\nwire [0:1023] w;\nendmodule\n").ok);
}

TEST(HostileNetlist, DeclarationsStayInProportionToTheFile) {
  // Two ranges of 2^20 bits are what any file may declare; a third passes
  // the budget of a file this small, before anything of it is built.
  Outcome many = Read("module m(a);\ninput a;\nwire [1048575:0] w0, w1, w2;\nendmodule\n");
  EXPECT_FALSE(many.ok);
  EXPECT_EQ(
      many.error.rfind("t.v:3: the nets declared so far hold 3145729 bits, more than the ", 0), 0u)
      << many.error;
  EXPECT_NE(many.error.find(" that a file of this size may declare"), std::string::npos);
  EXPECT_EQ(many.designs, 0u);
  // The header's own declarations count too.
  Outcome header = Read("module m(input [1048575:0] a, b, c);\nendmodule\n");
  EXPECT_EQ(header.error.rfind("t.v:1: the nets declared so far hold 3145728 bits", 0), 0u)
      << header.error;
}

}  // namespace
