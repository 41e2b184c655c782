// The netlists of tests/data as synthesis and place-and-route tools wrote
// them. The expected counts come from the files themselves: instance
// statements, declared net bits (no assign merges them) and port bits.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "db/Linker.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Root.h"
#include "verilog/VerilogReader.h"

namespace {

struct NetlistCase {
  const char* file;
  const char* top;
  size_t instances;
  size_t nets;
  size_t ports;
};

class RealNetlistTest : public ::testing::TestWithParam<NetlistCase> {};

TEST_P(RealNetlistTest, ReadsWithTheCountsOfTheFile) {
  const NetlistCase& c = GetParam();
  cdm::Root root;
  std::vector<std::string> modules;
  std::string error;
  ASSERT_TRUE(
      verilog::ReadVerilogFile(&root, std::string(KELVO_TEST_DATA) + "/" + c.file, modules, error))
      << error;
  EXPECT_EQ(modules, std::vector<std::string>{c.top});
  cdm::Design* top = cdm::FindTopDesign(&root, error);
  ASSERT_NE(top, nullptr) << error;
  EXPECT_EQ(top->Name(), c.top);
  EXPECT_EQ(top->CellCount(), c.instances);
  EXPECT_EQ(top->NetCount(), c.nets);
  EXPECT_EQ(top->PortCount(), c.ports);
  std::vector<std::string> warnings;
  ASSERT_TRUE(cdm::LinkDesign(&root, top, warnings, error)) << error;
  // Every connection found a pin: only unresolved references may warn.
  for (const std::string& warning : warnings)
    EXPECT_NE(warning.find("Unable to resolve reference"), std::string::npos) << warning;
}

INSTANTIATE_TEST_SUITE_P(Files, RealNetlistTest,
                         ::testing::Values(NetlistCase{"example1.v", "top", 5, 10, 6},
                                           NetlistCase{"reg1_asap7.v", "top", 5, 10, 6},
                                           NetlistCase{"gcd_nangate45.v", "gcd", 501, 572, 54},
                                           NetlistCase{"gcd_sky130hd.v", "gcd", 1292, 288, 54}),
                         [](const ::testing::TestParamInfo<NetlistCase>& info) {
                           std::string name = info.param.file;
                           for (char& ch : name)
                             if (!isalnum(static_cast<unsigned char>(ch))) ch = '_';
                           return name;
                         });

}  // namespace
