#include "staad/structure/values.h"

#include "staad/text/number.h"

namespace STAAD::detail {
namespace {

/// A word like "3*2.5"; count 0: it is none.
struct repetition {
    int count = 0;
    double value = 0.0;
};

repetition repetition_of(std::string_view word) noexcept
{
    const std::size_t star = word.find('*');
    if (star == std::string_view::npos)
        return {};
    const std::optional<int> count = whole_value(word.substr(0, star));
    const std::optional<double> value = real_value(word.substr(star + 1));
    return count && value && *count > 0 ? repetition{*count, *value} : repetition{};
}

} // namespace

std::optional<double> real_value(std::string_view word) noexcept
{
    const number_parse<double> parsed = parse_real(word);
    return parsed.is_number() && parsed.size == word.size() ? std::optional(parsed.value) : std::nullopt;
}

std::optional<int> whole_value(std::string_view word) noexcept
{
    const number_parse<int> parsed = parse_int(word);
    return parsed.is_number() && parsed.size == word.size() && parsed.fits ? std::optional(parsed.value) : std::nullopt;
}

std::string item_text(row_words words)
{
    std::string text;
    for (std::string_view word; words.next(word);)
        text.append(text.empty() ? "" : " ").append(word);
    return text;
}

std::optional<double> number_words::next() noexcept
{
    if (times_ > 0) {
        --times_;
        return repeated_;
    }
    const std::string_view word = words_.peek();
    std::optional<double> value = real_value(word);
    if (!value) {
        const repetition repeated = repetition_of(word);
        if (repeated.count == 0)
            return std::nullopt;
        value = repeated_ = repeated.value;
        times_ = repeated.count - 1;
    }
    std::string_view taken;
    words_.next(taken);
    return value;
}

std::optional<int> number_words::next_whole() noexcept
{
    const std::optional<int> value = times_ > 0 ? std::nullopt : whole_value(words_.peek());
    std::string_view taken;
    if (value)
        words_.next(taken);
    return value;
}

bool number_words::has_next() const noexcept
{
    return times_ > 0 || real_value(words_.peek()) || repetition_of(words_.peek()).count > 0;
}

} // namespace STAAD::detail
