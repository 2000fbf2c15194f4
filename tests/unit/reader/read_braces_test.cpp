/// MEMBER TRUSS, MEMBER COMPRESSION and MEMBER TENSION, and the set that they fill.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace STAAD {
namespace {

struct declaration {
    const char* why;
    decks::lines lines;
    std::set<int> want;
};

const std::vector<declaration> declarations = {
    {"no lines", {}, {}},
    {"range", {"MEMBER TRUSS", "10 TO 12"}, {10, 11, 12}},
    {"compression only", {"MEMBER COMPRESSION", "3"}, {3}},
    {"tension only", {"MEMBER TENSION", "4 2"}, {2, 4}},
    {"all three, a member twice",
     {"MEMBER TRUSS", "1 2", "MEMBER TENSION", "2 3", "MEMBER COMPRESSION", "4"},
     {1, 2, 3, 4}},
    {"only the one line after the keyword is its list", {"MEMBER TRUSS", "1 2", "3 4"}, {1, 2}},
    {"the keyword line itself lists no number", {"MEMBER TRUSS 5 6", "1"}, {1}},
    {"the keyword begins the line, as a word or not", {"MEMBER TENSIONING", "1"}, {1}},
    {"with nothing before it", {" MEMBER TRUSS", "1"}, {}},
    {"small letters are no keyword", {"member truss", "1"}, {}},
    {"other kinds are no braces", {"MEMBER CABLE", "1"}, {}},
    {"a list stops at a word", {"MEMBER TRUSS", "1 2 TENSION 3"}, {1, 2}},
    {"a second TO counts from the last number that stands alone", {"MEMBER TRUSS", "7 TO 5 TO 6"}, {7}},
    {"the line after a keyword is its list even if it is a keyword", {"MEMBER TRUSS", "MEMBER TENSION", "1 2"}, {}},
    {"so that the third of three in a row has a list again",
     {"MEMBER TRUSS", "MEMBER TENSION", "MEMBER COMPRESSION", "1 2"},
     {1, 2}},
    {"a keyword on the last line does nothing", {"MEMBER TRUSS", "1", "MEMBER TENSION"}, {1}},
};

TEST(ReadBrace, CollectsTheNumbersAfterEveryKeyword)
{
    for (const declaration& row : declarations) {
        SdReader model;
        model.ReadBrace(row.lines);
        EXPECT_EQ(model.brace_ids, row.want) << row.why;
    }
}

TEST(ReadBrace, DoesTheSameInAReading)
{
    for (const declaration& row : declarations)
        EXPECT_EQ(decks::read(decks::open_frame_deck(row.lines)).brace_ids, row.want) << row.why;
}

TEST(ReadBrace, AddsToTheSet)
{
    SdReader model;
    model.ReadBrace({"MEMBER TRUSS", "1 2"});
    model.ReadBrace({"MEMBER TENSION", "2 9"});
    EXPECT_EQ(model.brace_ids, (std::set<int>{1, 2, 9}));
    ASSERT_TRUE(model.ReadSDDataFromText(decks::frame_deck({"MEMBER TRUSS", "3"})));
    EXPECT_EQ(model.brace_ids, (std::set<int>{1, 2, 3, 9})) << "a reading leaves the numbers of an earlier one";
}

TEST(ReadBrace, TakesLinesAsTheyAre)
{
    SdReader model;
    model.ReadBrace({"MEMBER TRUSS", "1 2 -", "3"});
    EXPECT_EQ(model.brace_ids, (std::set<int>{1, 2})) << "joining continued lines is the reading's business";
    model.ReadBrace({"MEMBER TRUSS", "", "5"});
    EXPECT_EQ(model.brace_ids, (std::set<int>{1, 2})) << "an empty line is a list of nothing";
}

TEST(ReadBrace, ReadsContinuedListsInAReading)
{
    EXPECT_EQ(decks::read_frame({"MEMBER TRUSS", "1 2 -", "4 TO -", "6"}).brace_ids, (std::set<int>{1, 2, 4, 5, 6}));
}

TEST(ReadBrace, FindsDeclarationsBeforeTheMembers)
{
    EXPECT_EQ(decks::read("MEMBER TRUSS\n3\n" + decks::frame_deck({})).brace_ids, (std::set<int>{3}));
}

} // namespace
} // namespace STAAD
