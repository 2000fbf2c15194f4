#include "staad/structure/blocks/loads.h"

#include "staad/text/words.h"

#include <cstdint>

namespace STAAD::detail {
namespace {

/// The axis, 0 to 2, of a word like "GX": a letter and that of an axis.
std::optional<std::size_t> axis_after(char letter, std::string_view word) noexcept
{
    if (word.size() != 2 || to_upper_ascii(word[0]) != letter)
        return std::nullopt;
    const char axis = to_upper_ascii(word[1]);
    return axis >= 'X' && axis <= 'Z' ? std::optional(static_cast<std::size_t>(axis - 'X')) : std::nullopt;
}

load_direction along(load_direction first, std::size_t axis) noexcept
{
    return static_cast<load_direction>(static_cast<std::size_t>(first) + axis);
}

} // namespace

std::optional<load_direction> global_direction(const structure_reading& context, std::string_view word) noexcept
{
    const auto axis = axis_after('G', word);
    return axis ? std::optional(along(load_direction::global_x, context.model_axis(*axis))) : std::nullopt;
}

std::optional<load_direction> projected_direction(const structure_reading& context, std::string_view word) noexcept
{
    const auto axis = axis_after('P', word);
    return axis ? std::optional(along(load_direction::projected_x, context.model_axis(*axis))) : std::nullopt;
}

std::optional<load_direction> local_direction(std::string_view word) noexcept
{
    const char letter = word.size() == 1 ? to_upper_ascii(word.front()) : '\0';
    if (letter >= 'X' && letter <= 'Z')
        return along(load_direction::local_x, static_cast<std::size_t>(letter - 'X'));
    const auto axis = axis_after('L', word);
    return axis ? std::optional(along(load_direction::local_x, *axis)) : std::nullopt;
}

std::string text_between(row_words begin, const row_words& end)
{
    std::string text;
    const std::string_view past = end.peek();
    for (std::string_view word; begin.next(word) && (past.empty() || word.data() != past.data());)
        text.append(text.empty() ? "" : " ").append(word);
    return text;
}

void put_on(structure_reading& context, Structure::Load& load, const record_list& list, listed what)
{
    context.budget.take_references(list.joints.size() + list.members.size() + list.elements.size());
    load.on = what == listed::joints ? list.joints : what == listed::elements ? list.elements : list.members;
    if (what == listed::members_and_elements)
        load.on_elements = list.elements;
}

} // namespace STAAD::detail
