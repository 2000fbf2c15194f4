#include "staad/structure/blocks/blocks.h"

#include "staad/structure/assignments.h"
#include "staad/structure/blocks/material_names.h"
#include "staad/structure/blocks/material_sets.h"
#include "staad/structure/lists.h"
#include "staad/structure/values.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD::detail {
namespace {

/// MATERIAL name list; E, G, POISSON, DENSITY, ALPHA, CDAMP value list.
class material_lines {
public:
    explicit material_lines(structure_reading& context)
        : context_(context), names_(context.structure.materials), sets_(context)
    {
        for (const std::size_t statement : statements())
            read(statement);
        sets_.hand_out();
    }

private:
    std::vector<std::size_t> statements() const
    {
        const std::vector<std::size_t>& materials = context_.statements_of(Command::material);
        const std::vector<std::size_t>& constants = context_.statements_of(Command::constant);
        std::vector<std::size_t> both;
        std::merge(materials.begin(), materials.end(), constants.begin(), constants.end(), std::back_inserter(both));
        return both;
    }

    void read(std::size_t statement)
    {
        const std::size_t row = context_.deck.statement(statement).first_row;
        row_words words(context_.deck, row);
        std::string_view word;
        std::string_view value;
        words.next(word);
        words.next(value);
        const record_list list = take_list(context_, words, listed::members_and_elements, statement, row);
        if (!list.is_given) {
            context_.report_unread(row, "a material or a constant of no members");
            return;
        }
        if (!words.peek().empty())
            context_.report_unread(row, "words left over after a list");
        const material_sets::ranges to{list.members, list.elements, list.is_all};
        const std::optional<std::size_t> constant = find_material_constant(word);
        if (!constant)
            sets_.give_material(material(value, row), to, context_.source_of(row));
        else if (const std::optional<given_constant> given = given_by(*constant, value, statement, row))
            sets_.give_constant(*constant, *given, to, context_.source_of(row));
    }

    /// The material of that name. One that neither the deck nor the analysis program defines is there without values.
    int material(std::string_view name, std::size_t row)
    {
        const int known = names_.find(name);
        if (known >= 0 && known < defined_)
            return known;
        const bool is_built_in = material_names::is_built_in(name);
        if (!is_built_in)
            report_unknown(name, row);
        const int added = names_.find_or_add(name, context_.source_of(row));
        context_.structure.materials[static_cast<std::size_t>(added)].is_built_in = is_built_in;
        return added;
    }

    void report_unknown(std::string_view name, std::size_t row)
    {
        context_.report(FindingCode::material_unknown, row, [&] { return "no material " + quote(name); });
    }

    /// A number, or the name of a material that has the constant.
    std::optional<given_constant> given_by(std::size_t constant, std::string_view word, std::size_t statement,
                                           std::size_t row)
    {
        const material_constant& info = material_constants[constant];
        if (const std::optional<double> value = real_value(word))
            return given_constant{in_model_units(*value, info.of, context_.units_at(statement)), -1};
        const int known = names_.find(word);
        if (known < 0 || known >= defined_) {
            if (material_names::is_built_in(word))
                return given_constant{std::nullopt, material(word, row)};
            report_unknown(word, row);
            return std::nullopt;
        }
        const std::optional<double> value = context_.structure.materials[static_cast<std::size_t>(known)].*info.value;
        if (value)
            return given_constant{value, -1};
        context_.report_unread(row, "a constant that its material does not have");
        return std::nullopt;
    }

    structure_reading& context_;
    material_names names_;
    int defined_ = static_cast<int>(context_.structure.materials.size()); // by the deck; they come first
    material_sets sets_;
};

/// The statement as it stands.
Structure::Kept kept(structure_reading& context, std::size_t statement, std::size_t row)
{
    const exact_units& units = context.units_at(statement);
    Structure::Kept kept;
    kept.command = command_info(Command::beta).words;
    const FileLines lines = context.deck.lines(context.deck.statement(statement));
    for (std::size_t line = lines.first; line <= lines.last; ++line)
        kept.text += context.deck.line(line);
    kept.length_unit = units.length_word;
    kept.force_unit = units.force_word;
    kept.source = context.source_of(row);
    return kept;
}

/// BETA angle list. ANGLE, RANGLE and REFJT leave the angle to the analysis program.
void read_beta(structure_reading& context, line_assignments<double>& angles, std::size_t statement)
{
    const std::size_t row = context.deck.statement(statement).first_row;
    row_words words(context.deck, row);
    std::string_view word;
    words.next(word); // BETA
    words.next(word);
    const std::optional<double> angle = real_value(word);
    if (!angle) {
        context.structure.kept.push_back(kept(context, statement, row));
        context.report(FindingCode::form_kept, row, [&] {
            return "the analysis program finds the angle: " + quote(row_words(context.deck, row).rest());
        });
        return;
    }
    const record_list list = take_list(context, words, listed::members, statement, row);
    if (!list.is_given || !words.peek().empty())
        context.report_unread(row, list.is_given ? "words left over after a list" : "an angle of no members");
    angles.add(list.members, *angle, context.source_of(row));
}

} // namespace

void read_constants(structure_reading& context)
{
    material_lines lines(context);
    line_assignments<double> angles;
    for (const std::size_t statement : context.statements_of(Command::beta))
        read_beta(context, angles, statement);
    std::vector<Structure::Member>& members = context.structure.members;
    angles.hand_out(members.size(), [&](std::size_t at, double angle, Structure::Source source) {
        members[at].beta = angle;
        members[at].beta_source = source;
    });
}

} // namespace STAAD::detail
