// Sections and materials of members, and user tables.

#include "staad/structure/container/filling.h"
#include "staad/structure/container/texts.h"
#include "staad/text/number_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD::detail {
namespace {

using shape = Structure::Section::Shape;

/// The two texts of a member's section: as the deck has it, in metres, and normalised.
struct section_texts {
    std::string name; ///< empty: the container has no text for the section
    std::string text;
};

/// `value`, named `name`, as a number of the container's texts.
std::string value_text(const Structure::NamedValue& value, std::string_view written)
{
    const exact_units units = container_units();
    const std::string_view name = value.name;
    if (name == "AX" || name == "AY" || name == "AZ")
        return number_text(
            value.value, [&](double v) { return units.area_of(v); }, written);
    if (name == "IX" || name == "IY" || name == "IZ")
        return number_text(
            value.value, [&](double v) { return units.inertia_of(v); }, written);
    return number_text(
        value.value, [&](double v) { return units.length_of(v); }, written);
}

/// The words of a section with its values in metres: those named by the word before, or in their order.
std::string in_metres(const Structure::Section& section, bool by_name)
{
    std::size_t next = 0;
    return with_numbers_after(section.text, [&](std::string_view before, std::string_view number) {
        const auto& values = section.values;
        if (next < values.size() && (!by_name || starts_with(to_upper_ascii(before), values[next].name)))
            return value_text(values[next++], number);
        return std::string(number);
    });
}

std::string joined_mm(std::string head, const Structure::Section& section)
{
    for (std::size_t i = 0; i < section.values.size(); ++i) {
        if (i > 0)
            head += 'X';
        append(head, whole_mm(section.values[i].value));
    }
    return head;
}

double value_of(const Structure::Section& section, std::string_view name) noexcept
{
    const auto found = std::ranges::find(section.values, name, &Structure::NamedValue::name);
    return found == section.values.end() ? 0.0 : found->value;
}

/// "TABLE ST PIPE OD 0.2 ID 0.18" is normalised to the diameter and the wall in mm.
section_texts pipe_texts(const Structure::Section& section)
{
    const double outer = value_of(section, "OD");
    const double wall = (outer - value_of(section, "ID")) * 0.5;
    const std::string_view words = section.text;
    std::string text(word_at(words, 0));
    append_word(text, word_at(words, 1));
    return {in_metres(section, true), text + " PIP" + format_real(outer) + 'X' + format_real(wall)};
}

section_texts texts_of(const Structure::Section& section)
{
    switch (section.shape) {
    case shape::rectangle:
    case shape::circle:
    case shape::tee:
    case shape::trapezoid:
        return {in_metres(section, true), joined_mm("PRIS", section)};
    case shape::round_tube:
    case shape::general: {
        std::string text = in_metres(section, true);
        return {text, text};
    }
    case shape::tapered:
        return {in_metres(section, false), joined_mm("TAPERED", section)};
    case shape::pipe:
        return pipe_texts(section);
    case shape::tube:
    case shape::table: {
        std::string text = in_metres(section, true);
        return {text, text};
    }
    case shape::user_table:
        return {section.text, section.text};
    case shape::assigned:
    case shape::other:
        break;
    }
    return {};
}

/// Shapes whose text in the container does not show what they are.
bool is_ambiguous(shape of) noexcept
{
    return of == shape::circle || of == shape::tee || of == shape::trapezoid;
}

void report_section(container_filling& context, const Structure::Section& section, const section_texts& texts)
{
    if (texts.name.empty())
        context.report_left_out(section.source, [&] { return "section " + quote(section.text); });
    else if (is_ambiguous(section.shape))
        context.report_changed(section.source, [&] {
            return "section " + quote(section.text) + " is held as " + quote(texts.text) +
                   ", which does not show its shape";
        });
}

/// The container has the names of materials alone, and the density of the one that is called CONCRETE.
void report_materials(container_filling& context)
{
    for (const Structure::Material& material : context.structure.materials) {
        const bool keeps_density = to_upper_ascii(material.name) == "CONCRETE";
        if (material.e || material.g || material.poisson || material.alpha || material.damping ||
            !material.strengths.empty() || (material.density && !keeps_density))
            context.report_left_out(material.source, [&] { return "constants of material " + quote(material.name); });
    }
}

constexpr const char* section_material = "STEEL";

void fill_section(SdBeam& beam, const Structure::Section& section, const section_texts& texts)
{
    if (texts.name.empty())
        return;
    beam.material = section_material;
    beam.sect_text = texts.text;
    beam.sect_name = texts.name;
    beam.sect_country = section.code;
}

// ---- user tables ----------------------------------------------------------------------------------------------------

/// The columns of a family: L a length, A an area, I a moment of inertia, S a modulus.
struct family_columns {
    std::string_view family;
    std::string_view columns;
};

constexpr family_columns families[] = {
    {"WIDE FLANGE", "ALLLLIIIAA"}, {"CHANNEL", "ALLLLIIILAA"}, {"ANGLE", "LLLLAA"},   {"DOUBLE ANGLE", "LLLLLAA"},
    {"TEE", "ALLLLIIILAA"},        {"PIPE", "LLAA"},           {"TUBE", "ALLLIIIAA"}, {"GENERAL", "ALLLLIIISSAASSIL"},
    {"ISECTION", "LLLLLLLAAI"},    {"PRISMATIC", "AIIIAALL"},
};

/// What a column of a row holds. A row that has not all columns of its family is a list of dimensions.
char column_of(std::string_view family, std::size_t count, std::size_t index) noexcept
{
    const auto* found = std::ranges::find(families, family, &family_columns::family);
    const bool is_whole = found != std::end(families) && found->columns.size() == count;
    return is_whole ? found->columns[index] : 'L';
}

std::string column_text(char column, double number, double factor, std::string_view written)
{
    const exact_units to = container_units();
    exact_units from;
    from.length = factor;
    switch (column) {
    case 'A':
        return number_text(
            from.area_of(number), [&](double v) { return to.area_of(v); }, written);
    case 'I':
        return number_text(
            from.inertia_of(number), [&](double v) { return to.inertia_of(v); }, written);
    case 'S':
        return number_text(
            from.area_of(from.length_of(number)), [&](double v) { return to.area_of(to.length_of(v)); }, written);
    default:
        return number_text(
            from.length_of(number), [&](double v) { return to.length_of(v); }, written);
    }
}

std::string row_in_metres(const Structure::UserTable& table, const Structure::UserTable::Row& row)
{
    if (table.length_factor == container_units().length)
        return row.text;
    const std::size_t count = count_words(row.text);
    std::string text;
    word_cursor words(row.text);
    std::size_t index = 0;
    for (std::string_view word; words.next(word); ++index) {
        const number_parse<double> number = parse_real(word);
        append_word(text, number.size == word.size() ? column_text(column_of(table.family, count, index), number.value,
                                                                   table.length_factor, word)
                                                     : std::string(word));
    }
    return text;
}

/// Rows as the host reading has them: every line, that of the numbers too, with the line after it.
void fill_rows(SdUserSectionTable& filled, const Structure::UserTable& table, const std::string& after)
{
    std::vector<std::string> lines;
    for (const Structure::UserTable::Row& row : table.rows) {
        lines.push_back(row.name);
        lines.push_back(row_in_metres(table, row));
    }
    lines.push_back(after);
    for (std::size_t i = 0; i + 1 < lines.size(); ++i)
        filled.AddRecord(lines[i], lines[i + 1]);
}

} // namespace

void fill_sections(container_filling& context)
{
    const Structure& structure = context.structure;
    report_materials(context);
    std::vector<section_texts> texts;
    for (const Structure::Section& section : structure.sections) {
        texts.push_back(texts_of(section));
        report_section(context, section, texts.back());
    }
    for (std::size_t i = 0; i < structure.members.size(); ++i) {
        const Structure::Member& member = structure.members[i];
        SdBeam& beam = context.model.beams[i];
        if (member.section >= 0) {
            const auto section = static_cast<std::size_t>(member.section);
            fill_section(beam, structure.sections[section], texts[section]);
        }
        beam.material = material_name(context, member.material, beam.material);
    }
}

void fill_user_tables(container_filling& context)
{
    const auto& tables = context.structure.user_tables;
    for (std::size_t i = 0; i < tables.size(); ++i) {
        SdUserSectionTable& filled = context.model.usr_tables[tables[i].number];
        filled.type = tables[i].family;
        filled.unit = "UNIT METER KN";
        fill_rows(filled, tables[i], i + 1 < tables.size() ? "TABLE " + std::to_string(tables[i + 1].number) : "END");
    }
}

} // namespace STAAD::detail
