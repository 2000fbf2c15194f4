// The order in which the blocks of a text are read.

#include "staad/io/file_access.h"
#include "staad/model/sd_reader.h"
#include "staad/reader/blocks/blocks.h"
#include "staad/reader/findings.h"
#include "staad/units/unit_factors.h"

#include <algorithm>
#include <utility>

namespace STAAD {
namespace {

using detail::line_list;
using detail::reading;

/// Comment lines of generated data, which a written model carries and no reading wants.
constexpr const char* generated_comment = "*{";

constexpr detail::line_place whole_text{0, 0};

/// The unit words of a UNIT line, lower-cased and without hyphens: the three behind UNIT, as far as they
/// are there.
std::vector<std::string> unit_words(std::string_view line)
{
    detail::word_cursor words(line);
    words.next_or_empty(); // UNIT
    std::string three = detail::to_lower_ascii(detail::join_words(words, 3));
    three.erase(std::remove(three.begin(), three.end(), '-'), three.end());
    return SplitString(three, " ");
}

/// Later UNIT lines change nothing; one with words that the first does not have means trouble.
void tell_later_units(const line_list& lines, std::size_t governing, reading& run)
{
    const std::vector<std::string> known = unit_words(lines[governing].text);
    for (std::size_t i = lines.find_start("UNIT", governing + 1); i < lines.size();
         i = lines.find_start("UNIT", i + 1)) {
        run.used.mark(i);
        const std::vector<std::string> words = unit_words(lines[i].text);
        const bool same = std::all_of(words.begin(), words.end(), [&](const std::string& word) {
            return std::find(known.begin(), known.end(), word) != known.end();
        });
        if (!same)
            run.findings.add(FindingCode::unit_later, lines[i].place, [&] {
                return detail::quote(lines[i].text) + " changes nothing: the whole file is read in " +
                       detail::quote(lines[governing].text);
            });
    }
}

void tell_units(const line_list& lines, std::size_t governing, reading& run)
{
    run.used.mark(governing);
    if (!run.findings.listening())
        return;
    detail::tell_unit_words(lines[governing].text, lines[governing].place, run);
    tell_later_units(lines, governing, run);
}

/// Why no line is a unit line, as far as the first one tells.
std::string why_no_unit(const line_list& lines)
{
    const std::string_view first = lines.empty() ? std::string_view() : lines[0].text;
    if (detail::starts_with(first, "\xFF\xFE") || detail::starts_with(first, "\xFE\xFF"))
        return "the text is UTF-16, which is not read: save it as plain text";
    if (lines.size() == 1 && detail::contains(first, "\r"))
        return "the lines end with carriage returns alone: save the text with line feeds";
    return "no line begins with 'UNIT' and has a line after it";
}

/// No model: why, and the nearest line that looks like the one that is missing.
bool no_model(FindingCode code, std::string_view missing, std::string why, const line_list& lines, reading& run)
{
    if (!lines.empty() || run.findings.empty()) // a file that could not be read has been told of
        run.findings.add(code, whole_text, [&] { return std::move(why); });
    detail::tell_near_keywords(lines, missing, run);
    return false;
}

} // namespace

line_list SdReader::get_all_lines_from_file(const char* path, const std::string& skip_prefix, reading& run)
{
    detail::file_bytes file = detail::read_updatable_file(path);
    if (file.outcome == detail::file_bytes::state::read)
        return {std::move(file.bytes), file.size, skip_prefix};
    detail::tell_file_trouble(file.outcome, run);
    return {};
}

void SdReader::unify_staadpro_unit()
{
    const detail::unit_factors factors = detail::factors_of_unit_line(unit_text);
    length_factor = factors.length;
    force_factor = factors.force;
    force_length_factor = factors.force_length;
}

bool SdReader::read_file(const char* path, reading run)
{
    init();
    return read_lines(get_all_lines_from_file(path, generated_comment, run), run);
}

bool SdReader::read_text(std::string_view text, reading run)
{
    line_list lines = line_list::from_text(text, generated_comment); // first: the text may be the model's own
    init();
    return read_lines(std::move(lines), run);
}

bool SdReader::ReadSDDataFromStdFile(const char* path)
{
    return read_file(path, reading(nullptr));
}

bool SdReader::ReadSDDataFromStdFile(const char* path, ReadReport& report)
{
    return read_file(path, reading(&report));
}

bool SdReader::ReadSDDataFromText(std::string_view text)
{
    return read_text(text, reading(nullptr));
}

bool SdReader::ReadSDDataFromText(std::string_view text, ReadReport& report)
{
    return read_text(text, reading(&report));
}

bool SdReader::read_lines(line_list lines, reading& run)
{
    lines.prepare();
    if (run.findings.listening())
        run.used.start(lines.size());
    read_user_table(lines, run);

    const std::size_t unit = lines.find_start("UNIT");
    if (unit >= lines.size() || unit + 1 == lines.size())
        return no_model(FindingCode::no_unit, "UNIT", why_no_unit(lines), lines, run);
    unit_text = lines[unit].text;
    unify_staadpro_unit();
    tell_units(lines, unit, run);

    const std::size_t joints = lines.find_start("JOINT COORDINATES", unit + 1);
    if (joints == lines.size())
        return no_model(FindingCode::no_joints, "JOINT COORDINATES",
                        "no line after the UNIT line begins with 'JOINT COORDINATES'", lines, run);
    const std::size_t members = lines.find_equal("MEMBER INCIDENCES", joints + 1);
    if (members == lines.size())
        return no_model(FindingCode::no_members, "MEMBER INCIDENCES",
                        "no line after the joints is exactly 'MEMBER INCIDENCES'", lines, run);
    run.used.mark(joints);
    run.used.mark(members);
    detail::read_joints(*this, lines, {joints + 1, members}, run);
    const std::size_t behind_members = detail::read_members(*this, lines, members + 1, run);

    const std::size_t shell_keyword = lines.find_equal("ELEMENT INCIDENCES SHELL", behind_members);
    ReadGroudData(lines, behind_members, run);
    read_material(lines, run);
    ReadBrace(lines, run);
    if (shell_keyword < lines.size()) {
        run.used.mark(shell_keyword);
        const std::size_t behind_shells = detail::read_elements(*this, lines, shell_keyword + 1, run);
        detail::read_thicknesses(*this, lines, behind_shells, run);
    }
    read_surface(lines, run);
    detail::append_surfaces_to_shells(*this, run);
    detail::read_member_properties(*this, lines, behind_members, run);
    read_beta(lines, run);
    detail::assign_materials(*this, lines, run);
    read_support(lines, run);
    read_release(lines, run);
    read_offset(lines, run);
    read_load(lines, run);
    detail::tell_near_keywords(lines, {}, run);
    detail::tell_skipped(lines, run);
    return true;
}

} // namespace STAAD
