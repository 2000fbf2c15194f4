// The verb "forces": what it says about listings that are not as they should be, and about its options.

#include "force_decks.h"

#include <gtest/gtest.h>

#include <fstream>

namespace cli_test {
namespace {

struct listing_case {
    const char* why;
    std::string listing;
    const char* place; ///< behind the name of the listing
};

const std::vector<std::string> short_section = {"11 1:A 0 1 1 1 1 1 1", "4 1 1 1 1 1 1", "2:B 0 1 1 1 1 1 1",
                                                "4 1 1 1 1 1 1"};

std::vector<listing_case> doubtful_listings()
{
    const std::string cut_off = force_listing();
    return {
        {"a member that the model does not have", force_listing(), ":18: warning force-unknown-member: member 77 "},
        {"the last load case of a section", force_listing(), ":22: warning force-last-case: load case 2 of member 13 "},
        {"a unit that is in no table", force_section(short_section, "(ell) (kN) (kN-m)"),
         ":5: warning unit-word: 'ell' "},
        {"no moment unit", force_section(short_section, "(m) (kN)"), ":5: warning unit-word: "},
        {"a load case of one station", force_section({"11 1:A 0 1 1 1 1 1 1", "2:B 0 1 1 1 1 1 1", "4 1 1 1 1 1 1"}),
         ": warning force-few-stations: load case 1 of member 11 "},
        {"cut off in the middle of a line", cut_off.substr(0, cut_off.find("\n 4 2 0 0 0") + 6),
         ":20: warning force-cut-off: the listing breaks off in member 13, load case 1"},
        {"most members are not in the model",
         force_section({"71 1:A 0 1 1 1 1 1 1", "72 1:A 0 1 1 1 1 1 1", "11 1:A 0 1 1 1 1 1 1", "2:B 0 1 1 1 1 1 1"}),
         ": warning force-other-model: 2 of 3 members "},
        {"a line of few words", force_section({"11 1:A 0 1 1 1 1 1 1", "4 1 1 1", "2:B 0 1 1 1 1 1 1"}),
         ":7: warning force-short-line: '"},
        {"what is no number", force_section({"11 1:A 0 one 1 1 1 1 1", "2:B 0 1 1 1 1 1 1"}),
         ":6: warning number-word: 'one' "},
    };
}

TEST(ForcesMessages, DoubtfulListingsAreShownAndWarnedOf)
{
    for (const listing_case& each : doubtful_listings()) {
        const force_files forces(each.listing);
        const tool_result result = forces();
        EXPECT_EQ(result.exit_code, 0) << each.why;
        EXPECT_TRUE(contains('\n' + result.err, '\n' + forces.listing + each.place)) << each.why << ": " << result.err;
        EXPECT_TRUE(contains(result.out, "\nsections: 1\n")) << each.why;
    }
}

TEST(ForcesMessages, SectionsAsNotesOnRequest)
{
    const force_files forces;
    const std::string note = ":1: note force-section: forces of 3 members in 'UNIT m kN kN-m'";
    EXPECT_TRUE(has_line(forces({"--notes"}).err, forces.listing + note));
    EXPECT_FALSE(contains(forces().err, ": note "));
}

TEST(ForcesMessages, FindingsOfTheModelNameTheModel)
{
    std::string deck = force_model();
    deck.replace(deck.find("UNIT METER"), 10, "UNIT METERS");
    const force_files forces(force_listing(), deck);
    const tool_result result = forces();
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_TRUE(contains('\n' + result.err, '\n' + forces.model + ":2: warning unit-word: ")) << result.err;
}

TEST(ForcesMessages, ListingThatGivesNothingIsAnError)
{
    const force_files forces("Internal forces\n 11 1:A 0 1 1 1 1 1 1\n");
    const tool_result result = forces();
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err.rfind(forces.listing + ": error force-no-title: ", 0), 0U) << result.err;
    const std::string missing = forces.tool.missing("nowhere.txt");
    const tool_result no_file = forces.tool({"forces", forces.model, missing});
    EXPECT_EQ(no_file.exit_code, 3);
    EXPECT_EQ(no_file.out, "");
    EXPECT_EQ(no_file.err.rfind(missing + ": error file-missing: ", 0), 0U) << no_file.err;
}

TEST(ForcesMessages, ListingThatCannotBeReadIsAnError)
{
    const force_files forces;
    const tool_result folder = forces.tool({"forces", forces.model, forces.tool.folder()});
    EXPECT_EQ(folder.exit_code, 3);
    EXPECT_EQ(folder.err.rfind(forces.tool.folder() + ": error file-", 0), 0U) << folder.err;
#ifndef _WIN32 // has no streams from folders
    const tool_result input = forces.tool.from(forces.tool.folder(), {"forces", forces.model, "-"});
    EXPECT_EQ(input.exit_code, 3);
    EXPECT_EQ(input.err.rfind("<stdin>: error file-unreadable: ", 0), 0U) << input.err;
#endif
}

TEST(ForcesMessages, ListingThatIsWriteProtectedIsAnError)
{
    const force_files forces;
    namespace fs = std::filesystem;
    fs::permissions(forces.listing, fs::perms::owner_read);
    if (std::ofstream(forces.listing, std::ios::app))
        GTEST_SKIP() << "permissions do not bind this user";
    const tool_result result = forces();
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err.rfind(forces.listing + ": error file-access: ", 0), 0U) << result.err;
}

