#include "convert/conversion_notes.h"

#include "cli/messages.h"
#include "output/phrases.h"

#include <algorithm>
#include <utility>

namespace tool {
namespace {

using STAAD::FindingCode;
using STAAD::SdBeam;
using STAAD::SdReader;

/// A line of the written file.
struct written_line {
    std::size_t number = 0; ///< from 1; 0: there is no such line
    std::string_view text;
};

/// Walks the lines of a text.
class line_walk {
public:
    explicit line_walk(std::string_view text) : rest_(text) {}

    /// False at the end of the text.
    bool next(written_line& line)
    {
        if (rest_.empty())
            return false;
        line = {++number_, rest_.substr(0, rest_.find('\n'))};
        rest_.remove_prefix(std::min(line.text.size() + 1, rest_.size()));
        return true;
    }

private:
    std::string_view rest_;
    std::size_t number_ = 0;
};

/// Items end in ";" and are joined by a blank.
bool has_item(std::string_view line, std::size_t number)
{
    const std::string start = std::to_string(number) + ' ';
    return line.starts_with(start) || line.find("; " + start) != std::string_view::npos;
}

/// A line that goes on in the next one is no good example, unless the pattern has a beginning.
bool fits(const line_pattern& pattern, std::string_view line)
{
    if (pattern.begin.empty() && line.ends_with(" -"))
        return false;
    return line.starts_with(pattern.begin) && line.ends_with(pattern.end) &&
           line.find(pattern.part) != std::string_view::npos && (pattern.item == 0 || has_item(line, pattern.item));
}

written_line find_line(std::string_view text, const line_pattern& pattern)
{
    line_walk lines(text);
    written_line line;
    bool in_block = pattern.block.empty();
    while (lines.next(line)) {
        if (in_block && fits(pattern, line.text))
            return line;
        in_block = in_block || line.text.starts_with(pattern.block);
    }
    return {};
}

/// "FIXED BUT KFY 100" and "TABLE LD L303 SP 0.25" as opposed to "PINNED" and "TABLE ST H300".
bool has_number(std::string_view text)
{
    bool at_start = true;
    for (const char c : text) {
        if (at_start && c >= '0' && c <= '9')
            return true;
        at_start = c == ' ' || c == '-' || c == '.';
    }
    return false;
}

bool is_in_metres_and_kn(const SdReader& model)
{
    return model.length_factor == 1000.0 && model.force_factor == 1.0;
}

/// The first text that is written unchanged and has a number; empty if there is none.
line_pattern first_kept_number(const SdReader& model)
{
    for (const SdBeam& member : model.beams) {
        if (member.sect_text.starts_with("TABLE") && member.sect_text == member.sect_name &&
            has_number(member.sect_text))
            return {.block = "MEMBER PROPERTY", .end = ' ' + member.sect_text};
    }
    for (const auto& [description, joints] : model.supports) {
        if (has_number(description))
            return {.block = "SUPPORTS", .end = ' ' + description};
    }
    for (const auto& [description, members] : model.releases) {
        if (has_number(description))
            return {.block = "MEMBER RELEASE", .end = ' ' + description};
    }
    return {};
}

void note_kept_units(const SdReader& model, conversion_notes& notes)
{
    if (is_in_metres_and_kn(model))
        return;
    line_pattern example = first_kept_number(model);
    if (!example.block.empty())
        notes.push_back({FindingCode::kept_units,
                         "numbers in sections, supports and releases keep the units of the input, " + model.unit_text,
                         std::move(example)});
}

/// Two decimals lose much of a value in kN/mm.
void note_equivalent_gravity(given_parameters given, conversion_notes& notes)
{
    if (given.seismic)
        notes.push_back({FindingCode::gravity,
                         "equivalent gravity is written in kN and mm with two decimals: line loads may come to nothing",
                         {.block = "*{ LOADNO FACTOR", .end = " -0.00 "}});
}

void note_generated(given_parameters given, conversion_notes& notes)
{
    std::string text = "four wind cases of one number and a seismic case are always written";
    if (!given.wind && !given.seismic)
        text += "; without --wind and --seismic they hold no values";
    else if (!given.wind)
        text += "; without --wind the wind holds no values";
    else if (!given.seismic)
        text += "; without --seismic the seismic case holds no values";
    notes.push_back({FindingCode::generated, std::move(text), {.begin = "LOAD ", .end = " WL AUTO WIND LOAD"}});
}

} // namespace

std::string enumerated(const std::vector<std::string>& names)
{
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i != 0)
            text += i + 1 == names.size() ? " and " : ", ";
        text += names[i];
    }
    return text;
}

conversion_notes notes_on(const SdReader& model, const STAAD::ReadReport& report, given_parameters given)
{
    conversion_notes notes;
    note_loads(model, report, notes);
    note_numbers(model, notes);
    note_members(model, notes);
    note_sections(model, notes);
    note_kept_units(model, notes);
    note_generated(given, notes);
    note_equivalent_gravity(given, notes);
    return notes;
}

void print_notes(std::string_view name, std::string_view text, const conversion_notes& notes)
{
    for (const conversion_note& note : notes) {
        const written_line line = find_line(text, note.example);
        if (line.number == 0)
            continue;
        print_finding(name, STAAD::make_finding(note.code, note.text, line.number, line.number));
        print_example(line.text);
    }
}

} // namespace tool
