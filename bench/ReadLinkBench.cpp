// Reads and links netlists and prints what it cost:
//
//   kelvo_bench_read_link [-lib LIBERTY] [-net NAME] NETLIST...
//
// The library, when given, is read before each netlist (not timed), so
// that link resolves the cells against it.
// One line per netlist: seconds to read, seconds to link, processor
// seconds of both, leaf instances of the elaborated top, instances per
// second (read and link together), peak resident memory, and memory growth
// per instance. Peak memory only grows within a process: give one netlist
// per run to see each one's own.
// With -net, the net NAME of the top is looked up after link and the
// driver and the fan-in of every one of its pins are asked for (what a
// timer or a net report does for each pin of a large net), then the
// net's fan-out once.
#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "db/Linker.h"
#include "db/Netlist.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
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

// Asks the driver and the flat fan-in of every pin of the net, then the
// net's flat fan-out, and prints how long that took.
bool AskEveryPinOfNet(const cdm::Design* top, const std::string& net_name) {
  const cdm::Net* net = top->FindNet(net_name);
  if (!net) {
    std::fprintf(stderr, "no net %s in the top\n", net_name.c_str());
    return false;
  }
  auto start = std::chrono::steady_clock::now();
  long pins = 0, found = 0, fanin = 0;
  std::vector<cdm::Pin*> drivers;
  for (cdm::NetConnIter it(net, false, [](const cdm::Pin*) { return true; }); it.HasNext();) {
    const cdm::Pin* pin = it.Next();
    ++pins;
    if (pin->GetCurrentDriverPin()) ++found;
    drivers.clear();
    pin->GetFaninPins(drivers, cdm::kHierFlat);
    fanin += static_cast<long>(drivers.size());
  }
  std::vector<cdm::Pin*> loads;
  net->GetFanoutPins(loads, cdm::kHierFlat);
  std::printf(
      "net %s: %ld pins; driver and fan-in of each (%ld and %ld found), then %zu loads, in %.3f "
      "s\n",
      net_name.c_str(), pins, found, fanin, loads.size(), Since(start));
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  std::string library;
  std::string net_name;
  int first = 1;
  while (argc > first + 1 &&
         (std::string(argv[first]) == "-lib" || std::string(argv[first]) == "-net")) {
    (std::string(argv[first]) == "-lib" ? library : net_name) = argv[first + 1];
    first += 2;
  }
  if (argc <= first) {
    std::fprintf(stderr, "usage: %s [-lib LIBERTY] [-net NAME] NETLIST...\n", argv[0]);
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
    if (!net_name.empty() && !AskEveryPinOfNet(top, net_name)) return 1;
  }
  return 0;
}
