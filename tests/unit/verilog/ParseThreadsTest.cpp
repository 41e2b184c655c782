// The reader with its parser on a second thread must read exactly what it
// reads on one: the same designs, or the same first error, whatever the
// file and wherever the error stands among the batches the threads pass.
#include <gtest/gtest.h>

#include <dirent.h>

#include <sstream>
#include <string>
#include <vector>

#include "db/Netlist.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/cdm/Root.h"
#include "support/FileText.h"
#include "verilog/VerilogReader.h"

namespace {

using testsupport::FileText;
using verilog::ParseThreads;

// What a read left: its outcome, error and everything the designs hold
// that the reader made (ports, nets, instances and their connections).
std::string ReadOutcome(const std::string& text, ParseThreads threads) {
  cdm::Root root;
  std::vector<std::string> modules;
  std::string error;
  std::ostringstream out;
  if (!verilog::ReadVerilogText(&root, text, "t.v", modules, error, threads)) {
    out << "error: " << error << " designs: " << root.Designs().size();
    return out.str();
  }
  for (const std::string& name : modules) {
    cdm::Design* design = root.FindDesign(name);
    out << "module " << name << "\n ports";
    for (cdm::Port* port : design->Ports()) out << ' ' << port->Name();
    const cdm::Netlist* netlist = design->GetNetlist();
    out << "\n nets";
    for (const cdm::Net& net : netlist->Nets()) out << ' ' << net.Name();
    const cdm::ModuleSource& source = netlist->Source();
    out << "\n port bits";
    for (int32_t bit : source.port_nets) out << ' ' << bit;
    cdm::ModuleSource::Cursor cursor(source);
    uint32_t line = 0, count = 0;
    cdm::ConnSource conn;
    while (cursor.NextInstance(line, count)) {
      out << "\n instance at " << line << ':';
      for (uint32_t k = 0; k < count; ++k) {
        cursor.NextConnection(conn, k);
        out << ' ' << (conn.port ? *conn.port : "#" + std::to_string(conn.position)) << '(';
        for (int32_t bit : conn.bits) out << bit << ',';
        out << ')';
      }
    }
    out << '\n';
  }
  return out.str();
}

void ExpectSameRead(const std::string& text, const std::string& what) {
  const std::string one = ReadOutcome(text, ParseThreads::kOne);
  const std::string two = ReadOutcome(text, ParseThreads::kTwo);
  EXPECT_EQ(one, two) << what;
}

// The plain netlists of a folder.
std::vector<std::string> Netlists(const std::string& folder) {
  std::vector<std::string> paths;
  if (DIR* listing = opendir(folder.c_str())) {
    while (dirent* entry = readdir(listing)) {
      const std::string name = entry->d_name;
      if (name.size() > 2 && name.compare(name.size() - 2, 2, ".v") == 0)
        paths.push_back(folder + "/" + name);
    }
    closedir(listing);
  }
  return paths;
}

// A flat module of `count` inverters in a chain: enough statements for
// several batches between the threads.
std::string Chain(size_t count) {
  std::string text = "module chain (a, y);\n  input a;\n  output y;\n";
  for (size_t i = 1; i < count; ++i) text += "  wire n" + std::to_string(i) + ";\n";
  for (size_t i = 0; i < count; ++i) {
    const std::string in = i == 0 ? "a" : "n" + std::to_string(i);
    const std::string out = i + 1 == count ? "y" : "n" + std::to_string(i + 1);
    text += "  INV u" + std::to_string(i) + " (.A(" + in + "), .Y(" + out + "));\n";
  }
  return text + "endmodule\n";
}

// The start of line `line` (from 1) of `text`.
size_t LineStart(const std::string& text, size_t line) {
  size_t at = 0;
  for (size_t i = 1; i < line; ++i) at = text.find('\n', at) + 1;
  return at;
}

TEST(ParseThreads, TheTestNetlistsReadTheSame) {
  const std::string data = KELVO_TEST_DATA;
  std::vector<std::string> paths = Netlists(data);
  for (const std::string& path : Netlists(data + "/bad")) paths.push_back(path);
  ASSERT_GT(paths.size(), 30u);
  for (const std::string& path : paths) ExpectSameRead(FileText(path), path);
}

TEST(ParseThreads, CutAndDamagedNetlistsReadTheSame) {
  const std::string text = FileText(std::string(KELVO_TEST_DATA) + "/gcd_nangate45.v");
  ASSERT_FALSE(text.empty());
  for (size_t cut = 0; cut < text.size(); cut += text.size() / 37 + 1)
    ExpectSameRead(text.substr(0, cut), "cut at " + std::to_string(cut));
  const char replacements[] = {'(', ')', ';', ',', '[', ']', '{', '\\', '.', '0'};
  for (size_t i = 0, step = 0; i < text.size(); i += text.size() / 53 + 1, ++step) {
    std::string damaged = text;
    damaged[i] = replacements[step % sizeof(replacements)];
    ExpectSameRead(damaged, "byte changed at " + std::to_string(i));
  }
}

TEST(ParseThreads, ALargeModuleReadsTheSame) {
  const std::string text = Chain(20000);
  const std::string two = ReadOutcome(text, ParseThreads::kTwo);
  EXPECT_EQ(two.rfind("module chain", 0), 0u) << two.substr(0, 200);
  EXPECT_EQ(ReadOutcome(text, ParseThreads::kOne), two);
}

// Whichever comes first in the file is reported: the builder's complaint
// (an unknown net) or the parser's (a syntax error), many batches apart
// or in the same one.
TEST(ParseThreads, TheFirstErrorInTheFileIsReported) {
  // Lines 4 to 20002 declare the wires, 20003 to 40002 are the instances.
  const std::string chain = Chain(20000);
  for (size_t builder_line : {21000u, 30000u, 39000u}) {
    for (size_t parser_line : {5000u, 20990u, 21001u, 30001u, 39990u}) {
      std::string text = chain;
      // A bit of a scalar net: the builder's complaint.
      const size_t input = text.find(".A(", LineStart(text, builder_line));
      text.insert(text.find(')', input), "[3]");
      // A statement ended wrongly: the parser's.
      text.replace(text.find(';', LineStart(text, parser_line)), 1, "#");
      const std::string one = ReadOutcome(text, ParseThreads::kOne);
      const size_t first = std::min(builder_line, parser_line);
      EXPECT_NE(one.find("t.v:" + std::to_string(first) + ":"), std::string::npos) << one;
      EXPECT_EQ(ReadOutcome(text, ParseThreads::kTwo), one)
          << "builder error at " << builder_line << ", parser error at " << parser_line;
    }
  }
}

// Instance names are checked once the module is read, by the hashes the
// parser gave them: a name used twice far apart is still found.
TEST(ParseThreads, AnInstanceNameUsedTwiceIsFound) {
  std::string text = Chain(20000);
  const size_t at = text.find("INV u19000 ");
  text.replace(at, 11, "INV u1000 ");
  const std::string two = ReadOutcome(text, ParseThreads::kTwo);
  EXPECT_EQ(two, ReadOutcome(text, ParseThreads::kOne));
  EXPECT_NE(two.find("t.v:39003: instance 'u1000' is defined twice"), std::string::npos) << two;
}

}  // namespace
