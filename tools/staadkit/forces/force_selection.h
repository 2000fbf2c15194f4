/// The forces that are shown: all, or those of some members and load cases.
#ifndef TOOLS_STAADKIT_FORCES_FORCE_SELECTION_H
#define TOOLS_STAADKIT_FORCES_FORCE_SELECTION_H

#include "staad/model/sd_reader.h"
#include "staad/report/read_report.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// Numbers that were asked for; none: all of them.
struct force_selection {
    std::vector<int> members;
    std::vector<int> cases;

    bool is_all() const noexcept { return members.empty() && cases.empty(); }
};

/// Why nothing can be shown: one of the numbers is that of nothing the model or its forces have. Empty if
/// all are known.
std::string unknown_in(const force_selection& wanted, const STAAD::SdReader& model);

/// Takes the other forces out of the model, and adds to `report` what was asked for and is not there.
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
