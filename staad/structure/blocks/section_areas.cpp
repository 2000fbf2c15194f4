#include "staad/structure/blocks/section_forms.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace STAAD::detail {
namespace {

double circle(double diameter) noexcept
{
    return std::numbers::pi / 4.0 * diameter * diameter;
}

double value(const Structure::Section& section, std::string_view name) noexcept
{
    const double* found = find_value(section, name);
    return found == nullptr ? 0.0 : *found;
}

/// A tapered one has no area of its own.
double round_tube(double start, double end, double wall) noexcept
{
    return start == end ? circle(start) - circle(start - 2.0 * wall) : 0.0;
}

double box(double depth, double width, double wall) noexcept
{
    return depth * width - (depth - 2.0 * wall) * (width - 2.0 * wall);
}

} // namespace

const double* find_value(const Structure::Section& section, std::string_view name) noexcept
{
    const auto found = std::find_if(section.values.begin(), section.values.end(),
                                    [name](const Structure::NamedValue& each) { return each.name == name; });
    return found == section.values.end() ? nullptr : &found->value;
}

namespace {

double area_by_shape(const Structure::Section& section) noexcept
{
    using Shape = Structure::Section::Shape;
    const auto of = [&section](std::string_view name) { return value(section, name); };
    switch (section.shape) {
    case Shape::rectangle:
        return of("YD") * of("ZD");
    case Shape::circle:
        return circle(of("YD"));
    case Shape::tee: // YB is the depth of the stem, below the flange
        return of("ZD") * (of("YD") - of("YB")) + of("ZB") * of("YB");
    case Shape::trapezoid:
        return of("YD") * (of("ZD") + of("ZB")) / 2.0;
    case Shape::round_tube:
        return round_tube(of("STA"), of("END"), of("THI"));
    case Shape::general:
        return of("AX");
    case Shape::tube:
        return box(of("DT"), of("WT"), of("TH"));
    case Shape::pipe:
        return circle(of("OD")) - circle(of("ID"));
    default:
        return 0.0;
    }
}

} // namespace

double area_of(const Structure::Section& section) noexcept
{
    const double area = area_by_shape(section);
    return area > 0.0 && std::isfinite(area) ? area : 0.0; // a wall thicker than its tube, sizes past all numbers
}

} // namespace STAAD::detail
