/// Pairs of case and factor, as REPEAT LOAD, REFERENCE LOAD and combinations have them.
#ifndef STAAD_STRUCTURE_BLOCKS_SUMS_H
#define STAAD_STRUCTURE_BLOCKS_SUMS_H

#include "staad/structure/reading.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace STAAD::detail {

/// "1 1.4 2 -0.5 R3 1.0": the number of a load case, with an R before it, of a reference case.
struct case_number {
    int number = 0;
    bool is_reference = false;
};
std::optional<case_number> case_number_of(std::string_view word) noexcept;

/// Reads the pairs of a statement: any number on a row, over any number of rows; of a pair that one row begins the
/// next row has the factor. `are_references`: numbers without R are of reference cases, too.
void read_pairs(structure_reading& context, std::size_t statement, bool are_references,
                std::vector<Structure::CaseFactor>& terms);

/// Reports cases that sums name and that are not there, and sums that hold themselves.
void check_sums(structure_reading& context);

} // namespace STAAD::detail

#endif
