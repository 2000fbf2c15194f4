// The verb "forces": what it shows of a listing whose answers are worked out by hand.

#include "force_decks.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace cli_test {
namespace {

const char* const summary_lines = //
    "sections: 1\n"
    "  line 1  forces of 3 members in 'UNIT m kN kN-m'\n"
    "members: 3 of the 3 in the model; 1 in the listing only, skipped\n"
    "load cases: 5\n"
    "  1  dead  SELF WEIGHT       3 members\n"
    "  2  live  CROWD             1 member\n"
    "  3  dead  FINISHES          1 member\n"
    "  4  wind  WIND +X           1 member\n"
    "  9  -     not in the model  1 member\n"
    "stations: 14\n";

const char* const unit_lines =
    "units: mm from the member's start, kN, kN*mm\n"
    "columns: forces F1 F2 F3, moments M1 M2 M3 in the order of the listing; axes are not turned\n";

/// The report less its first lines: from the first empty line on.
std::string tables(const std::string& report)
{
    return report.substr(std::min(report.size(), report.find("\n\n") + 1));
}

TEST(Forces, BeginsWithWhatWasRead)
{
    const force_files forces;
    const tool_result result = forces();
    EXPECT_EQ(result.exit_code, 0) << result.err;
    const std::string first = forces.listing + ", forces of " + forces.model + '\n' + summary_lines + unit_lines;
    EXPECT_EQ(result.out.substr(0, first.size()), first);
}

TEST(Forces, TableForEachMemberAndLoadCase)
{
    EXPECT_EQ(tables(force_files()({"--member", "11"}).out),
              "\nMember 11, load case 1: dead, SELF WEIGHT\n"
              "  position      F1     F2     F3     M1     M2      M3\n"
              "        mm      kN     kN     kN  kN*mm  kN*mm   kN*mm\n"
              "       0.0  -7.000  0.000  0.000    0.0    0.0     0.0\n"
              "    4000.0  -7.500  0.000  0.000    0.0    0.0  1500.0\n"
              "\nMember 11, load case 4: wind, WIND +X\n"
              "  position     F1     F2     F3     M1     M2       M3\n"
              "        mm     kN     kN     kN  kN*mm  kN*mm    kN*mm\n"
              "       0.0  0.000  0.000  0.000    0.0    0.0   2000.0\n"
              "    4000.0  0.000  0.000  0.000    0.0    0.0  -2000.0\n");
}

TEST(Forces, MembersInTheOrderOfTheModel)
{
    const std::string out = force_files()().out;
    const std::vector<std::string> headings = {
        "Member 11, load case 1: dead, SELF WEIGHT", "Member 11, load case 4: wind, WIND +X",
        "Member 12, load case 1: dead, SELF WEIGHT", "Member 12, load case 2: live, CROWD",
        "Member 12, load case 3: dead, FINISHES",    "Member 12, load case 9 (not in the model)",
        "Member 13, load case 1: dead, SELF WEIGHT"};
    std::vector<std::string> found;
    for (std::size_t at = out.find("\nMember "); at != std::string::npos; at = out.find("\nMember ", at + 1))
        found.push_back(out.substr(at + 1, out.find('\n', at + 1) - at - 1));
    EXPECT_EQ(found, headings);
}

TEST(Forces, HeadingsOfLoadCasesWithoutTypeOrTitle)
{
    const force_files forces(force_section({"11 5:CRANE 0 1 1 1 1 1 1", "6:HOT 0 1 1 1 1 1 1", "1:END 0 1 1 1 1 1 1"}));
    const std::string out = forces().out;
    EXPECT_TRUE(has_line(out, "Member 11, load case 5")) << out;
    EXPECT_TRUE(has_line(out, "Member 11, load case 6: Temperature, HOT")) << out;
    EXPECT_TRUE(has_line(out, "  5  -            -    1 member")) << out;
    EXPECT_TRUE(has_line(out, "  6  Temperature  HOT  1 member")) << out;
}

TEST(Forces, MemberOfWhichNothingIsKept)
{
    const force_files forces(force_section({"11 1:SELF 0 1 1 1 1 1 1", "1 1 1 1 1 1 1"}));
    const std::string out = forces().out;
    EXPECT_TRUE(has_line(out, "members: 1 of the 3 in the model")) << out;
    EXPECT_TRUE(has_line(out, "load cases: 0")) << out;
    EXPECT_EQ(tables(out), "\nMember 11: no load case\n");
}

TEST(Forces, LargeNumbersGetAPowerOfTen)
{
    const force_files forces(force_section({"11 1:SELF 0 999999999 2.5E +12 0 0 0 -1E+300", "2:END 0 1 1 1 1 1 1"}));
    EXPECT_EQ(tables(forces().out), "\nMember 11, load case 1: dead, SELF WEIGHT\n"
                                    "  position             F1       F2     F3     M1     M2       M3\n"
                                    "        mm             kN       kN     kN  kN*mm  kN*mm    kN*mm\n"
                                    "       0.0  999999999.000  2.5e+12  0.000    0.0    0.0  -1e+303\n");
}

TEST(Forces, SelectionByMemberAndCase)
{
    const force_files forces;
    const std::string out = forces({"--member", "12", "--member", "13", "--case", "1", "--case", "9"}).out;
    EXPECT_TRUE(has_line(out, "stations: 14")) << "of all that was read";
    EXPECT_TRUE(has_line(out, "shown: 2 members, 2 load cases, 6 stations")) << out;
    EXPECT_TRUE(contains(out, "\nMember 12, load case 1"));
    EXPECT_TRUE(contains(out, "\nMember 12, load case 9"));
    EXPECT_TRUE(contains(out, "\nMember 13, load case 1"));
    EXPECT_FALSE(contains(out, "\nMember 11"));
    EXPECT_FALSE(contains(out, "\nMember 12, load case 2"));
}

TEST(Forces, OptionsMayStandBeforeTheFiles)
{
    const force_files forces;
    const tool_result before = forces.tool({"forces", "--member", "11", forces.model, forces.listing});
    EXPECT_EQ(before.exit_code, 0) << before.err;
    EXPECT_EQ(before.out, forces({"--member", "11"}).out);
}

TEST(Forces, Extremes)
{
    const force_files forces;
    const std::string out = forces({"--extremes"}).out;
    EXPECT_TRUE(contains(out, summary_lines));
    EXPECT_EQ(tables(out), "\nExtremes\n"
                           "                  value  unit   member  load case  position, mm\n"
                           "  F1  largest   100.000  kN         12          9           0.0\n"
                           "  F1  smallest   -7.500  kN         11          1        4000.0\n"
                           "  F2  largest    20.000  kN         12          2           0.0\n"
                           "  F2  smallest  -20.000  kN         12          2        6000.0\n"
                           "  F3  largest    30.000  kN         12          2           0.0\n"
                           "  F3  smallest   -3.000  kN         12          1        6000.0\n"
                           "  M1  largest    4000.0  kN*mm      12          1           0.0\n"
                           "  M1  smallest  -4000.0  kN*mm      12          1        6000.0\n"
                           "  M2  largest    5000.0  kN*mm      12          1           0.0\n"
                           "  M2  smallest  -5000.0  kN*mm      12          1        6000.0\n"
                           "  M3  largest    6000.0  kN*mm      12          1           0.0\n"
                           "  M3  smallest  -6000.0  kN*mm      12          1        6000.0\n");
}

TEST(Forces, ExtremesOfASelection)
{
    // Of equal values the first.
    const std::string out = force_files()({"--extremes", "--member", "12", "--case", "3"}).out;
    EXPECT_TRUE(has_line(out, "shown: 1 member, 1 load case, 2 stations")) << out;
    EXPECT_TRUE(has_line(out, "  F1  largest    0.500  kN         12          3           0.0")) << out;
    EXPECT_TRUE(has_line(out, "  F1  smallest   0.500  kN         12          3           0.0")) << out;
    EXPECT_TRUE(has_line(out, "  M3  largest    250.0  kN*mm      12          3        6000.0")) << out;
    EXPECT_TRUE(has_line(out, "  M3  smallest  -250.0  kN*mm      12          3           0.0")) << out;
}

TEST(Forces, ExtremesOfNothing)
{
    const force_files forces(force_section({"11 1:SELF 0 1 1 1 1 1 1"}));
    EXPECT_EQ(tables(forces({"--extremes"}).out), "\nExtremes: none\n");
}

TEST(Forces, ListsOfTheDownstreamProgram)
{
    // Two printed stations, seven more at eighths of 6 m. Of the dead cases 1 and 3 the higher one counts.
    EXPECT_EQ(tables(force_files()({"--pkpm", "--member", "12"}).out),
              "\nMember 12, dead: load case 3, FINISHES\n"
              "  position     F1     F2     F3     M1     M2      M3\n"
              "        mm     kN     kN     kN  kN*mm  kN*mm   kN*mm\n"
              "       0.0  0.500  0.000  0.000    0.0    0.0  -250.0\n"
              "     750.0  0.500  0.000  0.000    0.0    0.0  -187.5\n"
              "    1500.0  0.500  0.000  0.000    0.0    0.0  -125.0\n"
              "    2250.0  0.500  0.000  0.000    0.0    0.0   -62.5\n"
              "    3000.0  0.500  0.000  0.000    0.0    0.0     0.0\n"
              "    3750.0  0.500  0.000  0.000    0.0    0.0    62.5\n"
              "    4500.0  0.500  0.000  0.000    0.0    0.0   125.0\n"
              "    5250.0  0.500  0.000  0.000    0.0    0.0   187.5\n"
              "    6000.0  0.500  0.000  0.000    0.0    0.0   250.0\n"
              "\nMember 12, live: load case 2, CROWD\n"
              "  position      F1       F2      F3     M1     M2     M3\n"
              "        mm      kN       kN      kN  kN*mm  kN*mm  kN*mm\n"
              "       0.0  10.000   20.000  30.000    0.0    0.0    0.0\n"
              "     750.0  10.000   15.000  30.000    0.0    0.0    0.0\n"
              "    1500.0  10.000   10.000  30.000    0.0    0.0    0.0\n"
              "    2250.0  10.000    5.000  30.000    0.0    0.0    0.0\n"
              "    3000.0  10.000    0.000  30.000    0.0    0.0    0.0\n"
              "    3750.0  10.000   -5.000  30.000    0.0    0.0    0.0\n"
              "    4500.0  10.000  -10.000  30.000    0.0    0.0    0.0\n"
              "    5250.0  10.000  -15.000  30.000    0.0    0.0    0.0\n"
              "    6000.0  10.000  -20.000  30.000    0.0    0.0    0.0\n"
              "\nMember 12, wind: none, all zeros\n"
              "\nMember 12, seismic: none, all zeros\n");
}

TEST(Forces, ListsOfSelectedCasesOnly)
{
    const force_files forces;
    const std::string dead = forces({"--pkpm", "--member", "12", "--case", "1"}).out;
    EXPECT_TRUE(has_line(dead, "Member 12, dead: load case 1, SELF WEIGHT")) << dead;
    EXPECT_TRUE(has_line(dead, "Member 12, live: none, all zeros")) << dead;
    const std::string combination = forces({"--pkpm", "--case", "9"}).out;
    EXPECT_EQ(tables(combination),
              "\nMember 12: no list, for want of a dead, live, wind or seismic load case with two stations\n");
}

TEST(Forces, ListsSkipALoadCaseOfOneStation)
{
    // Case 3 would count before case 1, and has no list of its own.
    const force_files forces(force_section({"11 1:SELF 0 1 1 1 1 1 1", "4 1 1 1 1 1 1", "2:CROWD 0 1 1 1 1 1 1",
                                            "4 1 1 1 1 1 1", "3:FINISHES 0 1 1 1 1 1 1", "4:END 0 1 1 1 1 1 1"}));
    const std::string out = forces({"--pkpm"}).out;
    EXPECT_TRUE(has_line(out, "Member 11, dead: none, all zeros")) << out;
    EXPECT_TRUE(has_line(out, "Member 11, live: load case 2, CROWD")) << out;
}

TEST(Forces, StandardInputForEitherFile)
{
    const force_files forces;
    const std::string from_files = forces().out;
    const auto without_names = [](const std::string& report) { return report.substr(report.find('\n')); };
    const tool_result listing = forces.tool({"forces", forces.model, "-"}, force_listing());
    EXPECT_EQ(listing.exit_code, 0) << listing.err;
    EXPECT_EQ(listing.out.rfind("<stdin>, forces of " + forces.model + '\n', 0), 0U) << listing.out;
    EXPECT_EQ(without_names(listing.out), without_names(from_files));
    const tool_result model = forces.tool({"forces", "-", forces.listing}, force_model());
    EXPECT_EQ(model.exit_code, 0) << model.err;
    EXPECT_EQ(model.out.rfind(forces.listing + ", forces of <stdin>\n", 0), 0U) << model.out;
    EXPECT_EQ(without_names(model.out), without_names(from_files));
}

TEST(Forces, ExampleInMixedUnits)
{
    const tool_run tool;
    const std::string frame = std::string(STAADKIT_SOURCE_DIR) + "/examples/concrete-frame";
    const tool_result result = tool({"forces", frame + ".std", frame + ".txt", "--member", "201", "--member", "1"});
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_TRUE(has_line(result.out, "members: 10 of the 68 in the model")) << result.out;
    EXPECT_TRUE(has_line(result.out, "sections: 3"));
    // 24 kN/m on 6 m between fixed ends.
    EXPECT_TRUE(has_line(result.out, "       0.0  0.000   72.000  0.000    0.0    0.0  -72000.0")) << result.out;
    EXPECT_TRUE(has_line(result.out, "    3000.0  0.000    0.000  0.000    0.0    0.0   36000.0")) << result.out;
    // 64 t at the base of column 1.
    EXPECT_TRUE(has_line(result.out, "       0.0  -627.200  0.000  0.000    0.0    0.0    0.0")) << result.out;
}

} // namespace
} // namespace cli_test
