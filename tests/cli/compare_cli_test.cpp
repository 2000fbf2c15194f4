// The verb "compare": what is the same in two models, and what is not.

#include "compared_decks.h"
#include "tool_run.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace cli_test {
namespace {

using nlohmann::json;

/// Two decks, to be compared.
struct comparison {
    comparison(std::string_view now, std::string_view earlier)
    {
        tool.write("new.std", now);
        tool.write("old.std", earlier);
    }

    tool_result text() const { return tool("compare new.std old.std"); }

    json report(int exit_code) const
    {
        const tool_result result = tool("compare --json new.std old.std");
        EXPECT_EQ(result.exit_code, exit_code) << result.err;
        return json::parse(result.out);
    }

    const tool_run tool;
};

json counts(int in_new, int in_old, int matched, int renumbered)
{
    return {{"in_new", in_new},       {"in_old", in_old},     {"matched", matched},   {"renumbered", renumbered},
            {"moved", json::array()}, {"new", json::array()}, {"gone", json::array()}};
}

json with(json object, const char* key, json value)
{
    object[key] = std::move(value);
    return object;
}

TEST(Compare, ModelsThatDoNotDiffer)
{
    const comparison models(frame_deck(), frame_deck());
    const tool_result result = models.text();
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_EQ(result.out, "NEW: new.std\nOLD: old.std\n"
                          "no difference in what is compared\n"
                          "compared: joints, members, elements, surfaces, sections\n"
                          "not compared: supports, releases, groups, materials, thicknesses, offsets, beta angles, "
                          "member kinds, user tables, loads, units\n"
                          "            in NEW  in OLD  matched  renumbered  resectioned  moved  new  gone\n"
                          "  joints         4       4        4           0            -      0    0     0\n"
                          "  members        3       3        3           0            0      0    0     0\n"
                          "  elements       1       1        1           0            -      0    0     0\n"
                          "  surfaces       0       0        0           0            -      0    0     0\n"
                          "groups to take over: none\n"
                          "supports to take over: none\n"
                          "releases to take over: none\n"
                          "replaced in NEW: nothing\n");
    const json report = models.report(0);
    EXPECT_EQ(report["differ"], false);
    EXPECT_EQ(report["compared"], json({"joints", "members", "elements", "surfaces", "sections"}));
    EXPECT_EQ(report["not_compared"].size(), 11U);
    EXPECT_EQ(report["tolerance_mm"], 0.1);
    EXPECT_EQ(report["new"]["file"], "new.std");
    EXPECT_EQ(report["old"]["file"], "old.std");
    EXPECT_EQ(report["old"]["was_read"], true);
    EXPECT_EQ(report["old"]["findings"][0]["code"], "skipped");
}

TEST(Compare, OtherNumbersAndAnotherOrderAreNoDifference)
{
    // The earlier joints backwards from 40 on, members with other numbers, two of them the other way round.
    frame_parts earlier;
    earlier.joints = "40 6 4 0; 30 0 4 0; 20 6 0 0; 10 0 0 0;\n";
    earlier.members = "7 40 30; 8 40 20; 1 10 30;\n";
    earlier.elements = "21 10 20 40 30;\n";
    earlier.sections = "1 8 PRIS YD 0.4 ZD 0.4\n7 PRIS YD 0.5 ZD 0.3\n";
    const json report = comparison(frame_deck(), frame_deck(earlier)).report(0);
    EXPECT_EQ(report["joints"], counts(4, 4, 4, 4));
    EXPECT_EQ(report["members"], counts(3, 3, 3, 2)); // only member 1 kept its number
    EXPECT_EQ(report["elements"], counts(1, 1, 1, 1));
    EXPECT_EQ(report["surfaces"], counts(0, 0, 0, 0));
    EXPECT_EQ(report["resectioned"], json::array());
}

TEST(Compare, MovedJointsTakeTheirMembersAndElementsAlong)
{
    frame_parts parts;
    parts.joints = "1 0 0 0; 2 6 0 0; 3 0 4 0; 4 6 4.25 0.5;\n";
    const comparison models(frame_deck(parts), frame_deck());
    const tool_result result = models.text();
    EXPECT_EQ(result.exit_code, 1) << result.err;
    EXPECT_TRUE(contains(result.out, "the models differ\ncompared: ")) << result.out;
    EXPECT_TRUE(contains(result.out,
                         "  joints         4       4        3           0            -      1    0     0\n"
                         "  members        3       3        1           0            0      2    0     0\n"))
        << result.out;
    EXPECT_TRUE(contains(result.out, "  moved  1 joint    4\n"
                                     "                    by up to 500 mm along an axis\n"
                                     "  moved  2 members  2 TO 3\n"
                                     "  moved  1 element  11\n"))
        << result.out;
    const json report = models.report(1);
    EXPECT_EQ(report["differ"], true);
    EXPECT_EQ(report["joints"], with(counts(4, 4, 3, 0), "moved", {4}));
    EXPECT_EQ(report["members"], with(counts(3, 3, 1, 0), "moved", {2, 3}));
    EXPECT_EQ(report["elements"], with(counts(1, 1, 0, 0), "moved", {11}));
    EXPECT_EQ(report["moved_joints"], json::parse(R"([
        {"number": 4, "old_file_xyz_mm": [6000, 4000, 0], "new_file_xyz_mm": [6000, 4250, 500]}])"));
}

TEST(Compare, NewAndGone)
{
    frame_parts now;
    now.joints = "1 0 0 0; 2 6 0 0; 3 0 4 0; 4 6 4 0; 9 12 4 0;\n";
    now.members = "1 1 3; 3 3 4; 8 4 9;\n";
    now.elements = "";
    frame_parts earlier;
    earlier.joints = "1 0 0 0; 2 6 0 0; 3 0 4 0; 4 6 4 0; 5 -3 4 0;\n";
    const comparison models(frame_deck(now), frame_deck(earlier));
    const json report = models.report(1);
    EXPECT_EQ(report["joints"], with(with(counts(5, 5, 4, 0), "new", {9}), "gone", {5}));
    EXPECT_EQ(report["members"], with(with(counts(3, 3, 2, 0), "new", {8}), "gone", {2}));
    EXPECT_EQ(report["elements"], with(counts(0, 1, 0, 0), "gone", {11}));
    const std::string text = models.text().out;
    EXPECT_TRUE(contains(text, "  new   1 joint    9\n"
                               "  new   1 member   8\n"
                               "  gone  1 joint    5\n"
                               "  gone  1 member   2\n"
                               "  gone  1 element  11\n"))
        << text;
}

TEST(Compare, SurfacesAreCountedApart)
{
    const std::string surface = "SURFACE INCIDENCE\n1 2 4 3 SUR 11\n";
    frame_parts now;
    now.elements = "11 1 2 4 3;\n" + surface;
    frame_parts earlier;
    earlier.elements = "11 1 2 4 3;\n";
    // Surface 11 lies where element 11 does, and is a shell more than there was.
    const json report = comparison(frame_deck(now), frame_deck(earlier)).report(1);
    EXPECT_EQ(report["elements"], counts(1, 1, 1, 0));
    EXPECT_EQ(report["surfaces"], with(counts(1, 0, 0, 0), "new", {11}));
    EXPECT_EQ(comparison(frame_deck(now), frame_deck(now)).report(0)["surfaces"], counts(1, 1, 1, 0));
    now.elements = surface;
    EXPECT_EQ(comparison(frame_deck(now), frame_deck(earlier)).report(0)["surfaces"], counts(1, 0, 1, 1))
        << "surface 11 in the place of element 11 has a new number: surfaces have numbers of their own";
}

TEST(Compare, ResectionedMembersByTheirTexts)
{
    frame_parts now;
    now.sections = "1 2 PRIS YD 0.45 ZD 0.4\n3 PRIS YD 0.5 ZD 0.3\n";
    const comparison models(frame_deck(now), frame_deck());
    const tool_result result = models.text();
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_TRUE(has_line(result.out, "  members        3       3        3           0            2      0    0     0"))
        << result.out;
    EXPECT_TRUE(contains(result.out, "resectioned:\n"
                                     "  PRIS400X400 -> PRIS450X400  2 members  1 TO 2\n"))
        << result.out;
    EXPECT_EQ(models.report(1)["resectioned"], json::parse(R"([
        {"old": "PRIS400X400", "new": "PRIS450X400", "members": 2, "member_numbers": [1, 2]}])"));
}

TEST(Compare, OtherUnitsMaterialsAndCapitalsAreNoDifference)
{
    const std::string in_mm = "UNIT MMS KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3000 0\nMEMBER INCIDENCES\n1 1 2\n"
                              "MEMBER PROPERTY\n1 TABLE ST h300x150\nCONSTANTS\nMATERIAL Q345 ALL\nFINISH\n";
    const std::string now = small_deck("MEMBER PROPERTY\n1 TABLE ST H300X150\n");
    EXPECT_EQ(comparison(now, in_mm).text().exit_code, 0);
}

TEST(Compare, StandardInputIsOneOfThem)
{
    const comparison models(frame_deck(), frame_deck());
    EXPECT_TRUE(has_line(models.tool("compare - old.std", frame_deck()).out, "NEW: <stdin>"));
    EXPECT_TRUE(has_line(models.tool("compare old.std -", frame_deck()).out, "OLD: <stdin>"));
    expect_answers(models.tool, {{"both", "compare - -", 2,
                                  "staadkit: error: only one of the models can come from standard input\n"}});
}

TEST(Compare, FindingsNameTheirOwnFile)
{
    frame_parts loose;
    loose.members = "1 1 3; 2 2 4; 3 3 99;\n";
    const comparison models(frame_deck(loose), frame_deck(loose));
    const std::string err = models.text().err;
    EXPECT_TRUE(contains(err, "new.std:6: warning joint-unknown: ")) << err;
    EXPECT_TRUE(contains(err, "old.std:6: warning joint-unknown: ")) << err;
    EXPECT_FALSE(contains(err, ": note "));
    EXPECT_TRUE(contains(models.tool("compare --notes new.std old.std").err, "old.std:1: note skipped: "));
}

TEST(Compare, NoModelInOneOfThem)
{
    const comparison models(frame_deck(), "nothing\n");
    expect_answers(models.tool, {{"old", "compare new.std old.std", 3, "old.std: error "},
                                 {"new", "compare old.std new.std", 3, "old.std: error "}});
    const json report = models.report(3);
    EXPECT_EQ(report["new"]["was_read"], true);
    EXPECT_EQ(report["old"]["was_read"], false);
    EXPECT_FALSE(report.contains("differ"));
}

TEST(Compare, TheBundledFrameAndItsNormalisedForm)
{
    const tool_run tool;
    const std::string frame = STAADKIT_SOURCE_DIR "/examples/concrete-frame.std";
    ASSERT_EQ(tool({"convert", frame, "out.std"}).exit_code, 0);
    const json report = json::parse(tool({"compare", "--json", "out.std", frame}).out);
    EXPECT_EQ(report["joints"]["matched"], 45);
    EXPECT_EQ(report["joints"]["renumbered"], 45); // from 101 to 414 they were, from 1 to 45 they are
    EXPECT_EQ(report["members"]["matched"], 68);
    EXPECT_EQ(report["members"]["renumbered"], 41); // the columns were 1 to 27 already
    // The three surfaces have become elements, and lie where they lay.
    EXPECT_EQ(report["elements"], counts(9, 6, 9, 9));
    EXPECT_EQ(report["surfaces"], counts(0, 3, 0, 0));
}

} // namespace
} // namespace cli_test
