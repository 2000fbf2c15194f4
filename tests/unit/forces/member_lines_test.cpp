/// The data lines of a section: which begin a member, which a load case, which go on with one, and which
/// record is kept when.

#include "tests/support/force_listing.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

using listings::stations_of;

/// `data` for members 101, 102 ... at the positions 1, 2 ...; what of it is kept.
struct line_case {
    const char* why;
    const char* data;
    const char* want;
};

void expect_kept(const std::vector<line_case>& cases)
{
    for (const line_case& c : cases)
        EXPECT_EQ(stations_of(written::lines_of(c.data)), c.want) << c.why;
}

TEST(ForceLines, KeepEveryCaseButTheLastOfTheLastMember)
{
    expect_kept({
        {"no data", "", ""},
        {"two members of two cases", "101 1:A @0\n@5\n2:B @0\n@5\n102 1:A @0\n@5\n2:B @0\n@5",
         "1: 1(0 5) 2(0 5); 2: 1(0 5)"},
        {"one member of two cases keeps the first", "101 1:A @0\n@5\n2:B @0\n@5", "1: 1(0 5)"},
        {"one member of one case gets an entry without records", "101 1:A @0\n@5", "1:"},
        {"the same of a single station", "101 1:A @0", "1:"},
        {"a member of one case before another loses nothing", "101 1:A @0\n102 1:A @0", "1: 1(0); 2:"},
        {"members in any order", "103 1:A @0\n101 1:A @0\n102 1:A @0", "1: 1(0); 2:; 3: 1(0)"},
        {"cases in any order", "101 3:C @0\n1:A @0\n2:B @0", "1: 1(0) 3(0)"},
        {"the same case twice in a row: its stations go on", "101 1:A @0\n1:A @5\n2:B @0", "1: 1(0 5)"},
        {"the same case again later: appended", "101 1:A @0\n2:B @0\n1:A @5\n3:C @0", "1: 1(0 5) 2(0)"},
        {"the last case is lost even if it was there before", "101 1:A @0\n2:B @0\n1:A @5", "1: 1(0) 2(0)"},
        {"the same member again at once", "101 1:A @0\n101 2:B @0\n102 1:A @0", "1: 1(0) 2(0); 2:"},
        {"the same member again later", "101 1:A @0\n102 1:A @0\n101 1:A @5\n2:B @0\n103 1:A @0",
         "1: 1(0 5) 2(0); 2: 1(0); 3:"},
    });
}

TEST(ForceLines, LoseTheLastCaseOfEverySection)
{
    const std::string first = listings::section({"101 1:A @0", "2:B @0", "102 1:A @0", "2:B @0"});
    const std::string second = listings::section({"102 2:B @1", "3:C @0", "101 1:A @5", "3:C @0", "4:D @0"});
    EXPECT_EQ(listings::stations(listings::read(first + second)), "1: 1(0 5) 2(0) 3(0); 2: 1(0) 2(1) 3(0)")
        << "new cases are added, stations of a case that is there are appended";
    EXPECT_EQ(listings::stations(listings::read(first + first)), "1: 1(0) 2(0); 2: 1(0)")
        << "the same stations once more are no stations";
    const std::string without_member = listings::section({"@9", "5:E @0", "6:F @0"});
    EXPECT_EQ(listings::stations(listings::read(first + without_member)), "1: 1(0) 2(0); 2: 1(0)")
        << "no member is carried from one section to the next";
}

TEST(ForceLines, TakeTitlesOfAnyWords)
{
    expect_kept({
        {"blanks", "101 1:DEAD LOAD OF THE ROOF @0\n2:LIVE LOAD ON ALL FLOORS @0\n@5\n3:C @0", "1: 1(0) 2(0 5)"},
        {"colons", "101 1:COMB: 1.2 DEAD @0\n2:A : B:C @0\n@5\n3:C @0", "1: 1(0) 2(0 5)"},
        {"plus signs", "101 1:DEAD + LIVE @0\n2:WIND +X @0\n@5\n3:C @0", "1: 1(0) 2(0 5)"},
        {"numbers", "101 1:1.2 X 1 + 1.4 X 2 @0\n2:10 20 30 40 50 60 70 80 @0\n@5\n3:C @0", "1: 1(0) 2(0 5)"},
        {"none at all", "101 1: @0\n2: @0\n@5\n3: @0", "1: 1(0) 2(0 5)"},
        {"one that ends in E does not eat the position", "101 1:LIVE @0\n2:LIVE @0\n@5\n3:C @0", "1: 1(0) 2(0 5)"},
        {"nor does the last of several words", "101 1:SLAB CASE @0\n2:SLAB CASE @3\n@5\n3:LIVE @0", "1: 1(0) 2(3 5)"},
        {"nor an E between two words", "101 1:WIND E SIDE @0\n2:TYPE E @4\n@5\n3:C @0", "1: 1(0) 2(4 5)"},
        {"nor one right after the colon", "101 1:E @0\n2:E @3\n@5\n3:C @0", "1: 1(0) 2(3 5)"},
        {"a digit and E is an exponent wherever it stands: 3E and the position are one number",
         "101 1:A @0\n2:CASE 3E @1\n9:Z 1 2 3 4 5 6 7\n3:C @0", "1: 1(0) 2(30) 9(1)"},
        {"bytes past ASCII", "101 1:\xBA\xE3\xD4\xD8 @0\n2:\xE6\x81\x92\xE8\xBD\xBD @0\n@5\n3:C @0", "1: 1(0) 2(0 5)"},
    });
}

