// Helpers of the library tests: read Liberty text or a test data file.
#pragma once

#include <memory>
#include <string>

#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"
#include "liberty/LibertyReader.h"

namespace libtest {

inline std::string DataPath(const std::string& file) {
  return std::string(KELVO_TEST_DATA) + "/" + file;
}

// A library text with `body` inside `library(test) { ... }` after units.
inline std::string Wrap(const std::string& body) {
  return "library(test) {\n"
         "  time_unit : \"1ns\";\n"
         "  capacitive_load_unit (1, ff);\n"
         "  leakage_power_unit : \"1nW\";\n" +
         body + "}\n";
}

struct Parsed {
  std::unique_ptr<cdm::LibertyLib> lib;
  std::string error;
};

inline Parsed Parse(cdm::Root& root, const std::string& text) {
  Parsed parsed;
  parsed.lib = liberty::ParseLiberty(&root, text, "t.lib", parsed.error);
  return parsed;
}

}  // namespace libtest
