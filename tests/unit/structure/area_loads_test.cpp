#include "tests/unit/structure/described_loads.h"

#include <gtest/gtest.h>

// A box is [x|y|z] of the model, mm: the file's Y range is the model's z range.

namespace STAAD::test {

TEST(area_loads, each_form_gives_its_load)
{
    const std::vector<std::string> groups = {"START GROUP DEFINITION", "FLOOR", "_SLAB 2 4 5", "END GROUP DEFINITION"};
    const auto with_groups = [&](std::vector<std::string> lines) {
        lines.insert(lines.begin(), groups.begin(), groups.end());
        return lines;
    };
    check_loads({
        {"floor-load",
         {"LOAD 1", "FLOOR LOAD", "YRANGE 0 3 FLOAD -5"},
         "floor GZ [-inf inf|-inf inf|0 3000]: -5e-06",
         "",
         "downwards by its sign: without a direction along the axis that is up"},
        {"floor-load",
         {"LOAD 1", "FLOOR LOAD", "YRANGE 0 3 FLOAD -5 XRANGE 0 4  ZRANGE 0 5 GX"},
         "floor GY [0 5000|0 4000|0 3000]: -5e-06",
         "",
         "ranges on both sides of the pressure, a direction at the end"},
        {"floor-load",
         {"LOAD 1", "FLOOR LOAD", "ZR 0 3 FLOAD -5 GZ"},
         "floor GZ [-inf inf|-inf inf|0 3000]: -5e-06",
         "",
         "Z up",
         "SET Z UP"},
        {"floor-load", {"LOAD 1", "FLOOR LOAD", "1 TO 3 FLOAD -5"}, "floor GZ on 0-2: -5e-06", "", "members"},
        {"floor-load", {"LOAD 1", "FLOOR LOAD", "YRANGE 0 3 FLOAD"}, "", "line-unread", "no pressure"},
        {"floor-load", {"LOAD 1", "FLOOR LOAD", "YRANGE 0 3 ONE -5"}, "", "line-unread", "a word of another command"},
        {"floor-load",
         {"LOAD 1", "FLOOR LOAD", "YRANGE 0 3 FLOAD -5 GY NOW"},
         "floor GZ [-inf inf|-inf inf|0 3000]: -5e-06",
         "line-unread",
         "a word too many"},
        {"group-floor-load", with_groups({"LOAD 1", "FLOOR LOAD", "_SLAB FLOAD -5 GY"}), "floor GZ group 0: -5e-06", "",
         "the floor of the group"},
        {"group-floor-load", with_groups({"LOAD 1", "FLOOR LOAD", "_SLAB 1 FLOAD -5 GY"}),
         "floor GZ on 1,3-4,0: -5e-06", "", "among numbers the members of the group"},
        {"group-floor-load",
         {"LOAD 1", "FLOOR LOAD", "_NONE FLOAD -5 GY"},
         "",
         "group-unknown list-no-record",
         "no such group"},
        {"one-way-load",
         {"LOAD 1", "ONEWAY LOAD", "YRANGE 0 3 ONE -5 GY TOWARDS X"},
         "one-way GZ along X [-inf inf|-inf inf|0 3000]: -5e-06",
         "",
         "along an axis"},
        {"one-way-load",
         {"LOAD 1", "ONEWAY LOAD", "YR 0 3 ONELOAD -5 TOWARDS 2"},
         "one-way GZ to 1 [-inf inf|-inf inf|0 3000]: -5e-06",
         "",
         "to a member"},
        {"one-way-load",
         {"LOAD 1", "ONEWAY LOAD", "YR 0 3 ONE -5 TOWARDS 99"},
         "one-way GZ [-inf inf|-inf inf|0 3000]: -5e-06",
         "member-unknown",
         "to no member"},
        {"one-way-load",
         {"LOAD 1", "AREA LOAD", "2 4 TO 6 ALOAD -5"},
         "area GZ on 1,3-5: -5e-06",
         "",
         "area loads are alike"},
    });
}

} // namespace STAAD::test
