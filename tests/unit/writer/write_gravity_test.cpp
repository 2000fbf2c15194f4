/// The equivalent gravity of the generated seismic case: member loads by the factors of their cases.

#include "staad/model/sd_reader.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <algorithm>
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
using written::uniform;

struct basic_case {
    int number;
    double factor;
};

/// The line of the basic load cases and everything after it, but for the lines of the two missing spectra.
std::string gravity(SdReader model, const std::vector<basic_case>& basic_cases)
{
    model.eq_param.loadno_count = static_cast<int>(basic_cases.size());
    for (const basic_case& each : basic_cases) {
        model.eq_param.loadno.push_back(each.number);
        model.eq_param.loadno_factor.push_back(each.factor);
    }
    const std::string text = written::seismic(model);
    const std::size_t begin = text.find("*{ LOADNO FACTOR");
    EXPECT_EQ(text.substr(text.size() - 2), "\n\n");
    return text.substr(begin, text.size() - 2 - begin);
}

SdReader with_cases(int members, const std::vector<int>& cases)
{
    SdReader model = row_of_members(members);
    for (const int number : cases)
        add_case(model, number);
    return model;
}

TEST(WriteGravity, HasEveryLoadOfTheBasicCasesInBothDirections)
{
    SdReader model = with_cases(4, {1, 2});
    add_load(model, {"MEMBER LOAD UNI", "GZ", {-12.345, 0, 3000}, 1}, {1, 2, 4});
    add_load(model, {"MEMBER LOAD CON", "Z", {-7.5, 1500}, 2}, {3});
    EXPECT_EQ(gravity(model, {{1, 1}, {2, 0.5}}), "*{ LOADNO FACTOR : 1 1.0000 2 0.5000 \n"
                                                  "*{ 1.0000 * LOAD 1\n"
                                                  "MEMBER LOAD\n"
                                                  "1 TO 2 4 UNI GX -12.35 0.00 3000.00 \n"
                                                  "1 TO 2 4 UNI GZ -12.35 0.00 3000.00 \n"
                                                  "*{ 0.5000 * LOAD 2\n"
                                                  "MEMBER LOAD\n"
                                                  "3 CON GX -3.75 750.00 \n"
                                                  "3 CON GZ -3.75 750.00 \n");
}

TEST(WriteGravity, TakesTheCasesInTheOrderGivenAndAsOftenAsGiven)
{
    SdReader model = with_cases(1, {1, 2});
    add_load(model, uniform(-1, 1), {1});
    add_load(model, uniform(-2, 2), {1});
    EXPECT_EQ(gravity(model, {{2, 1}, {1, -0.5}, {2, 0}}), "*{ LOADNO FACTOR : 2 1.0000 1 -0.5000 2 0.0000 \n"
                                                           "*{ 1.0000 * LOAD 2\nMEMBER LOAD\n"
                                                           "1 UNI GX -2.00 \n1 UNI GZ -2.00 \n"
                                                           "*{ -0.5000 * LOAD 1\nMEMBER LOAD\n"
                                                           "1 UNI GX 0.50 \n1 UNI GZ 0.50 \n"
                                                           "*{ 0.0000 * LOAD 2\nMEMBER LOAD\n"
                                                           "1 UNI GX -0.00 \n1 UNI GZ -0.00 \n");
}

TEST(WriteGravity, SkipsCasesWithoutMemberLoads)
{
    SdReader model = with_cases(2, {1, 2, 3});
    add_load(model, uniform(-1, 1), {1});
    add_load(model, {"SELFWEIGHT", "Z", {-1}, 2}, {1, 2}); // the members carry it, but it is no member load
    add_load(model, uniform(-3, 3), {});                   // no member carries it
    add_load(model, uniform(-4, 4), {1});                  // there is no such case
    EXPECT_EQ(gravity(model, {{2, 1}, {3, 1}, {4, 1}, {99, 1}, {1, 1}}),
              "*{ LOADNO FACTOR : 2 1.0000 3 1.0000 4 1.0000 99 1.0000 1 1.0000 \n"
              "*{ 1.0000 * LOAD 1\nMEMBER LOAD\n1 UNI GX -1.00 \n1 UNI GZ -1.00 \n");
    EXPECT_EQ(gravity(with_cases(1, {1}), {{1, 1}}), "*{ LOADNO FACTOR : 1 1.0000 \n") << "no member load at all";
}

