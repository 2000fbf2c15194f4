#include "staad/forces/force_sections.h"

#include "staad/text/words.h"

#include <iterator>

namespace STAAD::detail {
namespace {

/// One title in the encodings in which listings come.
struct force_title {
    std::string_view gbk;
    std::string_view utf8;
};

/// In order of rank: the second counts only in listings without the first.
constexpr force_title force_titles[] = {
    // details of beam element internal forces
    {"\xC1\xBA\xB5\xA5\xD4\xAA\xC4\xDA\xC1\xA6\xCF\xEA\xCF\xB8\xD0\xC5\xCF\xA2",
     "\xE6\xA2\x81\xE5\x8D\x95\xE5\x85\x83\xE5\x86\x85\xE5\x8A\x9B\xE8\xAF\xA6\xE7\xBB\x86\xE4\xBF\xA1\xE6\x81\xAF"},
    // details of beam internal forces
    {"\xC1\xBA\xC4\xDA\xC1\xA6\xCF\xEA\xCF\xB8\xD0\xC5\xCF\xA2",
     "\xE6\xA2\x81\xE5\x86\x85\xE5\x8A\x9B\xE8\xAF\xA6\xE7\xBB\x86\xE4\xBF\xA1\xE6\x81\xAF"},
};

/// Rank of the title that `line` is; the number of titles if it is none.
std::size_t title_rank(std::string_view line) noexcept
{
    std::size_t rank = 0;
    while (rank < std::size(force_titles) && line != force_titles[rank].gbk && line != force_titles[rank].utf8)
        ++rank;
    return rank;
}

/// Lines between the title and the unit line; any text may stand in the first.
constexpr int heading_lines = 3;

std::string_view without_brackets(std::string_view word) noexcept
{
    return word.size() < 2 ? std::string_view() : word.substr(1, word.size() - 2);
}

} // namespace

std::vector<force_section> find_force_sections(std::string_view listing)
{
    std::vector<force_section> sections;
    std::size_t rank = std::size(force_titles) - 1; // best so far
    line_cursor cursor(listing);
    for (text_line line; cursor.next(line);) {
        const std::size_t rank_of_line = title_rank(line.text);
        if (rank_of_line > rank)
            continue;
        if (rank_of_line < rank)
            sections.clear();
        rank = rank_of_line;
        sections.push_back({line.place, cursor});
    }
    return sections;
}

void section_lines::read_heading() noexcept
{
    text_line line;
    if (!cursor_.next(line)) {
        at_end_of_text_ = true;
        state_ = state::outside;
        return;
    }
    for (int i = 1; i < heading_lines; ++i) {
        if (!next(line))
            return;
    }
    state_ = state::units;
    if (next(unit_line_))
        state_ = state::data;
}

/// A line of the body is not empty and begins with a blank.
bool section_lines::next(text_line& line) noexcept
{
    if (state_ == state::outside)
        return false;
    at_end_of_text_ = !cursor_.next(line);
    if (!at_end_of_text_ && starts_with(line.text, " "))
        return true;
    state_ = state::outside;
    return false;
}

std::string force_unit_text(std::string_view unit_line)
{
    word_cursor words(unit_line);
    const std::string_view first = words.next_or_empty();
    const std::string_view second = words.next_or_empty();
    std::string text = "UNIT ";
    text.append(without_brackets(first)).append(1, ' ');
    text.append(without_brackets(second)).append(1, ' ');
    return text.append(without_brackets(last_word(unit_line)));
}

} // namespace STAAD::detail
