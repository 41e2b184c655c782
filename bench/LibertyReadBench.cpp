// Reads Liberty libraries and prints the speed (MB of uncompressed text per
// second) and the peak memory. Arguments: library files; with none, the
// real libraries the tree carries in tests/data. A large library made by
// repeating the cells of the largest file is read last.
#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Root.h"
#include "io/FileLoader.h"
#include "liberty/LibertyReader.h"
#include "liberty/LibertyTree.h"

namespace {

long PeakRssMb() {
  struct rusage usage;
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss / 1024;
}

// Reads `path` into a fresh root and prints one line; false on error.
bool BenchOne(const std::string& path, size_t text_bytes) {
  cdm::Root root;
  std::string error;
  const auto start = std::chrono::steady_clock::now();
  cdm::LibertyLib* lib = liberty::ReadLibertyFile(&root, path, error);
  const double seconds =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  if (!lib) {
    std::printf("%s: %s\n", path.c_str(), error.c_str());
    return false;
  }
  const double mb = static_cast<double>(text_bytes) / 1e6;
  std::printf("%-40s %8.1f MB %6u cells %8.3f s %8.1f MB/s  peak %ld MB\n",
              std::filesystem::path(path).filename().c_str(), mb, lib->GetCellCount(), seconds,
              mb / seconds, PeakRssMb());
  return true;
}

// Where the first cell group starts: "cell" first on its line, then "(".
// A comment's "cell (X)" in the middle of a line is not one.
size_t FirstCellGroup(const std::string& text) {
  for (size_t at = text.find("cell"); at != std::string::npos; at = text.find("cell", at + 4)) {
    size_t line = text.find_last_not_of(" \t", at == 0 ? std::string::npos : at - 1);
    if (at != 0 && line != std::string::npos && text[line] != '\n') continue;
    size_t open = text.find_first_not_of(" \t", at + 4);
    if (open != std::string::npos && text[open] == '(') return at;
  }
  return std::string::npos;
}

// A library of about `target` bytes: the header of `text`, then its cells
// repeated under new names.
std::string Enlarge(const std::string& text, size_t target) {
  const size_t first_cell = FirstCellGroup(text);
  const size_t end = text.rfind('}');
  if (first_cell == std::string::npos || end == std::string::npos || end < first_cell)
    return std::string();
  const std::string head = text.substr(0, first_cell);
  const std::string cells = text.substr(first_cell, end - first_cell);
  std::string big = head;
  for (int copy = 0; big.size() < target; ++copy) {
    // Rename each cell by a suffix so that names stay unique.
    std::string renamed;
    size_t at = 0;
    for (;;) {
      size_t open = cells.find("cell (", at);
      size_t skip = 6;
      if (open == std::string::npos || (open > 0 && cells[open - 1] != ' ' &&
                                        cells[open - 1] != '\t' && cells[open - 1] != '\n')) {
        if (open == std::string::npos) break;
        renamed += cells.substr(at, open + skip - at);
        at = open + skip;
        continue;
      }
      size_t close = cells.find(')', open);
      if (close > 0 && cells[close - 1] == '"') --close;
      renamed += cells.substr(at, close - at);
      renamed += "_r" + std::to_string(copy);
      at = close;
    }
    renamed += cells.substr(at);
    big += renamed;
  }
  big += "}\n";
  return big;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> files;
  for (int i = 1; i < argc; ++i) files.push_back(argv[i]);
  if (files.empty()) {
    for (const char* name : {"asap7_small.lib.gz", "fakeram45_64x32.lib", "liberty_latch3.lib",
                             "nangate45_typ.lib.gz", "sky130hd_tt.lib.gz", "yosys_cells.lib"})
      files.push_back(std::string(KELVO_TEST_DATA) + "/" + name);
  }
  if (files.empty()) {
    std::fprintf(stderr, "usage: %s LIBERTY_FILE...\n", argv[0]);
    return 2;
  }
  bool ok = true;
  std::string largest_text;
  for (const std::string& file : files) {
    std::string text;
    std::string error;
    if (!io::LoadFile(file, text, error)) {
      std::printf("%s\n", error.c_str());
      ok = false;
      continue;
    }
    ok = BenchOne(file, text.size()) && ok;
    if (text.size() > largest_text.size()) largest_text = std::move(text);
  }
  const std::string big = Enlarge(largest_text, 60u << 20);
  if (!big.empty()) {
    const std::string path =
        (std::filesystem::temp_directory_path() / "kelvo_bench_large.lib").string();
    std::ofstream(path, std::ios::binary) << big;
    ok = BenchOne(path, big.size()) && ok;
    std::filesystem::remove(path);
  }
  return ok ? 0 : 1;
}
