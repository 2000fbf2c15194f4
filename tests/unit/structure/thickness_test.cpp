/// Thickness of elements and surfaces.

#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using corners = std::array<double, 4>;

struct thickness_row {
    const char* form;
    std::vector<std::string> lines;
    corners quadrilateral; // element 11
    corners triangle;      // element 12
    const char* warnings;
    const char* why;
};

const thickness_row thickness_rows[] = {
    {"thickness", {"11 THICKNESS 0.2"}, {200, 200, 200, 200}, {}, "", "one for all corners"},
    {"thickness", {"11 12 th .25"}, {250, 250, 250, 250}, {250, 250, 250, 0}, "", "a triangle has three corners"},
    {"thickness", {"ALL THICK 1", "12 THICK 2"}, {1000, 1000, 1000, 1000}, {2000, 2000, 2000, 0}, "", "the later"},
    {"thickness", {"UNIT MMS", "11 THICKNESS 12.5"}, {12.5, 12.5, 12.5, 12.5}, {}, "", "the unit in force, real"},
    {"thickness", {"11 THICKNESS"}, {}, {}, "line-unread", "no number"},
    {"thickness", {"11 STIFF 1"}, {}, {}, "line-unread", "another word"},
    {"thickness", {"11 THICKNESS 1 RIGID"}, {1000, 1000, 1000, 1000}, {}, "line-unread", "words left over"},
    {"thickness", {"1 THICKNESS 1"}, {}, {}, "element-unknown", "member 1 is no element"},
    {"thickness-by-corner", {"11 THICKNESS 1 2 3 4"}, {1000, 2000, 3000, 4000}, {}, "", "in the order of corners"},
    {"thickness-by-corner", {"12 THICKNESS 1 2 3"}, {}, {1000, 2000, 3000, 0}, "", "three corners"},
    {"thickness-by-corner", {"11 THICKNESS 1 2 3"}, {1000, 2000, 3000, 1000}, {}, "item-short", "one corner is left"},
    {"thickness-by-corner", {"12 THICKNESS 1 2 3 4"}, {}, {1000, 2000, 3000, 0}, "item-short", "one number too many"},
    {"thickness-by-corner", {"11 THICKNESS 1 2"}, {}, {}, "line-unread", "two numbers"},
    {"thickness-by-corner", {"11 THICKNESS 1 2 3 4 5"}, {1000, 2000, 3000, 4000}, {}, "line-unread", "five numbers"},
};

TEST(Thickness, OfElements)
{
    for (const thickness_row& row : thickness_rows) {
        SCOPED_TRACE(row.lines.back() + ": " + row.why);
        std::vector<std::string> lines{"ELEMENT PROPERTY"};
        lines.insert(lines.end(), row.lines.begin(), row.lines.end());
        const auto read = test::read_in_frame(lines);
        ASSERT_EQ(read.structure.elements.size(), 2U);
        EXPECT_EQ(read.structure.elements[0].thickness, row.quadrilateral);
        EXPECT_EQ(read.structure.elements[1].thickness, row.triangle);
        EXPECT_EQ(test::warnings(read.report), row.warnings);
    }
}

struct surface_row {
    const char* form;
    std::vector<std::string> lines;
    std::vector<double> thickness;
    const char* warnings;
};

const surface_row surface_rows[] = {
    {"surface", {"1 THICKNESS 0.3", "2 TO 3 THICKNESS 0.25"}, {300, 250, 250}, ""},
    {"surface", {"ALL THICKNESS 0.3", "1 THICKNESS 0.2"}, {200, 300, 300}, ""},
    {"surface", {"1 9 THICKNESS 0.3"}, {300, 0, 0}, "element-unknown"},
    {"surface", {"1 THICKNESS 0.3 0.2 0.1"}, {0, 0, 0}, "line-unread"}, // a surface has one thickness
};

TEST(Thickness, OfSurfaces)
{
    for (const surface_row& row : surface_rows) {
        SCOPED_TRACE(row.lines.back());
        std::vector<std::string> lines{"SURFACE INCIDENCE", "1 2 6 5 SURFACE 1; 1 2 3 4 SURFACE 2; 5 6 7 8 SUR 3",
                                       "SURFACE PROPERTY"};
        lines.insert(lines.end(), row.lines.begin(), row.lines.end());
        const auto read = test::read_in_frame(lines);
        std::vector<double> thickness;
        for (const Structure::Surface& surface : read.structure.surfaces)
            thickness.push_back(surface.thickness);
        EXPECT_EQ(thickness, row.thickness);
        EXPECT_EQ(test::warnings(read.report), row.warnings);
    }
}

} // namespace
} // namespace STAAD
