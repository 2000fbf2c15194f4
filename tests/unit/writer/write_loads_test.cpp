/// Load cases and member loads.

#include "staad/model/sd_reader.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using written::add_case;
using written::add_load;
using written::row_of_members;
using written::supports_to_loads;
using written::uniform;

SdReader with_case(int members, int number = 1)
{
    SdReader model = row_of_members(members);
    add_case(model, number);
    return model;
}

TEST(WriteLoads, WritesNothingWithoutDefinitionsOrWithoutCases)
{
    EXPECT_EQ(supports_to_loads(with_case(2)), "") << "cases alone";
    SdReader model = row_of_members(2);
    add_load(model, uniform(-5, 1), {1});
    EXPECT_EQ(supports_to_loads(model), "") << "definitions alone";
}

TEST(WriteLoads, TitlesEachCaseByItsNumber)
{
    SdReader model = row_of_members(1);
    add_case(model, 12, "Wind");
    add_case(model, 3, "");
    add_case(model, -7, "Roof Live \xB7\xE7");
    add_load(model, {"JOINT LOAD", "Z", {0, 0, 0, 0, 0, 0}, 3}, {});
    EXPECT_EQ(supports_to_loads(model), "LOAD -7 LOADTYPE Roof Live \xB7\xE7 TITLE LOAD CASE -7\n"
                                        "LOAD 3 LOADTYPE  TITLE LOAD CASE 3\n"
                                        "LOAD 12 LOADTYPE Wind TITLE LOAD CASE 12\n");
}

struct definition_row {
    const char* why;
    LoadDefination load;
    const char* want; ///< the line after the member's number; none: the definition is not written
};

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

const definition_row definition_rows[] = {
    {"the kind's last word, direction and values as stored",
     {"MEMBER LOAD UNI", "GZ", {-0.005, 0, 3000}, 1},
     "UNI GZ -0.005000 0.000000 3000.000000"},
    {"every word after the twelfth character", {"MEMBER LOAD CON AND MORE", "GY", {1}, 1}, "CON AND MORE GY 1.000000"},
    {"no direction: two blanks", {"MEMBER LOAD UMOM", "", {1}, 1}, "UMOM  1.000000"},
    {"no values", {"MEMBER LOAD TRAP", "X", {}, 1}, "TRAP X"},
    {"nothing after the twelfth character", {"MEMBER LOAD ", "X", {2}, 1}, " X 2.000000"},
    {"six places, rounded, ties by what the double is",
     {"MEMBER LOAD LIN", "Z", {0.0000005, 1.9999996, 2.5e-7}, 1},
     "LIN Z 0.000000 2.000000 0.000000"},
    {"negative zero, and less than the last place",
     {"MEMBER LOAD UNI", "Z", {-0.0, -1e-9}, 1},
     "UNI Z -0.000000 -0.000000"},
    {"no numbers", {"MEMBER LOAD UNI", "Z", {not_a_number, infinity, -infinity}, 1}, "UNI Z nan inf -inf"},

    {"no blank after LOAD", {"MEMBER LOAD", "GZ", {-5}, 1}, nullptr},
    {"small letters", {"Member Load UNI", "GZ", {-5}, 1}, nullptr},
    {"not at the beginning", {" MEMBER LOAD UNI", "GZ", {-5}, 1}, nullptr},
    {"a joint load", {"JOINT LOAD", "Z", {0, 0, -5, 0, 0, 0}, 1}, nullptr},
    {"an area load", {"AREA LOAD ALOAD", "Z", {-5}, 1}, nullptr},
    {"a floor load", {"FLOOR LOAD", "Z", {}, 1}, nullptr},
    {"self weight", {"SELFWEIGHT", "Z", {-1}, 1}, nullptr},
    {"a load that was not understood", {"", "", {}, 1}, nullptr},
    {"another case", {"MEMBER LOAD UNI", "GZ", {-5}, 2}, nullptr},
};

TEST(WriteLoads, WritesMemberLoadsOfTheCaseAsStored)
{
    for (const definition_row& row : definition_rows) {
        SdReader model = with_case(1);
        add_load(model, row.load, {1});
        std::string want = "LOAD 1 LOADTYPE Dead TITLE LOAD CASE 1\n";
        if (row.want != nullptr)
            want += std::string("MEMBER LOAD\n1 ") + row.want + '\n';
        EXPECT_EQ(supports_to_loads(model), want) << row.why;
    }
}

