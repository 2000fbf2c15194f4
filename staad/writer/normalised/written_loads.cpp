#include "staad/writer/normalised/written_loads.h"

#include "staad/text/run_lines.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>
#include <utility>

namespace STAAD::detail {
namespace {

/// Negative, 0 or positive, as `left` sorts before, with or after `right`.
int compare(double left, double right)
{
    if (std::isnan(left) || std::isnan(right))
        return static_cast<int>(std::isnan(left)) - static_cast<int>(std::isnan(right));
    return static_cast<int>(left > right) - static_cast<int>(left < right);
}

number_lookup member_load_positions(const std::map<int, LoadDefination>& definitions)
{
    std::vector<numbered_position> entries;
    for (const auto& [number, definition] : definitions) {
        if (is_member_load(definition))
            entries.push_back({number, static_cast<int>(entries.size()) + 1});
    }
    return {std::move(entries), same_number::first_counts};
}

} // namespace

bool is_member_load(const LoadDefination& definition)
{
    return std::string_view(definition.kind).starts_with(member_load_prefix);
}

std::string_view member_load_word(const LoadDefination& definition)
{
    return std::string_view(definition.kind).substr(member_load_prefix.size());
}

loaded_members::loaded_members(const SdReader& model, const written_numbers& numbers)
    : positions_(member_load_positions(model.load_defs)), ends_(positions_.entries().size() + 2)
{
    const auto for_each_reference = [&](auto visit) {
        for (const SdBeam& member : model.beams) {
            for (const int definition : member.int_list) {
                if (const int position = positions_.position(definition))
                    visit(static_cast<std::size_t>(position), numbers.of(member));
            }
        }
    };
    // Counts are stored one place later, so that their sums are where each list starts; filling moves these to
    // where it ends.
    for_each_reference([this](std::size_t position, int) { ++ends_[position + 1]; });
    std::partial_sum(ends_.begin(), ends_.end(), ends_.begin());
    ids_.resize(ends_.back());
    for_each_reference([this](std::size_t position, int id) { ids_[ends_[position]++] = id; });
}

std::span<const int> loaded_members::of(int definition) const noexcept
{
    const auto position = static_cast<std::size_t>(positions_.position(definition));
    if (position == 0)
        return {};
    return std::span(ids_).subspan(ends_[position - 1], ends_[position] - ends_[position - 1]);
}

bool ordered_before(const LoadDefination& left, const LoadDefination& right)
{
    if (const int order = left.kind.compare(right.kind))
        return order < 0;
    if (const int order = left.direction.compare(right.direction))
        return order < 0;
    if (left.load_case != right.load_case)
        return left.load_case < right.load_case;
    return std::lexicographical_compare(left.values.begin(), left.values.end(), right.values.begin(),
                                        right.values.end(), [](double a, double b) { return compare(a, b) < 0; });
}

int written_loads::next_number(int count) noexcept
{
    return last_number = static_cast<int>(static_cast<unsigned>(last_number) + static_cast<unsigned>(count));
}

void written_loads::collect(const SdReader& model, const written_numbers& numbers)
{
    members = loaded_members(model, numbers);
    for (const auto& [key, load_case] : model.load_cases)
        collected[load_case.id];
    for (const auto& [number, definition] : model.load_defs) {
        const std::span<const int> loaded = members.of(number);
        const auto found = loaded.empty() ? collected.end() : collected.find(definition.load_case);
        if (found != collected.end())
            found->second.push_back({&definition, loaded});
    }
    for (auto& [number, loads] : collected)
        std::stable_sort(loads.begin(), loads.end(), [](const member_load& left, const member_load& right) {
            return ordered_before(*left.definition, *right.definition);
        });
}

void write_member_loads(text_output& out, std::span<const member_load> loads, std::string_view text)
{
    const std::string tail = std::string(1, ' ').append(text);
    if (loads.size() == 1) {
        put_run_list(out, {}, loads.front().members, tail);
    } else {
        std::vector<int> members;
        for (const member_load& load : loads)
            members.insert(members.end(), load.members.begin(), load.members.end());
        put_run_list(out, {}, std::span<const int>(members), tail);
    }
    out.put('\n');
}

void write_factored_member_load(text_output& out, const LoadDefination& load, std::span<const member_load> members,
                                double factor)
{
    for (const std::string_view direction : {" GX ", " GZ "}) {
        std::string text = std::string(member_load_word(load)).append(direction);
        for (const double value : load.values) {
            append(text, fixed{value * factor, 2});
            text += ' ';
        }
        write_member_loads(out, members, text);
    }
}

} // namespace STAAD::detail
