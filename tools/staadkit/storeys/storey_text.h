/// The report of "storeys" for people.
#ifndef TOOLS_STAADKIT_STOREYS_STOREY_TEXT_H
#define TOOLS_STAADKIT_STOREYS_STOREY_TEXT_H

#include "output/std_output.h"
#include "storeys/storey_summary.h"

namespace tool {

/// Prints the storeys from the top down, the records in none of them and why, and the sections; with
/// `with_forces` also how many members have forces.
void put_storeys(std_output& out, const storeys_summary& summary, bool with_forces);

} // namespace tool

#endif
