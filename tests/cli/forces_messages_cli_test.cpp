// The verb "forces": what it says about listings that are not as they should be, and about its options.

#include "force_decks.h"

#include <gtest/gtest.h>

namespace cli_test {
namespace {

struct listing_case {
    const char* why;
    std::string listing;
    const char* message; ///< after the name of the listing
};

const std::vector<std::string> short_section = {"11 1:A 0 1 1 1 1 1 1", "4 1 1 1 1 1 1", "2:B 0 1 1 1 1 1 1",
                                                "4 1 1 1 1 1 1"};
const std::string whole = force_listing();

const listing_case doubtful_listings[] = {
    {"a member that the model does not have", whole, ":18: warning force-unknown-member: member 77 "},
    {"the last load case of a section", whole, ":22: warning force-last-case: load case 2 of member 13 "},
    {"a unit that is in no table", force_section(short_section, "(ell) (kN) (kN-m)"), ":5: warning unit-word: 'ell' "},
    {"no moment unit", force_section(short_section, "(m) (kN)"), ":5: warning unit-word: "},
    {"a load case of one station", force_section({"11 1:A 0 1 1 1 1 1 1", "2:B 0 1 1 1 1 1 1", "4 1 1 1 1 1 1"}),
     ": warning force-few-stations: load case 1 of member 11 "},
    {"cut off in the middle of a line", whole.substr(0, whole.find("\n 4 2 0 0 0") + 6),
     ":20: warning force-cut-off: the listing breaks off in member 13, load case 1"},
    {"most members are not in the model",
     force_section({"71 1:A 0 1 1 1 1 1 1", "72 1:A 0 1 1 1 1 1 1", "11 1:A 0 1 1 1 1 1 1", "2:B 0 1 1 1 1 1 1"}),
     ": warning force-other-model: 2 of 3 members "},
    {"a line of few words", force_section({"11 1:A 0 1 1 1 1 1 1", "4 1 1 1", "2:B 0 1 1 1 1 1 1"}),
     ":7: warning force-short-line: '"},
    {"what is no number", force_section({"11 1:A 0 one 1 1 1 1 1", "2:B 0 1 1 1 1 1 1"}),
     ":6: warning number-word: 'one' "},
};

TEST(ForcesMessages, DoubtfulListingsAreShownAndWarnedOf)
{
    for (const listing_case& each : doubtful_listings) {
        const force_files forces(each.listing);
        const tool_result result = forces();
        EXPECT_EQ(result.exit_code, 0) << each.why;
        EXPECT_TRUE(contains('\n' + result.err, '\n' + forces.listing + each.message))
            << each.why << ": " << result.err;
        EXPECT_TRUE(contains(result.out, "\nsections: 1\n")) << each.why;
        EXPECT_FALSE(contains(result.err, ": note ")) << each.why;
    }
}

TEST(ForcesMessages, FindingsOfTheModelNameTheModel)
{
    std::string deck = force_model();
    deck.replace(deck.find("UNIT METER"), 10, "UNIT METERS");
    const force_files forces(whole, deck);
    const tool_result result = forces();
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_TRUE(contains('\n' + result.err, '\n' + forces.model + ":2: warning unit-word: ")) << result.err;
}

const std::vector<call_row> calls_without_forces = {
    {"no title", "frame.std title.txt", 3, "title.txt: error force-no-title: "},
    {"no listing", "frame.std nowhere.txt", 3, "nowhere.txt: error file-missing: "},
    {"no members", "joint.std frame.txt", 3, "frame.txt: error force-no-model: "},
    {"no model", "nowhere.std frame.txt", 3, "nowhere.std: error file-missing: "},
};

TEST(ForcesMessages, NoForces)
{
    const force_files forces;
    forces.tool.write("title.txt", "Internal forces\n 11 1:A 0 1 1 1 1 1 1\n");
    forces.tool.write("joint.std", "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0;\nMEMBER INCIDENCES\nFINISH\n");
    for (const std::string form : {"--pkpm ", "--csv "})
        expect_answers(forces.tool, calls_without_forces, "forces " + form);
    EXPECT_FALSE(contains(forces.tool("forces nowhere.std nowhere.txt").err, "nowhere.txt")) << "it is not opened";
}

/// Calls with the frame and its listing.
const std::vector<call_row> forces_calls = {
    {"no such member", "--member 99", 2, "staadkit: error: --member 99: the model has no such member\n"},
    {"a member of the listing only", "--member 77", 2, "staadkit: error: --member 77: the model has no such member\n"},
    {"a position is no number of a member", "--member 1", 2,
     "staadkit: error: --member 1: the model has no such member\n"},
    {"those of a list that are unknown; a range is if all of it is", "--member '12 98 1 TO 10 13 TO 20' --member 99", 2,
     "staadkit: error: --member 98 1 TO 10 99: the model has no such member\n"},
    {"no such load case", "--case 8", 2,
     "staadkit: error: --case 8: neither the model nor the listing has such a load case\n"},
    {"one of several is unknown", "--case 1 --case 8", 2, "staadkit: error: --case 8: "},
    {"a load case of the model without forces", "--case 5", 0,
     "frame.txt: warning case-without-forces: no forces of load case 5\n", "shown: 0"},
    {"two of them", "--case '1 5 TO 6'", 0, "frame.txt: warning case-without-forces: no forces of load cases 5 TO 6\n",
     "shown: 3"},
    {"a member and a load case that do not meet", "--member 11 --case 9", 0,
     "frame.txt: warning nothing-selected: no member asked for has forces of a load case asked for\n", "shown: 0"},
    {"sections as notes on request", "--notes", 0,
     "frame.txt:1: note force-section: forces of 3 members in 'UNIT m kN kN-m'\n", "sections: 1\n"},
    {"no number", "--member A1", 2, "staadkit: error: --member: 'A1' is no list of numbers such as '1 5 TO 9'\nTry: "},
    {"a range to a range", "--member '1 TO 5 TO 9'", 2, "staadkit: error: --member: '1 TO 5 TO 9' is no list "},
    {"a number too large", "--member 2147483648", 2, "staadkit: error: --member: '2147483648' is no list "},
    {"a range downward", "--case '9 TO 1'", 2,
     "staadkit: error: --case: '9 TO 1' has no numbers: the first is the larger one\n"},
    {"blanks alone", "--case ' '", 2, "staadkit: error: --case: the list is empty\n"},
    {"no list at all", "--case", 2, "staadkit: error: --case: 1 required LIST missing\nTry: staadkit forces --help\n"},
    {"two forms", "--json --csv", 2, "staadkit: error: --json excludes --csv\n"},
    {"two views", "--extremes --pkpm", 2, "staadkit: error: --extremes excludes --pkpm\n"},
    {"a letter missing", "--extreme", 2, "staadkit: error: unknown option '--extreme'; did you mean '--extremes'?\n"},
    {"a third file", "c.txt", 2, "staadkit: error: one argument too many: 'c.txt'\n"},
};

TEST(ForcesMessages, Options)
{
    const force_files forces;
    expect_answers(forces.tool, forces_calls, "forces frame.std frame.txt ");
}

TEST(ForcesMessages, MemberOfTheModelWithoutForces)
{
    const force_files forces(force_section(short_section));
    const std::vector<call_row> calls = {{"of several one", "--member '11 TO 13'", 0,
                                          "frame.txt: warning member-without-forces: no forces of members 12 TO 13\n",
                                          "Member 11, load case 1: dead, SELF WEIGHT\n"},
                                         {"none", "--member 13", 0,
                                          "frame.txt: warning member-without-forces: no forces of member 13\n",
                                          "shown: 0 members, 0 load cases, 0 stations\n"}};
    expect_answers(forces.tool, calls, "forces frame.std frame.txt ");
    EXPECT_FALSE(contains(forces({"--member", "13"}).err, "nothing-selected")) << "once is enough";
}

TEST(ForcesMessages, TextsOfTheFilesCannotDriveTheTerminal)
{
    std::string deck = force_model();
    deck.replace(deck.find("CROWD"), 5, "\x1B[31m");
    const force_files forces(
        force_section({"11 2:A 0 \x1B[2J 1 1 1 1 1", "3:B 0 1 1 1 1 1 1"}, "(\x1B[1m) (kN) (kN-m)"), deck);
    for (const char* view : {"--extremes", "--pkpm", "--csv", "--member=11"}) {
        const tool_result result = forces({view, "--notes"});
        EXPECT_EQ(result.exit_code, 0);
        EXPECT_FALSE(contains(result.out + result.err, "\x1B")) << view << result.out << result.err;
    }
    EXPECT_TRUE(has_line(forces().out, "Member 11, load case 2: live, \\x1B[31m"));
}

/// More than 16 MB.
std::string long_listing()
{
    std::vector<std::string> data;
    for (int load_case = 1; load_case <= 20000; ++load_case) {
        data.push_back((load_case == 1 ? "11 " : "") + std::to_string(load_case) + ":CASE 0 1 2 3 4 5 6");
        for (int station = 1; station < 12; ++station)
            data.push_back(std::to_string(station) + std::string(60, ' ') + "1 2 3 4 5 6");
    }
    return force_section(data);
}

TEST(ForcesMessages, LongListings)
{
    const force_files forces(long_listing());
    const tool_result result = forces({"--extremes"});
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_TRUE(has_line(result.out, "stations: " + std::to_string(19999 * 12))) << result.out.substr(0, 200);
    EXPECT_FALSE(contains(result.err, "reading")) << "progress without a terminal: " << result.err;
#ifndef _WIN32
    if (tool_has_address_sanitizer)
        GTEST_SKIP() << "the sanitizer takes more memory than the limit";
    const tool_result no_memory = forces.tool.within(32, forces.call({"--extremes"}));
    EXPECT_EQ(no_memory.exit_code, 3);
    EXPECT_EQ(no_memory.out, "");
    EXPECT_TRUE(has_line(no_memory.err, forces.listing + ": error memory: not enough memory to read it"))
        << no_memory.err;
#endif
}

} // namespace
} // namespace cli_test
