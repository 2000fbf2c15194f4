// Beta angles, the density of the concrete, and members declared as braces.

#include "staad/model/sd_reader.h"
#include "staad/reader/blocks/assignments.h"
#include "staad/reader/findings.h"
#include "staad/text/id_list.h"
#include "staad/text/number.h"
#include "staad/text/number_text.h"
#include "staad/text/words.h"

#include <algorithm>

namespace STAAD {
namespace {

constexpr double default_concrete_density = 23.5615; // kN/m3

bool declares_braces(std::string_view line) noexcept
{
    return detail::starts_with(line, "MEMBER TRUSS") || detail::starts_with(line, "MEMBER COMPRESSION") ||
           detail::starts_with(line, "MEMBER TENSION");
}

/// Calls `take_list(i)` for the line after each brace keyword. That line is a list even if it looks
/// like a keyword; a keyword on the last line has none.
template<class TextAt, class TakeList>
void for_each_brace_list(std::size_t line_count, TextAt text_at, TakeList take_list)
{
    for (std::size_t i = 0; i + 1 < line_count; ++i)
        if (declares_braces(text_at(i)))
            take_list(++i);
}

/// Returns the word at which the list ended; empty at the end of the line.
std::string_view insert_braces(std::set<int>& braces, std::string_view line, detail::id_budget& budget)
{
    detail::id_list_walker walker(detail::word_cursor(line), detail::general_id_list);
    detail::append_ids(braces, walker, budget);
    detail::word_cursor after = walker.after_list();
    return after.next_or_empty();
}

/// The material block: the last line that contains its first words, and the last that contains its
/// closing ones. Both are size() if there is none.
struct material_block {
    std::size_t start;
    std::size_t end;
};

material_block find_material_block(const detail::line_list& lines) noexcept
{
    material_block block{lines.size(), lines.size()};
    for (std::size_t i = lines.size(); i > 0; --i) {
        const std::string_view line = lines[i - 1].text;
        if (!detail::contains(line, "DEFINE MATERIAL"))
            continue;
        if (block.start == lines.size() && detail::contains(line, "DEFINE MATERIAL START"))
            block.start = i - 1;
        if (block.end == lines.size() && detail::contains(line, "END DEFINE MATERIAL"))
            block.end = i - 1;
        if (block.start < lines.size() && block.end < lines.size())
            break;
    }
    return block;
}

/// The first line from `begin` to `end` that contains `text`; `end` if there is none.
std::size_t find_containing(const detail::line_list& lines, std::size_t begin, std::size_t end,
                            std::string_view text) noexcept
{
    while (begin < end && !detail::contains(lines[begin].text, text))
        ++begin;
    return begin;
}

} // namespace

void SdReader::read_beta(const detail::line_list& lines, detail::reading& context)
{
    const std::size_t first = lines.find_start("BETA ");
    if (first == lines.size())
        return;
    const auto members = detail::number_lookup::of(beams, detail::same_number::first_counts);
    detail::last_assignments assignments(members);
    std::vector<double> angles;
    for (std::size_t i = first; i < lines.size(); i = lines.find_start("BETA ", i + 1)) {
        context.used.mark(i);
        detail::word_cursor words(lines[i].text);
        words.next_or_empty(); // BETA
        const double angle = detail::to_real(words.next_or_empty());
        words.next_or_empty(); // MEMB
        const detail::list_end list =
            detail::assign_to_list(assignments, static_cast<int>(angles.size()), words, [&](int number) {
                detail::report_unknown_number(FindingCode::member_unknown, "member", number, lines[i], context);
            });
        detail::check_list_end("beta angle", list, list.stopped_at.empty(), lines[i], context);
        angles.push_back(angle);
    }
    assignments.hand_out(
        [&](std::size_t index, int value) { beams[index].beta = angles[static_cast<std::size_t>(value)]; });
}

void SdReader::read_material(const detail::line_list& lines, detail::reading& context)
{
    concrete_density = default_concrete_density;
    const auto [start, end] = find_material_block(lines);
    if (start == lines.size() || end == lines.size() || end <= start)
        return;
    context.used.mark(start);
    context.used.mark(end);
    const std::size_t concrete = find_containing(lines, start, end, "ISOTROPIC CONCRETE");
    if (concrete == end)
        return;
    // The first line that does *not* begin with DENSITY is taken, in most files the one of E. Earlier projects
    // were converted with this value, and hosts need the same one.
    std::size_t chosen = concrete + 1;
    while (chosen < end && detail::starts_with(lines[chosen].text, "DENSITY"))
        ++chosen;
    if (chosen >= end)
        return;
    context.used.mark(concrete);
    context.used.mark(chosen);
    const std::string_view line = lines[chosen].text;
    constexpr std::size_t keyword_size = 7; // DENSITY
    concrete_density = line.size() <= keyword_size ? 0.0 : detail::to_real(line.substr(keyword_size));
    context.findings.density_from(lines[chosen].place);
    context.findings.add(FindingCode::density, lines[chosen].place, [&] {
        return "the concrete density is taken from " + detail::quote(line) + " and becomes " +
               detail::format_real(concrete_density);
    });
}

void SdReader::ReadBrace(const std::vector<std::string>& lines)
{
    detail::id_budget budget;
    for_each_brace_list(
        lines.size(), [&](std::size_t i) -> std::string_view { return lines[i]; },
        [&](std::size_t i) {
            budget.start_list(0, 0);
            insert_braces(brace_ids, lines[i], budget);
        });
}

void SdReader::ReadBrace(const detail::line_list& lines, detail::reading& context)
{
    for_each_brace_list(
        lines.size(), [&](std::size_t i) { return lines[i].text; },
        [&](std::size_t i) {
            context.used.mark(i - 1, i + 1);
            context.start_list(lines[i].place);
            detail::report_list_stopped(insert_braces(brace_ids, lines[i].text, context.budget), lines[i], context);
        });
}

} // namespace STAAD
