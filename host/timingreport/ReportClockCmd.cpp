// report_clock: the clocks of the current design with their periods,
// waveforms, sources and kinds; how each generated clock derives from its
// master; and the uncertainty, latency and transition set on each.
#include <boost/any.hpp>
#include <string>
#include <vector>

#include "cmdlib/HostCommands.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cmd/CommonCmd.h"
#include "hostapi/msg/Msg.h"
#include "hostapi/sta/Clock.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "sdc/SdcStore.h"
#include "timingreport/ReportNumbers.h"
#include "timingreport/TextTable.h"
#include "timingreport/TimerAccess.h"

namespace sta {
namespace {

using sdc::Clock;

std::string Braced(const std::vector<std::string>& items) {
  std::string text = "{";
  for (size_t i = 0; i < items.size(); ++i) text += (i ? " " : "") + items[i];
  return text + "}";
}

class ReportClockCmd : public CommonCmd {
 public:
  ReportClockCmd() : CommonCmd("report_clock", "Report the clocks of the design", nullptr) {
    addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
    addOptions("significant_digits", "Digits after the decimal point (0 to 13; default 2)", false,
               ValueType::kInteger, std::any());
  }

  int exec() override;

 private:
  // A rise and fall pair "R/F" of a setting; each "min:max" when the two
  // differ; "-" when none is set.
  std::string Pair(const ReportNumbers& numbers, const cdm::RiseFallMinMax& values) const;
};

std::string ReportClockCmd::Pair(const ReportNumbers& numbers,
                                 const cdm::RiseFallMinMax& values) const {
  if (values.empty()) return "-";
  std::string text;
  for (const cdm::RiseFall* rf : {cdm::RiseFall::rise_, cdm::RiseFall::fall_}) {
    const float low = values.value(rf, cdm::MinMax::min_);
    const float high = values.value(rf, cdm::MinMax::max_);
    if (!text.empty()) text += "/";
    text += numbers.Time(low);
    if (low != high) text += ":" + numbers.Time(high);
  }
  return text;
}

int ReportClockCmd::exec() {
  boost::any any;
  const int digits = getOptionValue("significant_digits", any) ? boost::any_cast<int>(any) : 2;
  if (digits < 0 || digits > 13) {
    SetTclError(name() + ": -significant_digits must lie between 0 and 13");
    return 1;
  }
  sdc::SdcStore& store = sdc::SdcMain::getOrCreateSdcMgr(nullptr)->store();
  if (!store.Sync()) {
    msg::Print_Result("report_clock: no linked current design.");
    return 1;
  }
  PrintBanner({"Report : clocks"});
  const std::vector<Clock*>& clocks = store.Clocks();
  if (clocks.empty()) {
    msg::Print_Result("No clocks.");
    return 0;
  }
  const ReportNumbers numbers(digits);
  msg::Print_Result("Attributes:");
  msg::Print_Result("    p - propagated clock");
  msg::Print_Result("    G - generated clock");
  msg::Print_Result("    V - virtual clock");
  msg::InsertEmptyLine();
  TextTable kinds({"Clock", "Period", "Waveform", "Attrs", "Sources"},
                  {false, true, false, false, false});
  bool any_generated = false;
  for (const Clock* clock : clocks) {
    std::vector<std::string> edges;
    for (float time : clock->getWaveform()) edges.push_back(numbers.Time(time));
    std::string attrs;
    if (clock->isPropagated()) attrs += "p";
    if (clock->isGenerated()) attrs += "G";
    if (clock->isVirtual()) attrs += "V";
    std::vector<std::string> sources;
    for (const cdm::Pin* pin : clock->getSources()) sources.push_back(pin->GetFullName());
    kinds.Add(
        {clock->Name(), numbers.Time(clock->getPeriod()), Braced(edges), attrs, Braced(sources)});
    any_generated = any_generated || clock->isGenerated();
  }
  kinds.Print();

  if (any_generated) {
    msg::InsertEmptyLine();
    TextTable derived({"Generated Clock", "Master Clock", "Master Source", "Derived By"},
                      {false, false, false, false});
    for (const Clock* clock : clocks) {
      if (!clock->isGenerated()) continue;
      std::string how;
      if (!clock->getEdges().empty()) {
        std::vector<std::string> edges;
        for (int edge : clock->getEdges()) edges.push_back(std::to_string(edge));
        how = "edges " + Braced(edges);
      } else if (clock->getMultiplyBy() > 1) {
        how = "multiply_by " + std::to_string(clock->getMultiplyBy());
      } else {
        how = "divide_by " + std::to_string(clock->getDivideBy());
      }
      if (clock->isInverted()) how += " invert";
      const Clock* master = clock->getMasterClock();
      const cdm::Pin* source = clock->getGeneratedSource();
      derived.Add({clock->Name(), master ? master->Name() : "-",
                   source ? source->GetFullName() : "-", how});
    }
    derived.Print();
  }

  msg::InsertEmptyLine();
  TextTable settings(
      {"Clock", "Uncertainty setup/hold", "Source Latency", "Network Latency", "Transition"},
      {false, false, false, false, false});
  for (const Clock* clock : clocks) {
    const auto setup = clock->getUncertainty(cdm::MinMax::max_);
    const auto hold = clock->getUncertainty(cdm::MinMax::min_);
    const std::string uncertainty = !setup && !hold ? "-"
                                                    : numbers.Time(setup.value_or(0.0f)) + "/" +
                                                          numbers.Time(hold.value_or(0.0f));
    settings.Add({clock->Name(), uncertainty, Pair(numbers, clock->getSourceLatency()),
                  Pair(numbers, clock->getNetworkLatency()),
                  Pair(numbers, clock->getTransition())});
  }
  settings.Print();
  return 0;
}

cmdlib::HostCommandRegistrar registrar([] { new ReportClockCmd(); });

}  // namespace
}  // namespace sta
