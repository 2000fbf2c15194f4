#include "staad/reader/findings.h"

#include "staad/reader/near_keyword.h"
#include "staad/reader/words.h"

#include <algorithm>

namespace STAAD::detail {
namespace {

/// Texts are quoted in messages up to this length.
constexpr std::size_t longest_quote = 60;

/// Data lines begin with a digit, now and then behind blanks.
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
    std::string command(words.next_or_empty());
    const std::string_view second = words.next_or_empty();
    if (!second.empty() && std::all_of(second.begin(), second.end(), is_letter)) {
        command += ' ';
        command += second;
    }
    return command;
}

struct skipped_command {
    std::string words;
    line_place first;
    std::size_t count;
};

/// Counts by words, in order of first appearance. There are few of them in any file that is a deck.
class skipped_tally {
public:
    void add(const std::string& words, line_place place)
    {
        auto found = std::find_if(commands_.begin(), commands_.end(), [&](const auto& c) { return c.words == words; });
        if (found == commands_.end() && commands_.size() > ReadReport::most_per_code)
            found = commands_.end() - 1; // a text that is no deck: enough has been listed
        if (found == commands_.end())
            commands_.push_back({words, place, 1});
        else
            ++found->count;
    }
    const std::vector<skipped_command>& commands() const noexcept { return commands_; }

private:
    std::vector<skipped_command> commands_;
};

} // namespace

std::string quote(std::string_view text)
{
    text = trim_blanks(text);
    if (text.size() <= longest_quote)
        return "'" + std::string(text) + "'";
    return "'" + std::string(text.substr(0, longest_quote)) + "...'";
}

void tell_nobody(std::string_view what, const text_line& line, reading& run)
{
    if (run.findings.listening())
        run.findings.warn("list-nobody", line.place,
                          quote(line.text) + ": its list names nobody, so the " + std::string(what) + " has no effect");
}

void tell_list_stopped(std::string_view word, const text_line& line, reading& run)
{
    if (run.findings.listening() && !word.empty())
        run.findings.warn("list-stopped", line.place,
                          quote(line.text) + ": the list ends at " + quote(word) +
                              ", what stands behind is not part of it");
}

void tell_unknown(std::string_view code, std::string_view what, int number, const text_line& line, reading& run)
{
    if (run.findings.listening())
        run.findings.warn(code, line.place,
                          quote(line.text) + " names " + std::string(what) + " " + std::to_string(number) +
                              ", which the file does not define");
}

void tell_block_end(std::string_view keyword, const line_list& lines, std::size_t end, reading& run)
{
    if (!run.findings.listening() || end >= lines.size() || is_letter(lines[end].text.front()))
        return;
    const std::size_t lost = count_data_lines(lines, is_data(lines[end].text) ? end : end + 1);
    if (lost > 0)
        run.findings.warn("block-ended", lines[end].place,
                          quote(lines[end].text) + " ends the lines under " + std::string(keyword) + "; " +
                              std::to_string(lost) + " data " + (lost == 1 ? "line" : "lines") +
                              " from there on are not read");
}

void tell_block_open(const line_list& lines, std::size_t begin, std::string_view closing, reading& run)
{
    if (run.findings.listening() && begin < lines.size())
        run.findings.warn("block-open", lines[begin].place,
                          quote(lines[begin].text) + " has no line '" + std::string(closing) + "' after it");
}

void tell_near_keywords(const line_list& lines, std::string_view missing, reading& run)
{
    if (!run.findings.listening())
        return;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string_view text = trim_blanks(lines[i].text);
        if (run.used.is_used(i) || !is_letter(text.front()))
            continue;
        const std::string_view meant = nearly_keyword(lines[i].text);
        if (meant.empty())
            continue;
        const auto severity = meant == missing ? Finding::Error : Finding::Warning;
        run.findings.add(severity, "keyword-near", lines[i].place,
                         quote(lines[i].text) + " is not '" + std::string(meant) + "'");
    }
}

void tell_skipped(const line_list& lines, reading& run)
{
    if (!run.findings.listening())
        return;
    skipped_tally tally;
    std::string command = "(before any command)";
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string_view text = trim_blanks(lines[i].text);
        if (starts_with(text, "*"))
            continue;
        if (is_letter(text.front()))
            command = command_words(text);
        if (!run.used.is_used(i))
            tally.add(command, lines[i].place);
    }
    for (const skipped_command& skipped : tally.commands())
        run.findings.add(Finding::Note, "skipped", skipped.first, skipped.words, skipped.count);
}

} // namespace STAAD::detail
