/// Which material and which angle members have: MATERIAL, constants by value, BETA.

#include "staad/structure/assignments.h"
#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// "S", built in "S!", nameless "(E=200 DENSITY=7.8e-08 STEEL)"; "-": none.
std::string shown_material_at(const Structure& structure, int position)
{
    if (position < 0)
        return "-";
    const Structure::Material& material = structure.materials.at(static_cast<std::size_t>(position));
    if (!material.name.empty())
        return material.name + (material.is_built_in ? "!" : "");
    std::string shown;
    const auto add = [&shown](const char* name, const std::optional<double>& value) {
        char text[64];
        std::snprintf(text, sizeof text, "%s%s=%.6g", shown.empty() ? "" : " ", name, value.value_or(0));
        shown += value ? text : "";
    };
    add("E", material.e);
    add("G", material.g);
    add("POISSON", material.poisson);
    add("DENSITY", material.density);
    add("ALPHA", material.alpha);
    add("DAMP", material.damping);
    return "(" + shown + (material.type.empty() ? ")" : " " + material.type + ")");
}

/// "1 2:S 11:C": members and elements that have a material.
std::string shown_users(const Structure& structure)
{
    std::string shown;
    const auto add = [&](const auto& records) {
        for (std::size_t i = 0; i < records.size(); ++i) {
            if (records[i].material < 0)
                continue;
            shown += (shown.empty() ? "" : " ") + std::to_string(records[i].number);
            if (i + 1 == records.size() || records[i + 1].material != records[i].material)
                shown += ":" + shown_material_at(structure, records[i].material);
        }
    };
    add(structure.members);
    add(structure.elements);
    add(structure.solids);
    add(structure.surfaces);
    return shown;
}

TEST(ReadConstants, GiveMaterials)
{
    const struct {
        const char* form;
        std::vector<std::string> lines; ///< after S, of E 200, DENSITY 7.8e-8, STEEL, and CON, of E 30, in mm and kN
        const char* users;
        std::size_t added; ///< materials beside S and CON
        const char* findings;
        const char* why;
    } cases[] = {
        {"constants", {"CONSTANTS", "MEMBER PROPERTY", "1 PRIS YD 9"}, "", 0, "", "a head without lines"},
        {"constants", {"MATERIAL S MEMB 1"}, "1:S", 0, "", "lines without a head"},
        {"material-all",
         {"ELEMENT INCIDENCES SOLID", "31 1 2 3 4 5 6 7 8", "SURFACE INCIDENCE", "1 2 3 4 SURFACE 41", "CONSTANTS",
          "MATERIAL CON ALL"},
         "1 2 3 4 5 6:CON 11 12:CON 31:CON 41:CON",
         0,
         "",
         "members, elements, solids, surfaces"},
        {"material-all", {"mate con all"}, "1 2 3 4 5 6:CON 11 12:CON", 0, "", "any case"},
        {"material-list", {"MATERIAL S MEMB 1 2 TO 4 12"}, "1 2 3 4:S 12:S", 0, "", "members and elements share it"},
        {"material-list",
         {"MATERIAL S 1 TO 3", "MATERIAL CON 2", "MATERIAL S MEMB 12 99"},
         "1:S 2:CON 3:S 12:S",
         0,
         "member-unknown",
         "the later counts; no record 99"},
        {"material-list",
         {"START GROUP DEFINITION", "ELEMENT", "_SLAB 11 12", "END GROUP DEFINITION", "MATERIAL CON MEMB _SLAB"},
         "11 12:CON",
         0,
         "",
         "a group of elements"},
        {"material-list",
         {"MATERIAL STEEL ALL", "MATERIAL CON MEMB 2 TO 6 11 12"},
         "1:STEEL! 2 3 4 5 6:CON 11 12:CON",
         1,
         "",
         "the analysis program's own"},
        {"material-list",
         {"MATERIAL MY-STEEL MEMB 2", "MATERIAL my-steel 3"},
         "2 3:MY-STEEL",
         1,
         "material-unknown material-unknown",
         "a hyphen is part of the name; one that is not defined is there by name"},
        {"material-list",
         {"MATERIAL S", "MATERIAL S MEMB 1 FOO"},
         "1:S",
         0,
         "line-unread line-unread",
         "no list; a word after it"},
        {"nameless-constants",
         {"E 100 ALL", "DENSITY 2e-8 MEMB 1 TO 5", "POIS 0.3 MEMB 5 6", "E 100 MEMB 1"},
         "1 2 3 4:(E=100 DENSITY=2e-08) 5:(E=100 POISSON=0.3 DENSITY=2e-08) 6:(E=100 POISSON=0.3) 11 12:(E=100)",
         4,
         "",
         "one material for each set of values, whichever line gives them"},
        {"nameless-constants",
         {"UNIT METER KN", "E 2e8 MEMB 1", "UNIT MMS", "E 200 MEMB 2", "G 80 MEMB 1", "ALPHA 1e-5 MEMB 1",
          "CDAMP 0.05 MEMB 1"},
         "1:(E=200 G=80 ALPHA=1e-05 DAMP=0.05) 2:(E=200)",
         2,
         "",
         "values in the units in force"},
        {"nameless-constants",
         {"E 100 ALL", "MATERIAL S MEMB 1 TO 6", "E 150 MEMB 2 3", "MATERIAL S MEMB 3"},
         "1:S 2:(E=150 DENSITY=7.8e-08 STEEL) 3 4 5 6:S 11 12:(E=100)",
         2,
         "",
         "MATERIAL replaces constants before it; one after it changes the material"},
        {"nameless-constants",
         {"E STEEL MEMB 1", "DENSITY STEEL MEMB 1", "E S MEMB 2", "POISSON S MEMB 3", "E FOO MEMB 3"},
         "1:STEEL! 2:(E=200)",
         2,
         "line-unread material-unknown",
         "the program's steel is known by name alone; S has an E but no ratio"},
        {"nameless-constants",
         {"E 100 ALL", "DENSITY STEEL ALL", "MATERIAL CONCRETE MEMB 6", "E 50 MEMB 6"},
         "1 2 3 4 5:(E=100) 6:(E=50) 11 12:(E=100)",
         4,
         "form-kept form-kept",
         "what only the program knows is reported, once a line"},
        {"nameless-constants", {"E 100", "E MEMB 1"}, "", 0, "line-unread material-unknown", "no list; no value"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.form) + ": " + each.why);
        std::vector<std::string> lines = {"UNIT MMS KN",        "DEFINE MATERIAL START",
                                          "ISOTROPIC S",        "E 200",
                                          "DENSITY 7.8e-8",     "TYPE STEEL",
                                          "ISOTROPIC CON",      "E 30",
                                          "END DEFINE MATERIAL"};
        lines.insert(lines.end(), each.lines.begin(), each.lines.end());
        const test::deck_reading read = test::read_in_frame(lines);
        EXPECT_EQ(shown_users(read.structure), each.users);
        EXPECT_EQ(read.structure.materials.size(), 2 + each.added);
        EXPECT_EQ(test::warnings(read.report), each.findings);
    }
}

