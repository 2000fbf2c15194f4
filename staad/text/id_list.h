/// Number lists with "TO" ranges: one walker, and the rules in which the lists of the format differ.
/// Knows no model.
#ifndef STAAD_TEXT_ID_LIST_H
#define STAAD_TEXT_ID_LIST_H

#include "staad/text/number.h"
#include "staad/text/words.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace STAAD::detail {

/// How a kind of list reads its words. What they all share: "TO" takes the next word as the bound of
/// a range that starts one past the previous number, a "TO" without a bound ends the list, and so
/// does an empty word.
struct id_list_rule {
    /// A number must begin with a digit from 1 to 9; otherwise any word that reads as 1 or more is one.
    bool needs_leading_digit;
    /// A bound below 1 ends the list; otherwise it makes an empty range.
    bool low_bound_ends_list;
    /// The next range starts after the bound ("1 TO 4 TO 6" is 1 to 6); otherwise after the last
    /// number that stood alone ("1 TO 4 TO 6" is 1 2 3 4 2 3 4 5 6).
    bool bound_becomes_previous;
};

/// Supports, releases, offsets, beta angles, braces, thicknesses, materials, member properties, loads.
inline constexpr id_list_rule general_id_list{true, true, false};
/// The numbers of a group.
inline constexpr id_list_rule group_id_list{false, false, true};
/// The surfaces of a SURFACE PROPERTY line.
inline constexpr id_list_rule surface_id_list{true, false, false};

/// Consecutive numbers first..last, both included; at least one.
struct id_range {
    int first = 0;
    int last = 0;
    bool is_range = false; ///< from a "TO"; otherwise a number that stands alone

    std::size_t size() const noexcept { return static_cast<std::size_t>(std::int64_t{last} - first) + 1; }
};

/// Walks a list range by range, without expanding the ranges. `Words` offers `bool next(std::string_view&)` and
/// can be copied to look ahead.
template<class Words = word_cursor>
class id_list_walker {
public:
    id_list_walker(Words words, const id_list_rule& rule) noexcept : words_(words), after_list_(words), rule_(rule) {}

    /// Takes the next range; false at the end of the list.
    bool next(id_range& range) noexcept
    {
        std::string_view word;
        while (words_.next(word) && !word.empty()) {
            const bool found = word == "TO" ? take_range(range) : take_number(word, range);
            if (ended_)
                return false;
            after_list_ = words_;
            if (found)
                return true;
        }
        return false;
    }

    /// The words after the list, from the one that ended it; valid once next() gave false.
    const Words& after_list() const noexcept { return after_list_; }

private:
    bool take_number(std::string_view word, id_range& range) noexcept
    {
        const int number = to_int(word);
        if (number < 1 || (rule_.needs_leading_digit && !starts_with_digit_1_to_9(word))) {
            ended_ = true;
            return false;
        }
        previous_ = number;
        range = {number, number, false};
        return true;
    }

    bool take_range(id_range& range) noexcept
    {
        std::string_view word;
        const bool has_bound = words_.next(word) && !word.empty();
        const int bound = has_bound ? to_int(word) : 0;
        if (!has_bound || (bound < 1 && rule_.low_bound_ends_list)) {
            ended_ = true;
            return false;
        }
        const int previous = previous_;
        if (rule_.bound_becomes_previous)
            previous_ = bound < 1 ? 0 : bound;
        if (bound <= previous)
            return false;
        range = {previous + 1, bound, true};
        return true;
    }

    Words words_;
    Words after_list_;
    id_list_rule rule_;
    int previous_ = 0;
    bool ended_ = false;
};

} // namespace STAAD::detail

#endif
