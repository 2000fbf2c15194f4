/// Joints, members and elements packed on lines, as many whole items as a line holds.
#ifndef STAAD_WRITER_NORMALISED_PACKED_ITEMS_H
#define STAAD_WRITER_NORMALISED_PACKED_ITEMS_H

#include "staad/text/line_filler.h"
#include "staad/text/number_text.h"

#include <string>

namespace STAAD::detail {

/// Items of the form "number number ... ;". An item longer than a line gets a line of its own.
class packed_items {
public:
    explicit packed_items(text_output& out) : out_(out), lines_(out, {}) {}

    /// Adds one item of these numbers.
    template<class... Numbers>
    void add(Numbers... numbers)
    {
        (add_number(numbers), ...);
        end_item();
    }
    /// The same, number by number.
    template<class Number>
    void add_number(Number number)
    {
        if (!item_.empty())
            item_ += ' ';
        append(item_, number);
    }
    void end_item()
    {
        item_ += ';';
        lines_.append(item_, room_for_blank);
        item_.clear();
        any_ = true;
    }

    /// Ends the last line, if there is one.
    void finish()
    {
        if (any_)
            out_.put('\n');
    }

private:
    text_output& out_;
    line_filler lines_;
    std::string item_;
    bool any_ = false;
};

} // namespace STAAD::detail

#endif
