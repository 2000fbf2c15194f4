#include "staad/structure/blocks/material_sets.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace STAAD::detail {

void material_sets::give_material(int material, const ranges& to, Structure::Source source)
{
    add(0, material, to, source);
}

void material_sets::give_constant(std::size_t constant, const given_constant& given, const ranges& to,
                                  Structure::Source source)
{
    constants_.push_back(given);
    add(constant + 1, static_cast<int>(constants_.size()) - 1, to, source);
}

void material_sets::add(std::size_t column, int value, const ranges& to, Structure::Source source)
{
    lines_[members][column].add(to.members, value, source);
    lines_[elements][column].add(to.elements, value, source);
    if (!to.is_all)
        return;
    const auto add_all = [&](kind which, std::size_t count) {
        if (count > 0)
            lines_[which][column].add({Structure::Range{0, static_cast<int>(count) - 1}}, value, source);
    };
    add_all(solids, context_.structure.solids.size());
    add_all(surfaces, context_.structure.surfaces.size());
}

void material_sets::hand_out()
{
    hand_out_to(context_.structure.members, members);
    hand_out_to(context_.structure.elements, elements);
    hand_out_to(context_.structure.solids, solids);
    hand_out_to(context_.structure.surfaces, surfaces);
}

/// MATERIAL lines first, then constant after constant: records that came to the same set stay together, so that
/// each set is composed once.
template<class Records>
void material_sets::hand_out_to(Records& records, kind which)
{
    const auto& lines = lines_[which];
    if (std::all_of(lines.begin(), lines.end(), [](const auto& each) { return each.empty(); }))
        return;
    std::vector<std::uint32_t> set_of(records.size(), 0);
    for (std::size_t column = 0; column < columns; ++column)
        lines[column].hand_out(records.size(), [&](std::size_t at, int value, Structure::Source source) {
            set_of[at] = set_after(set_of[at], column, value, source);
        });
    for (std::size_t i = 0; i < records.size(); ++i) {
        records[i].material = material_of(set_of[i]);
        records[i].material_source = sets_[set_of[i]].source;
    }
}

std::uint32_t material_sets::set_after(std::uint32_t before, std::size_t column, int value, Structure::Source source)
{
    const set& earlier = sets_[before];
    if (column > 0 && source < earlier.named_from) // sources rise with the text
        return before;
    const std::uint64_t key = (std::uint64_t{before} << 32U) | source;
    const auto [place, is_new] = known_sets_.try_emplace(key, static_cast<std::uint32_t>(sets_.size()));
    if (is_new)
        sets_.push_back(
            {before, column, value, std::max(source, earlier.source), column == 0 ? source : earlier.named_from, -2});
    return place->second;
}

int material_sets::material_of(std::uint32_t index)
{
    if (sets_[index].material == -2)
        sets_[index].material = compose(sets_[index]);
    return sets_[index].material;
}

int material_sets::compose(const set& last)
{
    std::vector<const set*> constants;
    const set* each = &last;
    for (; each != &sets_[0] && each->column > 0; each = &sets_[each->before])
        constants.push_back(each);
    const int named = each->value;
    if (constants.empty())
        return named;
    const auto given = [this](const set* by) -> const given_constant& {
        return constants_[static_cast<std::size_t>(by->value)];
    };
    // E STEEL, DENSITY STEEL ...: the material itself.
    const int built_in = given(constants.front()).built_in;
    if (built_in >= 0 && (named < 0 || named == built_in) &&
        std::all_of(constants.begin(), constants.end(), [&](const set* by) { return given(by).built_in == built_in; }))
        return built_in;
    Structure::Material made;
    if (named >= 0)
        made = context_.structure.materials[static_cast<std::size_t>(named)];
    if (made.is_built_in)
        report_missing(last.source, named);
    made.name.clear();
    made.is_built_in = false;
    made.source = last.source;
    for (const set* by : constants) {
        made.*material_constants[by->column - 1].value = given(by).value;
        if (given(by).built_in >= 0)
            report_missing(by->source, given(by).built_in);
    }
    return share(std::move(made), named);
}

/// The nameless material of these values, the one that is there already or a new one. Type and strengths are those
/// of the material that it is a copy of.
int material_sets::share(Structure::Material made, int named)
{
    std::string key = std::to_string(named);
    for (const material_constant& each : material_constants) {
        const std::optional<double>& value = made.*each.value;
        key.append(" ").append(value ? std::to_string(std::bit_cast<std::uint64_t>(*value)) : "-");
    }
    std::vector<Structure::Material>& materials = context_.structure.materials;
    const auto [place, is_new] = nameless_.try_emplace(std::move(key), static_cast<int>(materials.size()));
    if (is_new)
        materials.push_back(std::move(made));
    return place->second;
}

void material_sets::report_missing(Structure::Source source, int built_in)
{
    if (!reported_.insert(source).second)
        return;
    const std::string& name = context_.structure.materials[static_cast<std::size_t>(built_in)].name;
    context_.findings.add(FindingCode::form_kept, place_of(context_.structure, source), [&] {
        return "a material with constants of " + quote(name) + ", which only the analysis program knows";
    });
}

} // namespace STAAD::detail
