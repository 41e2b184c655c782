// The bad files users make and the hostile ones a fuzzer wrote: each read
// fails with a message that names the file (and the line where there is
// one), and the database keeps what it held before, unchanged.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"
#include "liberty/LibertyReader.h"
#include "verilog/VerilogReader.h"

namespace {

std::string DataPath(const std::string& file) {
  return std::string(KELVO_TEST_DATA) + "/" + file;
}

// A root holding a library and a netlist, and what it looked like then.
class LoadedRoot : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(liberty::ReadLibertyFile(&root_, DataPath("yosys_cells.lib"), error)) << error;
    std::vector<std::string> modules;
    ASSERT_TRUE(verilog::ReadVerilogFile(&root_, DataPath("hier_small.v"), modules, error))
        << error;
    generation_ = root_.ChangeGeneration();
    libs_ = root_.LibertyLibs();
    designs_ = root_.Designs();
    cells_ = libs_.at(0)->GetCellCount();
  }

  void ExpectUnchanged(const std::string& file) {
    EXPECT_EQ(root_.ChangeGeneration(), generation_) << file;
    EXPECT_EQ(root_.LibertyLibs(), libs_) << file;
    EXPECT_EQ(root_.Designs(), designs_) << file;
    EXPECT_EQ(root_.GetDefaultLiberty(), libs_.at(0)) << file;
    EXPECT_EQ(libs_.at(0)->GetCellCount(), cells_) << file;
  }

  bool ReadLiberty(const std::string& path, std::string& error) {
    return liberty::ReadLibertyFile(&root_, path, error) != nullptr;
  }
  bool ReadVerilog(const std::string& path, std::string& error) {
    std::vector<std::string> modules;
    return verilog::ReadVerilogFile(&root_, path, modules, error);
  }

  cdm::Root root_;
  uint64_t generation_ = 0;
  std::vector<cdm::LibertyLib*> libs_;
  std::vector<cdm::Design*> designs_;
  uint32_t cells_ = 0;
};

struct Case {
  const char* file;      // under tests/data
  const char* expected;  // the whole message
};

TEST_F(LoadedRoot, BadLibertyFilesAreRefusedWithFileAndLine) {
  const Case cases[] = {
      {"bad/no_such.lib", "cannot open 'DIR/bad/no_such.lib': No such file or directory"},
      {"bad", "cannot read 'DIR/bad': it is a directory"},
      {"bad/empty.lib",
       "DIR/bad/empty.lib:1: expected a 'library' group, found the end of the file"},
      {"bad/binary.lib", "DIR/bad/binary.lib:1: a NUL byte: this is not a text file"},
      {"bad/dup_cell.lib", "DIR/bad/dup_cell.lib:3: cell 'A' is defined twice"},
      {"bad/dup_pin.lib", "DIR/bad/dup_pin.lib:4: pin 'X' is defined twice in cell 'A'"},
      {"bad/l_bustype_huge.lib",
       "DIR/bad/l_bustype_huge.lib:2: expected a whole number from -1000000 to 1000000 for "
       "'bit_from', found '1e10'"},
      {"bad/l_bustype_ovf.lib",
       "DIR/bad/l_bustype_ovf.lib:2: expected a whole number from -1000000 to 1000000 for "
       "'bit_from', found '2000000000'"},
      {"bad/l_fanout_len.lib",
       "DIR/bad/l_fanout_len.lib:2: expected a whole number from 0 to 1000000 for "
       "'fanout_length', found '1e30'"},
      {"bad/l_ffbank.lib",
       "DIR/bad/l_ffbank.lib:3: expected a whole number from 1 to 65536 for 'ff_bank', "
       "found '1e30'"},
      {"bad/min_crash_typegroup.lib",
       "DIR/bad/min_crash_typegroup.lib:1: expected a whole number from 0 to 65536 for "
       "'bit_width', found '88e8'"},
  };
  for (const Case& c : cases) {
    std::string error;
    EXPECT_FALSE(ReadLiberty(DataPath(c.file), error)) << c.file;
    std::string expected = c.expected;
    expected.replace(expected.find("DIR"), 3, KELVO_TEST_DATA);
    EXPECT_EQ(error, expected);
    ExpectUnchanged(c.file);
  }
}

