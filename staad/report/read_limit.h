/// The bounds of one reading, and the error that says one was reached.
#ifndef STAAD_REPORT_READ_LIMIT_H
#define STAAD_REPORT_READ_LIMIT_H

#include "staad/export.h"

#include <cstddef>
#include <new>

namespace STAAD {

/// Most numbers that one list of a file may stand for, ranges counted out.
inline constexpr std::size_t most_numbers_per_list = 16'777'216;
/// Most numbers that all stored lists of one reading may stand for, the load references of members
/// and joints included.
inline constexpr std::size_t most_numbers_per_reading = 134'217'728;
/// Texts of more bytes are long ones. A section, a material or the words of a load block stand once in a
/// file and in every record that they go to; no sensible one is longer.
inline constexpr std::size_t longest_plain_text = 256;
/// Most bytes of long texts that one reading gives to members, elements and load definitions together.
inline constexpr std::size_t most_text_per_reading = 268'435'456;

/// Most joints, members and elements that generation and REPEAT lines of one deck may make.
inline constexpr std::size_t most_generated_per_reading = 4'194'304;

/// A list such as "1 TO 2000000000" stands for more numbers than a reading may hold, or a long text goes to too
/// many records. Thrown before the memory is taken; the object being read into can be read into again.
class STAAD_API ReadLimitError : public std::bad_alloc {
public:
    /// `first_line` and `last_line` are physical lines, from 1; 0: the list stands in no file.
    /// `limit` is one of the bounds above.
    ReadLimitError(std::size_t first_line, std::size_t last_line, std::size_t limit) noexcept;

    /// "line 118: a list of more than 16777216 numbers"
    const char* what() const noexcept override;
    std::size_t first_line() const noexcept { return first_line_; }
    std::size_t last_line() const noexcept { return last_line_; }
    std::size_t limit() const noexcept { return limit_; }
    /// What what() says, without the place: "a list of more than 16777216 numbers".
    const char* text() const noexcept { return what_ + size_of_place_; }

private:
    std::size_t first_line_;
    std::size_t last_line_;
    std::size_t limit_;
    std::size_t size_of_place_ = 0;
    char what_[112] = {};
};

} // namespace STAAD

#endif
