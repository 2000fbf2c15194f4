/// The local axes of members and elements, in the model frame.

#include "staad/structure/local_axes.h"
#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace STAAD {
namespace {

void expect_vector(const Vector3& found, const Vector3& expected, const char* what)
{
    EXPECT_NEAR(found.x, expected.x, 1e-12) << what;
    EXPECT_NEAR(found.y, expected.y, 1e-12) << what;
    EXPECT_NEAR(found.z, expected.z, 1e-12) << what;
}

void expect_axes(const LocalAxes& found, const LocalAxes& expected)
{
    expect_vector(found.x, expected.x, "x");
    expect_vector(found.y, expected.y, "y");
    expect_vector(found.z, expected.z, "z");
}

/// A member from the origin of the model to `end`.
Structure member_to(const Vector3& end, double beta, Structure::UpAxis up)
{
    Structure structure;
    structure.head.up = up;
    structure.joints.resize(2);
    structure.joints[1].x = end.x;
    structure.joints[1].y = end.y;
    structure.joints[1].z = end.z;
    structure.members.resize(1);
    structure.members[0].start = 0;
    structure.members[0].end = 1;
    structure.members[0].beta = beta;
    return structure;
}

struct axes_row {
    const char* why;
    Vector3 end; // model frame
    double beta;
    LocalAxes axes;
};

const double half = std::sqrt(0.5);

// The file's X, Y, Z are the model's y, z, x.
const axes_row rows_of_y_up[] = {
    {"along the file's +X: y up, z along +Z", {0, 5, 0}, 0, {{0, 1, 0}, {0, 0, 1}, {1, 0, 0}}},
    {"along the file's -X: y still up, z along -Z", {0, -5, 0}, 0, {{0, -1, 0}, {0, 0, 1}, {-1, 0, 0}}},
    {"along the file's +Z: z along -X", {5, 0, 0}, 0, {{1, 0, 0}, {0, 0, 1}, {0, -1, 0}}},
    {"a rafter along X and up: z level", {0, 5, 5}, 0, {{0, half, half}, {0, -half, half}, {1, 0, 0}}},
    {"a column upwards: z along the file's +Z, y along -X", {0, 0, 5}, 0, {{0, 0, 1}, {0, -1, 0}, {1, 0, 0}}},
    {"a column downwards: z along +Z again, y along +X", {0, 0, -5}, 0, {{0, 0, -1}, {0, 1, 0}, {1, 0, 0}}},
    {"beta by the right hand about x: y to z, z to -y", {0, 5, 0}, 90, {{0, 1, 0}, {1, 0, 0}, {0, 0, -1}}},
    {"beta 45", {0, 5, 0}, 45, {{0, 1, 0}, {half, 0, half}, {half, 0, -half}}},
    {"beta -90", {0, 5, 0}, -90, {{0, 1, 0}, {-1, 0, 0}, {0, 0, 1}}},
    {"a column with beta 90: y where z was, z along +X", {0, 0, 5}, 90, {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}},
    {"beta 450 is beta 90", {0, 0, 5}, 450, {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}},
    {"no length, no axes", {0, 0, 0}, 0, {}},
};

const axes_row rows_of_z_up[] = {
    {"along +X: y level along +Y, z up", {5, 0, 0}, 0, {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {"along -X: z still up", {-5, 0, 0}, 0, {{-1, 0, 0}, {0, -1, 0}, {0, 0, 1}}},
    {"along +Y: y along -X", {0, 5, 0}, 0, {{0, 1, 0}, {-1, 0, 0}, {0, 0, 1}}},
    {"a rafter along X and up: y level", {5, 0, 5}, 0, {{half, 0, half}, {0, 1, 0}, {-half, 0, half}}},
    {"a column upwards: y along +Y, z along -X", {0, 0, 5}, 0, {{0, 0, 1}, {0, 1, 0}, {-1, 0, 0}}},
    {"a column downwards: y along +Y again", {0, 0, -5}, 0, {{0, 0, -1}, {0, 1, 0}, {1, 0, 0}}},
    {"beta by the right hand about x: y to z", {5, 0, 0}, 90, {{1, 0, 0}, {0, 0, 1}, {0, -1, 0}}},
    {"beta 180 exactly", {5, 0, 0}, 180, {{1, 0, 0}, {0, -1, 0}, {0, 0, -1}}},
};

TEST(LocalAxes, OfMembers)
{
    for (const axes_row& row : rows_of_y_up) {
        SCOPED_TRACE(row.why);
        const Structure structure = member_to(row.end, row.beta, Structure::UpAxis::y);
        expect_axes(local_axes(structure, structure.members[0]), row.axes);
    }
    for (const axes_row& row : rows_of_z_up) {
        SCOPED_TRACE(row.why);
        const Structure structure = member_to(row.end, row.beta, Structure::UpAxis::z);
        expect_axes(local_axes(structure, structure.members[0]), row.axes);
    }
}

TEST(LocalAxes, AMemberIsVerticalBelowAThousandth)
{
    // It leans along the file's +Z, model x. As a column it keeps z there, as a beam z is square to its level way.
    const Structure column = member_to({0.0009, 0, 1}, 0, Structure::UpAxis::y);
    EXPECT_GT(local_axes(column, column.members[0]).z.x, 0.999);
    const Structure beam = member_to({0.0011, 0, 1}, 0, Structure::UpAxis::y);
    expect_vector(local_axes(beam, beam.members[0]).z, {0, -1, 0}, "z");
}

TEST(LocalAxes, GoBetweenOffsetEnds)
{
    Structure structure = member_to({0, 5, 0}, 0, Structure::UpAxis::y);
    Structure::Member& member = structure.members[0];
    member.start_offset = {0, 5, 0};
    member.end_offset = {0, 0, 5};
    expect_axes(local_axes(structure, member), {{0, 0, 1}, {0, -1, 0}, {1, 0, 0}});
    expect_axes(axes_between_joints(structure, member), {{0, 1, 0}, {0, 0, 1}, {1, 0, 0}});
    member.end = -1;
    expect_axes(local_axes(structure, member), {});
    member.end = 2; // past the last joint
    expect_axes(axes_between_joints(structure, member), {});
}

TEST(LocalAxes, OfElements)
{
    const auto read = test::read_in_frame({"ELEMENT INCIDENCES", "21 6 7 3 2", "22 1 2 3", "23 1 2 99", "24 5 1 4"});
    ASSERT_EQ(read.structure.elements.size(), 6U);
    const auto axes = [&](std::size_t position) {
        return local_axes(read.structure, read.structure.elements[position]);
    };
    // 11 is a floor 2 3 7 6: from X to Z by the right hand is down.
    expect_axes(axes(0), {{0, 1, 0}, {1, 0, 0}, {0, 0, -1}});
    expect_axes(axes(2), {{0, 1, 0}, {-1, 0, 0}, {0, 0, 1}}); // the other way round: up
    // A triangle in the file's X-Y plane, 1 2 3: up, then along X: z is -Z, y is z x x = +X.
    expect_axes(axes(3), {{0, 0, 1}, {0, 1, 0}, {-1, 0, 0}});
    expect_axes(axes(4), {}); // a corner that is nowhere
    // 5 1 4: along -Z, then along X: by the right hand down; y = z x x = -Y x -Z = +X.
    expect_axes(axes(5), {{-1, 0, 0}, {0, 1, 0}, {0, 0, -1}});
    Structure::Element flat = read.structure.elements[3];
    flat.corners = {0, 1, 0, -1};
    expect_axes(local_axes(read.structure, flat), {}); // no area
}

} // namespace
} // namespace STAAD
