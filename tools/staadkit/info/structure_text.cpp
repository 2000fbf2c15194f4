// The parts of the report of "info" that only a structure has.

#include "info/structure_text.h"

#include "output/phrases.h"
#include "output/structure_words.h"
#include "output/table.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace tool {
namespace {

using STAAD::Structure;

std::string counted_words(const std::vector<counted_text>& counted)
{
    std::string text;
    for (const counted_text& each : counted) {
        std::string word = each.text == "cases" ? "sum of cases" : each.text;
        std::replace(word.begin(), word.end(), '_', ' ');
        text += fmt::format("{}{} {}", text.empty() ? "" : ", ", each.count, word);
    }
    return text.empty() ? "no loads" : text;
}

std::string loaded(const case_summary& summary)
{
    std::string text;
    const auto add = [&text](std::size_t count, std::string_view noun) {
        if (count != 0)
            text += (text.empty() ? "" : ", ") + count_of(count, noun);
    };
    add(summary.members, "member");
    add(summary.joints, "joint");
    add(summary.elements, "element");
    return text.empty() ? "-" : text;
}

/// "E 25 kN/mm2, ..." of those that the deck gives.
std::string constants_of(const Structure::Material& material)
{
    std::string text;
    const auto add = [&text](const char* name, std::optional<double> value, double factor, const char* unit) {
        if (value)
            text += fmt::format("{}{} {}{}", text.empty() ? "" : ", ", name, short_number(*value * factor), unit);
    };
    constexpr double per_cubic_metre = 1e9;
    add("E", material.e, 1.0, " kN/mm2");
    add("G", material.g, 1.0, " kN/mm2");
    add("Poisson", material.poisson, 1.0, "");
    add("density", material.density, per_cubic_metre, " kN/m3");
    add("alpha", material.alpha, 1.0, "");
    add("damping", material.damping, 1.0, "");
    for (const Structure::NamedValue& strength : material.strengths)
        add(strength.name.c_str(), strength.value, 1.0, strength.name[0] == 'F' ? " kN/mm2" : "");
    return text.empty() ? material.is_built_in ? "of the analysis program" : "no constants" : text;
}

/// "1.2 x 1 + 1.4 x R2", at most some terms.
std::string terms_of(const Structure::Combination& combination)
{
    constexpr std::size_t most_terms = 8;
    std::string text;
    for (std::size_t i = 0; i < combination.terms.size() && i < most_terms; ++i) {
        const Structure::CaseFactor& term = combination.terms[i];
        const bool is_minus = term.factor < 0.0;
        const char* const sign = text.empty() ? is_minus ? "-" : "" : is_minus ? " - " : " + ";
        text += fmt::format("{}{} x {}{}", sign, short_number(std::fabs(term.factor)), term.is_reference ? "R" : "",
                            term.number);
    }
    if (combination.terms.size() > most_terms)
        text += " + ...";
    return text.empty() ? "no cases" : text;
}

std::string lines_in_words(const aside& each)
{
    if (each.lines.empty())
        return {};
    std::string text = each.lines.size() == 1 ? "line " : "lines ";
    for (std::size_t i = 0; i < each.lines.size(); ++i)
        text += fmt::format("{}{}", i == 0 ? "" : ", ", each.lines[i].first);
    if (each.count > each.lines.size())
        text += fmt::format(" and {} more", each.count - each.lines.size());
    return text;
}

void put_asides(std_output& out, std::string_view name, const std::vector<aside>& asides)
{
    std::size_t count = 0;
    table rows;
    for (const aside& each : asides) {
        count += each.count;
        const char* const code = each.code.empty() ? "kept as text" : each.code.c_str();
        rows.add_row({lines_in_words(each), code, cell_text(each.text, "")});
    }
    out.put(fmt::format("{}: {}\n", name, count == 0 ? "nothing" : std::to_string(count)));
    rows.put(out);
}

/// A heading with the number of rows, and the rows; nothing without rows.
void put_rows(std_output& out, std::string_view name, const table& rows)
{
    if (rows.size() == 0)
        return;
    out.put(fmt::format("{}: {}\n", name, rows.size()));
    rows.put(out);
}

void put_cases(std_output& out, std::string_view name, const std::vector<case_summary>& cases)
{
    table rows({align::right});
    for (const case_summary& each : cases)
        rows.add_row({(each.load_case->is_reference ? "R" : "") + std::to_string(each.load_case->number),
                      cell_text(each.load_case->type, "-"), cell_text(each.load_case->title, "-"), loaded(each),
                      counted_words(each.kinds)});
    put_rows(out, name, rows);
}

} // namespace

void put_structure_head(std_output& out, const structure_summary& summary)
{
    const Structure::Head& head = summary.structure->head;
    out.put(fmt::format("kind: {}, {} up\n", word_of(head.kind), head.up == Structure::UpAxis::y ? "Y" : "Z"));
    if (!head.title.empty())
        out.put(fmt::format("title: {}\n", cell_text(head.title, "")));
    out.put(fmt::format("units: {} {} (of the first UNIT line)\n", cell_text(head.length_unit, ""),
                        cell_text(head.force_unit, "")));
}

void put_structure_supports(std_output& out, const structure_summary& summary)
{
    table rows;
    for (const counted_text& each : summary.supports)
        rows.add_row({cell_text(each.text, "(no description)"), count_of(each.count, "joint")});
    for (const counted_text& each : summary.mats)
        rows.add_row({cell_text(each.text, "(no description)"), count_of(each.count, "element")});
    out.put(fmt::format("supports: {}\n", rows.size() == 0 ? "none" : std::to_string(rows.size())));
    rows.put(out);
}

void put_structure_materials(std_output& out, const structure_summary& summary)
{
    table rows;
    for (const Structure::Material& material : summary.structure->materials)
        rows.add_row({cell_text(material.name, "(no name)"), cell_text(material.type, "-"), constants_of(material)});
    put_rows(out, "materials", rows);
}

void put_structure_loads(std_output& out, const structure_summary& summary)
{
    if (summary.load_cases.empty())
        out.put("load cases: none\n");
    put_cases(out, "load cases", summary.load_cases);
    put_cases(out, "reference cases", summary.reference_cases);
    table rows({align::right});
    for (const Structure::Combination& each : summary.structure->combinations)
        rows.add_row({std::to_string(each.number), each.method.empty() ? "sum" : each.method,
                      cell_text(each.title, "-"), terms_of(each)});
    put_rows(out, "combinations", rows);
}

void put_structure_asides(std_output& out, const structure_summary& summary)
{
    put_asides(out, "structure and loads that are not in the records", summary.beside.lost);
    put_asides(out, "analysis and design, kept as text", summary.beside.kept);
    put_asides(out, "harmless", summary.beside.harmless);
}

} // namespace tool
