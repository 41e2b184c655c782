#include "hostapi/sta/InputDrive.h"

#include "hostapi/cdm/LibCell.h"

namespace sta::sdc {

cdm::LibertyLib* DriveCell::getLibrary() const {
  return lib_cell_ ? lib_cell_->GetLibertyLib() : nullptr;
}

void InputDrive::driveResistance(const cdm::RiseFall* edge, const cdm::MinMax* minmax, float& value,
                                 bool& exists) const {
  if (!resistance_.hasValue(edge, minmax)) return;
  value = resistance_.value(edge, minmax);
  exists = true;
}

bool InputDrive::hasDriveResistance(const cdm::RiseFall* edge, const cdm::MinMax* minmax) const {
  return resistance_.hasValue(edge, minmax);
}

void InputDrive::getSlew(const cdm::RiseFall* edge, const cdm::MinMax* minmax, float& value,
                         bool& exists) const {
  if (!slew_.hasValue(edge, minmax)) return;
  value = slew_.value(edge, minmax);
  exists = true;
}

const DriveCell* InputDrive::getDriveCell(const cdm::RiseFall* edge,
                                          const cdm::MinMax* minmax) const {
  return cells_[Slot(edge, minmax)].get();
}

float InputDrive::getDriveCellFactor(const cdm::RiseFall* edge, const cdm::MinMax* minmax) const {
  const DriveCell* cell = getDriveCell(edge, minmax);
  return cell ? cell->getMultiplyBy() : 1.0f;
}

bool InputDrive::getDriveCellDontScale(const cdm::RiseFall* edge, const cdm::MinMax* minmax) const {
  const DriveCell* cell = getDriveCell(edge, minmax);
  return cell && cell->getDontScale();
}

bool InputDrive::getDriveCellNoDR(const cdm::RiseFall* edge, const cdm::MinMax* minmax) const {
  const DriveCell* cell = getDriveCell(edge, minmax);
  return cell && cell->getNoDesignRule();
}

bool InputDrive::hasDriveCell() const {
  for (const auto& cell : cells_)
    if (cell) return true;
  return false;
}

}  // namespace sta::sdc