TEST(ReadConstants, NameTheLineThatCountsLast)
{
    const auto read = test::read_in_frame({"MATERIAL STEEL ALL", "E 100 MEMB 2", "BETA 30 MEMB 2"});
    const auto line = [&read](Structure::Source source) { return test::case_line(read.structure, source); };
    EXPECT_EQ(line(read.structure.members.at(0).material_source), 1U);
    EXPECT_EQ(line(read.structure.members.at(1).material_source), 2U);
    EXPECT_EQ(line(read.structure.members.at(1).beta_source), 3U);
    EXPECT_EQ(line(read.structure.members.at(0).beta_source), 0U);
}

TEST(ReadBeta, OfMembers)
{
    const struct {
        const char* form;
        std::vector<std::string> lines;
        std::vector<double> angles;
        std::size_t kept;
        const char* findings;
        const char* why;
    } cases[] = {
        {"beta", {"BETA 90 MEMB 1 3"}, {90, 0, 90, 0, 0, 0}, 0, "", "degrees"},
        {"beta",
         {"BETA 180.5 ALL", "beta -30 2 TO 4"},
         {180.5, -30, -30, -30, 180.5, 180.5},
         0,
         "",
         "the later counts"},
        {"beta", {"BETA ANGLE MEMB 1", "BETA REFJT 5 MEMB 2"}, {0, 0, 0, 0, 0, 0}, 2, "form-kept form-kept", "as text"},
        {"beta", {"BETA 90", "BETA 90 MEMB 1 X"}, {90, 0, 0, 0, 0, 0}, 0, "line-unread line-unread", "no list; a word"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.form) + ": " + each.why);
        const test::deck_reading read = test::read_in_frame(each.lines);
        std::vector<double> angles;
        for (const Structure::Member& member : read.structure.members)
            angles.push_back(member.beta);
        EXPECT_EQ(angles, each.angles);
        EXPECT_EQ(test::warnings(read.report), each.findings);
        ASSERT_EQ(read.structure.kept.size(), each.kept);
        if (each.kept > 0) {
            EXPECT_EQ(read.structure.kept[1].command, "BETA");
            EXPECT_EQ(read.structure.kept[1].text, "BETA REFJT 5 MEMB 2\n");
            EXPECT_EQ(read.structure.kept[1].length_unit, "METER");
        }
    }
}

TEST(LineAssignments, WriteEachRecordOnce)
{
    detail::line_assignments<int> lines;
    for (int line = 0; line < 1000; ++line)
        lines.add({{0, 99}}, line, static_cast<Structure::Source>(line + 1));
    lines.add({{10, 19}, {15, 15}, {98, 120}}, 5000, 5001);
    std::vector<int> given(100, -1);
    std::size_t writes = 0;
    lines.hand_out(given.size(), [&](std::size_t at, int value, Structure::Source source) {
        given.at(at) = value;
        EXPECT_EQ(source, static_cast<Structure::Source>(value + 1));
        ++writes;
    });
    EXPECT_EQ(writes, 100U);
    for (std::size_t i = 0; i < given.size(); ++i)
        EXPECT_EQ(given[i], (i >= 10 && i < 20) || i >= 98 ? 5000 : 999) << i;
}

} // namespace
} // namespace STAAD
