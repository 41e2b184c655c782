// The store's drives and loads of ports: set_drive, set_input_transition,
// set_driving_cell, set_load and set_port_fanout_number.
#include "sdc/EdgeSlots.h"
#include "sdc/SdcStore.h"

namespace sta::sdc {
namespace {

InputDrive& DriveOf(PortConstraints& record) {
  if (!record.drive) record.drive = std::make_unique<InputDrive>();
  return *record.drive;
}

PortExtLoad& LoadOf(PortConstraints& record) {
  if (!record.load) record.load = std::make_unique<PortExtLoad>();
  return *record.load;
}

}  // namespace

void SdcStore::SetDriveResistance(cdm::Port* port, const cdm::RiseFallBoth* edges, MinMaxAll which,
                                  float ohms) {
  InputDrive& drive = DriveOf(Port(port));
  ForEachSlot(edges, which, [&](const cdm::RiseFall* edge, const cdm::MinMax* minmax) {
    drive.resistance_.setValue(edge, minmax, ohms);
  });
  NoteChange();
}

void SdcStore::SetInputSlew(cdm::Port* port, const cdm::RiseFallBoth* edges, MinMaxAll which,
                            float seconds) {
  InputDrive& drive = DriveOf(Port(port));
  ForEachSlot(edges, which, [&](const cdm::RiseFall* edge, const cdm::MinMax* minmax) {
    drive.slew_.setValue(edge, minmax, seconds);
  });
  NoteChange();
}

void SdcStore::SetDrivingCell(cdm::Port* port, const cdm::RiseFallBoth* edges, MinMaxAll which,
                              const DrivingCellSpec& spec) {
  PortConstraints& record = Port(port);
  const bool had_cell = record.drive && record.drive->hasDriveCell();
  InputDrive& drive = DriveOf(record);
  auto cell = std::make_shared<DriveCell>();
  cell->lib_cell_ = spec.lib_cell;
  cell->from_port_ = spec.from_port;
  cell->to_port_ = spec.to_port;
  cell->multiply_by_ = spec.multiply_by;
  cell->dont_scale_ = spec.dont_scale;
  cell->no_design_rule_ = spec.no_design_rule;
  cell->input_transition_[0] = spec.input_transition[0];
  cell->input_transition_[1] = spec.input_transition[1];
  ForEachSlot(edges, which, [&](const cdm::RiseFall* edge, const cdm::MinMax* minmax) {
    drive.cells_[InputDrive::Slot(edge, minmax)] = cell;
  });
  if (!had_cell) ++driving_cells_;
  NoteChange();
}

void SdcStore::SetPortLoad(cdm::Port* port, const cdm::RiseFallBoth* edges, MinMaxAll which,
                           bool wire, float farads) {
  PortExtLoad& load = LoadOf(Port(port));
  cdm::RiseFallMinMax& values = wire ? load.wire_load_ : load.pin_load_;
  ForEachSlot(edges, which, [&](const cdm::RiseFall* edge, const cdm::MinMax* minmax) {
    values.setValue(edge, minmax, farads);
  });
  NoteChange();
}

void SdcStore::SetPortFanout(cdm::Port* port, MinMaxAll which, float fanout) {
  PortExtLoad& load = LoadOf(Port(port));
  for (const cdm::MinMax* minmax : {cdm::MinMax::min_, cdm::MinMax::max_})
    if (Covers(which, minmax)) load.fanout_[minmax->index()] = fanout;
  NoteChange();
}

}  // namespace sta::sdc
