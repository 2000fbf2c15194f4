#include "staad/reader/near_keyword.h"

#include "staad/reader/edit_distance.h"
#include "staad/reader/words.h"

#include <algorithm>
#include <string>
#include <vector>

namespace STAAD::detail {
namespace {

struct keyword {
    std::string_view text;
    bool whole_line; ///< the line is nothing but the keyword; otherwise it begins with it
};

constexpr keyword keywords[] = {
    {"UNIT", false},
    {"JOINT COORDINATES", false},
    {"MEMBER INCIDENCES", true},
    {"ELEMENT INCIDENCES SHELL", true},
    {"ELEMENT PROPERTY", true},
    {"MEMBER PROPERTY", false},
    {"CONSTANTS", true},
    {"SUPPORTS", true},
    {"MEMBER RELEASE", true},
    {"MEMBER OFFSET", true},
    {"MEMBER TRUSS", false},
    {"MEMBER COMPRESSION", false},
    {"MEMBER TENSION", false},
    {"START GROUP DEFINITION", true},
    {"END GROUP DEFINITION", true},
    {"SURFACE INCIDENCE", true},
    {"SURFACE PROPERTY", false},
    {"START USER TABLE", true},
};

/// Longer lines are data or titles, not a mistyped keyword.
constexpr std::size_t longest_worth_a_look = 120;

using words = std::vector<std::string>;

std::size_t common_beginning(std::string_view a, std::string_view b)
{
    const std::size_t length = std::min(a.size(), b.size());
    const auto differ = std::mismatch(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(length), b.begin());
    return static_cast<std::size_t>(differ.first - a.begin());
}

/// "MEMB" for MEMBER, "INCIDENCE" and "INCIDENSES" for INCIDENCES, "PROPERTIES" for PROPERTY.
bool nearly_word(std::string_view word, std::string_view meant)
{
    if (word == meant)
        return true;
    const std::size_t common = common_beginning(word, meant);
    const bool cut_short = common == word.size() && word.size() >= 3;
    const bool other_ending = common >= 4 && common + 2 >= meant.size() && word.size() <= meant.size() + 3;
    const std::size_t slips = meant.size() >= 8 ? 2 : meant.size() >= 5 ? 1 : 0;
    return cut_short || other_ending || edit_distance(word, meant) <= slips;
}

bool nearly_words(const words& line, const words& meant, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        if (!nearly_word(line[i], meant[i]))
            return false;
    return true;
}

bool begins_with_words(const words& line, const words& meant)
{
    return line.size() >= meant.size() && std::equal(meant.begin(), meant.end(), line.begin());
}

bool is_nearly(const words& line, const keyword& candidate)
{
    const words meant = SplitString(std::string(candidate.text), " ");
    if (meant.size() == 1 && !candidate.whole_line)
        return line.front() == meant.front(); // one short word: only case and blanks are forgiven
    if (begins_with_words(line, meant))
        return true;
    if (line.size() == meant.size() || (line.size() > meant.size() && !candidate.whole_line))
        return nearly_words(line, meant, meant.size());
    return meant.size() >= 3 && line.size() + 1 == meant.size() && nearly_words(line, meant, line.size());
}

bool is_keyword(std::string_view line)
{
    return std::any_of(std::begin(keywords), std::end(keywords), [line](const keyword& candidate) {
        return candidate.whole_line ? line == candidate.text : starts_with(line, candidate.text);
    });
}

} // namespace

std::string_view nearly_keyword(std::string_view line)
{
    if (line.size() > longest_worth_a_look || is_keyword(line))
        return {};
    const words line_words = SplitString(to_upper_ascii(line), " \t");
    if (line_words.empty())
        return {};
    for (const keyword& candidate : keywords)
        if (is_nearly(line_words, candidate))
            return candidate.text;
    return {};
}

} // namespace STAAD::detail
