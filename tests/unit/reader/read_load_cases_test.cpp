/// Where the load section begins and ends, and the headers of its cases.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

TEST(ReadLoadCases, ReadsTheHeader)
{
    // Those of six words and more are load_case_test's.
    const struct {
        const char* why;
        const char* line;
        int id;
        const char* type_text;
        const char* title;
    } rows[] = {
        {"six words and more", "LOAD 3 LOADTYPE Roof  Live TITLE EQ  X DIR ", 3, "Roof Live", "EQ X DIR"},
        {"six words, a signed number", "LOAD +5 LOADTYPE Dead TITLE DL", 5, "Dead", "DL"},
        {"five words: number only", "LOAD 6 LOADTYPE Dead TITLE", 6, "", ""},
        {"two words", "LOAD 7", 7, "", ""},
        {"letters after the number", "LOAD 7A", 7, "", ""},
        {"a word for the number", "LOAD R1", 0, "", ""},
        {"a signed number of a short header is a word", "LOAD +5", 0, "", ""},
        {"the list of an analysis opens case 0", "LOAD LIST 1 2", 0, "", ""},
        {"one word", "LOAD", 0, "", ""},
        {"any word that begins so", "LOADING 8", 8, "", ""},
        {"a number past 32 bits", "LOAD 99999999999", 2147483647, "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.line) + ": " + row.why);
        const SdReader model = decks::read_frame({row.line, "SELFWEIGHT Y -1"});
        ASSERT_EQ(model.load_cases.size(), 1U);
        const auto& [number, load_case] = *model.load_cases.begin();
        EXPECT_EQ(number, row.id);
        EXPECT_EQ(load_case.id, row.id);
        EXPECT_EQ(load_case.type_text, row.type_text);
        EXPECT_EQ(load_case.title, row.title);
        EXPECT_EQ(model.raw_load_defs.at(1).load_case, row.id) << "loads after it belong to it";
        EXPECT_EQ(model.load_defs.at(1).load_case, row.id);
    }
}

TEST(ReadLoadCases, ReadsFromTheFirstHeaderToTheCombinations)
{
    const struct {
        const char* why;
        const char* lines; ///< the last of the file
        const char* cases;
        const char* cases_of_loads;
    } rows[] = {
        {"no header, no loads", "SELFWEIGHT Y -1\nFINISH", "-", "-"},
        {"loads before the first header are not read", "SELFWEIGHT Y -1\nLOAD 2\nFINISH", "2", "-"},
        {"a header begins its line", " LOAD 2\nSELFWEIGHT Y -1\nFINISH", "-", "-"},
        {"the last line of the file is never read", "LOAD 2\nSELFWEIGHT Y -1\nSELFWEIGHT X -1", "2", "2"},
        {"not even a header", "LOAD 2\nSELFWEIGHT Y -1\nLOAD 3", "2", "2"},
        {"not even the only one", "LOAD 2", "-", "-"},
        {"the line before the combinations is", "LOAD 2\nSELFWEIGHT Y -1\nLOAD COMB 9 X", "2", "2"},
        {"what follows them is not", "LOAD 2\nLOAD COMBINATION 9\nLOAD 3\nSELFWEIGHT Y -1\nFINISH", "2", "-"},
        {"combinations before all cases hide them", "LOAD COMB 9\nLOAD 2\nSELFWEIGHT Y -1\nFINISH", "-", "-"},
        {"a header with a semicolon opens the section but not its case, and case 1 has no header",
         "LOAD 2;\nSELFWEIGHT Y -1\nLOAD 3\nSELFWEIGHT Y -1\nFINISH", "3", "1 3"},
        {"later headers of one number take the place of the earlier",
         "LOAD 2\nSELFWEIGHT Y -1\nLOAD 3\nLOAD 2\nSELFWEIGHT Y -1\nFINISH", "2 3", "2 2"},
        {"cases are kept without loads", "LOAD 9\nLOAD 2\nLOAD 5\nFINISH", "2 5 9", "-"},
        {"commands between do not matter", "LOAD 2\nPERFORM ANALYSIS\n* LOAD 4\nSELFWEIGHT Y -1\nFINISH", "2", "2"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        const SdReader model = decks::read(decks::open_frame_deck({row.lines}));
        std::vector<int> cases;
        for (const auto& entry : model.load_cases)
            cases.push_back(entry.first);
        EXPECT_EQ(shown(cases), row.cases);
        std::vector<int> cases_of_loads;
        for (const auto& entry : model.raw_load_defs)
            cases_of_loads.push_back(entry.second.load_case);
        EXPECT_EQ(shown(cases_of_loads), row.cases_of_loads);
        EXPECT_EQ(model.load_defs.size(), cases_of_loads.size());
    }
}

TEST(ReadLoadCases, ALaterHeaderReplacesTheTextsToo)
{
    const LoadCase later = decks::read_frame({"LOAD 2 LOADTYPE Dead TITLE DL", "LOAD 2"}).load_cases.at(2);
    EXPECT_EQ(later.type_text + later.title, "");
}

TEST(ReadLoadCases, BeforeTheFirstBlockTheTextBeginsWithABlank)
{
    const SdReader model = decks::read_frame({"LOAD 2", "1 UNI GY -5"});
    ASSERT_EQ(model.raw_load_defs.size(), 1U);
    EXPECT_EQ(model.raw_load_defs.at(1).text, " UNI GY -5");
    EXPECT_EQ(model.load_defs.at(1).kind, "");
    EXPECT_EQ(model.load_defs.at(1).direction, "");
    EXPECT_TRUE(model.load_defs.at(1).values.empty());
    EXPECT_EQ(decks::member(model, 1).int_list, (std::vector<int>{1})) << "members carry it all the same";
}

TEST(ReadLoadCases, AHeaderThatEndsInLoadLeavesTheBlock)
{
    const SdReader model = decks::read_frame({"LOAD 1", "JOINT LOAD", "LOAD 2 WIND LOAD", "3 FY -1"});
    EXPECT_EQ(model.raw_load_defs.at(1).text, "JOINT LOAD FY -1");
    EXPECT_EQ(model.nodes.at(2).extra_ids, (std::vector<int>{1}));
}

TEST(ReadLoadCases, ReadsLoadsBeforeTheMembers)
{
    const SdReader model = decks::read("LOAD 1\nMEMBER LOAD\n2 UNI GY -5\nLOAD COMB 9\n" + decks::frame_deck({}));
    EXPECT_EQ(model.raw_load_defs.at(1).text, "MEMBER LOAD UNI GY -5");
    EXPECT_EQ(decks::member(model, 2).int_list, (std::vector<int>{1}));
    EXPECT_EQ(model.load_defs.at(1).values, (std::vector<double>{-5.0 / 1000.0}));
}

} // namespace
} // namespace STAAD