TEST(ForceLines, ReadLoadCaseNumbersUpToTheColon)
{
    expect_kept({
        {"text after the digits", "101 12abc:A @0\n2:B @0", "1: 12(0)"},
        {"no digits at all", "101 DEAD: @0\n2:B @0", "1: 0(0)"},
        {"nothing before the colon", "101 :A @0\n2:B @0", "1: 0(0)"},
        {"a sign", "101 -3:A @0\n+4:B @0\n2:B @0", "1: -3(0) 4(0)"},
        {"a fraction is cut", "101 2.9:A @0\n3:B @0", "1: 2(0)"},
        {"past 32 bits the nearest limit", "101 99999999999:A @0\n3:B @0", "1: 2147483647(0)"},
        {"a second colon does not matter", "101 1:2:3 @0\n4:5: @0\n6:B @0", "1: 1(0) 4(0)"},
        {"without a colon the whole word", "101 7 DEAD @0\n2:B @0", "1: 7(0)"},
        {"which may be text", "101 DEAD LOAD @0\n2:B @0", "1: 0(0)"},
    });
}

TEST(ForceLines, ReadMemberNumbersAsFarAsTheyGo)
{
    expect_kept({
        {"leading zeros", "0101 1:A @0\n2:B @0", "1: 1(0)"},
        {"a sign", "+102 1:A @0\n2:B @0", "2: 1(0)"},
        {"text after", "103abc 1:A @0\n2:B @0", "3: 1(0)"},
        {"a fraction is cut", "104.9 1:A @0\n2:B @0", "4: 1(0)"},
        {"an exponent is text", "1e2 1:A @0\n2:B @0", ""},
        {"text before: 0, which no member has", "M101 1:A @0\n2:B @0", ""},
        {"a position is no number", "1 1:A @0\n2:B @0", ""},
        {"negative", "-101 1:A @0\n2:B @0", ""},
        {"past 32 bits", "4294967397 1:A @0\n2:B @0", ""},
    });
}

TEST(ForceLines, SkipUnknownMembersWholly)
{
    expect_kept({
        {"first", "999 1:A @0\n@5\n2:B @0\n@5\n101 1:A @0\n2:B @0", "1: 1(0)"},
        {"in the middle: the member before it loses nothing",
         "101 1:A @0\n@5\n2:B @0\n@5\n999 1:A @7\n2:B @8\n@9\n102 1:A @0\n2:B @0", "1: 1(0 5) 2(0 5); 2: 1(0)"},
        {"last: the member before it loses nothing", "101 1:A @0\n@5\n2:B @0\n@5\n999 1:A @7\n@8\n2:B @9",
         "1: 1(0 5) 2(0 5)"},
        {"between two pieces of one member", "101 1:A @0\n999 1:A @7\n2:B @8\n101 2:B @5\n3:C @0", "1: 1(0) 2(5)"},
        {"several in a row", "999 1:A @7\n998 1:A @7\n997 1:A @7\n@8\n101 1:A @0\n2:B @0", "1: 1(0)"},
        {"all of them", "999 1:A @7\n@8\n998 2:B @7", ""},
        {"a last line that begins one", "101 1:A @0\n999 1:A @7", "1: 1(0)"},
        {"without a colon in its line it takes the case before it away", "101 1:A @0\n2:B @0\n999 3 @7\n102 1:A @0",
         "1: 1(0); 2:"},
        {"a word with its colon in a later word makes one of a title line",
         "101 1:A @0\nWIND LEFT: @7\n2:B @8\n102 1:A @0", "1: 1(0); 2:"},
    });
}

TEST(ForceLines, SkipDataBeforeAnyMember)
{
    expect_kept({
        {"stations", "@7\n@8\n101 1:A @0\n2:B @0", "1: 1(0)"},
        {"load cases", "1:A @7\n@8\n2:B @7\n101 1:A @0\n2:B @0", "1: 1(0)"},
        {"nothing else", "1:A @7\n@8\n2:B @7", ""},
        {"a single line", "@7", ""},
    });
}

