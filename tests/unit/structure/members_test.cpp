/// Members: lines of them, copies, forgotten semicolons, unknown and deleted joints.

#include "tests/unit/structure/shown_records.h"

#include <gtest/gtest.h>

#include <string>

namespace STAAD {
namespace {

TEST(ReadMembers, OfEveryForm)
{
    const struct {
        const char* form;
        const char* lines; ///< line 6 is the first one; there are joints 1 to 9, every metre along the file's X
        const char* members;
        const char* findings;
        const char* why;
    } cases[] = {
        {"member-incidences", "1 1 2; 2 2 3\n3 3 4;", "1:1-2 2:2-3 3:3-4", "", "items"},
        {"member", "1 1 12; 2 2 3", "1:1-? 2:2-3", "joint-unknown@6", "a joint that no line defines"},
        {"member", "1 0 5; 2 -3 5; 0 1 2; 3 1.5 2; 4 1 2", "4:1-2",
         "line-unread@6 line-unread@6 line-unread@6 line-unread@6", "numbers that no joint or member can have"},
        {"member", "1 1; 2 1 2 X; 3 2 3", "3:2-3", "line-unread@6 line-unread@6",
         "too few, a word; the other items go on"},
        {"member", "1 1 2\n2 2 3\n1 3 4", "1:3-4 2:2-3", "number-again@8", "the later, in the place of the earlier"},
        {"member-generation", "1 1 2 4", "1:1-2 2:2-3 3:3-4 4:4-5", "", "by one"},
        {"member-generation", "1 1 2 5 2", "1:1-2 3:2-3 5:3-4", "", "members by two"},
        {"member-generation", "1 1 2 6 2 3", "1:1-2 3:4-5 5:7-8", "", "joints by three; the step misses the end"},
        {"member-generation", "1 1 2 5 2 4", "1:1-2 5:2-4", "two-items@6",
         "a joint that is not there: the \";\" is forgotten"},
        {"member-generation", "1 1 2 3 1 9\nJOINT COORDINATES\n19 0 1 0; 20 0 2 0", "1:1-2 3:1-9", "two-items@6",
         "one among them"},
        {"member-generation", "3 3 1 -\n4 9 8", "3:3-1 4:9-8", "two-items@6", "a step past the end yields nothing"},
        {"member-generation", "5 1 2 4 2 3", "5:1-2 4:2-3", "two-items@6", "numbers do not fall"},
        {"member-generation", "5 1 2 4 2 33\n6 1 2 6", "5:1-2 6:1-2", "line-unread@6 line-unread@7", "neither way"},
        {"member-generation", "1 1 2\nREPEAT 2 10 1", "1:1-2 11:2-3 21:3-4", "", "copies of the line before"},
        {"member-generation", "1 1 2\nREPEAT 1 10 1\nREPEAT 1 20 2", "1:1-2 11:2-3 21:3-4", "",
         "copies are no part of it"},
        {"member-generation", "1 1 2\n2 2 3\nREPEAT ALL 1 10 3", "1:1-2 2:2-3 11:4-5 12:5-6", "",
         "copies of all before"},
        {"member-generation", "1 1 2\nREPEAT ALL 1 1 1\nREPEAT ALL 1 10 2", "1:1-2 2:2-3 11:3-4 12:4-5", "",
         "copies among them"},
        {"member-generation", "1 1 2\nREPEAT ALL 1 10 2\nREPEAT 1 20 4", "1:1-2 11:3-4 21:5-6", "",
         "copies of all are no part of the line before"},
        {"member-generation", "1 1 2\nREPEAT 1 10\nREPEAT 1 1.5 1\nREPEAT 1 1 1 1", "1:1-2",
         "line-unread@7 line-unread@8 line-unread@9", "two whole steps, no more"},
        {"member-generation", "REPEAT 1 1 1\n1 1 2", "1:1-2", "line-unread@6", "nothing to copy"},
        {"member-generation", "2147483647 1 2\nREPEAT 1 1 0", "2147483647:1-2", "line-unread@7", "no number is left"},
        {"unit-length-alone", "1 1 2\nUNIT FEET\nREPEAT 1 1 1", "1:1-2 2:2-3", "", "the block goes on"},
        {"member-incidences", "1 1 2\nMEMBER INCIDENCES\nREPEAT 1 1 1", "1:1-2", "line-unread@8",
         "another block has lines of its own"},
        {"delete", "1 1 2; 2 2 3; 3 3 4\nDELETE MEMBERS 1 TO 2 7", "3:3-4", "member-unknown@7", "members"},
        {"delete", "1 1 2; 2 3 4\nDELETE JOINT 2 9", "1:1-? 2:3-4", "joint-unknown@6", "a joint that a member has"},
        {"delete", "1 1 2; 2 3 4\nDELETE MEMB 1\nDELETE JOINTS 1 2", "2:3-4", "", "with its joints, on several lines"},
        {"delete", "1 1 2; 2 2 3; 3 3 4\nDELETE MEMBERS XRANGE 0 1.5", "2:2-3 3:3-4", "", "what lies in a range whole"},
        {"delete", "1 1 2; 2 2 3\nDELETE 1\nDELETE FOO 1", "1:1-2 2:2-3", "line-unread@7 line-unread@8",
         "it must say what"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.form) + ": " + each.why);
        const test::deck_reading read = test::read_text(
            std::string("STAAD SPACE\nUNIT METER KN\nJOINT COORDINATES\n1 0 0 0 9 8 0 0\nMEMBER INCIDENCES\n") +
            each.lines);
        EXPECT_EQ(test::shown_members(read.structure), each.members);
        EXPECT_EQ(test::shown_findings(read.report), each.findings);
    }
}

} // namespace
} // namespace STAAD
