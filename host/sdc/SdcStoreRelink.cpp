// After the netlist changed (a new link, a library read again, another
// current design and back), the store finds its objects again by name.
// Constraints whose objects are gone are dropped with one warning each.
#include <algorithm>

#include "hostapi/cdm/Cell.h"
#include "hostapi/cdm/DbManager.h"
#include "hostapi/cdm/Design.h"
#include "hostapi/cdm/LibCell.h"
#include "hostapi/cdm/LibPort.h"
#include "hostapi/cdm/LibertyLib.h"
#include "hostapi/cdm/Net.h"
#include "hostapi/cdm/Pin.h"
#include "hostapi/cdm/Port.h"
#include "hostapi/cdm/Root.h"
#include "msg/HostMsg.h"
#include "sdc/SdcStore.h"

namespace sta::sdc {
namespace {

// Library objects outlive a library read again, but the store follows the
// library now loaded under the name.
cdm::LibertyLib* CurrentLibrary(const cdm::LibertyLib* old) {
  return old ? cdm::DbManager::GetRoot()->GetLibertyLib(old->Name()) : nullptr;
}

cdm::LibCell* CurrentLibCell(const cdm::LibCell* old) {
  cdm::LibertyLib* lib = old ? CurrentLibrary(old->GetLibertyLib()) : nullptr;
  return lib ? lib->GetLibCell(old->Name()) : nullptr;
}

cdm::LibPort* CurrentLibPort(cdm::LibCell* cell, const cdm::LibPort* old) {
  return cell && old ? cell->FindPort(old->Name()) : nullptr;
}

const cdm::WireLoad* CurrentWireLoad(const cdm::WireLoad* old) {
  cdm::LibertyLib* lib = old ? CurrentLibrary(old->library) : nullptr;
  return lib ? lib->GetWireLoad(old->name) : nullptr;
}

void Append(std::string& list, const char* item) {
  if (list.find(item) != std::string::npos) return;
  if (!list.empty()) list += ", ";
  list += item;
}

std::string Describe(const PortConstraints& record) {
  std::string what;
  if (const InputDrive* drive = record.drive.get()) {
    if (!drive->getDriveResistances().empty()) Append(what, "set_drive");
    if (!drive->getSlews().empty()) Append(what, "set_input_transition");
    if (drive->hasDriveCell()) Append(what, "set_driving_cell");
  }
  if (const PortExtLoad* load = record.load.get()) {
    if (!load->getPinLoads().empty() || !load->getWireLoads().empty()) Append(what, "set_load");
    if (load->getFanout(cdm::MinMax::min_) || load->getFanout(cdm::MinMax::max_))
      Append(what, "set_port_fanout_number");
  }
  if (record.max_transition) Append(what, "set_max_transition");
  if (record.max_capacitance) Append(what, "set_max_capacitance");
  if (record.min_capacitance) Append(what, "set_min_capacitance");
  if (record.max_fanout) Append(what, "set_max_fanout");
  if (record.fanout_load) Append(what, "set_fanout_load");
  if (record.logic) Append(what, "set_logic_*");
  if (record.wire_load[0] || record.wire_load[1]) Append(what, "set_wire_load_model");
  return what.empty() ? "constraints" : what;
}

std::string Describe(const PinConstraints& record) {
  std::string what;
  if (!record.input_delays.empty()) Append(what, "set_input_delay");
  if (!record.output_delays.empty()) Append(what, "set_output_delay");
  if (record.case_value) Append(what, "set_case_analysis");
  if (record.ideal_source) Append(what, "set_ideal_network");
  if (record.dont_touch_network) Append(what, "set_dont_touch_network");
  if (record.propagated_clock) Append(what, "set_propagated_clock");
  return what.empty() ? "constraints" : what;
}

}  // namespace

// The min and max models of a design, port or hierarchical cell: one
// warning for a model the libraries no longer hold, also when it stood for
// both.
void SdcStore::RelinkWireLoads(const cdm::WireLoad* (&models)[2], const char* kind,
                               const std::string& name) {
  const cdm::WireLoad* warned = nullptr;
  for (const cdm::WireLoad*& model : models) {
    if (!model) continue;
    const cdm::WireLoad* now = CurrentWireLoad(model);
    if (!now && model != warned)
      DroppedPart("set_wire_load_model", kind, name, "wire-load model", model->name);
    if (!now) warned = model;
    model = now;
  }
}

void SdcStore::Relink(cdm::Design* design) {
  RelinkClocks(design);  // first: delays and exceptions refer to clocks
  RelinkPorts(design);
  RelinkPins(design);
  RelinkNetsAndCells();
  RelinkExceptions();
  RelinkDisabled();
  RelinkWireLoads(design_.wire_load, "design", design_name_);
  const cdm::OperatingConditions* warned = nullptr;
  for (int i = 0; i < 2; ++i) {
    if (design_.selection_library[i])
      design_.selection_library[i] = CurrentLibrary(design_.selection_library[i]);
    if (const cdm::OperatingConditions* old = design_.operating_conditions[i]) {
      cdm::LibertyLib* lib = CurrentLibrary(design_.operating_library[i]);
      const cdm::OperatingConditions* now = lib ? lib->GetOperatingConditions(old->name) : nullptr;
      if (!now && old != warned)
        DroppedPart("set_operating_conditions", "design", design_name_, "operating conditions",
                    old->name);
      if (!now) warned = old;
      design_.operating_conditions[i] = now;
      design_.operating_library[i] = now ? lib : nullptr;
    }
  }
  NoteChange();
}

void SdcStore::RelinkClocks(cdm::Design*) {
  std::vector<Clock*> gone;
  for (Clock* clock : clocks_) {
    const bool had_sources = !clock->source_names_.empty();
    std::vector<cdm::Pin*> sources;
    std::vector<std::string> names;
    for (const std::string& name : clock->source_names_) {
      if (cdm::Pin* pin = cdm::DbManager::FindPin(name)) {
        sources.push_back(pin);
        names.push_back(name);
      } else {
        Dropped("pin", name, "the source of clock '" + clock->Name() + "'");
      }
    }
    clock->sources_ = std::move(sources);
    clock->source_names_ = std::move(names);
    if (clock->generated_ && !clock->generated_source_name_.empty()) {
      clock->generated_source_ = cdm::DbManager::FindPin(clock->generated_source_name_);
      if (!clock->generated_source_) {
        Dropped("pin", clock->generated_source_name_,
                "create_generated_clock '" + clock->Name() + "'");
        gone.push_back(clock);
        continue;
      }
    }
    if (had_sources && clock->sources_.empty()) gone.push_back(clock);
  }
  for (Clock* clock : gone) {
    if (std::find(clocks_.begin(), clocks_.end(), clock) == clocks_.end()) continue;
    msg::HostMsg(SDC_004, {clock->Name(), design_name_});
    RetireClock(clock);
  }
  for (Clock* clock : clocks_)
    if (clock->master_ && !FindClock(clock->master_->Name())) clock->master_ = nullptr;
  inter_clock_.erase(std::remove_if(inter_clock_.begin(), inter_clock_.end(),
                                    [&](const InterClockUncertainty& entry) {
                                      return FindClock(entry.from->Name()) != entry.from ||
                                             FindClock(entry.to->Name()) != entry.to;
                                    }),
                     inter_clock_.end());
  for (ClockGroups& groups : clock_groups_)
    for (auto& group : groups.groups)
      group.erase(std::remove_if(group.begin(), group.end(),
                                 [&](Clock* clock) { return FindClock(clock->Name()) != clock; }),
                  group.end());
}

void SdcStore::RelinkPorts(cdm::Design* design) {
  RecordTable<cdm::Port, PortConstraints> relinked;
  driving_cells_ = 0;
  for (auto& entry : ports_) {
    std::unique_ptr<PortConstraints>& record = entry.second;
    cdm::Port* port = design->FindPort(record->name);
    if (!port) {
      Dropped("port", record->name, Describe(*record));
      continue;
    }
    if (InputDrive* drive = record->drive.get()) {
      const DriveCell* warned = nullptr;
      for (auto& cell : drive->cells_) {
        if (!cell) continue;
        cdm::LibCell* lib_cell = CurrentLibCell(cell->lib_cell_);
        if (!lib_cell) {
          if (cell.get() != warned)
            DroppedPart("set_driving_cell", "port", record->name, "library cell",
                        cell->lib_cell_->Name());
          warned = cell.get();
          cell.reset();
          continue;
        }
        if (lib_cell != cell->lib_cell_) {
          auto now = std::make_shared<DriveCell>(*cell);
          now->lib_cell_ = lib_cell;
          now->from_port_ = CurrentLibPort(lib_cell, cell->from_port_);
          now->to_port_ = CurrentLibPort(lib_cell, cell->to_port_);
          for (auto& other : drive->cells_)
            if (other.get() == cell.get() && &other != &cell) other = now;
          cell = now;
        }
      }
      if (drive->hasDriveCell()) ++driving_cells_;
    }
    RelinkWireLoads(record->wire_load, "port", record->name);
    if (record->fanout_load) {
      cdm::Attribute attribute;
      attribute.id = cdm::AttrId::kFanoutLoad;
      attribute.kind = cdm::AttrKind::kFloat;
      attribute.float_value = *record->fanout_load;
      port->SetAttribute(attribute);
    }
    relinked.Slot(port) = std::move(record);
  }
  ports_ = std::move(relinked);
}

void SdcStore::RelinkPins(cdm::Design*) {
  RecordTable<cdm::Pin, PinConstraints> relinked;
  for (auto& entry : pins_) {
    std::unique_ptr<PinConstraints>& record = entry.second;
    cdm::Pin* pin = cdm::DbManager::FindPin(record->name);
    if (!pin) {
      Dropped("pin", record->name, Describe(*record));
      continue;
    }
    // A delay on a top port is said to be on the port, as it was set.
    const char* kind = pin->IsTopPortPin() ? "port" : "pin";
    auto relink_delays = [&](auto& owned, auto& delays, const char* command) {
      delays.clear();
      for (auto it = owned.begin(); it != owned.end();) {
        PortDelay* delay = it->get();
        delay->pin_ = pin;
        bool keep = true;
        if (delay->clock_edge_ &&
            FindClock(delay->clock_edge_->getClock()->Name()) != delay->clock_edge_->getClock()) {
          DroppedPart(command, kind, record->name, "clock", delay->clock_edge_->getClock()->Name());
          keep = false;
        } else if (!delay->ref_pin_name_.empty()) {
          delay->ref_pin_ = cdm::DbManager::FindPin(delay->ref_pin_name_);
          if (!delay->ref_pin_) {
            DroppedPart(command, kind, record->name, "reference pin", delay->ref_pin_name_);
            keep = false;
          }
        }
        if (keep) {
          delays.push_back(it->get());
          ++it;
        } else {
          it = owned.erase(it);
        }
      }
    };
    relink_delays(record->input_owned, record->input_delays, "set_input_delay");
    relink_delays(record->output_owned, record->output_delays, "set_output_delay");
    relinked.Slot(pin) = std::move(record);
  }
  pins_ = std::move(relinked);
}

void SdcStore::RelinkNetsAndCells() {
  RecordTable<cdm::Net, NetConstraints> nets;
  for (auto& entry : nets_) {
    cdm::Net* net = cdm::DbManager::FindNet(entry.second->name);
    if (net)
      nets.Slot(net) = std::move(entry.second);
    else
      Dropped("net", entry.second->name, "set_load");
  }
  nets_ = std::move(nets);
  RecordTable<cdm::Cell, CellConstraints> cells;
  for (auto& entry : cells_) {
    cdm::Cell* cell = cdm::DbManager::FindCell(entry.second->name);
    if (!cell) {
      Dropped("cell", entry.second->name, "set_wire_load_model");
      continue;
    }
    RelinkWireLoads(entry.second->wire_load, "cell", entry.second->name);
    cells.Slot(cell) = std::move(entry.second);
  }
  cells_ = std::move(cells);
}

void SdcStore::RelinkObjects(std::vector<SdcObject>& objects, const char* what) {
  for (auto it = objects.begin(); it != objects.end();) {
    query::ObjectRef now = it->ref.kind == query::ObjectKind::kClock
                               ? query::ObjectRef{query::ObjectKind::kClock, FindClock(it->name)}
                               : query::FindByFullName(it->ref.kind, it->name);
    if (!now.object) {
      Dropped(query::KindName(it->ref.kind), it->name, what);
      it = objects.erase(it);
    } else {
      it->ref = now;
      ++it;
    }
  }
}

void SdcStore::RelinkExceptions() {
  for (auto it = exceptions_.begin(); it != exceptions_.end();) {
    bool emptied = false;
    auto relink = [&](ExceptionPoint& point, const char* what) {
      const bool had = !point.objects.empty();
      RelinkObjects(point.objects, what);
      if (had && point.objects.empty()) emptied = true;
    };
    if (it->from) relink(*it->from, "an exception's -from");
    for (ExceptionPoint& through : it->throughs) relink(through, "an exception's -through");
    if (it->to) relink(*it->to, "an exception's -to");
    if (emptied) {
      msg::HostMsg(SDC_005, {design_name_});
      it = exceptions_.erase(it);
    } else {
      ++it;
    }
  }
}

void SdcStore::RelinkDisabled() {
  for (auto it = disabled_.begin(); it != disabled_.end();) {
    query::ObjectRef now = query::FindByFullName(it->object.ref.kind, it->object.name);
    if (!now.object) {
      Dropped(query::KindName(it->object.ref.kind), it->object.name, "set_disable_timing");
      it = disabled_.erase(it);
    } else {
      it->object.ref = now;
      ++it;
    }
  }
}

}  // namespace sta::sdc
