/// Between a structure and the container that hosts have.
#ifndef STAAD_STRUCTURE_CONTAINER_H
#define STAAD_STRUCTURE_CONTAINER_H

#include "staad/export.h"
#include "staad/report/read_report.h"
#include "staad/structure/structure.h"

namespace STAAD {

class SdReader;

/// Makes `model` what `structure` says, as far as the container has a place for it.
///
/// Units:    `unit_text` is "UNIT METER KN" whatever the deck has: texts with numbers in them, sections, springs,
///           rows of user tables, load definitions, are written in metres and kilonewtons.
/// Texts:    as the host reading has them: "PRIS500X300" with whole mm rounded to the nearest.
/// Loads:    on joints, members, areas, self weight, floor loads with a list of members; a sum of cases becomes the
///           loads that it comes to. Local letters are turned like global ones; of a deck with Z up the upright local
///           axis is the container's Z, the level one its X with the sign turned.
/// Axes:     of a deck with Z up, beta of vertical members, whose axes begin elsewhere in the container, is turned by a
///           quarter.
/// Replaces: everything that a reading replaces. `wl_param`, `eq_param` and `old_proj_maps` stay.
/// Reports:  what the container has no place for ("not-in-container"), and what it holds in another form
///           ("changed-in-container"), by record. The report is emptied first.
/// Throws:   ReadLimitError where sums of cases come to more loads than a reading holds; std::bad_alloc.
/// Cost:     linear in the structure and in the loads that its sums come to.
STAAD_API void to_reader(const Structure& structure, SdReader& model, ReadReport& report);
STAAD_API void to_reader(const Structure& structure, SdReader& model);

/// The structure that a model says, for models that a host filled or that the host reading read. Texts are read in
/// the units of `unit_text`; no record has a source. Throws std::bad_alloc. Cost: linear.
STAAD_API Structure structure_of(const SdReader& model);

} // namespace STAAD

#endif