TEST(WriteGravity, OrdersTheLoadsByKindDirectionAndValues)
{
    SdReader model = with_cases(1, {1});
    add_load(model, {"MEMBER LOAD UNI", "Z", {1}, 1}, {1});
    add_load(model, {"MEMBER LOAD UNI", "GZ", {10}, 1}, {1});
    add_load(model, {"MEMBER LOAD UNI", "GZ", {9, 2, 3}, 1}, {1});
    add_load(model, {"MEMBER LOAD UNI", "GZ", {9}, 1}, {1});
    add_load(model, {"MEMBER LOAD UNI", "GZ", {9, 1}, 1}, {1});
    add_load(model, {"MEMBER LOAD UNI", "GZ", {-9}, 1}, {1});
    add_load(model, {"MEMBER LOAD CON", "Z", {4}, 1}, {1});
    // only one of the two lines of each
    std::string along_x;
    for (const std::string& line : written::lines_of(gravity(model, {{1, 1}}))) {
        if (line.find(" GX ") != std::string::npos)
            along_x += line + '\n';
    }
    EXPECT_EQ(along_x, "1 CON GX 4.00 \n"
                       "1 UNI GX -9.00 \n"
                       "1 UNI GX 9.00 \n"
                       "1 UNI GX 9.00 1.00 \n"
                       "1 UNI GX 9.00 2.00 3.00 \n"
                       "1 UNI GX 10.00 \n"
                       "1 UNI GX 1.00 \n");
}

TEST(WriteGravity, JoinsEqualDefinitionsAndNoOthers)
{
    SdReader model = with_cases(4, {1});
    add_load(model, uniform(-5, 1), {4, 1});
    add_load(model, uniform(-5.0001, 1), {3}); // prints the same, but is another load
    add_load(model, uniform(-5, 1), {2, 1});
    EXPECT_EQ(gravity(model, {{1, 1}}), "*{ LOADNO FACTOR : 1 1.0000 \n"
                                        "*{ 1.0000 * LOAD 1\nMEMBER LOAD\n"
                                        "3 UNI GX -5.00 \n3 UNI GZ -5.00 \n"
                                        "1 1 TO 2 4 UNI GX -5.00 \n1 1 TO 2 4 UNI GZ -5.00 \n");
}

TEST(WriteGravity, WritesLoadsThatAreNoNumbersAfterTheOthersAndOnce)
{
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    SdReader model = with_cases(4, {1});
    add_load(model, {"MEMBER LOAD CON", "GZ", {none, 2}, 1}, {1});
    add_load(model, {"MEMBER LOAD CON", "GZ", {7}, 1}, {2});
    add_load(model, {"MEMBER LOAD CON", "GZ", {none, 1}, 1}, {3});
    add_load(model, {"MEMBER LOAD CON", "GZ", {none, 2}, 1}, {4});
    EXPECT_EQ(gravity(model, {{1, 1}}), "*{ LOADNO FACTOR : 1 1.0000 \n"
                                        "*{ 1.0000 * LOAD 1\nMEMBER LOAD\n"
                                        "2 CON GX 7.00 \n2 CON GZ 7.00 \n"
                                        "3 CON GX nan 1.00 \n3 CON GZ nan 1.00 \n"
                                        "1 4 CON GX nan 2.00 \n1 4 CON GZ nan 2.00 \n");
}

// ---- how many basic cases there are -----------------------------------------------------------------------------

TEST(WriteGravity, TakesAsManyCasesAsCountAndListsHave)
{
    struct row {
        const char* why;
        int count;
        std::vector<int> numbers;
        std::vector<double> factors;
        const char* want;
    };
    const row rows[] = {
        {"fewer than the lists have", 1, {1, 2}, {1, 0.5}, "*{ LOADNO FACTOR : 1 1.0000 "},
        {"none", 0, {1, 2}, {1, 0.5}, "*{ LOADNO FACTOR : "},
        {"less than none", -1, {1, 2}, {1, 0.5}, "*{ LOADNO FACTOR : "},
        {"least of all", INT_MIN, {1, 2}, {1, 0.5}, "*{ LOADNO FACTOR : "},
        {"more than there are numbers", 3, {1}, {1, 0.5, 0.25}, "*{ LOADNO FACTOR : 1 1.0000 "},
        {"more than there are factors", INT_MAX, {1, 2, 3}, {1, 0.5}, "*{ LOADNO FACTOR : 1 1.0000 2 0.5000 "},
        {"numbers at the ends of the integers, factors rounded",
         2,
         {INT_MIN, INT_MAX},
         {0.00005001, -1e-9},
         "*{ LOADNO FACTOR : -2147483648 0.0001 2147483647 -0.0000 "},
    };
    for (const row& c : rows) {
        SdReader model;
        model.eq_param.loadno_count = c.count;
        model.eq_param.loadno = c.numbers;
        model.eq_param.loadno_factor = c.factors;
        const std::string text = written::seismic(model);
        EXPECT_NE(text.find(std::string("\n") + c.want + "\n\n\n"), std::string::npos) << c.why << '\n' << text;
    }
}

} // namespace
} // namespace STAAD
