/// What "forces" shows, as text, JSON or CSV.
#ifndef TOOLS_STAADKIT_FORCES_FORCES_REPORT_H
#define TOOLS_STAADKIT_FORCES_FORCES_REPORT_H

#include "cli/open_model.h"
#include "output/std_output.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace tool {

/// One load case of the listing.
struct force_case_summary {
    int number = 0;
    std::optional<STAAD::LoadCase> of_model; ///< none for a combination: the model has no combinations
    std::size_t members = 0;
};

/// What was read from a listing, in numbers.
struct force_summary {
    std::vector<STAAD::Finding> sections; ///< one each, up to the number that a report lists
    std::size_t section_count = 0;
    std::size_t members = 0;
    std::size_t members_in_model = 0;
    std::size_t unknown_member_lines = 0;  ///< lines of the listing that begin a member the model does not have
    std::vector<force_case_summary> cases; ///< ascending
    std::size_t stations = 0;
};

/// `report` is that of the listing.
force_summary summarise_forces(const STAAD::SdReader& model, const STAAD::ReadReport& report);

enum class forces_view {
    stations, ///< every printed station
    extremes, ///< largest and smallest of each component
    lists     ///< of the downstream design program
};

/// Everything that one call of the verb shows, in any format.
struct forces_report {
    opened_model model; ///< with the forces that are shown
    opened_forces listing;
    force_summary summary; ///< of everything that was read
    forces_view view = forces_view::stations;
    bool is_selection = false; ///< not everything that was read is shown
};

void put_forces_text(std_output& out, const forces_report& report);

/// Prints one object, even if model or listing could not be read.
void put_forces_json(std_output& out, const forces_report& report);

/// Prints RFC 4180, except that line ends are LF.
void put_forces_csv(std_output& out, const forces_report& report);

} // namespace tool

#endif
