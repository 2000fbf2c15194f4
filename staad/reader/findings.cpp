#include "staad/reader/findings.h"

#include "staad/reader/near_keyword.h"
#include "staad/report/input_findings.h"
#include "staad/text/words.h"
#include "staad/units/unit_factors.h"

#include <algorithm>
#include <map>

namespace STAAD::detail {
namespace {

/// Command words are shown up to this length.
constexpr std::size_t longest_word = 60;

/// Data lines begin with a digit, sometimes after blanks.
bool is_data(std::string_view line) noexcept
{
    return chk_isdigit(trim_blanks(line));
}

std::size_t count_data_lines(const line_list& lines, std::size_t begin) noexcept
{
    std::size_t end = begin;
    while (end < lines.size() && is_data(lines[end].text))
        ++end;
    return end - begin;
}

/// "DEFINE WIND", "LOAD COMB", "FINISH": the first word, and the second if it is one of letters.
std::string command_words(std::string_view line)
{
    word_cursor words(line);
    const std::string_view first = words.next_or_empty();
    const std::string_view second = words.next_or_empty();
    std::string command(first.substr(0, longest_word));
    if (!second.empty() && std::all_of(second.begin(), second.end(), is_letter)) {
        command += ' ';
        command += second.substr(0, longest_word);
    }
    return command;
}

struct skipped_command {
    std::string words;
    line_place first;
    std::size_t count;
};

/// Counts lines by the command they stand under, in order of first appearance. A text with more commands than
/// any deck has gets one entry for all of the rest.
class skipped_tally {
public:
    void start_command(std::string_view line)
    {
        words_ = command_words(line);
        current_ = none;
    }

    void add_line(line_place place)
    {
        if (current_ == none)
            find_current(place);
        ++commands_[current_].count;
    }

    const std::vector<skipped_command>& commands() const noexcept { return commands_; }

private:
    static constexpr std::size_t most_commands = 1000;
    static constexpr std::size_t none = std::string::npos;

    void find_current(line_place place)
    {
        if (by_words_.size() >= most_commands && by_words_.count(words_) == 0)
            words_ = "(other commands)";
        const auto [entry, is_new] = by_words_.try_emplace(words_, commands_.size());
        if (is_new)
            commands_.push_back({words_, place, 0});
        current_ = entry->second;
    }

    std::string words_ = "(before any command)";
    std::size_t current_ = none;
    std::map<std::string, std::size_t> by_words_; // to the place in commands_
    std::vector<skipped_command> commands_;
};

/// Words that engineers know from other lists; none is understood here.
bool is_list_word(std::string_view word) noexcept
{
    return word == "BY" || word == "ALL";
}

} // namespace

void report_no_effect(std::string_view what, const text_line& line, reading& context)
{
    context.findings.add(FindingCode::list_no_record, line.place, [&] {
        return quote(line.text) + ": the " + std::string(what) +
               " has no effect: no joint, member, element or surface of its list exists";
    });
}

void report_list_stopped(std::string_view word, const text_line& line, reading& context)
{
    if (word.empty())
        return;
    context.findings.add(FindingCode::list_stopped, line.place, [&] {
        return quote(line.text) + ": the list ends at " + quote(word) + ", the words after it are not part of it";
    });
}

void report_list_word(std::string_view word, const text_line& line, reading& context)
{
    if (is_list_word(word))
        report_list_stopped(word, line, context);
}

void report_unknown_number(FindingCode code, std::string_view what, int number, const text_line& line, reading& context)
{
    context.findings.add(code, line.place, [&] {
        return quote(line.text) + " names " + std::string(what) + " " + std::to_string(number) +
               ", which the file does not define";
    });
}

void report_unknown_joint(const char* what, int number, int joint, line_place place, reading& context)
{
    context.findings.add(FindingCode::joint_unknown, place, [&] {
        return std::string(what) + " " + std::to_string(number) + " refers to joint " + std::to_string(joint) +
               ", which JOINT COORDINATES does not define";
    });
}

void report_block_end(std::string_view keyword, const line_list& lines, std::size_t end, reading& context)
{
    if (!context.findings.listening() || end >= lines.size() || starts_with_letter(lines[end].text))
        return;
    std::size_t data = is_data(lines[end].text) ? end : end + 1;
    while (data < lines.size() && is_comment(lines[data].text))
        ++data;
    const std::size_t lost = count_data_lines(lines, data);
    if (lost == 0)
        return;
    context.findings.add(FindingCode::block_ended, lines[end].place, [&] {
        return quote(lines[end].text) + " ends the lines under " + std::string(keyword) + "; " + std::to_string(lost) +
               " data " + (lost == 1 ? "line" : "lines") + " from there on are not read";
    });
}

void report_block_open(const line_list& lines, std::size_t begin, std::string_view closing, reading& context)
{
    if (begin < lines.size())
        context.findings.add(FindingCode::block_open, lines[begin].place, [&] {
            return quote(lines[begin].text) + " has no line '" + std::string(closing) + "' after it";
        });
}

void report_near_keywords(const line_list& lines, std::string_view missing, reading& context)
{
    if (!context.findings.listening())
        return;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (context.used.is_used(i) || !starts_with_letter(trim_blanks(lines[i].text)))
            continue;
        const std::string_view meant = nearly_keyword(lines[i].text);
        if (meant.empty())
            continue;
        const auto severity = meant == missing ? Finding::Error : Finding::Warning;
        context.findings.add_as(severity, FindingCode::keyword_near, lines[i].place, [&] {
            // The whole line: the blanks that make the difference must show.
            const bool only_blanks = starts_with(trim_blanks(lines[i].text), meant);
            return "'" + std::string(lines[i].text) + "' is not '" + std::string(meant) + "'" +
                   (only_blanks ? ": mind the blanks, tabs and words around it" : "");
        });
    }
}

void report_file_trouble(FileBytes::Outcome outcome, bool for_update, reading& context)
{
    using enum FileBytes::Outcome;
    report_file_trouble({.is_missing = outcome == missing,
                         .is_folder = outcome == directory,
                         .is_refused = outcome == refused,
                         .for_update = for_update},
                        context.findings);
}

void report_unit_words(std::string_view unit_line, line_place place, reading& context)
{
    if (!context.findings.listening())
        return;
    const unit_factors factors = factors_of_unit_line(unit_line);
    report_unit_words(unit_line, factors.is_short,
                      {factors.unknown_length, factors.unknown_force, factors.unknown_moment}, place, context.findings);
}

void report_skipped(const line_list& lines, reading& context)
{
    if (!context.findings.listening())
        return;
    skipped_tally tally;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string_view text = trim_blanks(lines[i].text);
        if (text.empty() || is_comment(text))
            continue;
        if (starts_with_letter(text))
            tally.start_command(text);
        if (!context.used.is_used(i))
            tally.add_line(lines[i].place);
    }
    for (const skipped_command& skipped : tally.commands())
        context.findings.list(FindingCode::skipped, skipped.first, skipped.words, skipped.count);
}

} // namespace STAAD::detail
