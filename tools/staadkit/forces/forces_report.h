/// What "forces" prints, as text, JSON or CSV.
#ifndef TOOLS_STAADKIT_FORCES_FORCES_REPORT_H
#define TOOLS_STAADKIT_FORCES_FORCES_REPORT_H

#include "cli/open_model.h"
#include "forces/force_selection.h"
#include "forces/force_summary.h"
#include "output/std_output.h"

namespace tool {

enum class forces_view {
    stations, ///< every printed station
    extremes, ///< largest and smallest of each component
    lists     ///< of the downstream design program
};

/// One run of the verb: all of it but the form in which it is printed.
struct forces_report {
    opened_model model; ///< with the forces that are shown
    opened_forces listing;
    force_summary summary; ///< of all that was read
    forces_view view = forces_view::stations;
    bool is_selection = false; ///< not everything that was read is shown
};

void put_forces_text(std_output& out, const forces_report& report);

/// One object, also where model or listing could not be read.
void put_forces_json(std_output& out, const forces_report& report);

void put_forces_csv(std_output& out, const forces_report& report);

} // namespace tool

#endif
