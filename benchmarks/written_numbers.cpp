#include "written_numbers.h"

#include <charconv>

namespace STAAD::bench {
namespace {

constexpr std::size_t load_decimals = 6;

bool begins_number(std::string_view word)
{
    if (word.substr(0, 1) == "-")
        word.remove_prefix(1);
    return !word.empty() && word.front() >= '0' && word.front() <= '9';
}

template<class Number>
Number value_of(std::string_view word)
{
    Number value{};
    std::from_chars(word.data(), word.data() + word.size(), value);
    return value;
}

/// The next piece of `rest` up to `end`, which is cut off with it.
std::string_view cut(std::string_view& rest, char end)
{
    const std::size_t length = rest.find(end);
    const std::string_view piece = rest.substr(0, length);
    rest.remove_prefix(length == std::string_view::npos ? rest.size() : length + 1);
    return piece;
}

} // namespace

written_numbers::written_numbers(std::string_view text)
{
    bool coordinates = false;
    while (!text.empty()) {
        const std::string_view line = cut(text, '\n');
        if (line == "JOINT COORDINATES")
            coordinates = true;
        else if (line == "MEMBER INCIDENCES")
            coordinates = false;
        else
            take_line(line, coordinates);
    }
}

void written_numbers::take_line(std::string_view line, bool coordinates)
{
    bool begins_item = true;
    while (!line.empty()) {
        const std::string_view word = cut(line, ' ');
        if (begins_number(word))
            take_word(word, coordinates && !begins_item);
        begins_item = word.ends_with(';');
    }
}

void written_numbers::take_word(std::string_view word, bool is_real)
{
    const std::size_t point = word.find('.');
    if (point != std::string_view::npos && word.size() - point - 1 == load_decimals)
        six_places_.push_back(value_of<double>(word));
    else if (is_real || word.find_first_of(".e") != std::string_view::npos)
        reals_.push_back(value_of<double>(word));
    else
        integers_.push_back(value_of<int>(word));
}

std::size_t written_numbers::write_all() const
{
    char text[400];
    char* const end = text + sizeof text;
    std::size_t characters = 0;
    const auto count = [&](std::to_chars_result result) { characters += static_cast<std::size_t>(result.ptr - text); };
    for (const int value : integers_)
        count(std::to_chars(text, end, value));
    for (const double value : reals_)
        count(std::to_chars(text, end, value, std::chars_format::general, 6));
    for (const double value : six_places_)
        count(std::to_chars(text, end, value, std::chars_format::fixed, 6));
    return characters;
}

} // namespace STAAD::bench
