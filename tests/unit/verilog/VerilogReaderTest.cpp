#include <gtest/gtest.h>
#include <zlib.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "db/Netlist.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Root.h"
#include "verilog/VerilogReader.h"

namespace {

using cdm::Design;

class VerilogReaderTest : public ::testing::Test {
 protected:
  bool Read(const std::string& text, const std::string& file = "t.v") {
    modules_.clear();
    error_.clear();
    return verilog::ReadVerilogText(&root_, text, file, modules_, error_);
  }
  Design* D(const std::string& name) { return root_.FindDesign(name); }
  std::vector<std::string> PortNames(Design* design) {
    std::vector<std::string> names;
    for (cdm::Port* port : design->Ports()) names.push_back(port->Name());
    return names;
  }
  // The net the reader made for a bit of the connection `conn` of cell `cell`.
  cdm::ConnSource Conn(Design* design, size_t cell, size_t conn) {
    cdm::ModuleSource::Cursor cursor(design->GetNetlist()->Source());
    uint32_t line = 0, count = 0;
    cdm::ConnSource c;
    for (size_t i = 0; i <= cell; ++i) {
      EXPECT_TRUE(cursor.NextInstance(line, count));
      for (uint32_t k = 0; k < count; ++k) {
        cursor.NextConnection(c, k);
        if (i == cell && k == conn) return c;
      }
    }
    ADD_FAILURE() << "no connection " << conn << " of cell " << cell;
    return c;
  }
  std::vector<int32_t> ConnBits(Design* design, size_t cell, size_t conn) {
    return Conn(design, cell, conn).bits;
  }
  std::string NetName(Design* design, int32_t index) {
    return design->GetNetlist()->Nets()[index].Name();
  }

  cdm::Root root_;
  std::vector<std::string> modules_;
  std::string error_;
};

TEST_F(VerilogReaderTest, NonAnsiPortsWithRangesKeepHeaderOrder) {
  ASSERT_TRUE(
      Read("module m (y, a, b);\n input [3:0] a;\n input b;\n output [0:1] y;\n"
           " wire [3:0] a;\nendmodule\n"))
      << error_;
  Design* m = D("m");
  ASSERT_NE(m, nullptr);
  EXPECT_EQ(PortNames(m),
            (std::vector<std::string>{"y[0]", "y[1]", "a[3]", "a[2]", "a[1]", "a[0]", "b"}));
  EXPECT_EQ(m->FindPort("y[1]")->GetDirection(), cdm::kDirOutput);
  EXPECT_EQ(m->FindPort("b")->GetDirection(), cdm::kDirInput);
  std::unique_ptr<cdm::Iterator<cdm::DesignPortBus>> buses(m->PortBusIter());
  cdm::DesignPortBus* first = buses->Next();
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first->Name(), "y");
  EXPECT_EQ(first->From(), 0);
  EXPECT_EQ(first->To(), 1);
  EXPECT_EQ(first->Width(), 2);
  EXPECT_EQ(buses->Next()->Name(), "a");
  EXPECT_FALSE(buses->HasNext());
  // A port re-declared as a wire makes no net bus.
  std::unique_ptr<cdm::Iterator<cdm::DesignNetBus>> nets(m->NetBusIter());
  EXPECT_FALSE(nets->HasNext());
}

TEST_F(VerilogReaderTest, AnsiHeaderDeclaresPorts) {
  ASSERT_TRUE(Read("module m (input wire [1:0] a, b, output y, inout z);\nendmodule")) << error_;
  Design* m = D("m");
  EXPECT_EQ(PortNames(m), (std::vector<std::string>{"a[1]", "a[0]", "b[1]", "b[0]", "y", "z"}));
  EXPECT_EQ(m->FindPort("b[0]")->GetDirection(), cdm::kDirInput);
  EXPECT_EQ(m->FindPort("z")->GetDirection(), cdm::kDirInout);
  EXPECT_EQ(m->PortCount(), 6u);
}

