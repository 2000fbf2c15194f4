#include "tests/unit/structure/described_loads.h"

#include <gtest/gtest.h>

// 1 kN/m2 is 1e-6 kN/mm2. Elements 11 and 12 have positions 0 and 1, members 1 to 6 positions 0 to 5.

namespace STAAD::test {

TEST(element_loads, each_form_gives_its_load)
{
    check_loads({
        {"pressure", {"LOAD 1", "ELEMENT LOAD", "11 PR -5"}, "pressure Z on 0: -5e-06", "", "along the local z axis"},
        {"pressure",
         {"LOAD 1", "ELEMENT LOAD", "11 12 PRESSURE GY -5"},
         "pressure GZ on 0-1: -5e-06",
         "",
         "a global direction"},
        {"pressure", {"LOAD 1", "ELEMENT LOAD", "11 PR LX 5"}, "pressure X on 0: 5e-06", "", "a local one"},
        {"pressure", {"LOAD 1", "ELEMENT LOAD", "11 PR 5 1"}, "", "line-unread", "half a place"},
        {"pressure", {"LOAD 1", "ELEMENT LOAD", "1 PR 5"}, "", "element-unknown list-no-record", "1 is a member"},
        {"partial-pressure",
         {"LOAD 1", "ELEMENT LOAD", "11 PR GY -5 0.1 0.2 0.3 0.4"},
         "partial GZ on 0: -5e-06 100 200 300 400",
         "",
         "on a part of the element"},
        {"partial-pressure",
         {"LOAD 1", "ELEMENT LOAD", "11 PR GY -5 0.1 0.2; 12 CON -3"},
         "at GZ on 0: -5 100 200; at Z on 1: -3",
         "",
         "a force at a point, or at the centre"},
        {"corner-pressure",
         {"LOAD 1", "ELEMENT LOAD", "11 TRAP JT 1 2 3 4; 12 TRAP GY JT 1 2 3"},
         "corner Z on 0: 1e-06 2e-06 3e-06 4e-06; corner GZ on 1: 1e-06 2e-06 3e-06",
         "",
         "four corners or three"},
        {"corner-pressure",
         {"LOAD 1", "ELEMENT LOAD", "11 TRAP X 1 2; 12 TRAP GY Y 3 4"},
         "trapezoidal Z along X on 0: 1e-06 2e-06; trapezoidal GZ along Y on 1: 3e-06 4e-06",
         "",
         "along an axis of the element"},
        {"corner-pressure", {"LOAD 1", "ELEMENT LOAD", "11 TRAP JT 1 2"}, "", "line-unread", "two corners of three"},
        {"corner-pressure", {"LOAD 1", "ELEMENT LOAD", "11 TRAP Z 1 2"}, "", "line-unread", "no axis in the plane"},
    });
}

TEST(self_weight, is_on_members_and_elements)
{
    const std::vector<std::string> plates = {"LOAD 1", "SELFWEIGHT Y -1"};
    check_loads({
        {"self-weight", plates, "weight GZ on 0-5/0-1: -1", "", "without a list on everything"},
        {"self-weight", {"LOAD 1", "SELF Z 1.15 "}, "weight GX on 0-5/0-1: 1.15", "", "file Z is model x"},
        {"self-weight", {"LOAD 1", "SELFWEIGHT Z -1"}, "weight GZ on 0-5/0-1: -1", "", "Z up", "SET Z UP"},
        {"self-weight", {"LOAD 1", "SELFWEIGHT -1"}, "", "line-unread", "no direction"},
        {"self-weight-all", {"LOAD 1", "SELFWEIGHT Y -1 LIST ALL"}, "weight GZ on 0-5/0-1: -1", "", "the same"},
        {"self-weight-list",
         {"LOAD 1", "SELFWEIGHT Y -1 LIST 1 TO 3 -", "11"},
         "weight GZ on 0-2/0: -1",
         "",
         "members and elements of the list"},
        {"self-weight-list", {"LOAD 1", "SELFWEIGHT Y -1 1 2"}, "weight GZ on 0-1: -1", "", "without the word LIST"},
        {"self-weight-list",
         {"LOAD 1", "SELFWEIGHT Y -1 LIST 1 NOW"},
         "weight GZ on 0: -1",
         "line-unread",
         "a word too many"},
    });
    const deck_reading reading = read_text("STAAD SPACE\nUNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 1 0 0; 3 1 0 1\n"
                                           "ELEMENT INCIDENCES\n5 1 2 3\nLOAD 1\nSELFWEIGHT Y -1\n");
    EXPECT_EQ(described_loads(reading.structure), "weight GZ on /0: -1") << "a deck of elements alone";
}

TEST(temperature_loads, each_form_gives_its_load)
{
    check_loads({
        {"temperature",
         {"LOAD 1", "TEMPERATURE LOAD", "1 TO 3 11 TEMP 25"},
         "temp on 0-2/0: 25",
         "",
         "members and elements; degrees have no unit"},
        {"temperature",
         {"LOAD 1", "TEMP LOAD", "1 TEMP 25 -10 5"},
         "temp on 0: 25 -10 5",
         "",
         "over the depth, across"},
        {"temperature", {"LOAD 1", "TEMP LOAD", "1 STRAIN 0.002"}, "strain on 0: 2", "", "an elongation in length"},
        {"temperature", {"LOAD 1", "TEMP LOAD", "1 STRAINRATE 0.002"}, "", "line-unread", "something else"},
        {"temperature", {"LOAD 1", "TEMP LOAD", "1 TEMP"}, "", "line-unread", "no value"},
    });
}

} // namespace STAAD::test
