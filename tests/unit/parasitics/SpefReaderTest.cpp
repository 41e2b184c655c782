// The SPEF reader: units, the name map, escapes, dividers and bus
// delimiters of the header, triplets, what a net keeps, and the errors with
// their lines.
#include <gtest/gtest.h>
#include <zlib.h>

#include <fstream>
#include <iterator>
#include <string>

#include "parasitics/SpefReader.h"

namespace {

using parasitics::ParseSpef;
using parasitics::SpefFile;

std::string DataPath(const std::string& name) {
  return std::string(KELVO_TEST_DATA) + "/" + name;
}

TEST(SpefReaderTest, NetsKeepTheirTotalsInSiWithMappedNames) {
  SpefFile spef;
  std::string error;
  ASSERT_TRUE(parasitics::ReadSpefFile(DataPath("timer_small.spef"), spef, error)) << error;
  EXPECT_EQ(spef.design, "tc");
  ASSERT_EQ(spef.nets.size(), 2u);
  const parasitics::SpefNet& n1 = spef.nets[0];
  EXPECT_EQ(n1.name, "n1");
  EXPECT_EQ(n1.line, 27);
  EXPECT_NEAR(n1.capacitance, 20e-15, 1e-21);  // FF
  EXPECT_NEAR(n1.resistance, 10.0, 1e-9);      // 0.004 + 0.003 + 0.003 KOHM
  ASSERT_EQ(n1.conns.size(), 2u);
  EXPECT_EQ(n1.conns[0].name, "u1/Z");
  EXPECT_EQ(n1.conns[1].name, "r1/D");
  EXPECT_FALSE(n1.conns[0].port);
  // A triplet counts by its typical value.
  EXPECT_EQ(spef.nets[1].name, "q2");
  EXPECT_NEAR(spef.nets[1].capacitance, 5e-15, 1e-21);
  EXPECT_EQ(spef.nets[1].conns[0].name, "r2/Q");
}

TEST(SpefReaderTest, AGzippedFileReadsAsThePlainOne) {
  std::ifstream plain(DataPath("timer_small.spef"));
  const std::string text((std::istreambuf_iterator<char>(plain)), std::istreambuf_iterator<char>());
  ASSERT_FALSE(text.empty());
  const std::string zipped = ::testing::TempDir() + "/spef_zipped.spef.gz";
  gzFile gz = gzopen(zipped.c_str(), "wb");
  ASSERT_NE(gz, nullptr);
  ASSERT_EQ(gzwrite(gz, text.data(), static_cast<unsigned>(text.size())),
            static_cast<int>(text.size()));
  gzclose(gz);
  SpefFile spef;
  std::string error;
  ASSERT_TRUE(parasitics::ReadSpefFile(zipped, spef, error)) << error;
  ASSERT_EQ(spef.nets.size(), 2u);
  EXPECT_EQ(spef.nets[0].name, "n1");
  EXPECT_EQ(spef.nets[0].line, 27);
  EXPECT_NEAR(spef.nets[0].capacitance, 20e-15, 1e-21);
  EXPECT_NEAR(spef.nets[1].capacitance, 5e-15, 1e-21);
}

TEST(SpefReaderTest, DividerBusDelimiterAndEscapesBecomeTheDesignsNames) {
  const std::string text = R"(*SPEF "IEEE 1481-1998"
*DIVIDER .
*DELIMITER |
*BUS_DELIMITER < >
*C_UNIT 2 PF
*R_UNIT 3 OHM
*D_NET sub.data<3> 1.5
*CONN
*P out\.x I
*I sub.u1|A I *C 1.0 2.0 *L 0.1 *D INV
*RES
1 sub.u1|A out\.x 2
*END
)";
  SpefFile spef;
  std::string error;
  ASSERT_TRUE(ParseSpef(text, "t.spef", spef, error)) << error;
  ASSERT_EQ(spef.nets.size(), 1u);
  EXPECT_EQ(spef.nets[0].name, "sub/data[3]");
  EXPECT_NEAR(spef.nets[0].capacitance, 3e-12, 1e-18);
  EXPECT_NEAR(spef.nets[0].resistance, 6.0, 1e-12);
  ASSERT_EQ(spef.nets[0].conns.size(), 2u);
  EXPECT_EQ(spef.nets[0].conns[0].name, "out.x");
  EXPECT_TRUE(spef.nets[0].conns[0].port);
  EXPECT_EQ(spef.nets[0].conns[1].name, "sub/u1/A");
}

TEST(SpefReaderTest, ErrorsNameFileAndLineAndKeepNothing) {
  const std::string head = "*SPEF \"x\"\n*C_UNIT 1 PF\n*R_UNIT 1 OHM\n";
  const struct {
    std::string text;
    std::string error;
  } cases[] = {
      {"*DESIGN \"x\"\n", "t.spef:1: not a SPEF file (it does not begin with *SPEF)"},
      {head + "*D_NET a zero\n*END\n", "t.spef:4: 'zero' is no number"},
      {head + "*D_NET a 1\n*CONN\n*I u1:A I\n", "t.spef:4: the net 'a' has no *END"},
      {head + "*D_NET *7 1\n*END\n", "t.spef:4: '*7' is not in the name map"},
      {"*SPEF \"x\"\n*D_NET a 1\n*END\n", "t.spef:2: a net before the header's *C_UNIT"},
      {"*SPEF \"x\"\n*C_UNIT 1 GF\n", "t.spef:2: unknown unit 'GF'"},
      {head + "*D_NET a 1\n*CONN\n*I u1:A X\n*END\n", "t.spef:6: a connection's direction"},
      {head + "*D_NET a 1\n*RES\n1 a:1 2\n*END\n", "t.spef:6: a resistor is written as"},
      {head + "*D_NET a 1\n*END\nstray\n", "t.spef:6: unexpected 'stray'"},
      {head + "*D_NET a 1\n*WHAT\n*END\n", "t.spef:5: unexpected '*WHAT' in the net 'a'"},
  };
  for (const auto& each : cases) {
    SpefFile spef;
    std::string error;
    EXPECT_FALSE(ParseSpef(each.text + "*D_NET b 1\n*END\n", "t.spef", spef, error)) << each.text;
    EXPECT_EQ(error.rfind(each.error, 0), 0u) << error;
    EXPECT_TRUE(spef.nets.empty());
  }
  SpefFile spef;
  std::string error;
  EXPECT_FALSE(parasitics::ReadSpefFile(DataPath("no_such.spef"), spef, error));
  EXPECT_NE(error.find("no_such.spef"), std::string::npos);
}

}  // namespace
