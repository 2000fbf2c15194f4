// The order in which the blocks of a text are read.

#include "staad/io/open_file.h"
#include "staad/model/sd_reader.h"
#include "staad/reader/blocks/blocks.h"
#include "staad/reader/findings.h"
#include "staad/units/unit_factors.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace STAAD {
namespace {

using detail::line_list;
using detail::reading;

/// Comment lines of generated data in written models; no reading uses them.
constexpr const char* generated_comment = "*{";

constexpr detail::line_place whole_text{0, 0};

/// The unit words of a UNIT line, lower-cased and without hyphens: up to three after UNIT.
std::vector<std::string> unit_words(std::string_view line)
{
    detail::word_cursor words(line);
    words.next_or_empty(); // UNIT
    std::string three = detail::to_lower_ascii(detail::join_words(words, 3));
    three.erase(std::remove(three.begin(), three.end(), '-'), three.end());
    return SplitString(three, " ");
}

/// Later UNIT lines change nothing; reports those with other words than the first.
void report_later_units(const line_list& lines, std::size_t governing, reading& context)
{
    const std::vector<std::string> known = unit_words(lines[governing].text);
    for (std::size_t i = lines.find_start("UNIT", governing + 1); i < lines.size();
         i = lines.find_start("UNIT", i + 1)) {
        context.used.mark(i);
        const std::vector<std::string> words = unit_words(lines[i].text);
        const bool same = std::all_of(words.begin(), words.end(), [&](const std::string& word) {
            return std::find(known.begin(), known.end(), word) != known.end();
        });
        if (!same)
            context.findings.add(FindingCode::unit_later, lines[i].place, [&] {
                return detail::quote(lines[i].text) + " changes nothing: the whole file is read in " +
                       detail::quote(lines[governing].text);
            });
    }
}

void report_units(const line_list& lines, std::size_t governing, reading& context)
{
    context.used.mark(governing);
    if (!context.findings.listening())
        return;
    detail::report_unit_words(lines[governing].text, lines[governing].place, context);
    report_later_units(lines, governing, context);
}

/// Why no line is a unit line, judged by the first one.
std::string why_no_unit(const line_list& lines)
{
    const std::string_view first = lines.empty() ? std::string_view() : lines[0].text;
    if (detail::starts_with(first, "\xFF\xFE") || detail::starts_with(first, "\xFE\xFF"))
        return "the text is UTF-16, which is not read: save it as plain text";
    if (lines.size() == 1 && detail::contains(first, "\r"))
        return "the lines end with carriage returns alone: save the text with line feeds";
    return "no line begins with 'UNIT' and has a line after it";
}

/// Reports why there is no model, and the lines that look like the missing one.
bool no_model(FindingCode code, std::string_view missing, std::string why, const line_list& lines, reading& context)
{
    if (!lines.empty() || context.findings.empty()) // a file that could not be read has its finding already
        context.findings.add(code, whole_text, [&] { return std::move(why); });
    detail::report_near_keywords(lines, missing, context);
    return false;
}

/// The lines of a file; none, and a finding that says why, of one that could not be read.
line_list lines_of(FileBytes file, bool for_update, std::string_view skip_prefix, reading& context)
{
    if (file.outcome == FileBytes::Outcome::read)
        return {std::move(file.bytes), file.size, skip_prefix};
    detail::report_file_trouble(file.outcome, for_update, context);
    return {};
}

} // namespace

line_list SdReader::get_all_lines_from_file(const char* path, const std::string& skip_prefix, reading& context)
{
    return lines_of(detail::read_updatable_file(path), true, skip_prefix, context);
}

void SdReader::unify_staadpro_unit()
{
    const detail::unit_factors factors = detail::factors_of_unit_line(unit_text);
    length_factor = factors.length;
    force_factor = factors.force;
    force_length_factor = factors.force_length;
}

