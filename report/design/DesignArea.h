// Area of what a cell or reference stands for, summed over the leaf cells
// below it.
#pragma once

#include <string>

namespace cdm {
class Cell;
class Design;
class Reference;
}  // namespace cdm

// Library cell area, or the single-precision sum over the leaf cells below a
// hierarchical cell, constant cells left out. Used by report_cell.
float ComputeInstanceArea(cdm::Cell* cell);

// Adds the leaf area of `ref` to `area` (constant cells included). Used by
// report_reference.
void ComputeDesignArea(cdm::Reference* ref, float& area);

// "%f" text of an area as report_reference and report_cell print it: six
// decimals, never cut (their buffer of 58 characters holds every float,
// unlike the 32 bytes of ReportTable::Float2Str).
std::string AreaText(float area);
