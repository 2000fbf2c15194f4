/// MEMBER TRUSS, MEMBER COMPRESSION and MEMBER TENSION, and the set that they fill.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"
#include "tests/support/shown.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace STAAD {
namespace {

const std::vector<decks::row> declarations = {
    {"no lines", "", "-"},
    {"range", "MEMBER TRUSS\n10 TO 12", "10 11 12"},
    {"compression only", "MEMBER COMPRESSION\n3", "3"},
    {"tension only", "MEMBER TENSION\n4 2", "2 4"},
    {"all three, a member twice", "MEMBER TRUSS\n1 2\nMEMBER TENSION\n2 3\nMEMBER COMPRESSION\n4", "1 2 3 4"},
    {"only the one line after the keyword is its list", "MEMBER TRUSS\n1 2\n3 4", "1 2"},
    {"the keyword line itself lists no number", "MEMBER TRUSS 5 6\n1", "1"},
    {"the keyword begins the line, as a word or not", "MEMBER TENSIONING\n1", "1"},
    {"with nothing before it", " MEMBER TRUSS\n1", "-"},
    {"small letters are no keyword", "member truss\n1", "-"},
    {"other kinds are no braces", "MEMBER CABLE\n1", "-"},
    {"a second TO counts from the last number that stands alone", "MEMBER TRUSS\n7 TO 5 TO 6", "7"},
    {"the line after a keyword is its list even if it is a keyword", "MEMBER TRUSS\nMEMBER TENSION\n1 2", "-"},
    {"so that the third of three in a row has a list again", "MEMBER TRUSS\nMEMBER TENSION\nMEMBER COMPRESSION\n1 2",
     "1 2"},
    {"a keyword on the last line does nothing", "MEMBER TRUSS\n1\nMEMBER TENSION", "1"},
};

TEST(ReadBrace, CollectsTheNumbersAfterEveryKeyword)
{
    for (const decks::row& row : declarations) {
        SdReader model;
        model.ReadBrace(written::lines_of(row.lines));
        EXPECT_EQ(shown(model.brace_ids), row.want) << row.why;
        EXPECT_EQ(shown(decks::read(decks::open_frame_deck({row.lines})).brace_ids), row.want)
            << "in a reading, " << row.why;
    }
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

TEST(ReadBrace, ReadsContinuedListsAndThoseBeforeTheMembers)
{
    EXPECT_EQ(shown(decks::read_frame({"MEMBER TRUSS", "1 2 -", "4 TO -", "6"}).brace_ids), "1 2 4 5 6");
    EXPECT_EQ(shown(decks::read("MEMBER TRUSS\n3\n" + decks::frame_deck({})).brace_ids), "3");
}

} // namespace
} // namespace STAAD