TEST_F(VerilogReaderTest, ConnectionsByNameAndPositionWithSelectsAndConcatenation) {
  ASSERT_TRUE(
      Read("module m (a, y);\n input [3:0] a; output y;\n wire [7:0] w;\n"
           " X u1 (.A(a[2]), .B(a[3:2]), .C({w[0], y}), .D(), .E({2{a[1]}}),\n"
           "       .F({2{a[0], {2{w[1]}}}}));\n"
           " X u2 (y, , a);\nendmodule"))
      << error_;
  Design* m = D("m");
  ASSERT_EQ(m->CellCount(), 2u);
  auto bits = ConnBits(m, 0, 0);
  ASSERT_EQ(bits.size(), 1u);
  EXPECT_EQ(NetName(m, bits[0]), "a[2]");
  bits = ConnBits(m, 0, 1);
  ASSERT_EQ(bits.size(), 2u);
  EXPECT_EQ(NetName(m, bits[0]), "a[3]");
  EXPECT_EQ(NetName(m, bits[1]), "a[2]");
  bits = ConnBits(m, 0, 2);
  ASSERT_EQ(bits.size(), 2u);
  EXPECT_EQ(NetName(m, bits[0]), "w[0]");
  EXPECT_EQ(NetName(m, bits[1]), "y");
  EXPECT_TRUE(ConnBits(m, 0, 3).empty());
  bits = ConnBits(m, 0, 4);
  ASSERT_EQ(bits.size(), 2u);
  EXPECT_EQ(bits[0], bits[1]);
  // A replication inside a replication: the items in order, each time.
  bits = ConnBits(m, 0, 5);
  std::vector<std::string> names;
  for (int32_t bit : bits) names.push_back(NetName(m, bit));
  EXPECT_EQ(names, (std::vector<std::string>{"a[0]", "w[1]", "w[1]", "a[0]", "w[1]", "w[1]"}));
  // By position: the empty hole is kept, the whole vector gives 4 bits.
  EXPECT_EQ(ConnBits(m, 1, 0).size(), 1u);
  EXPECT_TRUE(ConnBits(m, 1, 1).empty());
  EXPECT_EQ(ConnBits(m, 1, 2).size(), 4u);
  EXPECT_EQ(Conn(m, 1, 0).port, nullptr);
  std::unique_ptr<cdm::Iterator<cdm::DesignNetBus>> nets(m->NetBusIter());
  cdm::DesignNetBus* w = nets->Next();
  ASSERT_NE(w, nullptr);
  EXPECT_EQ(w->Name(), "w");
  EXPECT_EQ(w->From(), 7);
  EXPECT_EQ(w->To(), 0);
}

TEST_F(VerilogReaderTest, ConstantsInConnections) {
  ASSERT_TRUE(
      Read("module m ();\n X u1 (.A(1'b0), .B(1'b1), .C(1'bx), .D(2'b1z), .E(4'hA));\n"
           "endmodule"))
      << error_;
  Design* m = D("m");
  EXPECT_EQ(ConnBits(m, 0, 0), (std::vector<int32_t>{cdm::kBitConst0}));
  EXPECT_EQ(ConnBits(m, 0, 1), (std::vector<int32_t>{cdm::kBitConst1}));
  EXPECT_EQ(ConnBits(m, 0, 2), (std::vector<int32_t>{cdm::kBitOpen}));
  EXPECT_EQ(ConnBits(m, 0, 3), (std::vector<int32_t>{cdm::kBitConst1, cdm::kBitOpen}));
  EXPECT_EQ(ConnBits(m, 0, 4), (std::vector<int32_t>{cdm::kBitConst1, cdm::kBitConst0,
                                                     cdm::kBitConst1, cdm::kBitConst0}));
}

TEST_F(VerilogReaderTest, AssignMergesNetsAndTiesConstants) {
  ASSERT_TRUE(
      Read("module m (a, y, z);\n input a; output y; output [1:0] z;\n wire n1, n2;\n"
           " assign n1 = a, y = n1;\n assign z = 2'b10;\n supply0 gnd;\n"
           " wire k = n2;\nendmodule"))
      << error_;
  Design* m = D("m");
  cdm::Net* a = m->FindNet("a");
  ASSERT_NE(a, nullptr);
  // One net for a, n1 and y, named after the first port.
  EXPECT_EQ(m->FindNet("n1"), a);
  EXPECT_EQ(m->FindNet("y"), a);
  EXPECT_EQ(a->Name(), "a");
  EXPECT_EQ(m->FindNet("k"), m->FindNet("n2"));
  EXPECT_EQ(m->FindNet("z[1]")->LocalConstValue(), 1);
  EXPECT_EQ(m->FindNet("z[0]")->LocalConstValue(), 0);
  EXPECT_EQ(m->FindNet("gnd")->LocalConstValue(), 0);
  EXPECT_EQ(a->LocalConstValue(), -1);
  // a(+n1,y), z[1], z[0], n2(+k), gnd
  EXPECT_EQ(m->NetCount(), 5u);
}

