/// Which forces are shown: all, or those of some members and load cases.
#ifndef TOOLS_STAADKIT_FORCES_FORCE_SELECTION_H
#define TOOLS_STAADKIT_FORCES_FORCE_SELECTION_H

#include "staad/model/sd_reader.h"
#include "staad/report/read_report.h"

#include <string>
#include <utility>
#include <vector>

namespace tool {

/// Ranges (first, last) of numbers as they were asked for.
using number_ranges = std::vector<std::pair<int, int>>;

/// Adds the numbers of a list such as "1 5 TO 9" to `ranges`. Returns the error in the list, empty if there is
/// none.
std::string add_number_list(const std::string& text, number_ranges& ranges);

/// Members and load cases that were asked for; empty: all of them.
struct force_selection {
    number_ranges members;
    number_ranges cases;

    bool is_all() const noexcept { return members.empty() && cases.empty(); }
};

/// Why nothing can be shown: neither the model nor its forces have a number, or any number of a range, that was
/// asked for. Empty if they have.
std::string unknown_in(const force_selection& wanted, const STAAD::SdReader& model);

/// Removes the other forces from the model, and adds to `report` what was asked for and has no forces.
void keep_selected(const force_selection& wanted, STAAD::SdReader& model, STAAD::ReadReport& report);

/// The number of a member that has forces.
int member_number(const STAAD::SdReader& model, const STAAD::BeamForceAndMOM& forces);

/// Calls `visit(member number, load case number, record)` for every record of the model's forces.
template<class Visit>
void each_record(const STAAD::SdReader& model, Visit visit)
{
    for (const auto& [position, forces] : model.beam_forces) {
        for (const auto& [load_case, record] : forces.records)
            visit(member_number(model, forces), load_case, record);
    }
}

} // namespace tool

#endif
