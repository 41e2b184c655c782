#include "sdc/SdcCommand.h"

#include <boost/any.hpp>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdio>

#include "cmdlib/CommandState.h"

#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/sta/SdcMain.h"
#include "hostapi/sta/SdcMgr.h"
#include "msg/HostMsg.h"
#include "query/ObjectArgs.h"
#include "sdc/SdcSource.h"

namespace sta::sdc {

SdcCommand::SdcCommand(const char* name, const char* description)
    : CommonCmd(name, description, nullptr) {
  addOptions("help", "Display help info", false, ValueType::kFlag, std::any());
}

int SdcCommand::exec() {
  SdcStore& store = SdcMain::getOrCreateSdcMgr(nullptr)->store();
  if (!store.Sync()) {
    Fail("no current design; run link_design first");
    return 1;
  }
  store_ = &store;
  const bool ok = NumbersInRange() && Run(store);
  store_ = nullptr;
  return ok ? 0 : 1;
}

void SdcCommand::Flag(const char* option, const char* help) {
  addOptions(option, help, false, ValueType::kFlag, std::any());
}
void SdcCommand::Number(const char* option, const char* help, bool positional) {
  addOptions(option, help, positional, ValueType::kDouble, std::any());
}
void SdcCommand::Integer(const char* option, const char* help, bool positional) {
  addOptions(option, help, positional, ValueType::kInteger, std::any());
}
void SdcCommand::Text(const char* option, const char* help, bool positional) {
  addOptions(option, help, positional, ValueType::kString, std::any());
}
void SdcCommand::Numbers(const char* option, const char* help) {
  addOptions(option, help, false, ValueType::kDoubleList, std::any());
}
void SdcCommand::Objects(const char* option, const char* help, bool positional) {
  addOptions(option, help, positional, ValueType::kStringList, std::any());
}
void SdcCommand::EdgeFlags(const char* what) {
  Flag("rise", (std::string("Set the rise ") + what).c_str());
  Flag("fall", (std::string("Set the fall ") + what).c_str());
}
void SdcCommand::MinMaxFlags(const char* what) {
  Flag("min", (std::string("Set the minimum ") + what).c_str());
  Flag("max", (std::string("Set the maximum ") + what).c_str());
}

double SdcCommand::NumberOf(const char* option) {
  boost::any value;
  return getOptionValue(option, value) ? boost::any_cast<double>(value) : 0.0;
}
int SdcCommand::IntegerOf(const char* option) {
  boost::any value;
  return getOptionValue(option, value) ? boost::any_cast<int>(value) : 0;
}
std::string SdcCommand::TextOf(const char* option) {
  boost::any value;
  return getOptionValue(option, value) ? boost::any_cast<std::string>(value) : std::string();
}
std::vector<double> SdcCommand::NumbersOf(const char* option) {
  boost::any value;
  return getOptionValue(option, value) ? boost::any_cast<std::vector<double>>(value)
                                       : std::vector<double>();
}

bool SdcCommand::NumbersInRange() {
  // Every value is kept as a float in SI: the largest unit in force bounds
  // what fits.
  double largest_scale = 1.0;
  for (int q = 0; q < SdcUnits::kQuantityCount; ++q)
    largest_scale =
        std::max(largest_scale, store_->Units().Scale(static_cast<SdcUnits::Quantity>(q)));
  for (const OptionDecl& decl : state().options) {
    if (decl.type != ValueType::kDouble && decl.type != ValueType::kDoubleList) continue;
    if (!Has(decl.name.c_str())) continue;
    const std::vector<double> values = decl.type == ValueType::kDouble
                                           ? std::vector<double>{NumberOf(decl.name.c_str())}
                                           : NumbersOf(decl.name.c_str());
    for (double value : values) {
      if (std::isfinite(value) && std::fabs(value) * largest_scale <= FLT_MAX) continue;
      char shown[32];
      std::snprintf(shown, sizeof shown, "%g", value);
      return Fail("option '" + std::string(decl.positional ? "" : "-") + decl.name +
                  "' expects a finite number within range, got '" + shown + "'");
    }
  }
  return true;
}

bool SdcCommand::Need(const char* option) {
  if (Has(option)) return true;
  const OptionDecl* decl = state().Find(option);
  const bool positional = decl && decl->positional;
  return Fail(std::string("missing ") + (positional ? "" : "option -") + option);
}

float SdcCommand::Si(double value, SdcUnits::Quantity quantity) {
  return static_cast<float>(value * store_->Units().Scale(quantity));
}

const cdm::RiseFallBoth* SdcCommand::Edges(const char* rise, const char* fall) {
  const bool r = Has(rise), f = Has(fall);
  if (r == f) return cdm::RiseFallBoth::rise_fall_;
  return r ? cdm::RiseFallBoth::rise_ : cdm::RiseFallBoth::fall_;
}

MinMaxAll SdcCommand::Which(const char* min, const char* max) {
  const bool lo = Has(min), hi = Has(max);
  if (lo == hi) return MinMaxAll::kAll;
  return lo ? MinMaxAll::kMin : MinMaxAll::kMax;
}

bool SdcCommand::ObjectsOf(const char* option, const std::vector<query::ObjectKind>& kinds,
                           std::vector<query::ObjectRef>& objects, int use) {
  query::ObjectArgs args;
  std::string error;
  const char separator = store_ ? store_->HierarchySeparator() : '/';
  if (!query::ResolveOption(*this, option, kinds, query::MatchOptions{}, separator, args, error,
                            use))
    return Fail(error);
  for (const std::string& unknown : args.unmatched) WarnUnknown(query::KindsText(kinds), unknown);
  for (const query::ObjectRef& ref : args.wrong_kind)
    msg::HostMsg(SDC_002,
                 {name(), query::KindName(ref.kind), query::FullName(ref), query::KindsText(kinds)},
                 SdcSource::Where());
  objects = std::move(args.objects);
  return true;
}

void SdcCommand::KeepDirection(std::vector<query::ObjectRef>& objects, bool input) {
  std::vector<query::ObjectRef> kept;
  for (const query::ObjectRef& ref : objects) {
    const cdm::Port* port = nullptr;
    if (ref.kind == query::ObjectKind::kPort) {
      port = static_cast<cdm::Port*>(ref.object);
    } else if (ref.kind == query::ObjectKind::kPin) {
      auto* pin = static_cast<cdm::Pin*>(ref.object);
      if (pin->IsTopPortPin()) port = pin->GetPort();
    }
    if (port && !(input ? port->IsInput() : port->IsOutput())) {
      msg::HostMsg(SDC_008, {name(), port->Name(), input ? "input" : "output"}, SdcSource::Where());
      continue;
    }
    kept.push_back(ref);
  }
  objects.swap(kept);
}

std::vector<cdm::Pin*> SdcCommand::PinsOf(const std::vector<query::ObjectRef>& objects) {
  std::vector<cdm::Pin*> pins;
  cdm::Design* design = cdm::DbManager::GetCurrentDesign();
  for (const query::ObjectRef& ref : objects) {
    if (ref.kind == query::ObjectKind::kPin) {
      pins.push_back(static_cast<cdm::Pin*>(ref.object));
    } else if (ref.kind == query::ObjectKind::kPort && design) {
      if (cdm::Pin* pin = design->FindPin(static_cast<cdm::Port*>(ref.object)->Name()))
        pins.push_back(pin);
    }
  }
  return pins;
}

bool SdcCommand::Fail(const std::string& message) {
  SetTclError(name() + ": " + message);
  return false;
}

void SdcCommand::WarnUnknown(const std::string& what, const std::string& name_given) {
  msg::HostMsg(SDC_001, {name(), what, name_given}, SdcSource::Where());
}

}  // namespace sta::sdc