TEST(ForcesMessages, NoModelNoForces)
{
    const force_files forces;
    const std::string missing = forces.tool.missing("nowhere.std");
    const tool_result result = forces.tool({"forces", missing, forces.tool.missing("nowhere.txt")});
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err.rfind(missing + ": error file-missing: ", 0), 0U) << result.err;
    EXPECT_FALSE(contains(result.err, "nowhere.txt")) << "the listing is not opened";
}

TEST(ForcesMessages, ModelWithoutMembers)
{
    const force_files forces(force_listing(), "STAAD SPACE\nUNIT METER KN\nJOINT COORDINATES\n1 0 0 0;\n"
                                              "MEMBER INCIDENCES\nFINISH\n");
    const tool_result result = forces();
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(contains(result.err, forces.listing + ": error force-no-model: ")) << result.err;
}

struct option_case {
    const char* why;
    std::vector<std::string> options;
    int exit_code;
    const char* message;
};

const option_case option_cases[] = {
    {"no such member", {"--member", "99"}, 2, "staadkit: error: --member 99: the model has no such member\n"},
    {"a member of the listing only", {"--member", "77"}, 2, "--member 77: the model has no such member\n"},
    {"a position is no number of a member", {"--member", "1"}, 2, "--member 1: the model has no such member\n"},
    {"no such load case", {"--case", "8"}, 2, "--case 8: neither the model nor the listing has such a load case\n"},
    {"one of several is unknown", {"--case", "1", "--case", "8"}, 2, "--case 8: "},
    {"a load case of the model without forces",
     {"--case", "5"},
     0,
     ": warning case-without-forces: no forces of load case 5\n"},
    {"a member and a load case that do not meet",
     {"--member", "11", "--case", "9"},
     0,
     ": warning nothing-selected: no member asked for has forces of a load case asked for\n"},
    {"no number", {"--member", "A1"}, 2, "--member = A1\nTry: staadkit forces --help\n"},
    {"no number at all", {"--case"}, 2, "--case: 1 required N missing\nTry: staadkit forces --help\n"},
    {"two forms", {"--json", "--csv"}, 2, "--json excludes --csv\n"},
    {"two views", {"--extremes", "--pkpm"}, 2, "--extremes excludes --pkpm\n"},
    {"a letter missing", {"--extreme"}, 2, "unknown option '--extreme'; did you mean '--extremes'?\n"},
    {"a third file", {"c.txt"}, 2, "one argument too many: 'c.txt'\n"},
};

