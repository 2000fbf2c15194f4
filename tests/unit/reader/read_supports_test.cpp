/// SUPPORTS and MEMBER RELEASE blocks: descriptions, and the joints and members that carry them.

#include "staad/model/sd_reader.h"
#include "tests/support/deck.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

std::string supports(const SdReader& model)
{
    return shown(model.supports);
}

std::string releases(const SdReader& model)
{
    return shown(model.releases);
}

/// The list and the description follow rules of their own: what one stops at, the other may skip.
const std::vector<decks::row> support_lines = {
    {"range and number", "1 TO 4 7 PINNED", "PINNED: 1 2 3 4 7"},
    {"several words, single blanks between", "3  FIXED   BUT  MX MY ", "FIXED BUT MX MY: 3"},
    {"numbers after the first word belong to the description", "2 FIXED BUT KFY 100 5", "FIXED BUT KFY 100 5: 2"},
    {"nothing after the numbers", "1 TO 3", "-: 1 2 3"},
    {"0 ends the list and begins the description", "5 0 FIXED", "0 FIXED: 5"},
    {"0 at once: a description without joints", "0 FIXED", "0 FIXED: -"},
    {"order of the line, repeats kept", "7 2 2 7 FIXED", "FIXED: 7 2 2 7"},
    {"a second TO counts from the last number that stands alone", "1 TO 3 TO 4 FIXED", "FIXED: 1 2 3 2 3 4"},
    {"TO before a word: both rules pass it", "1 TO FIXED", "FIXED: 1"},
    {"a bound of 0 ends the list, and the description begins there", "1 TO 0 5 FIXED", "0 5 FIXED: 1"},
    {"TO at the end", "4 TO", "-: 4"},
    {"small letters are no range", "1 to 3 FIXED", "to 3 FIXED: 1"},
    {"a sign ends the list, but the description skips the number", "1 +2 FIXED", "FIXED: 1"},
    {"a number with letters after it counts for both", "1 2A FIXED", "FIXED: 1 2"},
    {"numbers of no joint are kept", "999 FIXED", "FIXED: 999"},
    {"a number past 32 bits is the largest there is", "4294967296 FIXED", "FIXED: 2147483647"},
    {"a tab separates nothing", "1\t2 FIXED", "FIXED: 1"},
    {"the description is kept as written, small letters too", "1 fixed But", "fixed But: 1"},
};

TEST(ReadSupports, SplitsALineIntoJointsAndDescription)
{
    decks::expect_read(support_lines, supports, {}, "SUPPORTS");
}

TEST(ReadReleases, SplitsALineIntoMembersAndDescription)
{
    const std::vector<decks::row> rows = {
        {"start", "3 START MZ", "START MZ: 3"},
        {"end, range and number", "1 TO 3 5 END MX  MY", "END MX MY: 1 2 3 5"},
        {"both", "1 START MZ END MZ", "START MZ END MZ: 1"},
        {"any word that holds START or END will do", "6 BOTH BENDING", "BOTH BENDING: 6"},
        {"0 at once: a description without joints", "0 START MZ", "0 START MZ: -"},
        {"0 ends the list and begins the description", "5 0 START MZ", "0 START MZ: 5"},
        {"order of the line, repeats and unknown members kept", "9 2 9 START MZ", "START MZ: 9 2 9"},
        {"a sign ends the list, but the description skips the number", "1 +2 START MZ", "START MZ: 1"},
    };
    decks::expect_read(rows, releases, {}, "MEMBER RELEASE");
}

