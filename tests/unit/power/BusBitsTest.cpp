// The index of a netlist's vector bits by name: the bits a range asks for,
// in index order, negative indices and merged-away names included, and no
// name that a look-up by "name[i]" would never ask for.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "db/Netlist.h"
#include "hostapi/cdm/Design.h"
#include "power/BusBits.h"
#include "support/SdcTestUtil.h"

namespace {

class BusBitsTest : public sdctest::SdcTest {
 protected:
  // The names of the nets found for `base` from `low` to `high`.
  static std::vector<std::string> Found(const cdm::Netlist& netlist, const power::BusBits& bits,
                                        const std::string& base, int64_t low, int64_t high) {
    std::vector<std::string> names;
    const auto [first, last] = bits.Find(base, low, high);
    for (auto bit = first; bit != last; ++bit)
      names.push_back(std::string(bit->base) + "[" + std::to_string(bit->index) +
                      "]=" + std::string(netlist.NetName(bit->net)));
    return names;
  }
};

TEST_F(BusBitsTest, RangesOfABaseInIndexOrder) {
  cdm::Design* design = LoadOnce(R"(module bb_top (a, y);
  input a; output y;
  wire [1:-2] w;
  wire [3:0] v;
  wire [1:0] p;
  wire q;
  wire \u[01] ;
  wire wx;
  assign q = p[1];
  BUF b (.A(a), .Y(y));
endmodule)",
                                 "bb_top");
  ASSERT_NE(design, nullptr);
  const cdm::Netlist& netlist = *design->GetNetlist();
  const power::BusBits bits(netlist);
  EXPECT_EQ(Found(netlist, bits, "w", -10, 10),
            (std::vector<std::string>{"w[-2]=w[-2]", "w[-1]=w[-1]", "w[0]=w[0]", "w[1]=w[1]"}));
  EXPECT_EQ(Found(netlist, bits, "v", 1, 2), (std::vector<std::string>{"v[1]=v[1]", "v[2]=v[2]"}));
  EXPECT_TRUE(Found(netlist, bits, "v", 4, 9).empty());
  // "u[01]" is never asked for: a bit's index has no leading zero.
  EXPECT_TRUE(Found(netlist, bits, "u", 1, 1).empty());
  // Not a prefix match: "wx" is no bit of "w".
  EXPECT_TRUE(Found(netlist, bits, "wx", 0, 0).empty());
  // Merged by the assign: p[1] is found, whichever name survived.
  const std::vector<std::string> p1 = Found(netlist, bits, "p", 1, 1);
  ASSERT_EQ(p1.size(), 1u);
  EXPECT_EQ(netlist.FindNet("p[1]"), netlist.FindNet("q"));
  EXPECT_EQ(p1[0].substr(0, 5), "p[1]=");
}

}  // namespace
