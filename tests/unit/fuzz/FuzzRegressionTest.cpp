// The fuzz targets over what the fuzzers found (tests/fuzz/regressions/) and
// over their seeds: every rule a harness checks holds for each, in every
// build of the suite, the sanitizer one included.
#include <gtest/gtest.h>

#include <dirent.h>

#include <fstream>
#include <string>
#include <vector>

#include "FuzzTargets.h"
#include "support/FileText.h"

namespace {

using Target = std::string (*)(std::string_view);

// The files kept for harness `name`: its regressions, then its seeds.
std::vector<std::string> Inputs(const std::string& name) {
  std::vector<std::string> paths;
  const std::string dir = std::string(KELVO_FUZZ_DIR) + "/regressions/" + name;
  if (DIR* listing = opendir(dir.c_str())) {
    while (dirent* entry = readdir(listing)) {
      if (entry->d_name[0] != '.') paths.push_back(dir + "/" + entry->d_name);
    }
    closedir(listing);
  }
  std::ifstream seeds(std::string(KELVO_FUZZ_DIR) + "/" + name + ".seeds");
  for (std::string line; std::getline(seeds, line);) {
    if (!line.empty() && line[0] != '#') paths.push_back(std::string(KELVO_TEST_DATA) + "/" + line);
  }
  return paths;
}

void RunAll(const std::string& name, Target target) {
  const std::vector<std::string> paths = Inputs(name);
  ASSERT_GT(paths.size(), 3u) << name;
  for (const std::string& path : paths) {
    std::ifstream probe(path);
    ASSERT_TRUE(probe.good()) << path;
    EXPECT_EQ(target(testsupport::FileText(path)), "") << path;
  }
}

TEST(FuzzRegression, Liberty) {
  RunAll("liberty", fuzz::FuzzLiberty);
}
TEST(FuzzRegression, Verilog) {
  RunAll("verilog", fuzz::FuzzVerilog);
}
TEST(FuzzRegression, Loader) {
  RunAll("loader", fuzz::FuzzLoader);
}
TEST(FuzzRegression, Sdc) {
  RunAll("sdc", fuzz::FuzzSdc);
}
TEST(FuzzRegression, Spef) {
  RunAll("spef", fuzz::FuzzSpef);
}
TEST(FuzzRegression, Saif) {
  RunAll("saif", fuzz::FuzzSaif);
}
TEST(FuzzRegression, Vcd) {
  RunAll("vcd", fuzz::FuzzVcd);
}

}  // namespace
