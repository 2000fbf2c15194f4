/// Truss, tension, compression, cable; cracked members.

#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

struct behaviour_row {
    const char* form;
    std::vector<std::string> lines;
    const char* kinds; // a letter for each of the six members: N T t c k
    const char* warnings;
    const char* why;
};

const behaviour_row behaviour_rows[] = {
    {"truss", {"MEMBER TRUSS", "1 TO 2", "5"}, "TTNNTN", "", "any number of lines"},
    {"truss", {"MEMB TRUS ", "1; 3"}, "TNTNNN", "", "short words, items"},
    {"truss",
     {"MEMBER TRUSS", "_BRACES", "START GROUP DEFINITION", "MEMBER", "_braces 4 6", "END GROUP DEFINITION"},
     "NNNTNT",
     "",
     "a group that is defined after its use"},
    {"tension", {"MEMBER TENSION", "1 2", "MEMBER COMPRESSION", "3", "MEMBER CABLE", "4"}, "ttckNN", "", "four kinds"},
    {"tension", {"MEMBER TENSION", "ALL", "MEMBER TRUSS", "2"}, "tTtttt", "", "the later line counts"},
    {"tension", {"MEMBER TRUSS", "2", "MEMBER TENSION", "ALL"}, "tttttt", "", "whatever the command"},
    {"tension", {"MEMBER TENSION 0", "1"}, "tNNNNN", "", "a number after the word is no list"},
    {"tension", {"MEMBER TENSION SOFT", "1"}, "tNNNNN", "line-unread", "a word there is reported"},
    {"tension", {"MEMBER CABLE", "1 TENSION 0", "2 TENSION 5"}, "kkNNNN", "line-unread", "what stretches a cable"},
    {"truss", {"MEMBER TRUSS", "1 STIFF"}, "TNNNNN", "line-unread", "words left over"},
    {"truss", {"MEMBER TRUSS", "1 45"}, "TNNNNN", "member-unknown", "no such member"},
};

TEST(Behaviour, OfMembers)
{
    for (const behaviour_row& row : behaviour_rows) {
        SCOPED_TRACE(row.lines.back() + ": " + row.why);
        const auto read = test::read_in_frame(row.lines);
        std::string kinds;
        for (const Structure::Member& member : read.structure.members)
            kinds += "NTtck"[static_cast<int>(member.behaviour)];
        EXPECT_EQ(kinds, row.kinds);
        EXPECT_EQ(test::warnings(read.report), row.warnings);
    }
}

struct cracked_row {
    const char* form;
    std::vector<std::string> lines;
    const char* members; // position of the record of each member, "-" for none
    std::vector<std::vector<double>> records;
    const char* warnings;
    const char* why;
};

const cracked_row cracked_rows[] = {
    {"cracked", {"1 3 REDUCTION RIY 0.7 RIZ 0.35"}, "0-0---", {{1, 1, 1, 1, 0.7, 0.35}}, "", "members share it"},
    {"cracked", {"1 REDUCTION RAX .1 RAY .2 RAZ .3 RIX .4"}, "0-----", {{.1, .2, .3, .4, 1, 1}}, "", "the others"},
    {"cracked", {"ALL REDUCTION RIX .5", "1 TO 6 REDUCTION RIX .6"}, "000000", {{1, 1, 1, .6, 1, 1}}, "", "the later"},
    {"cracked", {"1 REDUCTION RIX .5", "2 redu rix .6"}, "01----", {{1, 1, 1, .5, 1, 1}, {1, 1, 1, .6, 1, 1}}, "", ""},
    {"cracked", {"1 REDUCTION RIX .5 ROX .6"}, "0-----", {{1, 1, 1, .5, 1, 1}}, "line-unread", "a word that is none"},
    {"cracked", {"1 RIX .5", "2 REDUCTION RIX"}, "------", {}, "line-unread line-unread", "no REDUCTION, no number"},
};

TEST(Behaviour, OfCrackedMembers)
{
    for (const cracked_row& row : cracked_rows) {
        SCOPED_TRACE(row.lines.back() + ": " + row.why);
        std::vector<std::string> lines{"MEMBER CRACKED"};
        lines.insert(lines.end(), row.lines.begin(), row.lines.end());
        const auto read = test::read_in_frame(lines);
        std::string members;
        for (const Structure::Member& member : read.structure.members)
            members += member.cracked < 0 ? "-" : std::to_string(member.cracked);
        EXPECT_EQ(members, row.members);
        std::vector<std::vector<double>> records;
        for (const Structure::Cracked& each : read.structure.cracked)
            records.push_back({each.ax, each.ay, each.az, each.ix, each.iy, each.iz});
        EXPECT_EQ(records, row.records);
        EXPECT_EQ(test::warnings(read.report), row.warnings);
    }
}

} // namespace
} // namespace STAAD
