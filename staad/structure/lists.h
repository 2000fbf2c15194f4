/// Lists of joints, members, elements and cases.
#ifndef STAAD_STRUCTURE_LISTS_H
#define STAAD_STRUCTURE_LISTS_H

#include "staad/structure/reading.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace STAAD::detail {

/// What a list may name.
enum class listed : std::uint8_t { joints, members, elements, members_and_elements };

/// The records of a list, in its order. A number, group or range that stands there twice is there twice.
struct record_list {
    std::vector<Structure::Range> joints;
    std::vector<Structure::Range> members;
    std::vector<Structure::Range> elements;
    std::vector<int> groups; ///< the groups named, positions in Structure::groups
    bool is_given = false;   ///< a word of a list stood there
    bool is_all = false;     ///< it was ALL

    bool is_empty() const noexcept { return joints.empty() && members.empty() && elements.empty(); }
};

/// Takes the list at the front of an item and leaves the words at the first one that is of no list: numbers, "a TO
/// b", "BY c" after it, ALL, names of groups, "XRANGE a b" and its like, of which several are what they share; LIST,
/// MEMB, BEAM, ELEMENT, JOINT before these mean nothing more. Numbers and groups that are not there are reported.
/// Throws ReadLimitError where lists grow past the bounds of a reading.
record_list take_list(structure_reading& context, row_words& words, listed what, std::size_t statement,
                      std::size_t row);

/// Numbers of the file, in the order of the text, "a TO b" and "BY c" counted out; stops at the first word that
/// is neither. Throws ReadLimitError as above.
std::vector<int> take_numbers(structure_reading& context, row_words& words, std::size_t row);

/// Calls `visit(position)` for every position of the ranges.
template<class Visit>
void each_position(const std::vector<Structure::Range>& ranges, Visit visit)
{
    for (const Structure::Range& range : ranges)
        for (int position = range.first; position <= range.last; ++position)
            visit(position);
}

} // namespace STAAD::detail

#endif
