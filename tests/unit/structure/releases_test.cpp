/// Releases of member ends.

#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

struct release_row {
    const char* form;
    std::vector<std::string> lines; // after MEMBER RELEASE
    const char* releases;           // as text_of() writes them, separated by " | "
    const char* warnings;
    const char* why;
};

/// "position end: degrees, partial factors, springs"; the letters are the member's own.
std::string text_of(const Structure::Release& release)
{
    static const char* const names[] = {"FX", "FY", "FZ", "MX", "MY", "MZ"};
    std::string text = std::to_string(release.member) + (release.is_end ? " end:" : " start:");
    for (std::size_t i = 0; i < 6; ++i)
        text += release.released[i] ? std::string(" ") + names[i] : std::string();
    for (std::size_t i = 0; i < 3; ++i)
        if (release.partial[i] != 0.0)
            text += std::string(" P") + names[3 + i] + "=" + std::to_string(release.partial[i]).substr(0, 4);
    for (std::size_t i = 0; i < 6; ++i)
        if (release.springs[i] != 0.0)
            text += std::string(" K") + names[i] + "=" + std::to_string(release.springs[i]);
    return text;
}

const release_row releases_rows[] = {
    {"release", {"1 START MY MZ"}, "0 start: MY MZ", "", "one end"},
    {"release", {"1 START MX END MZ FX"}, "0 start: MX | 0 end: FX MZ", "", "both ends on a line"},
    {"release", {"3 1 END MZ", "1 START FX"}, "2 end: MZ | 0 end: MZ | 0 start: FX", "", "an end keeps its own line"},
    {"release", {"1 2 BOTH MZ"}, "0 start: MZ | 0 end: MZ | 1 start: MZ | 1 end: MZ", "", "ends side by side"},
    {"release", {"1 START MY MZ", "1 start fx"}, "0 start: FX", "", "the later line replaces the end"},
    {"release", {"1 2 BOTH MZ", "1 END MX"}, "0 start: MZ | 1 start: MZ | 1 end: MZ | 0 end: MX", "", "one end of two"},
    {"release", {"1 MZ"}, "", "line-unread", "no end"},
    {"release", {"1 START"}, "", "line-unread", "nothing released"},
    {"release", {"1 START MZ SOFT"}, "0 start: MZ", "line-unread", "the rest of the line counts"},
    {"release", {"77 START MZ"}, "", "member-unknown", "no such member"},
    {"release-partial", {"1 START MPY 0.3 MPZ 0.4"}, "0 start: PMY=0.30 PMZ=0.40", "", "factors have no unit"},
    {"release-partial", {"1 END MP 0.5"}, "0 end: PMX=0.50 PMY=0.50 PMZ=0.50", "", "all three"},
    {"release-partial", {"1 END MPZ 1.5 MY"}, "0 end: MY", "line-unread", "a factor over 1 is none"},
    {"release-partial",
     {"1 START KMY 20 KFX 3 MZ"},
     "0 start: MZ KFX=0.003000 KMY=20000.000000",
     "",
     "3 kN/m is 0.003 kN/mm, 20 kN*m is 20000 kN*mm"},
};

TEST(Releases, OfMemberEnds)
{
    for (const release_row& row : releases_rows) {
        SCOPED_TRACE(row.lines.back() + ": " + row.why);
        std::vector<std::string> lines{"MEMBER RELEASE"};
        lines.insert(lines.end(), row.lines.begin(), row.lines.end());
        const auto read = test::read_in_frame(lines);
        std::string text;
        for (const Structure::Release& release : read.structure.releases)
            text += (text.empty() ? "" : " | ") + text_of(release);
        EXPECT_EQ(text, row.releases);
        EXPECT_EQ(test::warnings(read.report), row.warnings);
    }
}

TEST(Releases, AreKnownToTheirMembers)
{
    const auto read =
        test::read_in_frame({"MEMB RELE", "2 BOTH MZ", "1 START  MY", "UNIT FEET", "3 END KMZ 2"}, "SET Z UP");
    const Structure& structure = read.structure;
    ASSERT_EQ(structure.releases.size(), 4U);
    EXPECT_EQ(structure.members[0].start_release, 2);
    EXPECT_EQ(structure.members[0].end_release, -1);
    EXPECT_EQ(structure.members[1].start_release, 0);
    EXPECT_EQ(structure.members[1].end_release, 1);
    EXPECT_EQ(structure.releases[2].text, "START MY");
    EXPECT_EQ(test::case_line(structure, structure.releases[2].source), 3U);
    EXPECT_DOUBLE_EQ(structure.releases[3].springs[5], 609.6); // 2 kN*ft; letters stay with Z up
}

} // namespace
} // namespace STAAD
