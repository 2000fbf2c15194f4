// The verb "info": storeys and extents.

#include "tool_run.h"

#include <gtest/gtest.h>

#include <vector>

namespace cli_test {
namespace {

struct storey_case {
    const char* why;
    std::vector<double> heights; ///< of the joints of one column line, m, from the ground
    const char* line;
};

const storey_case storeys[] = {
    {"one storey", {0, 3}, "storeys: 1 (3.00 m), base at 0.00 m"},
    {"millimetres where they matter", {0, 3.005, 6.01}, "storeys: 2 (2 x 3.005 m), base at 0.00 m"},
    {"levels that round to the same millimetre are one", {0, 3.0004, 3.0001}, "storeys: 1 (3.00 m), base at 0.00 m"},
    {"equal storeys are told together only side by side",
     {0, 4, 7, 11},
     "storeys: 3 (4.00 + 3.00 + 4.00 m), base at 0.00 m"},
    {"twelve terms are told",
     {0, 3, 7, 10, 14, 17, 21, 24, 28, 31, 35, 38, 42},
     "storeys: 12 (3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 m), "
     "base at 0.00 m"},
    {"more are not",
     {0, 3, 7, 10, 14, 17, 21, 24, 28, 31, 35, 38, 42, 45},
     "storeys: 13 (3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + 3.00 + 4.00 + ... m), "
     "base at 0.00 m"},
};

std::string column_deck(const std::vector<double>& heights)
{
    std::string joints;
    std::string members;
    for (std::size_t i = 0; i < heights.size(); ++i) {
        joints += std::to_string(i + 1) + " 0 " + std::to_string(heights[i]) + " 0\n";
        if (i > 0)
            members += std::to_string(i) + ' ' + std::to_string(i) + ' ' + std::to_string(i + 1) + '\n';
    }
    return "UNIT METER KN\nJOINT COORDINATES\n" + joints + "MEMBER INCIDENCES\n" + members + "FINISH\n";
}

TEST(InfoStoreys, AsAnEngineerSaysThem)
{
    const tool_run tool;
    for (const storey_case& each : storeys) {
        const tool_result result = tool({"info", tool.write("column.std", column_deck(each.heights))});
        EXPECT_TRUE(has_line(result.out, each.line)) << each.why << '\n' << result.out;
    }
}

TEST(InfoStoreys, NoneWithoutUprightOrLevelMembers)
{
    const tool_run tool;
    const std::string sloping = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 1 1 0\nMEMBER INCIDENCES\n1 1 2\nEND\n";
    EXPECT_TRUE(contains(tool({"info", tool.write("a.std", sloping)}).out, "\nstoreys: none"));
    // A member whose end is no joint has no height.
    const std::string loose = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0\nMEMBER INCIDENCES\n1 1 2\nEND\n";
    EXPECT_TRUE(contains(tool({"info", tool.write("b.std", loose)}).out, "\nstoreys: none"));
}

TEST(InfoStoreys, PlacesPastTheLargestNumberAreNotFinite)
{
    const tool_run tool;
    // Past the largest double once it is in mm.
    const std::string path = tool.write(
        "far.std", "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 1e308 0\nMEMBER INCIDENCES\n1 1 2\nFINISH\n");
    const std::string report = tool({"info", path}).out;
    EXPECT_TRUE(has_line(report, "extents: not finite")) << report;
    EXPECT_TRUE(has_line(report, "storeys: not finite")) << report;
}

} // namespace
} // namespace cli_test
