// The real libraries of tests/data: counts and values as in the files, and
// the classifiers on cells whose kind is known.
#include <zlib.h>

#include <gtest/gtest.h>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "LibTestUtil.h"

namespace {

using libtest::DataPath;

cdm::LibertyLib* Read(cdm::Root& root, const std::string& file) {
  std::string error;
  cdm::LibertyLib* lib = liberty::ReadLibertyFile(&root, DataPath(file), error);
  EXPECT_TRUE(lib) << error;
  return lib;
}

TEST(RealLibrary, EveryLibraryReadsWithItsCellCount) {
  const std::pair<const char*, uint32_t> files[] = {
      {"nangate45_typ.lib.gz", 134}, {"sky130hd_tt.lib.gz", 428}, {"asap7_small.lib.gz", 4},
      {"fakeram45_64x32.lib", 1},    {"liberty_latch3.lib", 1},   {"yosys_cells.lib", 10},
  };
  for (const auto& file : files) {
    cdm::Root root;
    cdm::LibertyLib* lib = Read(root, file.first);
    ASSERT_TRUE(lib) << file.first;
    EXPECT_EQ(lib->GetCellCount(), file.second) << file.first;
    EXPECT_EQ(lib->GetLibFileName(), DataPath(file.first));
  }
}

TEST(RealLibrary, Nangate45Values) {
  cdm::Root root;
  cdm::LibertyLib* lib = Read(root, "nangate45_typ.lib.gz");
  ASSERT_TRUE(lib);
  EXPECT_EQ(lib->Name(), "NangateOpenCellLibrary");
  EXPECT_EQ(lib->GetCapacitanceUnit().libval(), "1ff");
  EXPECT_EQ(lib->GetCapacitanceUnit().transSuffix(), "(fF)");
  EXPECT_EQ(lib->GetInPlaceSwapMode(), "match_footprint");
  EXPECT_FLOAT_EQ(lib->GetNomVoltage(), 1.1f);
  EXPECT_FLOAT_EQ(lib->GetSlewLowerThreshold(cdm::RiseFall::rise_), 30.0f);
  ASSERT_TRUE(lib->GetDefaultOperatingConditions());
  EXPECT_EQ(lib->GetDefaultOperatingConditions()->name, "typical");
  EXPECT_EQ(cdm::to_string(lib->GetDefaultOperatingConditions()->tree), "balanced_tree");
  ASSERT_FALSE(lib->GetAllWireLoads().empty());
  EXPECT_EQ(lib->GetAllWireLoads()[0]->name, "1K_hvratio_1_4");
  EXPECT_EQ(lib->GetAllWireLoads()[0]->points.size(), 7u);

  cdm::LibCell* inv = lib->GetLibCell("INV_X1");
  ASSERT_TRUE(inv);
  EXPECT_FLOAT_EQ(inv->GetArea(), 0.532f);
  EXPECT_FLOAT_EQ(inv->FindPort("A")->GetCapacitance(), 1.700230e-15f);
  EXPECT_FLOAT_EQ(inv->FindPort("A")->GetCapacitance(cdm::RiseFall::fall_, cdm::MinMax::max_),
                  1.549360e-15f);
  EXPECT_FLOAT_EQ(inv->FindPort("ZN")->GetCapacitanceLimits(cdm::MinMax::max_), 60.73e-15f);
  EXPECT_TRUE(inv->IsInverter());
  EXPECT_FALSE(inv->IsBuffer() || inv->IsSequentialCell() || inv->IsBlackBox() ||
               inv->IsClockGate());
  EXPECT_EQ(inv->GetTimingArcSetCout(), 1);
  EXPECT_EQ(inv->GetTimingArcSets()[0]->GetTimingSense(), cdm::TimingSense::kNegativeUnate);
  EXPECT_EQ(inv->GetCellTypeName(), "INV");
  EXPECT_EQ(lib->GetLibCell("INV_X4")->GetCellTypeName(), "INV");

  cdm::LibCell* buf = lib->GetLibCell("BUF_X2");
  ASSERT_TRUE(buf);
  EXPECT_TRUE(buf->IsBuffer());
  EXPECT_FALSE(buf->IsInverter());

  cdm::LibCell* dff = lib->GetLibCell("DFF_X1");
  ASSERT_TRUE(dff);
  EXPECT_FLOAT_EQ(dff->GetArea(), 4.522f);
  EXPECT_TRUE(dff->IsSequentialCell());
  EXPECT_FALSE(dff->IsBuffer() || dff->IsClockGate());
  EXPECT_EQ(dff->GetTimingArcSetCout(), 5);
  ASSERT_EQ(dff->GetSequentials().size(), 1u);
  EXPECT_FALSE(dff->GetSequentials()[0]->IsLatch());
  EXPECT_EQ(dff->GetSequentials()[0]->clock.GetFuncStr(), "CK");
  cdm::LibPort* q = dff->FindPort("Q");
  ASSERT_TRUE(q && q->GetFunction());
  EXPECT_EQ(dff->GetSequentialFromOutputPort(q->GetFunction()->GetFuncPorts()[0]),
            dff->GetSequentials()[0].get());
  EXPECT_TRUE(dff->GetCellToPorts(dff->FindPort("CK")).size() == 2u);  // Q and QN

  cdm::LibCell* latch = lib->GetLibCell("DLH_X1");
  ASSERT_TRUE(latch);
  EXPECT_TRUE(latch->IsSequentialCell());
  EXPECT_TRUE(latch->GetSequentials()[0]->IsLatch());

  cdm::LibCell* gate = lib->GetLibCell("CLKGATE_X1");
  ASSERT_TRUE(gate);
  EXPECT_TRUE(gate->IsClockGate() && gate->IsClockGateLatchPosedge());
  EXPECT_FALSE(gate->IsClockGateLatchNegedge() || gate->IsClockGateOther());
  EXPECT_TRUE(lib->GetLibCell("CLKGATETST_X1")->IsClockGateLatchPosedge());
  EXPECT_FALSE(lib->GetLibCell("FILLCELL_X1")->IsSequentialCell());
  EXPECT_TRUE(lib->GetLibCell("FILLCELL_X1")->IsBlackBox());
  EXPECT_EQ(lib->GetLibCell("LOGIC0_X1")->GetConstOutputValue(), 0);
  EXPECT_EQ(lib->GetLibCell("LOGIC1_X1")->GetConstOutputValue(), 1);
  EXPECT_EQ(inv->GetConstOutputValue(), -1);
}

TEST(RealLibrary, Sky130AndAsap7) {
  cdm::Root root;
  cdm::LibertyLib* sky = Read(root, "sky130hd_tt.lib.gz");
  ASSERT_TRUE(sky);
  cdm::LibCell* buf = sky->GetLibCell("sky130_fd_sc_hd__buf_1");
  ASSERT_TRUE(buf);
  EXPECT_FLOAT_EQ(buf->GetArea(), 3.7536f);
  EXPECT_FLOAT_EQ(buf->FindPort("A")->GetCapacitance(), 0.002103e-12f);
  EXPECT_TRUE(buf->IsBuffer());
  EXPECT_EQ(buf->GetCellTypeName(), "sky130_fd_sc_hd__buf");
  EXPECT_TRUE(buf->HasLeakagePowers());
  EXPECT_TRUE(sky->GetLibCell("sky130_fd_sc_hd__inv_2")->IsInverter());
  EXPECT_TRUE(sky->GetLibCell("sky130_fd_sc_hd__dfxtp_1")->IsSequentialCell());
  EXPECT_TRUE(sky->GetLibCell("sky130_fd_sc_hd__dlxtp_1")->GetSequentials().at(0)->IsLatch());
  EXPECT_TRUE(sky->GetLibCell("sky130_fd_sc_hd__dlclkp_1")->IsClockGate());
  std::unique_ptr<cdm::Iterator<cdm::LibPgPort>> pg(buf->LibPgPortIter());
  int pg_count = 0;
  while (pg->HasNext()) pg_count += pg->Next() != nullptr;
  EXPECT_GE(pg_count, 2);

  cdm::LibertyLib* asap = Read(root, "asap7_small.lib.gz");
  ASSERT_TRUE(asap);
  EXPECT_EQ(root.GetDefaultLiberty(), sky);  // the first library read stays the default
  cdm::LibCell* abuf = asap->GetLibCell("BUFx2_ASAP7_75t_R");
  ASSERT_TRUE(abuf);
  EXPECT_TRUE(abuf->IsBuffer());
  EXPECT_EQ(abuf->GetCellTypeName(), "BUF_ASAP7_75t_R");
  EXPECT_EQ(asap->GetLibCell("DFFHQx4_ASAP7_75t_R")->GetCellTypeName(), "DFFHQ_ASAP7_75t_R");
  EXPECT_TRUE(asap->GetLibCell("DFFHQx4_ASAP7_75t_R")->IsSequentialCell());
  EXPECT_FLOAT_EQ(asap->GetLibCell("DFFHQx4_ASAP7_75t_R")->GetArea(), 0.3645f);
}

TEST(RealLibrary, MemoryMacroAndOddLatch) {
  cdm::Root root;
  cdm::LibertyLib* ram_lib = Read(root, "fakeram45_64x32.lib");
  ASSERT_TRUE(ram_lib);
  cdm::LibCell* ram = ram_lib->GetLibCell("fakeram45_64x32");
  ASSERT_TRUE(ram);
  EXPECT_TRUE(ram->IsMemory());
  EXPECT_FALSE(ram->IsBlackBox() || ram->IsBuffer() || ram->IsSequentialCell());
  EXPECT_FLOAT_EQ(ram->GetArea(), 3888.122f);
  EXPECT_EQ(ram->FindPort("rd_out")->GetMembers().size(), 32u);
  EXPECT_EQ(ram->FindPort("addr_in")->GetMembers().size(), 6u);
  EXPECT_TRUE(ram->FindPort("rd_out[31]"));
  EXPECT_GT(ram->GetTimingArcSetCout(), 32);

  cdm::LibertyLib* latch_lib = Read(root, "liberty_latch3.lib");
  ASSERT_TRUE(latch_lib);
  cdm::LibCell* latch = latch_lib->GetLibCell("DHLx1_ASAP7_75t_L");
  ASSERT_TRUE(latch);
  ASSERT_EQ(latch->GetSequentials().size(), 1u);
  EXPECT_EQ(latch->GetSequentials()[0]->first->Name(), "IQ");
  EXPECT_EQ(latch->GetSequentials()[0]->second->Name(), "IQN");
}

// Writes `text` gzip-compressed to `path`.
void WriteGzip(const std::string& path, const std::string& text) {
  gzFile file = gzopen(path.c_str(), "wb");
  ASSERT_TRUE(file);
  ASSERT_EQ(gzwrite(file, text.data(), static_cast<unsigned>(text.size())),
            static_cast<int>(text.size()));
  gzclose(file);
}

TEST(RealLibrary, PlainAndGzipReadTheSame) {
  std::ifstream in(DataPath("yosys_cells.lib"));
  std::stringstream text;
  text << in.rdbuf();
  const std::string gz = ::testing::TempDir() + "/yosys_cells.lib.gz";
  WriteGzip(gz, text.str());
  cdm::Root root;
  std::string error;
  cdm::LibertyLib* plain = liberty::ReadLibertyFile(&root, DataPath("yosys_cells.lib"), error);
  ASSERT_TRUE(plain) << error;
  cdm::Root root2;
  cdm::LibertyLib* zipped = liberty::ReadLibertyFile(&root2, gz, error);
  ASSERT_TRUE(zipped) << error;
  EXPECT_EQ(plain->GetCellCount(), zipped->GetCellCount());
  // A cut gzip stream is an error, not a short library.
  const std::string cut = ::testing::TempDir() + "/cut.lib.gz";
  std::ifstream gz_in(gz, std::ios::binary);
  std::string bytes((std::istreambuf_iterator<char>(gz_in)), std::istreambuf_iterator<char>());
  std::ofstream(cut, std::ios::binary) << bytes.substr(0, bytes.size() / 2);
  EXPECT_FALSE(liberty::ReadLibertyFile(&root2, cut, error));
  EXPECT_NE(error.find("cut.lib.gz"), std::string::npos) << error;
  std::remove(gz.c_str());
  std::remove(cut.c_str());
}

TEST(RealLibrary, ReplacingOnlyOnSuccessAndMissingFiles) {
  cdm::Root root;
  cdm::LibertyLib* first = Read(root, "yosys_cells.lib");
  ASSERT_TRUE(first);
  std::string error;
  EXPECT_FALSE(liberty::ReadLibertyFile(&root, DataPath("no_such.lib"), error));
  EXPECT_NE(error.find("cannot open"), std::string::npos);
  // A broken file of the same library name leaves the first in place.
  const std::string broken = ::testing::TempDir() + "/broken.lib";
  std::ofstream(broken) << "library(yosys_cells) {\n cell(X) { area : oops; }\n}\n";
  EXPECT_FALSE(liberty::ReadLibertyFile(&root, broken, error));
  EXPECT_NE(error.find("broken.lib:2: expected a number for 'area', found 'oops'"),
            std::string::npos)
      << error;
  EXPECT_EQ(root.GetLibertyLib("yosys_cells"), first);
  EXPECT_EQ(root.LibertyLibs().size(), 1u);
  // A good one replaces it, also as the default.
  cdm::LibertyLib* second = Read(root, "yosys_cells.lib");
  EXPECT_NE(second, first);
  EXPECT_EQ(root.GetLibertyLib("yosys_cells"), second);
  EXPECT_EQ(root.GetDefaultLiberty(), second);
  EXPECT_EQ(root.LibertyLibs().size(), 1u);
  std::remove(broken.c_str());
  const std::string binary = ::testing::TempDir() + "/binary.lib";
  std::ofstream(binary, std::ios::binary) << std::string("library(x) {\0}", 14);
  EXPECT_FALSE(liberty::ReadLibertyFile(&root, binary, error));
  EXPECT_NE(error.find("is not a text file"), std::string::npos) << error;
  std::remove(binary.c_str());
}

}  // namespace