TEST_F(VerilogReaderTest, EscapedNamesImplicitNetsAndAttributes) {
  ASSERT_TRUE(
      Read("(* arithmetic_operator, src = \"x.v:3\" *)\nmodule \\op$add ( \\a[0] );\n"
           " input \\a[0] ;\n (* dont_touch *) X \\u/1 (.A(\\a[0] ), .B(undeclared));\n"
           "endmodule\nmodule plain (); endmodule"))
      << error_;
  EXPECT_EQ(modules_, (std::vector<std::string>{"op$add", "plain"}));
  Design* op = D("op$add");
  ASSERT_NE(op, nullptr);
  EXPECT_TRUE(op->IsOperDesign());
  EXPECT_FALSE(D("plain")->IsOperDesign());
  const cdm::Attribute* src = nullptr;
  for (const cdm::Attribute& attribute : *op->Attributes())
    if (attribute.name == "src") src = &attribute;
  ASSERT_NE(src, nullptr);
  EXPECT_EQ(src->text, "x.v:3");
  EXPECT_EQ(op->FindPort("a[0]")->GetBus(), nullptr);
  cdm::Cell* cell = op->FindCell("u/1");
  ASSERT_NE(cell, nullptr);
  EXPECT_TRUE(cell->HasAttribute(cdm::AttrId::kDontTouch));
  EXPECT_NE(op->FindNet("undeclared"), nullptr);
  EXPECT_EQ(op->Owner()->Name(), "t.v");
}

TEST_F(VerilogReaderTest, ParametersAndMultipleInstancesPerStatement) {
  ASSERT_TRUE(
      Read("module m #(parameter W = 2) (a);\n input a;\n parameter P = 3;\n"
           " X #(.N(2)) u1 (.A(a)), u2 (.A(a));\nendmodule"))
      << error_;
  EXPECT_EQ(D("m")->CellCount(), 2u);
  EXPECT_NE(D("m")->FindCell("u2"), nullptr);
}

struct BadCase {
  const char* name;
  const char* text;
  unsigned line;
  const char* words;
};

class VerilogReaderErrorTest : public VerilogReaderTest,
                               public ::testing::WithParamInterface<BadCase> {};

