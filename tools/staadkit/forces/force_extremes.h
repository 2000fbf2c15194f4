/// The largest and smallest forces and moments, and where they are.
#ifndef TOOLS_STAADKIT_FORCES_FORCE_EXTREMES_H
#define TOOLS_STAADKIT_FORCES_FORCE_EXTREMES_H

#include "forces/force_columns.h"
#include "staad/model/sd_reader.h"

#include <vector>

namespace tool {

struct force_extreme {
    const force_column* component = nullptr;
    bool is_largest = true; ///< else the smallest
    double value = 0.0;
    int member = 0; ///< number in the file
    int load_case = 0;
    double position = 0.0; ///< mm

    const char* word() const noexcept { return is_largest ? "largest" : "smallest"; }
};

/// Largest and smallest of each component over all the model's forces; of equal ones the first. Empty if
/// there are no stations.
std::vector<force_extreme> find_extremes(const STAAD::SdReader& model);

} // namespace tool

#endif
