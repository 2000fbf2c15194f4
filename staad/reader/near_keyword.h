/// Lines that an engineer probably meant as a keyword, but the reader does not accept as one.
#ifndef STAAD_READER_NEAR_KEYWORD_H
#define STAAD_READER_NEAR_KEYWORD_H

#include <string_view>

namespace STAAD::detail {

/// The keyword that `line` is nearly: other case or blanks, words cut short, a letter or two off, the
/// last of three words left out, more on the line. Empty if there is none, or if the line is a keyword.
std::string_view nearly_keyword(std::string_view line);

} // namespace STAAD::detail

#endif
