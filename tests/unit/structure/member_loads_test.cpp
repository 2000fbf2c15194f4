#include "tests/unit/structure/described_loads.h"

#include <gtest/gtest.h>

// METER KN: 1 kN/m is 0.001 kN/mm, 1 m is 1000 mm. The file's X, Y, Z are the model's y, z, x; after SET Z UP x, y, z.
// Members 1 to 6 have positions 0 to 5.

namespace STAAD::test {

TEST(member_loads, each_form_gives_its_load)
{
    check_loads({
        {"uniform", {"LOAD 1", "MEMBER LOAD", "1 TO 3 UNI GY -5"}, "uniform GZ on 0-2: -0.005", "", "file Y is up"},
        {"uniform", {"LOAD 1", "MEMBER LOAD", "1 UNI GY -5"}, "uniform GY on 0: -0.005", "", "not turned", "SET Z UP"},
        {"uniform",
         {"LOAD 1", "MEMBER LOAD", "2 6 UNI GX 2 0.5 1.5 0.1"},
         "uniform GY on 1,5: 0.002 500 1500 100",
         "",
         "from, to and a distance are lengths"},
        {"uniform", {"LOAD 1", "MEMBER LOAD", "1 UNIF PZ 4"}, "uniform PX on 0: 0.004", "", "projected; a spelling"},
        {"uniform", {"load 1", "memb load", "1 uni gy -5"}, "uniform GZ on 0: -0.005", "", "lower case"},
        {"uniform", {"LOAD 1", "MEMBER LOAD", "1 UNI GY"}, "", "line-unread", "no value"},
        {"uniform", {"LOAD 1", "MEMBER LOAD", "1 UNI GW 5"}, "", "line-unread", "no such direction"},
        {"uniform",
         {"LOAD 1", "MEMBER LOAD", "1 UNI GY 5 1 2 3 4 5"},
         "uniform GZ on 0: 0.005 1000 2000 3000 4000",
         "line-unread",
         "more numbers than the form has"},
        {"uniform", {"LOAD 1", "MEMBER LOAD", "99 UNI GY 5"}, "", "member-unknown list-no-record", "no such member"},
        {"uniform",
         {"LOAD 1", "MEMBER LOAD 1 UNI GY 5", "2 UNI GY 5"},
         "uniform GZ on 1: 0.005",
         "line-unread",
         "a load in the line of the command is not read, and reported"},
        {"uniform-local", {"LOAD 1", "MEMBER LOAD", "1 UNI Y -5"}, "uniform Y on 0: -0.005", "", "never turned"},
        {"uniform-local", {"LOAD 1", "MEMBER LOAD", "1 UNI Z 5"}, "uniform Z on 0: 0.005", "", "the same", "SET Z UP"},
        {"concentrated", {"LOAD 1", "MEMBER LOAD", "1 CON GY -7"}, "point GZ on 0: -7", "", "in the middle"},
        {"concentrated",
         {"LOAD 1", "MEMBER LOAD", "1 CONC X -7 1.5 0.1 0.2"},
         "point X on 0: -7 1500 100 200",
         "",
         "with place and distances"},
        {"concentrated", {"LOAD 1", "MEMBER LOAD", "1 CONN Y 5"}, "point Y on 0: 5", "", "longer words begin alike"},
        {"concentrated", {"LOAD 1", "MEMBER LOAD", "1 CO Y 5"}, "", "line-unread", "too short for a form"},
        {"moment",
         {"LOAD 1", "MEMBER LOAD", "1 CMOM GX 2 1; 2 UMOM Z 3 0 1; 3 MOM Y 1"},
         "moment GY on 0: 2000 1000; umoment Z on 1: 3 0 1000; moment Y on 2: 1000",
         "",
         "kN*m is 1000 kN*mm, kN*m/m is kN"},
        {"moment",
         {"LOAD 1", "MEMBER LOAD", "1 LIN GY -1 -2; 2 LIN Y 0 0 -3; 3 TRAP GY -1 -2 0.5 1"},
         "linear GZ on 0: -0.001 -0.002; linear Y on 1: 0 0 -0.003; trapezoid GZ on 2: -0.001 -0.002 500 1000",
         "",
         "all values of LIN are loads, of TRAP two"},
        {"moment", {"LOAD 1", "MEMBER LOAD", "1 LIN GY -1"}, "", "line-unread", "one value of two"},
        {"moment",
         {"LOAD 1", "MEMBER LOAD", "1 2 UNI GY -1; CON GY -2 1; 3 CON GY -3"},
         "uniform GZ on 0-1: -0.001; point GZ on 0-1: -2 1000; point GZ on 2: -3",
         "",
         "an item without a list goes on with the list before it"},
        {"moment",
         {"LOAD 1", "MEMBER LOAD", "1 UNI GY -1 CON GY 2"},
         "uniform GZ on 0: -0.001; point GZ on 0: 2",
         "",
         "two loads in one item"},
    });
}

TEST(member_loads, numbers_are_in_the_units_of_their_place)
{
    // 1 kip/ft is 4.4482216152605 kN / 304.8 mm; 1 kg is 0.00980665 kN.
    check_loads({
        {"uniform",
         {"LOAD 1", "UNIT FEET KIP", "MEMBER LOAD", "1 UNI GY -1", "UNIT METER KG", "2 UNI GY -100"},
         "uniform GZ on 0: -0.0145939029; uniform GZ on 1: -0.000980665",
         "",
         "a block goes on after UNIT"},
    });
}

TEST(member_loads, keep_their_words_and_lines)
{
    const deck_reading reading = read_in_frame({"LOAD 1", "MEMBER LOAD", "1 TO 3  UNI  GY -5.0 ; 4 con gy -7"});
    const auto& loads = reading.structure.load_cases.at(0).loads;
    ASSERT_EQ(loads.size(), 2U);
    EXPECT_EQ(loads[0].text, "UNI GY -5.0");
    EXPECT_EQ(loads[1].text, "con gy -7");
    EXPECT_EQ(case_line(reading.structure, loads[1].source), 3U);
}

} // namespace STAAD::test
