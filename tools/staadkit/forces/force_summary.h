/// What was read from a listing, in numbers.
#ifndef TOOLS_STAADKIT_FORCES_FORCE_SUMMARY_H
#define TOOLS_STAADKIT_FORCES_FORCE_SUMMARY_H

#include "staad/model/sd_reader.h"
#include "staad/report/read_report.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace tool {

/// One load case of the listing.
struct force_case_summary {
    int number = 0;
    std::optional<STAAD::LoadCase> of_model; ///< none for combinations, which the model does not hold
    std::size_t members = 0;
};

struct force_summary {
    std::vector<STAAD::Finding> sections; ///< one each, as far as the report lists them
    std::size_t section_count = 0;
    std::size_t members = 0;
    std::size_t members_in_model = 0;
    std::size_t unknown_member_lines = 0;  ///< lines of the listing that begin a member the model does not have
    std::vector<force_case_summary> cases; ///< ascending
    std::size_t stations = 0;
};

/// `report` is that of the listing.
force_summary summarise_forces(const STAAD::SdReader& model, const STAAD::ReadReport& report);

} // namespace tool

#endif
