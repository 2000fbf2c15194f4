/// Columns, braces, horizontal braces and everything else.

#include "tests/support/placed_models.h"
#include "tests/support/sd_reader_access.h"

#include <gtest/gtest.h>

#include <climits>

namespace STAAD {
namespace {

using access = detail::sd_reader_access;

using placed::point;

/// Member 10 between two joints, joints 7 and 8 of the file.
SdReader model_of(const point& start, const point& end, bool brace)
{
    SdReader model;
    model.nodes = {placed::joint(7, start), placed::joint(8, end)};
    model.beams = {placed::member(10, 1, 2)};
    if (brace)
        model.brace_ids = {10};
    return model;
}

struct geometry_row {
    const char* why;
    point start;
    point end;
    bool column;         // IsColumn
    bool level;          // IsHBrace, once it is a brace
    BeamType plain_type; // of a member that is no brace
    BeamType brace_type; // of one that is
};

const geometry_row geometries[] = {
    {"a column", {0, 0, 0}, {0, 0, 3000}, true, false, Column, Brace},
    {"a column a little out of plumb", {0, 0, 0}, {0.05, -0.09, 3000}, true, false, Column, Brace},
    {"0.1 mm along x is too much", {0, 0, 0}, {0.1, 0, 3000}, false, false, Beam, Brace},
    {"0.1 mm along y, too", {0, 0, 0}, {0, -0.1, 3000}, false, false, Beam, Brace},
    {"just below", {0, 0, 0}, {0.0999, 0.0999, 3000}, true, false, Column, Brace},
    {"one axis is not enough", {0, 0, 0}, {0, 5000, 3000}, false, false, Beam, Brace},
    {"a beam", {0, 0, 3000}, {6000, 0, 3000}, false, true, Beam, HorizontalBrace},
    {"nearly level", {0, 0, 3000}, {6000, 0, 3000.005}, false, true, Beam, HorizontalBrace},
    {"0.01 mm is too much", {0, 0, 0}, {6000, 0, 0.01}, false, false, Beam, Brace},
    {"level to ten times the tolerance of a column is not level",
     {0, 0, 0},
     {6000, 0, 0.05},
     false,
     false,
     Beam,
     Brace},
    {"no length counts as column", {1, 2, 3}, {1, 2, 3}, true, true, Column, HorizontalBrace},
};

TEST(BeamKind, FollowsGeometryAndDeclaration)
{
    for (const geometry_row& c : geometries) {
        SCOPED_TRACE(c.why);
        const SdReader plain = model_of(c.start, c.end, false);
        EXPECT_EQ(access::IsColumn(plain, plain.beams[0]), c.column);
        EXPECT_FALSE(access::IsBrace(plain, plain.beams[0]));
        EXPECT_FALSE(access::IsHBrace(plain, plain.beams[0])) << "only a brace is a horizontal brace";
        EXPECT_EQ(plain.GetBeamType(plain.beams[0]), c.plain_type);

        const SdReader brace = model_of(c.start, c.end, true);
        EXPECT_EQ(access::IsColumn(brace, brace.beams[0]), c.column) << "a declaration does not change geometry";
        EXPECT_TRUE(access::IsBrace(brace, brace.beams[0]));
        EXPECT_EQ(access::IsHBrace(brace, brace.beams[0]), c.level);
        EXPECT_EQ(brace.GetBeamType(brace.beams[0]), c.brace_type);
    }
}

TEST(BeamKind, LooksJointsUpByPositionAndBracesByNumber)
{
    SdReader model = model_of({0, 0, 0}, {0, 0, 3000}, false);
    model.nodes[0].id = 2; // numbers that point at one another's positions
    model.nodes[1].id = 1;
    model.nodes.resize(3);
    model.nodes[2].x = 6000;
    SdBeam elsewhere = placed::member(99, 1, 3); // need not stand in the model
    EXPECT_EQ(model.GetBeamType(elsewhere), Beam);
    elsewhere.node_end = 2;
    EXPECT_EQ(model.GetBeamType(elsewhere), Column);
    model.brace_ids = {1, 2, 98, 100};
    EXPECT_EQ(model.GetBeamType(elsewhere), Column);
    model.brace_ids.insert(99);
    EXPECT_EQ(model.GetBeamType(elsewhere), Brace);
    elsewhere.node_end = 3;
    EXPECT_EQ(model.GetBeamType(elsewhere), HorizontalBrace);
}

TEST(BeamKind, KnowsNoGeometryOfUnknownJoints)
{
    struct row {
        const char* why;
        int start;
        int end;
    };
    const row rows[] = {
        {"no start", 0, 2},
        {"no end", 1, 0},
        {"neither", 0, 0},
        {"start past the list", 3, 2},
        {"end past the list", 1, 3},
        {"a negative position", -1, 2},
        {"both far outside", INT_MIN, INT_MAX},
    };
    for (const row& c : rows) {
        SCOPED_TRACE(c.why);
        SdReader model = model_of({0, 0, 0}, {0, 0, 0}, false);
        SdBeam& member = model.beams[0];
        member.node_start = c.start;
        member.node_end = c.end;
        EXPECT_FALSE(access::IsColumn(model, member));
        EXPECT_EQ(model.GetBeamType(member), Beam);
        model.brace_ids = {10};
        EXPECT_FALSE(access::IsHBrace(model, member));
        EXPECT_EQ(model.GetBeamType(member), Brace);
    }
    EXPECT_EQ(SdReader().GetBeamType(SdBeam()), Beam) << "an empty model";
}

} // namespace
} // namespace STAAD
