// Damaged input: a real netlist cut short or with a byte changed must be
// refused with a message, never crash, and leave the root empty.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hostapi/cdm/Root.h"
#include "verilog/SourceBuffer.h"
#include "verilog/VerilogReader.h"

namespace {

std::string LoadNetlist() {
  io::TextBuffer text;
  std::string error;
  EXPECT_TRUE(
      verilog::ReadSourceFile(std::string(KELVO_TEST_DATA) + "/gcd_nangate45.v", text, error))
      << error;
  return std::string(text.view());
}

TEST(VerilogRobustness, TruncatedNetlistsAreRefusedCleanly) {
  std::string text = LoadNetlist();
  ASSERT_FALSE(text.empty());
  for (size_t cut = 0; cut < text.size(); cut += text.size() / 97 + 1) {
    cdm::Root root;
    std::vector<std::string> modules;
    std::string error;
    bool ok = verilog::ReadVerilogText(&root, text.substr(0, cut), "cut.v", modules, error);
    ASSERT_FALSE(ok) << "cut at " << cut;
    EXPECT_EQ(error.rfind("cut.v:", 0), 0u) << error;
    EXPECT_TRUE(root.Designs().empty());
  }
}

TEST(VerilogRobustness, ChangedBytesNeverCrash) {
  std::string text = LoadNetlist();
  const char replacements[] = {'(', ')', ';', ',', '[', ']', '{', '\\', '\'', '.', '0', ' '};
  size_t refused = 0, accepted = 0;
  for (size_t i = 0, step = 0; i < text.size(); i += text.size() / 211 + 1, ++step) {
    std::string damaged = text;
    damaged[i] = replacements[step % sizeof(replacements)];
    cdm::Root root;
    std::vector<std::string> modules;
    std::string error;
    if (verilog::ReadVerilogText(&root, damaged, "damaged.v", modules, error)) {
      ++accepted;
      EXPECT_EQ(root.Designs().size(), 1u);
    } else {
      ++refused;
      EXPECT_FALSE(error.empty());
      EXPECT_TRUE(root.Designs().empty());
    }
  }
  // Most changes hit names or blanks and stay valid Verilog; some must not.
  EXPECT_GT(refused, 0u);
  EXPECT_GT(accepted, 0u);
}

}  // namespace