namespace detail {

/// Reads one text into a model.
class model_reader {
public:
    static bool read_file(SdReader& model, const char* path, reading context)
    {
        model.init();
        return read_lines(model, model.get_all_lines_from_file(path, generated_comment, context), context);
    }
    static bool read_file(SdReader& model, const std::filesystem::path& path, reading context)
    {
        model.init();
        return read_lines(model, lines_of(STAAD::read_file(path), false, generated_comment, context), context);
    }
    static bool read_text(SdReader& model, std::string_view text, reading context)
    {
        line_list lines = line_list::from_text(text, generated_comment); // first: the text may be the model's own
        model.init();
        return read_lines(model, std::move(lines), context);
    }

private:
    static bool read_lines(SdReader& model, line_list lines, reading& context);
};

bool model_reader::read_lines(SdReader& model, line_list lines, reading& context)
{
    lines.prepare();
    if (context.findings.listening())
        context.used.start(lines.size());
    model.read_user_table(lines, context);

    const std::size_t unit = lines.find_start("UNIT");
    if (unit >= lines.size() || unit + 1 == lines.size())
        return no_model(FindingCode::no_unit, "UNIT", why_no_unit(lines), lines, context);
    model.unit_text = lines[unit].text;
    model.unify_staadpro_unit();
    report_units(lines, unit, context);

    const std::size_t joints = lines.find_start("JOINT COORDINATES", unit + 1);
    if (joints == lines.size())
        return no_model(FindingCode::no_joints, "JOINT COORDINATES",
                        "no line after the UNIT line begins with 'JOINT COORDINATES'", lines, context);
    const std::size_t members = lines.find_equal("MEMBER INCIDENCES", joints + 1);
    if (members == lines.size())
        return no_model(FindingCode::no_members, "MEMBER INCIDENCES",
                        "no line after the joints is exactly 'MEMBER INCIDENCES'", lines, context);
    context.used.mark(joints);
    context.used.mark(members);
    read_joints(model, lines, {joints + 1, members}, context);
    const std::size_t after_members = read_members(model, lines, members + 1, context);

    const std::size_t shell_keyword = lines.find_equal("ELEMENT INCIDENCES SHELL", after_members);
    model.ReadGroudData(lines, after_members, context);
    model.read_material(lines, context);
    model.ReadBrace(lines, context);
    if (shell_keyword < lines.size()) {
        context.used.mark(shell_keyword);
        const std::size_t after_shells = read_elements(model, lines, shell_keyword + 1, context);
        read_thicknesses(model, lines, after_shells, context);
    }
    model.read_surface(lines, context);
    append_surfaces_to_shells(model, context);
    read_member_properties(model, lines, after_members, context);
    model.read_beta(lines, context);
    assign_materials(model, lines, context);
    model.read_support(lines, context);
    model.read_release(lines, context);
    model.read_offset(lines, context);
    model.read_load(lines, context);
    report_near_keywords(lines, {}, context);
    report_skipped(lines, context);
    return true;
}

} // namespace detail

bool SdReader::ReadSDDataFromStdFile(const char* path)
{
    return detail::model_reader::read_file(*this, path, reading(nullptr));
}

bool SdReader::ReadSDDataFromStdFile(const char* path, ReadReport& report)
{
    return detail::model_reader::read_file(*this, path, reading(&report));
}

bool SdReader::ReadSDDataFromStdFile(const std::filesystem::path& path)
{
    return detail::model_reader::read_file(*this, path, reading(nullptr));
}

bool SdReader::ReadSDDataFromStdFile(const std::filesystem::path& path, ReadReport& report)
{
    return detail::model_reader::read_file(*this, path, reading(&report));
}

bool SdReader::ReadSDDataFromText(std::string_view text)
{
    return detail::model_reader::read_text(*this, text, reading(nullptr));
}

bool SdReader::ReadSDDataFromText(std::string_view text, ReadReport& report)
{
    return detail::model_reader::read_text(*this, text, reading(&report));
}

} // namespace STAAD
