/// Numbers to "first TO last" ranges, and ranges to lines of a given width.
#ifndef STAAD_TEXT_RANGES_H
#define STAAD_TEXT_RANGES_H

#include "staad/export.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {

/// Ranges (first, last), both included, of the sorted numbers; a repeated number opens a range of its
/// own. Throws std::bad_alloc. Cost: that of sorting a copy.
STAAD_API std::vector<std::pair<int, int>> make_id_ranges(const std::vector<int>& ids);

/// `head` and the ranges after it on lines of at most `width` bytes, continued lines ending in " -"; no
/// line feed at the end. Without ranges the head alone. Throws std::bad_alloc. Cost: linear.
STAAD_API std::string format_id_ranges(const std::string& head, const std::vector<std::pair<int, int>>& ranges,
                                       std::size_t width);

/// The ranges and `tail` after the last of them, laid out the same way. Without ranges nothing.
STAAD_API std::string format_id_ranges_tail(const std::vector<std::pair<int, int>>& ranges, const std::string& tail,
                                            std::size_t width);

} // namespace STAAD

#endif
