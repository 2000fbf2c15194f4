#include "staad/structure/boxes.h"

#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>
#include <string_view>
#include <utility>

namespace STAAD::detail {
namespace {

constexpr double tolerance = 1e-3; // mm: ends of ranges are written to the very place of the joints
constexpr double endless = std::numeric_limits<double>::infinity();

double& along(Vector3& vector, std::size_t axis) noexcept
{
    return axis == 0 ? vector.x : axis == 1 ? vector.y : vector.z;
}

double along(const Vector3& vector, std::size_t axis) noexcept
{
    return axis == 0 ? vector.x : axis == 1 ? vector.y : vector.z;
}

/// The model's axis of "XRANGE", "YR" and their like; none of another word.
std::optional<std::size_t> axis_of(const structure_reading& context, std::string_view word) noexcept
{
    const char first = word.empty() ? '\0' : to_upper_ascii(word.front());
    if (first < 'X' || first > 'Z')
        return std::nullopt;
    word.remove_prefix(1);
    if (!is_word(word, "RAN") && to_upper_ascii(word) != "R")
        return std::nullopt;
    return context.model_axis(static_cast<std::size_t>(first - 'X'));
}

/// Low and high end of a record along an axis: of a joint its place, of others those of their joints. A record
/// without joints lies nowhere.
std::pair<double, double> extent(const Structure& structure, record_kind kind, std::size_t position, std::size_t axis)
{
    double low = endless;
    double high = -endless;
    const auto add = [&](int joint) {
        if (joint < 0)
            return;
        const Structure::Joint& place = structure.joints[static_cast<std::size_t>(joint)];
        const double at = along(Vector3{place.x, place.y, place.z}, axis);
        low = std::min(low, at);
        high = std::max(high, at);
    };
    switch (kind) {
    case record_kind::joints:
        add(static_cast<int>(position));
        break;
    case record_kind::members:
        add(structure.members[position].start);
        add(structure.members[position].end);
        break;
    case record_kind::elements:
        std::ranges::for_each(structure.elements[position].corners, add);
        break;
    }
    return {low, high};
}

std::size_t count_of(const Structure& structure, record_kind kind) noexcept
{
    switch (kind) {
    case record_kind::joints:
        return structure.joints.size();
    case record_kind::members:
        return structure.members.size();
    case record_kind::elements:
        break;
    }
    return structure.elements.size();
}

/// The records by their low ends; sorted when first asked for.
const sorted_places& places_along(structure_reading& context, record_kind kind, std::size_t axis)
{
    sorted_places& sorted = context.places[static_cast<std::size_t>(kind)][axis];
    const std::size_t count = count_of(context.structure, kind);
    if (sorted.positions.size() == count)
        return sorted;
    std::vector<std::pair<double, int>> entries(count);
    for (std::size_t i = 0; i < count; ++i)
        entries[i] = {extent(context.structure, kind, i, axis).first, static_cast<int>(i)};
    std::ranges::sort(entries);
    sorted.places.resize(count);
    sorted.positions.resize(count);
    for (std::size_t i = 0; i < count; ++i)
        std::tie(sorted.places[i], sorted.positions[i]) = entries[i];
    return sorted;
}

bool lies_within(const structure_reading& context, record_kind kind, std::size_t position, const Structure::Box& box)
{
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const auto [low, high] = extent(context.structure, kind, position, axis);
        if (!(low <= high) || low < along(box.low, axis) - tolerance || high > along(box.high, axis) + tolerance)
            return false;
    }
    return true;
}

} // namespace

std::optional<Structure::Box> take_box(const structure_reading& context, row_words& words, std::size_t statement)
{
    Structure::Box box{{-endless, -endless, -endless}, {endless, endless, endless}};
    bool is_given = false;
    while (const std::optional<std::size_t> axis = axis_of(context, words.peek())) {
        row_words ahead = words;
        std::string_view word;
        ahead.next(word);
        number_words numbers(ahead);
        const std::optional<double> from = numbers.next();
        const std::optional<double> to = from ? numbers.next() : std::nullopt;
        if (!to)
            break;
        const double length = context.units_at(statement).length;
        const auto [low, high] = std::minmax({*from * length, *to * length});
        along(box.low, *axis) = std::max(along(box.low, *axis), low);
        along(box.high, *axis) = std::min(along(box.high, *axis), high);
        words = ahead;
        is_given = true;
    }
    return is_given ? std::optional(box) : std::nullopt;
}

std::vector<int> positions_within(structure_reading& context, record_kind kind, const Structure::Box& box)
{
    // Only what begins within the box can lie in it; the axis with the fewest of these is walked.
    const sorted_places* walked = nullptr;
    std::size_t begin = 0;
    std::size_t end = std::numeric_limits<std::size_t>::max();
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (along(box.low, axis) == -endless && along(box.high, axis) == endless)
            continue;
        const sorted_places& sorted = places_along(context, kind, axis);
        const auto first = std::ranges::lower_bound(sorted.places, along(box.low, axis) - tolerance);
        const auto last = std::ranges::upper_bound(sorted.places, along(box.high, axis) + tolerance);
        const auto from = static_cast<std::size_t>(first - sorted.places.begin());
        const auto to = std::max(from, static_cast<std::size_t>(last - sorted.places.begin()));
        if (walked == nullptr || to - from < end - begin) {
            walked = &sorted;
            begin = from;
            end = to;
        }
    }
    std::vector<int> found;
    if (walked == nullptr)
        return found;
    context.budget.take_references(end - begin);
    for (std::size_t i = begin; i < end; ++i)
        if (lies_within(context, kind, static_cast<std::size_t>(walked->positions[i]), box))
            found.push_back(walked->positions[i]);
    std::ranges::sort(found);
    return found;
}

} // namespace STAAD::detail