TEST(ReadSupports, ReadsTheLinesThatBeginWithADigit)
{
    const std::vector<decks::row> blocks = {
        {"no block", "1 FIXED", "-"},
        {"lines of one description make one entry", "SUPPORTS\n1 TO 4 FIXED\n5 6 FIXED", "FIXED: 1 2 3 4 5 6"},
        {"in the order of the lines, a joint twice if it is named twice", "SUPPORTS\n5 FIXED\n2 PINNED\n1 5 FIXED",
         "FIXED: 5 1 5; PINNED: 2"},
        {"one joint may carry several descriptions", "SUPPORTS\n1 FIXED\n1 PINNED", "FIXED: 1; PINNED: 1"},
        {"a description without numbers ends the block", "SUPPORTS\n1 FIXED\nPINNED\n2 FIXED", "FIXED: 1"},
        {"0 is a digit and does not end it", "SUPPORTS\n0 X\n2 FIXED", "0 X: -; FIXED: 2"},
        {"a list in parts, one of them empty", "SUPPORTS\n0 X\n2 0 X", "0 X: 2"},
        {"a leading blank ends it", "SUPPORTS\n1 FIXED\n 2 FIXED\n3 FIXED", "FIXED: 1"},
        {"a comment ends it", "SUPPORTS\n1 FIXED\n* columns\n3 FIXED", "FIXED: 1"},
        {"a byte past ASCII ends it", "SUPPORTS\n1 FIXED\n\xb3\xd0 2 FIXED", "FIXED: 1"},
        {"blank lines do not", "SUPPORTS\n1 FIXED\n \t\n\n3 FIXED", "FIXED: 1 3"},
        {"the keyword is a whole line", "SUPPORTS \n1 FIXED", "-"},
        {"with nothing before it", " SUPPORTS\n1 FIXED", "-"},
        {"only the first block is read", "SUPPORTS\n1 FIXED\nSUPPORTS\n2 PINNED", "FIXED: 1"},
        {"even if it is empty", "SUPPORTS\nSUPPORTS\n2 PINNED", "-"},
        {"continued lines are one", "SUPPORTS\n1 2 -\n4 TO 5 FIXED -\nBUT MX", "FIXED BUT MX: 1 2 4 5"},
    };
    decks::expect_read(blocks, supports);
}

TEST(ReadReleases, ReadsTheLinesThatNameAnEnd)
{
    const std::vector<decks::row> blocks = {
        {"no block", "1 START MZ", "-"},
        {"lines of one description make one entry", "MEMBER RELEASE\n3 START MZ\n1 START  MZ\n2 END MZ",
         "END MZ: 2; START MZ: 3 1"},
        {"a line without START and END ends the block", "MEMBER RELEASE\n3 START MZ\n4 MY\n5 START MZ", "START MZ: 3"},
        {"a line without numbers, too", "MEMBER RELEASE\nSTART MZ\n5 START MZ", "-"},
        {"small letters name no end", "MEMBER RELEASE\n3 start MZ\n5 START MZ", "-"},
        {"a leading blank ends it", "MEMBER RELEASE\n 3 START MZ\n5 START MZ", "-"},
        {"the keyword is a whole line", "MEMBER RELEASES\n1 START MZ", "-"},
        {"only the first block is read", "MEMBER RELEASE\n1 START MZ\nMEMBER RELEASE\n2 START MZ", "START MZ: 1"},
        {"continued lines are one", "MEMBER RELEASE\n1 2 -\nSTART -\nMY MZ", "START MY MZ: 1 2"},
    };
    decks::expect_read(blocks, releases);
}

TEST(ReadSupports, FindsItsBlockAnywhereInTheFile)
{
    const SdReader model = decks::read("SUPPORTS\n1 FIXED\nMEMBER RELEASE\n2 END MZ\n" + decks::frame_deck({}));
    EXPECT_EQ(supports(model), "FIXED: 1");
    EXPECT_EQ(releases(model), "END MZ: 2");
    EXPECT_EQ(supports(decks::read(decks::open_frame_deck({"SUPPORTS"}) + "1 2 FIXED")), "FIXED: 1 2")
        << "a last line without line feed";
}

TEST(ReadSupports, AddsToWhatAnEarlierReadingLeft)
{
    const std::string text = decks::frame_deck({"SUPPORTS", "1 FIXED", "MEMBER RELEASE", "2 END MZ"});
    SdReader model = decks::read(text);
    ASSERT_TRUE(model.ReadSDDataFromText(text));
    EXPECT_EQ(supports(model), "FIXED: 1 1");
    EXPECT_EQ(releases(model), "END MZ: 2 2");
}

} // namespace
} // namespace STAAD
