/// Pieces laid on lines of a given width: the one place that decides where a written line ends.
#ifndef STAAD_TEXT_LINE_FILLER_H
#define STAAD_TEXT_LINE_FILLER_H

#include "staad/text/text_output.h"

#include <cstddef>
#include <string_view>

namespace STAAD::detail {

/// The INPUT WIDTH of every written file.
inline constexpr std::size_t line_width = 79;

/// What ends a line that goes on in the next one.
inline constexpr std::string_view continuation_mark = " -";

/// Puts pieces on a line, one blank between them, and begins a new line when the next piece does not fit. The
/// last line gets no line feed.
class line_filler {
public:
    /// `mark` ends every line but the last.
    line_filler(text_output& out, std::string_view mark, std::size_t width = line_width)
        : out_(out), mark_(mark), width_(width)
    {
    }

    /// Begins the first line with `text`, unchanged.
    void begin(std::string_view text)
    {
        out_.put(text);
        length_ = text.size();
    }

    /// Puts `piece` on the line if the line, the piece and the blank between them leave `reserve` columns of
    /// the width free; else on a new line.
    void append(std::string_view piece, std::size_t reserve)
    {
        if (length_ + piece.size() + reserve > width_) {
            out_.put(mark_, '\n');
            length_ = 0;
        } else if (length_ > 0) {
            out_.put(' ');
            ++length_;
        }
        out_.put(piece);
        length_ += piece.size();
    }

private:
    text_output& out_;
    std::string_view mark_;
    std::size_t width_;
    std::size_t length_ = 0; // of the line under construction
};

inline constexpr std::size_t room_for_blank = 1;
inline constexpr std::size_t room_for_blank_and_mark = room_for_blank + continuation_mark.size();

} // namespace STAAD::detail

#endif
