// Times constraint look-ups on a linked netlist, to show that they do not
// grow with the design:
//
//   kelvo_bench_sdc_lookup -lib LIBERTY NETLIST
//
// Every top port gets a load and every tenth cell pin a case value, as
// read_sdc would set them; then each kind of look-up runs over the objects
// in a shuffled order, a few million times in all. One line per look-up:
// the objects asked, and nanoseconds per look-up. The look-ups are hash
// look-ups, but over a large design they reach memory that is not in the
// caches; the same number of pins (as many as there are ports) asked on
// every design size shows the cost without that.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "db/Linker.h"
#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/DesignIterators.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Root.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "liberty/LibertyReader.h"
#include "sdc/PinConstraints.h"
#include "sdc/SdcStore.h"
#include "verilog/VerilogReader.h"

namespace {

constexpr long kLookups = 4000000;

// Runs `ask` over `objects` until kLookups look-ups are done; prints the
// nanoseconds per look-up. `found` counts the answers that were not null,
// so that the compiler keeps the calls.
template <typename T, typename Ask>
void Time(const char* what, const std::vector<T*>& objects, Ask ask) {
  if (objects.empty()) return;
  long found = 0;
  auto start = std::chrono::steady_clock::now();
  for (long done = 0; done < kLookups;)
    for (T* object : objects) {
      found += ask(object) ? 1 : 0;
      if (++done == kLookups) break;
    }
  double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  std::printf("  %-38s %9zu objects %8.1f ns  (%ld answered)\n", what, objects.size(),
              seconds * 1e9 / kLookups, found);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4 || std::string(argv[1]) != "-lib") {
    std::fprintf(stderr, "usage: %s -lib LIBERTY NETLIST\n", argv[0]);
    return 2;
  }
  cdm::Root* root = cdm::DbManager::GetRoot();
  std::string error;
  std::vector<std::string> modules, warnings;
  if (!liberty::ReadLibertyFile(root, argv[2], error) ||
      !verilog::ReadVerilogFile(root, argv[3], modules, error)) {
    std::fprintf(stderr, "%s\n", error.c_str());
    return 1;
  }
  cdm::Design* top = cdm::FindTopDesign(root, error);
  if (!top || !cdm::LinkDesign(root, top, warnings, error)) {
    std::fprintf(stderr, "%s\n", error.c_str());
    return 1;
  }
  sta::sdc::SdcMgr* sdc = sta::sdc::SdcMain::getOrCreateSdcMgr(nullptr);
  sta::sdc::SdcStore& store = sdc->store();
  if (!store.Sync()) {
    std::fprintf(stderr, "no current design\n");
    return 1;
  }

  std::vector<cdm::Port*> ports(top->Ports().begin(), top->Ports().end());
  std::vector<cdm::Pin*> set_pins, other_pins;
  long index = 0;
  for (cdm::AllPinIterator it(top, true, [](const cdm::Pin*) { return true; }); it.HasNext();)
    (index++ % 10 == 0 ? set_pins : other_pins).push_back(it.Next());
  for (cdm::Port* port : ports)
    store.SetPortLoad(port, cdm::RiseFallBoth::rise_fall_, sta::sdc::MinMaxAll::kAll, false,
                      1e-14f);
  for (cdm::Pin* pin : set_pins) store.Pin(pin).case_value = cdm::kLogicZero;
  std::mt19937 random(1);
  std::shuffle(ports.begin(), ports.end(), random);
  std::shuffle(set_pins.begin(), set_pins.end(), random);
  std::shuffle(other_pins.begin(), other_pins.end(), random);

  std::printf("%s: %ld pins, %zu ports\n", argv[3], index, ports.size());
  Time("SdcStore::FindPort", ports, [&](cdm::Port* port) { return store.FindPort(port); });
  Time("SdcMgr::getPortExtCap", ports, [&](cdm::Port* port) { return sdc->getPortExtCap(port); });
  Time("SdcStore::FindPin, pins with a record", set_pins,
       [&](cdm::Pin* pin) { return store.FindPin(pin); });
  Time("SdcStore::FindPin, pins without", other_pins,
       [&](cdm::Pin* pin) { return store.FindPin(pin); });
  Time("SdcMgr::getInputDelays", set_pins, [&](cdm::Pin* pin) { return sdc->getInputDelays(pin); });
  std::vector<cdm::Pin*> few(set_pins.begin(),
                             set_pins.begin() + std::min(set_pins.size(), ports.size()));
  Time("SdcStore::FindPin, as many as ports", few,
       [&](cdm::Pin* pin) { return store.FindPin(pin); });
  Time("SdcMgr::getInputDelays, as many", few,
       [&](cdm::Pin* pin) { return sdc->getInputDelays(pin); });
  return 0;
}