TEST_P(VerilogReaderErrorTest, NamesFileAndLineAndLoadsNothing) {
  const BadCase& bad = GetParam();
  // A good module comes first: it must not stay behind.
  std::string text = std::string("module good (a);\n input a;\nendmodule\n") + bad.text;
  EXPECT_FALSE(Read(text, "bad.v"));
  std::string expected = "bad.v:" + std::to_string(bad.line + 3) + ": ";
  EXPECT_EQ(error_.substr(0, expected.size()), expected) << error_;
  EXPECT_NE(error_.find(bad.words), std::string::npos) << error_;
  EXPECT_EQ(root_.FindDesign("good"), nullptr);
  EXPECT_TRUE(root_.Designs().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Cases, VerilogReaderErrorTest,
    ::testing::Values(
        BadCase{"Always", "module m (a);\n input a;\n always @(a) begin end\nendmodule", 3,
                "'always' is not structural"},
        BadCase{"Reg", "module m (q);\n output reg q;\nendmodule", 2, "'reg'"},
        BadCase{"Operator", "module m (a, y);\n input a; output y;\n assign y = ~a;\nendmodule", 3,
                "net expression"},
        BadCase{"MissingSemicolon", "module m (a);\n input a\n wire b;\nendmodule", 3, "';'"},
        BadCase{"MissingEndmodule", "module m (a);\n input a;\n", 3, "endmodule"},
        BadCase{"UnknownBitSelect", "module m ();\n X u (.A(w[1]));\nendmodule", 2,
                "unknown net 'w'"},
        BadCase{"BitOutOfRange", "module m ();\n wire [3:0] w;\n X u (.A(w[4]));\nendmodule", 3,
                "outside 'w[3:0]'"},
        BadCase{"SelectOfScalar", "module m ();\n wire w;\n X u (.A(w[0]));\nendmodule", 3,
                "scalar"},
        BadCase{"DuplicateInstance", "module m ();\n X u ();\n X u ();\nendmodule", 3,
                "instance 'u' is defined twice"},
        BadCase{"DuplicatePort", "module m ();\n X u (.A(), .A());\nendmodule", 2,
                "connected twice"},
        BadCase{"DuplicateModule", "module good ();\nendmodule", 1, "defined twice"},
        BadCase{"PortWithoutDirection", "module m (a, b);\n input a;\nendmodule", 3,
                "port 'b' of module 'm' has no direction"},
        BadCase{"DirectionNotInList", "module m (a);\n input a, b;\nendmodule", 3,
                "'b' is declared input but is not in the port list"},
        BadCase{"TwiceDeclared", "module m ();\n wire a;\n wire a;\nendmodule", 3,
                "declared twice"},
        BadCase{"TiedBothWays",
                "module m ();\n wire a;\n assign a = 1'b0;\n assign a = 1'b1;\n"
                "endmodule",
                4, "tied to both"},
        BadCase{"BadNumber", "module m ();\n X u (.A(4'b2));\nendmodule", 2, "malformed number"},
        BadCase{"InstanceArray", "module m ();\n X u[3:0] ();\nendmodule", 2, "arrays"},
        BadCase{"Macro", "`define W 4\n", 1, "directive"},
        BadCase{"Garbage", "wire a;\n", 1, "expected 'module'"}),
    [](const ::testing::TestParamInfo<BadCase>& info) { return info.param.name; });

TEST_F(VerilogReaderTest, SecondFileMayNotRedefineAModule) {
  ASSERT_TRUE(Read("module a (); endmodule", "one.v"));
  EXPECT_FALSE(Read("module b (); endmodule\nmodule a (); endmodule", "two.v"));
  EXPECT_NE(error_.find("two.v:2: module 'a' is already loaded"), std::string::npos) << error_;
  EXPECT_EQ(root_.FindDesign("b"), nullptr);
  EXPECT_EQ(root_.Designs().size(), 1u);
}

TEST_F(VerilogReaderTest, EmptyFileIsAnError) {
  EXPECT_FALSE(Read("// nothing here\n", "empty.v"));
  EXPECT_EQ(error_, "empty.v: no module found");
}

TEST_F(VerilogReaderTest, ReadsFilesPlainAndGzipped) {
  std::string text = "module g (a);\n input a;\n X u (.A(a));\nendmodule\n";
  std::string plain = ::testing::TempDir() + "/reader_plain.v";
  std::string zipped = ::testing::TempDir() + "/reader_zipped.v.gz";
  FILE* file = std::fopen(plain.c_str(), "w");
  ASSERT_NE(file, nullptr);
  std::fputs(text.c_str(), file);
  std::fclose(file);
  gzFile gz = gzopen(zipped.c_str(), "wb");
  ASSERT_NE(gz, nullptr);
  gzputs(gz, "module h (a);\n input a;\nendmodule\n");
  gzclose(gz);
  std::vector<std::string> modules;
  std::string error;
  ASSERT_TRUE(verilog::ReadVerilogFile(&root_, plain, modules, error)) << error;
  ASSERT_TRUE(verilog::ReadVerilogFile(&root_, zipped, modules, error)) << error;
  EXPECT_EQ(modules, std::vector<std::string>{"h"});
  EXPECT_NE(root_.FindDesign("g"), nullptr);
  EXPECT_NE(root_.FindDesign("h"), nullptr);
  EXPECT_FALSE(verilog::ReadVerilogFile(&root_, "/no/such/file.v", modules, error));
  EXPECT_NE(error.find("cannot open '/no/such/file.v'"), std::string::npos) << error;
}

TEST_F(VerilogReaderTest, DamagedGzipIsAnError) {
  std::string path = ::testing::TempDir() + "/reader_damaged.v.gz";
  gzFile gz = gzopen(path.c_str(), "wb");
  ASSERT_NE(gz, nullptr);
  for (int i = 0; i < 2000; ++i) gzputs(gz, "module m (); endmodule // padding padding padding\n");
  gzclose(gz);
  // Cut the compressed stream in half.
  FILE* file = std::fopen(path.c_str(), "rb");
  ASSERT_NE(file, nullptr);
  std::string bytes;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) bytes += static_cast<char>(c);
  std::fclose(file);
  file = std::fopen(path.c_str(), "wb");
  std::fwrite(bytes.data(), 1, bytes.size() / 2, file);
  std::fclose(file);
  std::vector<std::string> modules;
  std::string error;
  EXPECT_FALSE(verilog::ReadVerilogFile(&root_, path, modules, error));
  EXPECT_TRUE(root_.Designs().empty());
}

}  // namespace

TEST_F(VerilogReaderTest, OfSeveralDuplicateInstancesTheFirstMetInTheFileIsReported) {
  // Enough instances that the names are checked in parts; the names defined
  // again are in the order opposite to their first definitions, and in
  // different parts of the hash space.
  const auto module = [](const std::string& name, const std::vector<std::string>& again) {
    std::string text = "module " + name + " ();\n";  // line 1
    for (int i = 0; i < 10000; ++i) text += " X u" + std::to_string(i) + " ();\n";
    for (const std::string& name : again) text += " X " + name + " ();\n";
    return text + "endmodule\n";
  };
  EXPECT_TRUE(Read(module("m", {"v1", "v2"}))) << error_;
  EXPECT_EQ(D("m")->CellCount(), 10002u);
  EXPECT_FALSE(Read(module("a", {"v1", "u9000", "u1", "u9000"}), "two.v"));
  EXPECT_EQ(error_, "two.v:10003: instance 'u9000' is defined twice in module 'a'");
  EXPECT_FALSE(Read(module("b", {"u1", "u9000"}), "three.v"));
  EXPECT_EQ(error_, "three.v:10002: instance 'u1' is defined twice in module 'b'");
  // Among the new names too.
  EXPECT_FALSE(Read(module("c", {"w", "x", "x", "w"}), "four.v"));
  EXPECT_EQ(error_, "four.v:10004: instance 'x' is defined twice in module 'c'");
}
