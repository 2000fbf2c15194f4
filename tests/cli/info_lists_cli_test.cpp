// The verb "info": groups, supports, sections and tables whose rows are easily told wrong.

#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace cli_test {
namespace {

using nlohmann::json;

/// What "info" prints of a small deck with `more_lines`, for people and for programs.
struct reports {
    std::string text;
    json all;
};

reports info_of(const tool_run& tool, const std::string& more_lines)
{
    const std::string path = tool.write("deck.std", small_deck(more_lines));
    return {tool({"info", path}).out, json::parse(tool({"info", "--json", path}).out)};
}

TEST(InfoLists, GroupsCountWhatTheModelHas)
{
    const tool_run tool;
    // A floor group numbers elements: the members it lists are none.
    const reports info = info_of(tool, "ELEMENT INCIDENCES SHELL\n8 1 2 1\n"
                                       "START GROUP DEFINITION\n"
                                       "FLOOR\n_F 1 8 TO 11 8\n_G 1\n"
                                       "MEMBER\n_M 1 1 2 2\n"
                                       "JOINT\n_J 1 2 2\n"
                                       "END GROUP DEFINITION\n");
    EXPECT_TRUE(has_line(info.text, "  _F  FLOOR   1 element   and 4 numbers without an element")) << info.text;
    EXPECT_TRUE(has_line(info.text, "  _G  FLOOR   0 elements  and 1 number without an element")) << info.text;
    EXPECT_TRUE(has_line(info.text, "  _M  MEMBER  1 member    and 1 number without a member")) << info.text;
    EXPECT_TRUE(has_line(info.text, "  _J  JOINT   2 joints")) << info.text;
    EXPECT_EQ(info.all["groups"], json::parse(R"([
        {"name": "_F", "kind": "FLOOR", "elements": 1, "unknown_numbers": 4},
        {"name": "_G", "kind": "FLOOR", "elements": 0, "unknown_numbers": 1},
        {"name": "_M", "kind": "MEMBER", "members": 1, "unknown_numbers": 1},
        {"name": "_J", "kind": "JOINT", "joints": 2, "unknown_numbers": 0}])"));
}

TEST(InfoLists, UnknownNumbersOfSupportsCountOnce)
{
    const tool_run tool;
    const json supports = info_of(tool, "SUPPORTS\n1 400 400 401 FIXED\n").all["supports"];
    EXPECT_EQ(supports, json::parse(R"([{"description": "FIXED", "joints": 1, "unknown_numbers": 2}])"));
}

std::string two_member_deck(const std::string& properties)
{
    return "STAAD SPACE\nUNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0; 3 4 3 0;\n"
           "MEMBER INCIDENCES\n1 1 2; 2 2 3;\nMEMBER PROPERTY AMERICAN\n" +
           properties + "FINISH\n";
}

struct same_text_case {
    const char* why;
    const char* properties;
    const char* with;    ///< the row of the member whose numbers are lengths
    const char* without; ///< the row of the other one
};

const same_text_case same_texts[] = {
    {"an area and an inertia are no lengths, in whatever order they come",
     "1 PRIS YD 0.5 ZD 0.3\n2 PRIS AX 0.5 IZ 0.3\n", "  AMERICAN  PRIS500X300  1 member  500 x 300 mm",
     "  AMERICAN  PRIS500X300  1 member"},
    {"the same with the area first", "1 PRIS AX 0.5 IZ 0.3\n2 PRIS YD 0.5 ZD 0.3\n",
     "  AMERICAN  PRIS500X300  1 member  500 x 300 mm", "  AMERICAN  PRIS500X300  1 member"},
    {"what a catalogue calls a pipe is not known in mm", "1 TABLE ST PIPE OD 0.2 ID 0.18\n2 TABLE ST PIP200X10\n",
     "  AMERICAN  TABLE ST PIP200X10  1 member  200 x 10 mm", "  AMERICAN  TABLE ST PIP200X10  1 member"},
    {"the same for a name of one number", "1 TABLE ST PIPE OD 0.2 ID 0.18\n2 TABLE ST PIPX40\n",
     "  AMERICAN  TABLE ST PIP200X10  1 member  200 x 10 mm", "  AMERICAN  TABLE ST PIPX40     1 member"},
};

TEST(InfoLists, DimensionsAreOfTheMembersOfTheirRow)
{
    const tool_run tool;
    for (const same_text_case& each : same_texts) {
        const std::string text = tool({"info", tool.write("deck.std", two_member_deck(each.properties))}).out;
        EXPECT_TRUE(has_line(text, "sections: 2")) << each.why << '\n' << text;
        EXPECT_TRUE(has_line(text, each.with)) << each.why << '\n' << text;
        EXPECT_TRUE(has_line(text, each.without)) << each.why << '\n' << text;
    }
}

TEST(InfoLists, TablesOfAreasHaveNoDimensions)
{
    const tool_run tool;
    for (const std::string family : {"GENERAL", "PRISMATIC"}) {
        // The second row goes on over a line of a single number.
        const reports info =
            info_of(tool, "START USER TABLE\nTABLE 1\nUNIT METER KN\n" + family +
                              "\nG1\n0.01 0.2 0.3\nG2\n0.02 0.2 0.3 0.00002\n0.0001\n0.004 0.003\nEND\n"
                              "MEMBER PROPERTY AMERICAN\n1 UPTABLE 1 G1\n");
        const json section = info.all["sections"][0];
        EXPECT_TRUE(section["dimensions_mm"].empty()) << section;
        EXPECT_EQ(section["trouble"], "") << section;
        EXPECT_FALSE(contains(info.text, " mm\n")) << info.text;
        EXPECT_EQ(info.all["user_tables"][0]["rows"], 2) << family;
    }
}

TEST(InfoLists, RowsWithDimensionsBetweenXAreRows)
{
    const tool_run tool;
    const reports info = info_of(tool, "START USER TABLE\nTABLE 1\nUNIT METER KN\nTUBE\nB1\n0.1X0.2X0.006\nEND\n"
                                       "MEMBER PROPERTY AMERICAN\n1 UPTABLE 1 B1\n");
    EXPECT_EQ(info.all["user_tables"][0]["rows"], 1);
    EXPECT_TRUE(has_line(info.text, "  AMERICAN  UPTABLE 1 B1  1 member  tube 100 x 200 x 6 mm")) << info.text;
}

} // namespace
} // namespace cli_test