TEST(WriteLoads, OrdersTheLinesOfACaseByTheirText)
{
    SdReader model = with_case(3);
    add_load(model, {"MEMBER LOAD UNI", "GZ", {-5}, 1}, {1});
    add_load(model, {"MEMBER LOAD UNI", "GZ", {-10}, 1}, {2});
    add_load(model, {"MEMBER LOAD CON", "GZ", {-5}, 1}, {3});
    add_load(model, {"MEMBER LOAD UNI", "GX", {10}, 1}, {3});
    EXPECT_EQ(written::between(model, "MEMBER LOAD", "DEFINE WIND LOAD"), "3 CON GZ -5.000000\n"
                                                                          "3 UNI GX 10.000000\n"
                                                                          "2 UNI GZ -10.000000\n"
                                                                          "1 UNI GZ -5.000000\n");
}

TEST(WriteLoads, JoinsTheMembersOfEqualLoadsByTheirNewNumbers)
{
    SdReader model = with_case(7);
    for (SdBeam& member : model.beams)
        member.id += 100;
    add_load(model, uniform(-5, 1), {7, 1, 7});   // a member that carries it twice is named twice
    add_load(model, uniform(-5.0000001, 1), {3}); // prints the same
    add_load(model, uniform(-5, 1), {2});
    EXPECT_EQ(written::between(model, "MEMBER LOAD", "DEFINE WIND LOAD"), "1 TO 3 7 7 UNI GZ -5.000000\n");
}

TEST(WriteLoads, LeavesOutWhatNoMemberCarriesAndWhatIsNotDefined)
{
    SdReader model = with_case(2);
    add_load(model, uniform(-5, 1), {});
    add_load(model, uniform(-6, 9), {1}); // of no case
    model.beams[1].int_list = {0, -1, 3, INT_MAX, INT_MIN};
    EXPECT_EQ(supports_to_loads(model), "LOAD 1 LOADTYPE Dead TITLE LOAD CASE 1\n");
}

TEST(WriteLoads, TakesDefinitionsUnderAnyNumber)
{
    SdReader model = with_case(2);
    model.load_defs = {{INT_MIN, uniform(1, 1)}, {0, uniform(2, 1)}, {INT_MAX, uniform(3, 1)}};
    model.beams[0].int_list = {INT_MIN, INT_MAX};
    model.beams[1].int_list = {0, INT_MAX};
    EXPECT_EQ(written::between(model, "MEMBER LOAD", "DEFINE WIND LOAD"),
              "1 UNI GZ 1.000000\n2 UNI GZ 2.000000\n1 TO 2 UNI GZ 3.000000\n");
}

TEST(WriteLoads, GoesByTheNumberInTheCaseRecord)
{
    SdReader model = row_of_members(1);
    add_case(model, 5);
    model.load_cases[5].id = 8; // under another key
    add_load(model, uniform(-5, 5), {1});
    add_load(model, uniform(-8, 8), {1});
    EXPECT_EQ(supports_to_loads(model), "LOAD 8 LOADTYPE Dead TITLE LOAD CASE 8\nMEMBER LOAD\n1 UNI GZ -8.000000\n");
}

// ---- the running load number, as the generated cases show it -------------------------------------------------

std::string first_case(const std::string& text)
{
    for (const std::string& line : written::lines_of(text)) {
        if (line.rfind("LOAD ", 0) == 0)
            return line;
    }
    return "none";
}

struct number_row {
    const char* why;
    std::vector<int> cases;
    bool has_definitions;
    const char* wind;
    const char* seismic; ///< the next number
};

const number_row number_rows[] = {
    {"no cases", {}, true, "4", "5"},
    {"cases without any definition are not written and do not count", {3}, false, "4", "5"},
    {"the highest", {3, 1, 2}, true, "7", "8"},
    {"cases below 0 do not count", {-5}, true, "4", "5"},
    {"past the largest number it goes on from the least", {INT_MAX}, true, "-2147483645", "-2147483644"},
    {"up to the largest number", {INT_MAX - 4}, true, "2147483647", "-2147483648"},
};

TEST(WriteLoads, LeavesTheHighestCaseNumberToTheGeneratedCases)
{
    for (const number_row& c : number_rows) {
        SdReader model = row_of_members(1);
        for (const int number : c.cases)
            add_case(model, number);
        if (c.has_definitions)
            add_load(model, {"SELFWEIGHT", "Z", {-1}, 77}, {1});
        EXPECT_EQ(first_case(written::wind(model)), std::string("LOAD ") + c.wind + " WL AUTO WIND LOAD") << c.why;
        EXPECT_EQ(first_case(written::seismic(model)), std::string("LOAD ") + c.seismic + " EX AUTO RESPONSE SPECTRUM")
            << c.why;
    }
}

} // namespace
} // namespace STAAD
