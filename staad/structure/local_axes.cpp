#include "staad/structure/local_axes.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <optional>

namespace STAAD {
namespace {

using UpAxis = Structure::UpAxis;

constexpr double vertical_below = 1e-3; // level projection of a member by its length
constexpr double flat_below = 1e-9;     // twice the area of an element by its extent squared

// In the frame of the model, which is the same whichever axis of the file points up.
constexpr Vector3 up{0.0, 0.0, 1.0};
constexpr Vector3 file_z_of_y_up{1.0, 0.0, 0.0};
constexpr Vector3 file_y_of_z_up{0.0, 1.0, 0.0};

Vector3 plus(const Vector3& a, const Vector3& b) noexcept
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

Vector3 minus(const Vector3& a, const Vector3& b) noexcept
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

Vector3 times(const Vector3& a, double factor) noexcept
{
    return {a.x * factor, a.y * factor, a.z * factor};
}

Vector3 cross(const Vector3& a, const Vector3& b) noexcept
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double dot(const Vector3& a, const Vector3& b) noexcept
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

/// The largest of the three; what is no number counts as endless.
double extent(const Vector3& a) noexcept
{
    const double largest = std::max({std::abs(a.x), std::abs(a.y), std::abs(a.z)});
    return std::isnan(a.x) || std::isnan(a.y) || std::isnan(a.z) ? HUGE_VAL : largest;
}

/// None of a vector without length, or without end.
std::optional<Vector3> unit(const Vector3& a) noexcept
{
    const double largest = extent(a);
    if (largest <= 0.0 || !std::isfinite(largest))
        return std::nullopt;
    const Vector3 scaled{a.x / largest, a.y / largest, a.z / largest}; // no square of it can leave the range
    const double length = std::hypot(scaled.x, scaled.y, scaled.z);
    return Vector3{scaled.x / length, scaled.y / length, scaled.z / length};
}

std::optional<Vector3> joint_place(const Structure& structure, int joint) noexcept
{
    if (joint < 0 || static_cast<std::size_t>(joint) >= structure.joints.size())
        return std::nullopt;
    const Structure::Joint& found = structure.joints[static_cast<std::size_t>(joint)];
    return Vector3{found.x, found.y, found.z};
}

/// The axes along a direction for beta 0.
LocalAxes upright_axes(const Vector3& x, UpAxis up_axis) noexcept
{
    const bool is_vertical = std::hypot(x.x, x.y) < vertical_below;
    if (up_axis == UpAxis::y) {
        // A vertical member that leans a little has z as near to the file's +Z as it can be.
        const Vector3 y = is_vertical ? cross(file_z_of_y_up, x) : cross(cross(x, up), x);
        const Vector3 unit_y = unit(y).value_or(Vector3());
        return {x, unit_y, cross(x, unit_y)};
    }
    const Vector3 z = is_vertical ? cross(x, file_y_of_z_up) : cross(x, cross(up, x));
    const Vector3 unit_z = unit(z).value_or(Vector3());
    return {x, cross(unit_z, x), unit_z};
}

struct turn {
    double cosine;
    double sine;
};

/// Quarters of a circle turn exactly.
turn turn_of(double degrees) noexcept
{
    const double within = std::remainder(degrees, 360.0);
    if (!std::isfinite(within))
        return {1.0, 0.0};
    if (std::abs(within) == 90.0)
        return {0.0, within / 90.0};
    if (std::abs(within) == 180.0)
        return {-1.0, 0.0};
    const double angle = within * (std::numbers::pi / 180.0);
    return {std::cos(angle), std::sin(angle)};
}

LocalAxes member_axes(const Vector3& start, const Vector3& end, double beta, UpAxis up_axis) noexcept
{
    const std::optional<Vector3> x = unit(minus(end, start));
    if (!x)
        return {};
    const LocalAxes axes = upright_axes(*x, up_axis);
    const auto [cosine, sine] = turn_of(beta);
    return {axes.x, plus(times(axes.y, cosine), times(axes.z, sine)),
            minus(times(axes.z, cosine), times(axes.y, sine))};
}

} // namespace

LocalAxes local_axes(const Structure& structure, const Structure::Member& member) noexcept
{
    const auto start = joint_place(structure, member.start);
    const auto end = joint_place(structure, member.end);
    if (!start || !end)
        return {};
    return member_axes(plus(*start, member.start_offset), plus(*end, member.end_offset), member.beta,
                       structure.head.up);
}

LocalAxes axes_between_joints(const Structure& structure, const Structure::Member& member) noexcept
{
    const auto start = joint_place(structure, member.start);
    const auto end = joint_place(structure, member.end);
    return start && end ? member_axes(*start, *end, member.beta, structure.head.up) : LocalAxes();
}

LocalAxes local_axes(const Structure& structure, const Structure::Element& element) noexcept
{
    const auto first = joint_place(structure, element.corners[0]);
    const auto second = joint_place(structure, element.corners[1]);
    const auto third = joint_place(structure, element.corners[2]);
    if (!first || !second || !third)
        return {};
    // Of four corners z is square to both diagonals, for a warped element, too; of three the last is the third.
    const Vector3 fourth = joint_place(structure, element.corners[3]).value_or(*third);
    const Vector3 one = minus(*third, *first);
    const Vector3 other = minus(fourth, *second);
    const double largest = std::max(extent(one), extent(other));
    if (largest <= 0.0 || !std::isfinite(largest))
        return {};
    const Vector3 normal = cross(times(one, 1.0 / largest), times(other, 1.0 / largest));
    if (extent(normal) < flat_below)
        return {};
    const Vector3 z = unit(normal).value_or(Vector3());
    const Vector3 side = minus(*second, *first);
    const std::optional<Vector3> x = unit(minus(side, times(z, dot(side, z))));
    return x ? LocalAxes{*x, cross(z, *x), z} : LocalAxes();
}

} // namespace STAAD
