/// Load cases and definitions for models to write.
#ifndef STAAD_TESTS_SUPPORT_WRITTEN_LOADS_H
#define STAAD_TESTS_SUPPORT_WRITTEN_LOADS_H

#include "staad/model/sd_reader.h"

#include <cstddef>
#include <string>
#include <vector>

namespace STAAD::written {

inline void add_case(SdReader& model, int number, const std::string& type = "Dead")
{
    LoadCase& added = model.load_cases[number];
    added.id = number;
    added.type_text = type;
    added.title = "TITLE OF THE FILE";
}

/// Puts a definition under the next number, and on the members at `positions` (from 1).
inline void add_load(SdReader& model, const LoadDefination& load, const std::vector<int>& positions)
{
    const int number = static_cast<int>(model.load_defs.size()) + 1;
    model.load_defs[number] = load;
    for (const int position : positions)
        model.beams.at(static_cast<std::size_t>(position - 1)).int_list.push_back(number);
}

/// A uniform load along GZ.
inline LoadDefination uniform(double value, int load_case)
{
    return {"MEMBER LOAD UNI", "GZ", {value}, load_case};
}

} // namespace STAAD::written

#endif
