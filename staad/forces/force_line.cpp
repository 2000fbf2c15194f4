#include "staad/forces/force_line.h"

#include "staad/text/number.h"
#include "staad/text/words.h"

namespace STAAD::detail {
namespace {

bool ends_a_mantissa(char c) noexcept
{
    return (c >= '0' && c <= '9') || c == '.';
}

/// Position of a blank between an exponent's E and its digits, "1.5E +03", from `from` on. An E after any other
/// character than a digit or a point ends a word of a title.
std::size_t find_split_exponent(std::string_view text, std::size_t from) noexcept
{
    for (std::size_t e = text.find("E ", from); e != std::string_view::npos; e = text.find("E ", e + 1)) {
        if (e > 0 && ends_a_mantissa(text[e - 1]))
            return e + 1;
    }
    return std::string_view::npos;
}

/// `text` with the blanks of split exponents left out, in `copy` if there are any.
std::string_view with_whole_exponents(std::string_view text, std::string& copy)
{
    std::size_t blank = find_split_exponent(text, 0);
    if (blank == std::string_view::npos)
        return text;
    copy.clear();
    std::size_t begin = 0;
    for (; blank != std::string_view::npos; blank = find_split_exponent(text, blank)) {
        copy.append(text.substr(begin, blank - begin));
        begin = blank + 1;
    }
    return copy.append(text.substr(begin));
}

} // namespace

void force_line::parse(const text_line& line)
{
    place_ = line.place;
    const std::string_view text = with_whole_exponents(line.text, repaired_);
    has_colon_ = contains(text, ":");
    first_ = {};
    count_ = 0;
    word_cursor words(text);
    for (std::string_view word; words.next(word); ++count_) {
        if (count_ < first_.size())
            first_[count_] = word;
        latest_[count_ % values_per_station] = word;
    }
    what_ = classify();
}

force_line::kind force_line::classify() const noexcept
{
    if (count_ == values_per_station)
        return kind::station;
    if (count_ < values_per_station)
        return kind::unusable;
    return contains(first_[0], ":") ? kind::load_case : kind::member;
}

int force_line::member_number() const noexcept
{
    return to_int(first_[0]);
}

int force_line::load_case_number() const noexcept
{
    return to_int(first_[what_ == kind::member ? 1 : 0]); // a ":" ends a number
}

std::string_view force_line::value(std::size_t index) const noexcept
{
    return latest_[(count_ + index) % values_per_station];
}

ForcePoint force_line::station() const noexcept
{
    return {to_real(value(0)), to_real(value(1)), to_real(value(2)), to_real(value(3)),
            to_real(value(4)), to_real(value(5)), to_real(value(6))};
}

std::string_view force_line::unreadable_number() const noexcept
{
    for (std::size_t i = 0; i < values_per_station; ++i) {
        if (!parse_real(value(i)).is_number())
            return value(i);
    }
    return {};
}

} // namespace STAAD::detail
