/// Elements, solids and surfaces: lines of them, copies, triangles.

#include "tests/unit/structure/shown_records.h"

#include <gtest/gtest.h>

#include <string>

namespace STAAD {
namespace {

struct element_case {
    const char* form;
    const char* lines; ///< line 5 is the first one; there are joints 1 to 9
    const char* records;
    const char* findings;
    const char* why;
};

template<class Records>
void expect_corners(const element_case& each, Records Structure::*records)
{
    SCOPED_TRACE(std::string(each.form) + ": " + each.why);
    const test::deck_reading read =
        test::read_text(std::string("STAAD SPACE\nUNIT METER KN\nJOINT COORDINATES\n1 0 0 0 9 8 0 0\n") + each.lines);
    EXPECT_EQ(test::shown_corners(read.structure, read.structure.*records), each.records);
    EXPECT_EQ(test::shown_findings(read.report), each.findings);
}

TEST(ReadElements, OfEveryForm)
{
    const element_case cases[] = {
        {"element-incidences", "ELEM INCI\n1 1 2 3 4; 2 5 6 7 8", "1:1-2-3-4 2:5-6-7-8", "", "without a kind"},
        {"element", "ELEMENT INCIDENCES SHELL\n 1 1 40 3 4\n2 1 2 3 4", "1:1-?-3-4 2:1-2-3-4", "joint-unknown@6",
         "a joint that no line defines"},
        {"element", "ELEM INCI\n1 1 2 3 4 5; 2 1 2; 3 1 2 0 4; 0 1 2 3; 4 1 2 X; 5 1 2 3 4", "5:1-2-3-4",
         "line-unread@6 line-unread@6 line-unread@6 line-unread@6 line-unread@6",
         "too many, too few, no joint, no number, a word"},
        {"element", "ELEM INCI\n1 1 2 3 4\n1 5 6 7 8", "1:5-6-7-8", "number-again@7", "the later counts"},
        {"triangle", "ELEM INCI\n1 1 2 3; 2 4 5 6 0", "1:1-2-3 2:4-5-6", "", "three corners, or a fourth of 0"},
        {"element-generation", "ELEM INCI\n1 1 2 7 6 TO 3", "1:1-2-7-6 2:2-3-8-7 3:3-4-9-8", "", "by one"},
        {"element-generation", "ELEM INCI\n1 1 2 5 to 6 2 2", "1:1-2-5 3:3-4-7 5:5-6-9", "",
         "triangles, elements and joints by two"},
        {"element-generation", "ELEM INCI\n4 1 2 5 TO 1\n5 1 2 5 TO 6 3\n6 1 2 5 TO\n7 1 2 5 TO 9 1 1 1",
         "4:1-2-5 5:1-2-5 6:1-2-5 7:1-2-5", "line-unread@6 line-unread@7 line-unread@8 line-unread@9",
         "lines that stand for no other"},
        {"element-generation", "ELEM INCI\n1 1 2 5\nREPEAT 2 10 1", "1:1-2-5 11:2-3-6 21:3-4-7", "",
         "copies of the line before"},
        {"element-generation", "ELEM INCI\n1 1 2 5\n2 2 3 6\nREPEAT ALL 1 10 2", "1:1-2-5 2:2-3-6 11:3-4-7 12:4-5-8",
         "", "copies of all before"},
        {"element-generation", "ELEM INCI\nREPEAT 1 1 1\n1 1 2 5\nREPEAT 1 1\nREPEAT 1 -1 0", "1:1-2-5",
         "line-unread@6 line-unread@8 line-unread@9", "nothing to copy, no steps, no number left"},
        {"unit-length-alone", "ELEM INCI\n1 1 2 5\nUNIT INCH\nREPEAT 1 1 1", "1:1-2-5 2:2-3-6", "",
         "the block goes on"},
        {"delete", "ELEM INCI\n1 1 2 5; 2 2 3 6\nDELETE ELEMENTS 1", "2:2-3-6", "", "takes an element away"},
        {"delete", "ELEM INCI\n1 1 2 5; 2 2 3 6\nDELETE ELEMENTS 3", "1:1-2-5 2:2-3-6", "element-unknown@7",
         "one that is not there"},
    };
    for (const element_case& each : cases)
        expect_corners(each, &Structure::elements);
}

TEST(ReadElements, ThatAreSolids)
{
    const element_case cases[] = {
        {"element-incidences", "ELEMENT INCIDENCES SOLID\n1 1 2 3 4 5 6 7 8", "1:1-2-3-4-5-6-7-8", "", "eight corners"},
        {"element-incidences", "ELEMENT INCIDENCES SOLID\n1 1 2 3 4\nUNIT FEET\n2 5 6 7 8; 3 1 2 3",
         "1:1-2-3-4 2:5-6-7-8", "line-unread@8", "four at least; the block goes on"},
        {"element-generation", "ELEM INCI SOLID\n1 1 2 3 4 5 6 7 8 TO 2", "1:1-2-3-4-5-6-7-8 2:2-3-4-5-6-7-8-9", "",
         "by one"},
        {"element-incidences", "ELEM INCI SHELL\n1 1 2 3 4", "", "", "elements are none"},
    };
    for (const element_case& each : cases)
        expect_corners(each, &Structure::solids);
}

TEST(ReadSurfaces, OfEveryForm)
{
    const element_case cases[] = {
        {"surface", "SURFACE INCIDENCE\n1 2 3 4 5 SURFACE 7\n2 3 4 SUR 8 DIVISION 2 2", "7:1-2-3-4-5 8:2-3-4", "",
         "any number of corners"},
        {"surface", "SURFACE INCIDENCE\n1 2 SURFACE 7\n1 2 3 8\n1 2 0 SURFACE 9\n1 2 3 SURFACE X", "",
         "line-unread@6 line-unread@7 line-unread@8 line-unread@9", "too few, no word, no joint, no number"},
        {"surface", "SURFACE INCIDENCE\n1 2 33 SURFACE 7\n4 5 6 SURFACE 7", "7:4-5-6", "number-again@7",
         "the later counts"},
    };
    for (const element_case& each : cases)
        expect_corners(each, &Structure::surfaces);
}

} // namespace
} // namespace STAAD
