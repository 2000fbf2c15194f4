#include "tests/unit/structure/described_loads.h"

#include <gtest/gtest.h>

// Joints 1 to 8 have positions 0 to 7. The file's FX, FY, FZ are the model's second, third and first force.

namespace STAAD::test {

TEST(joint_loads, each_form_gives_its_load)
{
    check_loads({
        {"joint-load",
         {"LOAD 1", "JOINT LOAD", "1 TO 3 FX 1 FY 2 FZ 3 MX 4 MY 5 MZ 6"},
         "joint on 0-2: 3 1 2 6000 4000 5000",
         "",
         "all six, in axes of the model"},
        {"joint-load",
         {"LOAD 1", "JOINT LOAD", "1 FX 1 FY 2 FZ 3 MX 4"},
         "joint on 0: 1 2 3 4000 0 0",
         "",
         "Z up: as they stand",
         "SET Z UP"},
        {"joint-load",
         {"LOAD 1", "JOINT LOAD", "8 MZ 2 FY -0"},
         "joint on 7: 0 0 -0 2000 0 0",
         "",
         "any, in any order"},
        {"joint-load", {"LOAD 1", "JOINT LOAD", "1 FY 1 FY 2"}, "joint on 0: 0 0 2 0 0 0", "", "the later counts"},
        {"joint-load",
         {"LOAD 1", "JOINT LOAD", "1 FY 1; 2 FX 2; FZ 3"},
         "joint on 0: 0 0 1 0 0 0; joint on 1: 0 2 0 0 0 0; joint on 1: 3 0 0 0 0 0",
         "",
         "items"},
        {"joint-load",
         {"LOAD 1", "JOINT LOAD", "1 FY 1 FW 2"},
         "joint on 0: 0 0 1 0 0 0",
         "line-unread",
         "a word that is no force is reported, the rest counts"},
        {"joint-load", {"LOAD 1", "JOINT LOAD", "1 FY"}, "", "line-unread", "no value"},
        {"joint-load",
         {"START GROUP DEFINITION", "JOINT", "_TOP 2 3", "END GROUP DEFINITION", "LOAD 1", "JOINT LOAD", "_top FY -1"},
         "joint on 1-2: 0 0 -1 0 0 0",
         "",
         "a group, whatever the case of its name"},
    });
}

} // namespace STAAD::test
