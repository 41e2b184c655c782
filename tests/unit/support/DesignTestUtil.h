// Stands small designs up from netlist text on a root of their own.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "db/Linker.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Root.h"
#include "verilog/VerilogReader.h"

namespace designtest {

class DesignTest : public ::testing::Test {
 protected:
  // Reads `text` and links its top; fails the test on any error.
  cdm::Design* Load(const std::string& text, const std::string& top = "") {
    std::vector<std::string> modules;
    std::string error;
    EXPECT_TRUE(verilog::ReadVerilogText(&root_, text, "test.v", modules, error)) << error;
    cdm::Design* design = top.empty() ? cdm::FindTopDesign(&root_, error) : root_.FindDesign(top);
    EXPECT_NE(design, nullptr) << error;
    if (!design) return nullptr;
    warnings_.clear();
    EXPECT_TRUE(cdm::LinkDesign(&root_, design, warnings_, error)) << error;
    return design;
  }

  template <class T>
  static std::vector<std::string> FullNames(const std::vector<T*>& objects) {
    std::vector<std::string> names;
    for (const T* object : objects) names.push_back(object->GetFullName());
    return names;
  }

  cdm::Root root_;
  std::vector<std::string> warnings_;
};

}  // namespace designtest