TEST_F(LoadedRoot, BadVerilogFilesAreRefusedWithFileAndLine) {
  const Case cases[] = {
      {"bad/no_such.v", "cannot open 'DIR/bad/no_such.v': No such file or directory"},
      {"bad", "cannot read 'DIR/bad': it is a directory"},
      {"bad/empty.v", "DIR/bad/empty.v: no module found"},
      {"bad/binary.v", "DIR/bad/binary.v:1: a NUL byte: this is not a text file"},
      {"bad/v_nul.v", "DIR/bad/v_nul.v:3: a NUL byte: this is not a text file"},
      {"bad/v_gz_no_trailer.v.gz",
       "cannot read 'DIR/bad/v_gz_no_trailer.v.gz': the compressed data ends too early (the file "
       "is cut short)"},
      {"bad/v_gz_truncated_partial.v.gz",
       "cannot read 'DIR/bad/v_gz_truncated_partial.v.gz': the compressed data ends too early (the "
       "file is cut short)"},
      {"bad/dup_module.v", "DIR/bad/dup_module.v:4: module 'm' is defined twice"},
      {"bad/dup_port.v", "DIR/bad/dup_port.v:1: port 'a' is listed twice"},
      {"bad/v_neg_range.v",
       "DIR/bad/v_neg_range.v:3: range [-999999999:0] is 1000000000 bits wide, more than 1048576"},
      {"bad/v_huge_range.v",
       "DIR/bad/v_huge_range.v:3: range [999999999:0] is 1000000000 bits wide, more than 1048576"},
      {"bad/v_nested_repl.v",
       "DIR/bad/v_nested_repl.v:4: a concatenation of more than 1048576 bits"},
      // The bytes stay as they are here; the Tcl binding escapes them.
      {"bad/bad_utf8.v", "DIR/bad/bad_utf8.v:4: expected 'module', found 'n\xe2\x82'"},
      {"bad/v_lone_cont.v", "DIR/bad/v_lone_cont.v:3: expected ',' or ';', found '\xb3'"},
  };
  for (const Case& c : cases) {
    std::string error;
    EXPECT_FALSE(ReadVerilog(DataPath(c.file), error)) << c.file;
    std::string expected = c.expected;
    expected.replace(expected.find("DIR"), 3, KELVO_TEST_DATA);
    EXPECT_EQ(error, expected);
    ExpectUnchanged(c.file);
  }
}

// The large reproducers are written here rather than kept in the tree.
class LargeFiles : public LoadedRoot {
 protected:
  std::string Write(const std::string& name, const std::string& text) {
    const std::string path = ::testing::TempDir() + "/bad_" + name;
    std::ofstream(path, std::ios::binary | std::ios::trunc) << text;
    written_.push_back(path);
    return path;
  }
  void TearDown() override {
    for (const std::string& path : written_) std::remove(path.c_str());
  }
  std::vector<std::string> written_;
};

std::string LibertyWithFunction(const std::string& function) {
  return "library(l){\n cell(B){ pin(A){direction:input;} pin(Y){direction:output; function:\"" +
         function + "\";} }\n}\n";
}

TEST_F(LargeFiles, DeepLibertyFunctionsEndInAMessage) {
  const int n = 20000;
  const std::string parens = Write(
      "l_func_parens.lib", LibertyWithFunction(std::string(n, '(') + "A" + std::string(n, ')')));
  std::string error;
  EXPECT_FALSE(ReadLiberty(parens, error));
  EXPECT_EQ(error, parens +
                       ":2: parentheses nested too deeply (more than 256 levels) in "
                       "function \"" +
                       std::string(60, '(') + "... (40001 bytes)\"");
  ExpectUnchanged(parens);
}

TEST_F(LargeFiles, DeepVerilogConcatenationsEndInAMessage) {
  const int n = 20000;
  const std::string deep =
      Write("v_deep_concat.v", "module m(a);\ninput a;\nwire w;\nBUF u(.A(" + std::string(n, '{') +
                                   "a" + std::string(n, '}') + "), .Y(w));\nendmodule\n");
  std::string error;
  EXPECT_FALSE(ReadVerilog(deep, error));
  EXPECT_EQ(error, deep + ":4: concatenations nested too deeply (more than 256 levels)");
  ExpectUnchanged(deep);
}

TEST_F(LargeFiles, LongLibertyChainsAreRead) {
  std::string ands = "A";
  for (int i = 1; i < 140000; ++i) ands += " A";
  std::string error;
  // Read into a root of their own: a library named l is new here.
  for (const std::string& function : {ands, std::string(200000, '!') + "A"}) {
    cdm::Root root;
    const std::string path = Write("l_func_chain.lib", LibertyWithFunction(function));
    cdm::LibertyLib* lib = liberty::ReadLibertyFile(&root, path, error);
    ASSERT_TRUE(lib) << error;
    EXPECT_TRUE(lib->GetLibCell("B")->IsBuffer());
  }
}

}  // namespace
