/// Combinations and sums of cases, down to the cases that they are made of.
#ifndef STAAD_STRUCTURE_FLATTENED_H
#define STAAD_STRUCTURE_FLATTENED_H

#include "staad/export.h"
#include "staad/structure/structure.h"

#include <memory>
#include <vector>

namespace STAAD {

namespace detail {
class case_flattener;
}

/// What many combinations and cases of one structure come to; the structure must outlive it and stay as it is.
///
/// A case is in a result once, its factors added up, in the order in which the deck first comes to it; one that has
/// loads of its own beside those of others stands after these. A term by which a sum comes back to itself counts as
/// none. A number that no record has stays as it is: the analysis program may make the case. Cost: linear in the terms
/// below a record; the construction visits all terms once. Calls throw ReadLimitError when they have visited more than
/// most_numbers_per_list terms together, and std::bad_alloc.
class FlattenedCases {
public:
    STAAD_API explicit FlattenedCases(const Structure& structure);
    FlattenedCases(const FlattenedCases&) = delete;
    FlattenedCases& operator=(const FlattenedCases&) = delete;
    STAAD_API ~FlattenedCases();

    /// A combination in load cases: combinations in it are resolved, sums in load cases are not, as these are cases
    /// of the analysis. SRSS and ABS are no sums: such a combination stays under its own number in others, and its
    /// own terms are given as they stand.
    STAAD_API std::vector<Structure::CaseFactor> of(const Structure::Combination& combination);
    /// The cases whose own loads are together the loads of a load case: itself, if it has loads of its own, and
    /// those that its REPEAT LOAD and REFERENCE LOAD come to.
    STAAD_API std::vector<Structure::CaseFactor> of(const Structure::LoadCase& load_case);

private:
    std::unique_ptr<detail::case_flattener> flattener_;
};

/// The same for one record. Cost: all terms of the structure are visited.
STAAD_API std::vector<Structure::CaseFactor> flattened(const Structure& structure,
                                                       const Structure::Combination& combination);
STAAD_API std::vector<Structure::CaseFactor> flattened(const Structure& structure,
                                                       const Structure::LoadCase& load_case);

} // namespace STAAD

#endif