TEST(ForcesMessages, Options)
{
    const force_files forces;
    for (const option_case& each : option_cases) {
        const tool_result result = forces(each.options);
        EXPECT_EQ(result.exit_code, each.exit_code) << each.why;
        EXPECT_TRUE(contains(result.err, each.message)) << each.why << ": " << result.err;
        EXPECT_EQ(result.out.empty(), each.exit_code != 0) << each.why;
    }
}

TEST(ForcesMessages, MemberOfTheModelWithoutForces)
{
    const force_files forces(force_section(short_section));
    const tool_result result = forces({"--member", "11", "--member", "13"});
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_TRUE(has_line(result.err, forces.listing + ": warning member-without-forces: no forces of member 13"))
        << result.err;
    EXPECT_TRUE(has_line(result.out, "Member 11, load case 1: dead, SELF WEIGHT")) << result.out;
    const tool_result none = forces({"--member", "13"});
    EXPECT_EQ(none.exit_code, 0);
    EXPECT_TRUE(has_line(none.out, "shown: 0 members, 0 load cases, 0 stations")) << none.out;
    EXPECT_FALSE(contains(none.err, "nothing-selected")) << "it is told already: " << none.err;
}

TEST(ForcesMessages, FilesAreRequiredAndNotBothStandardInput)
{
    const tool_run tool;
    const std::vector<std::string> calls[] = {{"forces"}, {"forces", "a.std"}, {"forces", "-", "-"}};
    const char* const messages[] = {"MODEL is required", "FORCES is required", "standard input is the model already"};
    for (std::size_t i = 0; i < std::size(calls); ++i) {
        const tool_result result = tool(calls[i]);
        EXPECT_EQ(result.exit_code, 2) << messages[i];
        EXPECT_TRUE(contains(result.err, messages[i])) << result.err;
        EXPECT_TRUE(has_line(result.err, "Try: staadkit forces --help")) << result.err;
    }
}

TEST(ForcesMessages, Help)
{
    const tool_run tool;
    EXPECT_TRUE(contains(tool({"--help"}).out, "\n  forces "));
    const std::string help = tool({"forces", "--help"}).out;
    EXPECT_TRUE(contains(help, "Usage: staadkit forces [OPTIONS] MODEL FORCES\n")) << help;
    for (const char* option : {"--member N ", "--case N ", "--extremes ", "--pkpm ", "--json ", "--csv ", "--notes "})
        EXPECT_TRUE(contains(help, std::string("\n  ") + option)) << option;
    EXPECT_TRUE(has_line(help, "  3  no model in the input"));
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

TEST(ForcesMessages, OutputThatCannotBeWrittenIsAnError)
{
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "no /dev/full here";
    const force_files forces;
    for (const char* form : {"--pkpm", "--json", "--csv"}) {
        const tool_result result = forces.tool.into("/dev/full", forces.call({form}));
        EXPECT_EQ(result.exit_code, 4) << form;
        EXPECT_TRUE(contains(result.err, "staadkit: error: standard output: ")) << form << ": " << result.err;
    }
}

/// Long enough that a terminal would be told that it is being read.
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

TEST(ForcesMessages, NoProgressWhereNobodyWatches)
{
    const force_files forces(long_listing());
    ASSERT_GT(std::filesystem::file_size(forces.listing), 16'000'000U);
    const tool_result result = forces({"--extremes"});
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_TRUE(has_line(result.out, "stations: " + std::to_string(19999 * 12))) << result.out.substr(0, 200);
    EXPECT_FALSE(contains(result.err, "reading")) << result.err;
}

#ifndef _WIN32
TEST(ForcesMessages, ListingThatMemoryDoesNotSufficeFor)
{
    if (tool_has_address_sanitizer)
        GTEST_SKIP() << "the sanitizer takes more memory than the limit";
    const force_files forces(long_listing());
    const tool_result result = forces.tool.within(32, forces.call({"--extremes"}));
    EXPECT_EQ(result.exit_code, 3);
    EXPECT_EQ(result.out, "");
    EXPECT_TRUE(has_line(result.err, forces.listing + ": error memory: not enough memory to read it")) << result.err;
}
#endif

} // namespace
} // namespace cli_test
