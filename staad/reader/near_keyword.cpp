#include "staad/reader/near_keyword.h"

#include "staad/text/edit_distance.h"
#include "staad/text/words.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace STAAD::detail {
namespace {

/// The words of a keyword or of the beginning of a line; no keyword has more than three.
struct few_words {
    std::array<std::string_view, 4> word;
    std::size_t count = 0;
};

struct keyword {
    std::string_view text;
    few_words words;
    bool whole_line; ///< the line is nothing but the keyword; otherwise it begins with it
};

constexpr few_words split_at_blanks(std::string_view text)
{
    few_words words;
    while (!text.empty() && words.count < words.word.size()) {
        const std::size_t end = std::min(text.find_first_of(" \t"), text.size());
        if (end > 0)
            words.word[words.count++] = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return words;
}

constexpr keyword whole(std::string_view text)
{
    return {text, split_at_blanks(text), true};
}

constexpr keyword beginning(std::string_view text)
{
    return {text, split_at_blanks(text), false};
}

constexpr keyword keywords[] = {
    beginning("UNIT"),
    beginning("JOINT COORDINATES"),
    whole("MEMBER INCIDENCES"),
    whole("ELEMENT INCIDENCES SHELL"),
    whole("ELEMENT PROPERTY"),
    beginning("MEMBER PROPERTY"),
    whole("CONSTANTS"),
    whole("SUPPORTS"),
    whole("MEMBER RELEASE"),
    whole("MEMBER OFFSET"),
    beginning("MEMBER TRUSS"),
    beginning("MEMBER COMPRESSION"),
    beginning("MEMBER TENSION"),
    whole("START GROUP DEFINITION"),
    whole("END GROUP DEFINITION"),
    whole("SURFACE INCIDENCE"),
    beginning("SURFACE PROPERTY"),
    whole("START USER TABLE"),
};

/// Longer lines are data or titles, not mistyped keywords.
constexpr std::size_t longest_worth_a_look = 120;

std::size_t common_beginning(std::string_view a, std::string_view b)
{
    const std::size_t length = std::min(a.size(), b.size());
    const auto differ = std::mismatch(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(length), b.begin());
    return static_cast<std::size_t>(differ.first - a.begin());
}

/// "MEMB" for MEMBER, "INCIDENCE" and "INCIDENSES" for INCIDENCES, "PROPERTIES" for PROPERTY. The first
/// letter is taken to be right.
bool nearly_word(std::string_view word, std::string_view meant)
{
    const std::size_t common = common_beginning(word, meant);
    if (common == 0 || word.size() > meant.size() + 3)
        return false;
    const bool cut_short = common == word.size() && word.size() >= 3;
    const bool other_ending = common >= 4 && common + 2 >= meant.size();
    const std::size_t slips = meant.size() >= 8 ? 2 : meant.size() >= 5 ? 1 : 0;
    return word == meant || cut_short || other_ending ||
           (word.size() + slips >= meant.size() && edit_distance(word, meant) <= slips);
}

bool nearly_words(const few_words& line, const few_words& meant, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        if (!nearly_word(line.word[i], meant.word[i]))
            return false;
    return true;
}

bool begins_with_words(const few_words& line, const few_words& meant)
{
    return line.count >= meant.count &&
           std::equal(meant.word.begin(), meant.word.begin() + static_cast<std::ptrdiff_t>(meant.count),
                      line.word.begin());
}

bool is_nearly(const few_words& line, const keyword& candidate)
{
    const few_words& meant = candidate.words;
    if (begins_with_words(line, meant))
        return true;
    if (meant.count == 1 && !candidate.whole_line)
        return false; // one short word: only case and blanks are forgiven
    if (line.count == meant.count || (line.count > meant.count && !candidate.whole_line))
        return nearly_words(line, meant, meant.count);
    return meant.count >= 3 && line.count + 1 == meant.count && nearly_words(line, meant, line.count);
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
    const std::string upper = to_upper_ascii(line);
    const few_words line_words = split_at_blanks(upper);
    if (line_words.count == 0)
        return {};
    for (const keyword& candidate : keywords)
        if (is_nearly(line_words, candidate))
            return candidate.text;
    return {};
}

} // namespace STAAD::detail
