// Reads and links netlists and prints what it cost:
//
//   kelvo_bench_read_link [-lib LIBERTY] NETLIST...
//
// The library, when given, is read before each netlist (not timed), so
// that link resolves the cells against it.
// One line per netlist: seconds to read, seconds to link, processor
// seconds of both, leaf instances
// of the elaborated top, instances per second (read and link together),
// peak resident memory, and memory growth per instance.
#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "db/Linker.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/Root.h"
#include "liberty/LibertyReader.h"
#include "verilog/VerilogReader.h"

namespace {

long PeakKilobytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

// Processor seconds used so far: on a shared machine the wall clock also
// counts other programs' time.
double CpuSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec +
         (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

double Since(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

int main(int argc, char** argv) {
  std::string library;
  int first = 1;
  if (argc > 2 && std::string(argv[1]) == "-lib") {
    library = argv[2];
    first = 3;
  }
  if (argc <= first) {
    std::fprintf(stderr, "usage: %s [-lib LIBERTY] NETLIST...\n", argv[0]);
    return 2;
  }
  std::printf("%-28s %8s %8s %8s %10s %12s %10s %10s %10s\n", "netlist", "read s", "link s",
              "cpu s", "instances", "inst/s", "read MB", "peak MB", "B/inst");
  for (int i = first; i < argc; ++i) {
    // A root per netlist, so that each starts from nothing.
    auto root = std::make_unique<cdm::Root>();
    std::string error;
    if (!library.empty() && !liberty::ReadLibertyFile(root.get(), library, error)) {
      std::fprintf(stderr, "%s\n", error.c_str());
      return 1;
    }
    long before = PeakKilobytes();
    double cpu_start = CpuSeconds();
    auto start = std::chrono::steady_clock::now();
    std::vector<std::string> modules;
    if (!verilog::ReadVerilogFile(root.get(), argv[i], modules, error)) {
      std::fprintf(stderr, "%s\n", error.c_str());
      return 1;
    }
    double read_seconds = Since(start);
    long read_peak = PeakKilobytes();
    start = std::chrono::steady_clock::now();
    cdm::Design* top = cdm::FindTopDesign(root.get(), error);
    std::vector<std::string> warnings;
    if (!top || !cdm::LinkDesign(root.get(), top, warnings, error)) {
      std::fprintf(stderr, "%s\n", error.c_str());
      return 1;
    }
    double link_seconds = Since(start);
    double cpu_seconds = CpuSeconds() - cpu_start;
    long leaves = 0;
    for (cdm::DesignCellIterator it(top, true, [](const cdm::Cell* c) { return c->IsLeaf(); });
         it.HasNext(); it.Next())
      ++leaves;
    long peak = PeakKilobytes();
    std::string name = argv[i];
    if (name.size() > 28) name = "..." + name.substr(name.size() - 25);
    std::printf("%-28s %8.2f %8.2f %8.2f %10ld %12.0f %10.1f %10.1f %10.0f\n", name.c_str(),
                read_seconds, link_seconds, cpu_seconds, leaves,
                leaves / (read_seconds + link_seconds), read_peak / 1024.0, peak / 1024.0,
                leaves ? (peak - before) * 1024.0 / leaves : 0.0);
  }
  return 0;
}