TEST(ForceLines, LookAheadForAColon)
{
    expect_kept({
        {"a member line without any colon: the case before it is not added",
         "101 1:A @0\n2:B @0\n102 3 DEAD @0\n@5\n4:D @0", "1: 1(0); 2: 3(0 5)"},
        {"a colon in any word of it will do", "101 1:A @0\n2:B @0\n102 3 PART:B @0\n@5\n4:D @0",
         "1: 1(0) 2(0); 2: 3(0 5)"},
        {"eight words: a member whose case number is its position", "101 1:A @0\n102 @7\n@9\n2:B @0\n3:C @0",
         "1:; 2: 2(0) 7(7 9)"},
        {"seven words are a station, whatever they hold: a member line that lacks a value",
         "101 1:A @0\n102 2:B 0 1 2 3 4\n2:B @0", "1: 1(0 102)"},
        {"the same of a load case line", "101 1:A @0\n2:B 0 1 2 3 4 5\n3:C @0", "1: 1(0 2)"},
        {"a tab is part of a word: seven words", "101 1:A @0\n2:B\t0 1 2 3 4 5 6\n3:C @0", "1: 1(0 2)"},
        {"many blanks are as good as one", "   101    1:A     0 1  2   3 4 5 6  \n   2:B  @0 \n3:C @0", "1: 1(0) 2(0)"},
    });
}

TEST(ForceLines, PassOverLinesThatAreTooShort)
{
    expect_kept({
        {"between two stations", "101 1:A @0\n1 2 3 4 5 6\n@5\n2:B @0", "1: 1(0 5)"},
        {"with a colon in them they are not looked at", "101 1:A @0\nsee note: 3\n@5\n2:B @0", "1: 1(0 5)"},
        {"nor is one that would begin a case", "101 1:A @0\n2:B 0 1 2 3 4\n@5\n3:C @0", "1: 1(0 5)"},
        {"nor one that would begin a member", "101 1:A @0\n102\n@5\n2:B @0", "1: 1(0 5)"},
        {"the line after them is", "101 1:A @0\nx\ny z\n2:B @0\n\n   \n102 1:A @0", "1: 1(0) 2(0); 2:"},
        {"first", "x\n101\n101 1:A @0\n2:B @0", "1: 1(0)"},
        {"last: the member is handed over without its record", "101 1:A @0\n2:B @0\nx y", "1: 1(0)"},
        {"last of a member of one case", "101 1:A @0\n3:C 1 2 3", "1:"},
        {"last and without words", "101 1:A @0\n2:B @0\n   ", "1: 1(0)"},
        {"one that would begin an unknown member begins none", "101 1:A @0\n999 1 2\n@5\n2:B @0", "1: 1(0 5)"},
        {"among the lines of an unknown member", "999 1:A @0\n101\n@5\n2:B @0", ""},
        {"nothing else", "1\n2 3\nx:y z", ""},
    });
}

/// A line of `count` words of which the first is `first`: the last seven, as far as there are as many, are
/// the station at 7.
std::string line_of(int count, const std::string& first)
{
    const std::string station[] = {"7", "1", "2", "3", "4", "5", "6"};
    std::string line = first;
    for (int word = 2; word <= count; ++word)
        line += " " + (word > count - 7 ? station[word - (count - 7) - 1] : "w" + std::to_string(word));
    return line;
}

TEST(ForceLines, AreOfTheKindThatTheirWordsSay)
{
    for (int count = 1; count <= 20; ++count) {
        const std::string with_colon = stations_of({"101 1:A @0", line_of(count, "4:x"), "102 2:B @0"});
        const std::string plain = stations_of({"101 1:A @0", line_of(count, "103"), "102 2:B @0"});
        if (count < 7) {
            EXPECT_EQ(with_colon, "1: 1(0); 2:") << "too short, words: " << count;
            EXPECT_EQ(plain, "1: 1(0); 2:") << "too short, words: " << count;
        } else if (count == 7) {
            EXPECT_EQ(with_colon, "1: 1(0 4); 2:") << "a station at 4";
            EXPECT_EQ(plain, "1: 1(0 103); 2:") << "a station at 103";
        } else {
            EXPECT_EQ(with_colon, "1: 1(0) 4(7); 2:") << "load case 4, words: " << count;
            const char* const case_7 = "1:; 2:; 3: 7(7)"; // the position is the case word
            EXPECT_EQ(plain, count == 8 ? case_7 : "1:; 2:; 3: 0(7)") << "member 103, words: " << count;
        }
    }
}

} // namespace
} // namespace STAAD
