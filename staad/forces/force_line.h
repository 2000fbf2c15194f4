/// One data line of a force listing. Knows no model.
#ifndef STAAD_FORCES_FORCE_LINE_H
#define STAAD_FORCES_FORCE_LINE_H

#include "staad/model/force.h"
#include "staad/text/lines.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace STAAD::detail {

/// Position, three forces, three moments.
inline constexpr std::size_t values_per_station = 7;

/// The first and the last words of one line. Views into the text, or into the line's own copy if an exponent
/// was printed as two words.
class force_line {
public:
    enum class kind {
        unusable,  ///< too few words to hold a station
        station,   ///< a further station of the load case
        load_case, ///< "3:WIND LEFT", then a station
        member     ///< member number, load case, then a station
    };

    force_line() = default;
    force_line(const force_line&) = delete; // views into its own text
    force_line& operator=(const force_line&) = delete;

    void parse(const text_line& line);

    kind what() const noexcept { return what_; }
    line_place place() const noexcept { return place_; }
    bool has_colon() const noexcept { return has_colon_; }
    int member_number() const noexcept;
    /// Only for a line that begins a load case, with or without a member.
    int load_case_number() const noexcept;
    /// The last seven words as numbers, as printed.
    ForcePoint station() const noexcept;
    /// First of the last seven words that does not begin with a number; empty if all do.
    std::string_view unreadable_number() const noexcept;

private:
    std::string_view value(std::size_t index) const noexcept;
    kind classify() const noexcept;

    kind what_ = kind::unusable;
    line_place place_;
    bool has_colon_ = false;
    std::size_t count_ = 0;
    std::array<std::string_view, 2> first_;
    std::array<std::string_view, values_per_station> latest_; // the last words, a ring
    std::string repaired_;
};

} // namespace STAAD::detail

#endif
