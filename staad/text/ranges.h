/// Numbers to "first TO last" ranges, and ranges to lines of a given width. Knows no model.
#ifndef STAAD_TEXT_RANGES_H
#define STAAD_TEXT_RANGES_H

#include "staad/text/line_filler.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace STAAD {

/// Ranges (first, last) of the sorted numbers; a repeated number opens a range of its own.
std::vector<std::pair<int, int>> make_id_ranges(const std::vector<int>& ids);

/// `head` and the ranges after it on lines of at most `width` characters, continued lines ending
/// in " -"; no line feed at the end. Without ranges the head alone.
std::string format_id_ranges(const std::string& head, const std::vector<std::pair<int, int>>& ranges,
                             std::size_t width);

/// The ranges and `tail` after the last of them, laid out the same way. Without ranges nothing.
std::string format_id_ranges_tail(const std::vector<std::pair<int, int>>& ranges, const std::string& tail,
                                  std::size_t width);

namespace detail {

/// A list of numbers as it is written everywhere: `head`, the ranges, and `tail` on the line of the last
/// one. Lines of at most `line_width` characters, continued ones ending in " -"; no line feed at the end.
/// The tail brings its own blank. Without numbers the head alone.
void put_run_list(text_output& out, std::string_view head, std::span<const int> ids, std::string_view tail);
void put_run_list(text_output& out, std::string_view head, std::span<const unsigned> ids, std::string_view tail);

/// The same from ranges, as text.
std::string wrapped_run_list(std::string_view head, const std::vector<std::pair<int, int>>& ranges,
                             std::string_view tail, std::size_t width);

} // namespace detail
} // namespace STAAD

#endif
