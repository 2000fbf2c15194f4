#include "staad/structure/blocks/blocks.h"

#include "staad/structure/blocks/assigned_lines.h"
#include "staad/structure/blocks/degree_words.h"
#include "staad/structure/lists.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD::detail {
namespace {

/// One line: what the start and the end of its members do not hand on.
struct release_line {
    std::array<Structure::Release, 2> ends;
    std::array<bool, 2> is_given{};
};

/// Which ends a word names: START, END, BOTH.
std::array<bool, 2> ends_of(std::string_view word) noexcept
{
    const bool is_both = is_word(word, "BOTH");
    return {is_both || is_word(word, "STA"), is_both || is_word(word, "END")};
}

/// The moments of "MP" and "MPX": of 0 to 2 the first and the last; none of another word.
std::optional<Structure::Range> partial_moments(std::string_view word) noexcept
{
    const std::string upper = to_upper_ascii(word.substr(0, 4));
    if (upper == "MP")
        return Structure::Range{0, 2};
    if (upper.size() != 3 || upper.compare(0, 2, "MP") != 0 || upper[2] < 'X' || upper[2] > 'Z')
        return std::nullopt;
    return Structure::Range{upper[2] - 'X', upper[2] - 'X'};
}

/// Takes "MPZ 0.5"; false, and the words stay, if there is none or its factor is none.
bool take_partial(Structure::Release& release, row_words& words)
{
    const std::optional<Structure::Range> moments = partial_moments(words.peek());
    row_words ahead = words;
    std::string_view word;
    if (!moments || !ahead.next(word))
        return false;
    const std::optional<double> factor = number_words(ahead).next();
    if (!factor || *factor < 0.0 || *factor > 1.0)
        return false;
    std::fill(release.partial.begin() + moments->first, release.partial.begin() + moments->last + 1, *factor);
    words = ahead;
    return true;
}

/// Takes one thing that an end does not hand on; false, and the words stay, at other words and at the end.
bool take_released(Structure::Release& release, row_words& words, const exact_units& units)
{
    if (const std::optional<spring_words> spring = take_spring(words, units)) {
        release.springs[spring->degree] = spring->value;
        return true;
    }
    if (const std::optional<std::size_t> degree = degree_of(words.peek())) {
        std::string_view word;
        words.next(word);
        release.released[*degree] = true;
        return true;
    }
    return take_partial(release, words);
}

/// Takes what an end does not hand on, for all the ends that are named; false if it is none.
bool take_released(release_line& line, const std::array<bool, 2>& named, row_words& words, const exact_units& units)
{
    const row_words before = words;
    bool is_taken = false;
    for (std::size_t end = 0; end < 2; ++end)
        if (named[end]) {
            words = before;
            is_taken = take_released(line.ends[end], words, units);
            line.is_given[end] = line.is_given[end] || is_taken;
        }
    return is_taken;
}

/// "START MX MY END MZ": what stands after the list. Words between that say nothing are reported, once.
release_line read_ends(structure_reading& context, row_words& words, std::size_t statement, std::size_t row)
{
    release_line line;
    std::array<bool, 2> named{};
    bool is_understood = true;
    while (!words.peek().empty()) {
        if (take_released(line, named, words, context.units_at(statement)))
            continue;
        std::string_view word;
        words.next(word);
        const std::array<bool, 2> ends = ends_of(word);
        if (ends[0] || ends[1])
            named = ends;
        else
            is_understood = false;
    }
    if (!is_understood || named != std::array<bool, 2>{named[0] && line.is_given[0], named[1] && line.is_given[1]})
        context.report_unread(row, "a release without an end, or an end without a release");
    return line;
}

class release_blocks {
public:
    explicit release_blocks(structure_reading& context) noexcept : context_(context) {}

    void read()
    {
        context_.each_item(Command::member_release, [this](row_words& words, std::size_t statement, std::size_t row) {
            read_item(words, statement, row);
        });
        hand_out();
    }

private:
    void read_item(row_words& words, std::size_t statement, std::size_t row)
    {
        const record_list list = take_list(context_, words, listed::members, statement, row);
        if (!list.is_given || words.peek().empty()) {
            context_.report_unread(row, "a release of no member, or of nothing");
            return;
        }
        const std::string text = item_text(words);
        release_line line = read_ends(context_, words, statement, row);
        for (std::size_t end = 0; end < 2; ++end) {
            line.ends[end].is_end = end == 1;
            line.ends[end].text = text;
            line.ends[end].source = context_.source_of(row);
            if (line.is_given[end])
                members_[end].add(list.members, lines_.size());
        }
        lines_.push_back(std::move(line));
    }

    /// Start and end of a member that one line names stand side by side.
    void hand_out()
    {
        const std::size_t count = context_.structure.members.size();
        const std::vector<assigned_line> starts = members_[0].in_text_order(count);
        const std::vector<assigned_line> ends = members_[1].in_text_order(count);
        auto start = starts.begin();
        auto end = ends.begin();
        while (start != starts.end() || end != ends.end())
            if (end == ends.end() || (start != starts.end() && !(*end < *start)))
                add(*start++, 0);
            else
                add(*end++, 1);
    }

    void add(const assigned_line& each, std::size_t end)
    {
        std::vector<Structure::Release>& releases = context_.structure.releases;
        Structure::Member& member = context_.structure.members[static_cast<std::size_t>(each.position)];
        (end == 0 ? member.start_release : member.end_release) = static_cast<int>(releases.size());
        releases.push_back(lines_[each.line].ends[end]);
        releases.back().member = each.position;
        context_.budget.take_text(releases.back().text.size());
    }

    structure_reading& context_;
    std::vector<release_line> lines_;
    std::array<assigned_lines, 2> members_; // of starts and ends, by line
};

} // namespace

void read_releases(structure_reading& context)
{
    release_blocks(context).read();
}

} // namespace STAAD::detail
