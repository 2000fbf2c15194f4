/// The numbers of the generated wind loads; the golden files have the blocks as a whole.

#include "staad/model/sd_reader.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

SdReader with(const WindLoadParam& parameters)
{
    SdReader model;
    model.wl_param = parameters;
    return model;
}

/// A host's parameters in which every number is rounded.
WindLoadParam filled_parameters()
{
    WindLoadParam filled;
    filled.base_press = 0.55;
    filled.structure_high = 45.26;
    filled.base_period = 1.25;
    filled.aweather_width = {12.5, 12.49, -0.5, 1234567.4};
    filled.mius = {{{0.8, -0.5, 0.704, -0.706}, {1, 2, 3, 4}, {0.26, 0.24, 0.126, 0.124}, {-0.0, -0.04, -0.0, -0.004}}};
    filled.intensity_isometry = 2.5;
    filled.intensity_floor = 3.3;
    return filled;
}

/// The line that begins so.
std::string line_of(const WindLoadParam& parameters, const std::string& beginning)
{
    for (std::string& line : written::lines_of(written::wind(with(parameters)))) {
        if (line.rfind(beginning, 0) == 0)
            return std::move(line);
    }
    return "none";
}

TEST(WriteWind, RoundsEachParameterInItsWay)
{
    const WindLoadParam filled = filled_parameters();
    EXPECT_EQ(line_of(filled, "*{ STRUCTURE HIGH"), "*{ STRUCTURE HIGH : 45.3");
    EXPECT_EQ(line_of(filled, "*{ BASE PERIOD"), "*{ BASE PERIOD : 1.2") << "1.25 lies exactly between: the even digit";
    EXPECT_EQ(line_of(filled, "*{ BASE PRESS"), "*{ BASE PRESS : 0.6") << "0.55 is a little more than that";
    EXPECT_EQ(line_of(filled, "*{ AWEATHER"), "*{ AWEATHER WIDTH : 13 12 0 1.23457e+06");
    EXPECT_EQ(line_of(filled, "*{ LEFTWIND"), "*{ LEFTWIND MIUS : 0.8 -0.5 0.70 -0.71");
    EXPECT_EQ(line_of(filled, "*{ FRONTWIND"), "*{ FRONTWIND MIUS : 0.3 0.2 0.13 0.12");
    EXPECT_EQ(line_of(filled, "*{ BACKWIND"), "*{ BACKWIND MIUS : -0.0 -0.0 -0.00 -0.00");
    EXPECT_EQ(line_of(filled, "*{ INTENSITY ISOMETRY"), "*{ INTENSITY ISOMETRY : 3");
    EXPECT_EQ(line_of(filled, "*{ INTENSITY FLOOR"), "*{ INTENSITY FLOOR : 3");
}

TEST(WriteWind, WritesAnyTextAndNumbersOfAnySize)
{
    WindLoadParam large;
    large.soil_type = " \xB2\xE2 %s\t"; // byte for byte
    large.structure_high = 1e15;
    large.base_period = std::numeric_limits<double>::quiet_NaN();
    large.base_press = -std::numeric_limits<double>::infinity();
    large.aweather_width = {1e300, std::numeric_limits<double>::infinity(), -1e6, 0.49999999999999994};
    large.intensity_number = INT_MIN;
    large.intensity_isometry = -2.5;
    large.intensity_floor = 999999.5;
    EXPECT_EQ(line_of(large, "*{ IS BETAZ"), "*{ IS BETAZ : 0");
    EXPECT_EQ(line_of(large, "*{ SOIL TYPE"), "*{ SOIL TYPE :  \xB2\xE2 %s\t");
    EXPECT_EQ(line_of(large, "*{ STRUCTURE HIGH"), "*{ STRUCTURE HIGH : 1000000000000000.0");
    EXPECT_EQ(line_of(large, "*{ BASE PERIOD"), "*{ BASE PERIOD : nan");
    EXPECT_EQ(line_of(large, "*{ BASE PRESS"), "*{ BASE PRESS : -inf");
    // the last one and 0.5 are 1 in a double
    EXPECT_EQ(line_of(large, "*{ AWEATHER"), "*{ AWEATHER WIDTH : 1e+300 inf -1e+06 1");
    EXPECT_EQ(line_of(large, "*{ INTENSITY NUMBER"), "*{ INTENSITY NUMBER : -2147483648");
    EXPECT_EQ(line_of(large, "*{ INTENSITY ISOMETRY"), "*{ INTENSITY ISOMETRY : -2");
    EXPECT_EQ(line_of(large, "*{ INTENSITY FLOOR"), "*{ INTENSITY FLOOR : 1e+06");
}

// ---- profiles ---------------------------------------------------------------------------------------------

/// The lines of the profile of `type`.
std::string profile(const WindLoadParam& parameters, int type)
{
    return written::between(written::wind(with(parameters)), "TYPE " + std::to_string(type),
                            type == 33 ? "LOAD 4 WL AUTO WIND LOAD" : "TYPE " + std::to_string(type + 1));
}

struct profile_row {
    const char* why;
    std::vector<double> intensities;
    std::vector<double> heights;
    std::string want;
};

std::vector<double> repeated(double value, std::size_t count)
{
    return std::vector<double>(count, value);
}

std::string words(const std::string& word, std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += ' ' + word;
    return text;
}

const profile_row profile_rows[] = {
    {"neither", {}, {}, "INT HEIG\n"},
    {"one line", {0.45, 0.52, 0.58}, {3, 6, 9}, "INT 0.45 0.52 0.58 HEIG 3.0 6.0 9.0\n"},
    {"rounded, signs kept", {0.456, -0.004, 100}, {3.04, 3.06, -0.04}, "INT 0.46 -0.00 100.00 HEIG 3.0 3.1 -0.0\n"},
    {"as many as there are, whatever the other has", {0.5}, {1, 2, 3}, "INT 0.50 HEIG 1.0 2.0 3.0\n"},
    // "INT", 14 words of 5 and HEIG are 78 characters
    {"HEIG on the line of the last intensity", repeated(0.5, 14), {9}, "INT" + words("0.50", 14) + " HEIG -\n9.0\n"},
    // 15 words make 78: no room for HEIG
    {"HEIG on the next line", repeated(0.5, 15), {9}, "INT" + words("0.50", 15) + " -\nHEIG 9.0\n"},
    {"twenty intensities",
     repeated(0.5, 20),
     {9},
     "INT" + words("0.50", 15) + " -\n0.50" + words("0.50", 4) + " HEIG 9.0\n"},
    // the words are 79 characters, and the mark comes on top of them
    {"a line of 81 with its mark",
     {0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 10.5, 0.5},
     {},
     "INT" + words("0.50", 14) + " 10.50 -\n0.50 HEIG\n"},
    {"78 at the end", repeated(0.5, 4), repeated(12.5, 10),
     "INT" + words("0.50", 4) + " HEIG" + words("12.5", 10) + "\n"},
    {"79 at the end",
     {0.5, 0.5, 0.5, 10.5},
     repeated(12.5, 10),
     "INT" + words("0.50", 3) + " 10.50 HEIG" + words("12.5", 10) + "\n"},
    {"80 at the end",
     {0.5, 0.5, 10.5, 10.5},
     repeated(12.5, 10),
     "INT" + words("0.50", 2) + words("10.50", 2) + " HEIG" + words("12.5", 9) + " -\n12.5\n"},
    {"a number of more than a line",
     {1e80},
     {},
     "INT -\n100000000000000000026609864708367276537402401181200809098131977453489758916313088.00 -\nHEIG\n"},
};

TEST(WriteWindProfile, PacksIntensitiesAndHeightsIntoLines)
{
    for (const profile_row& row : profile_rows) {
        WindLoadParam parameters;
        parameters.intensities[0] = row.intensities;
        parameters.heights = row.heights;
        EXPECT_EQ(profile(parameters, 18), row.want) << row.why;
    }
}

TEST(WriteWindProfile, HasTheIntensitiesOfItsTypeAndTheHeightsOfAll)
{
    WindLoadParam parameters;
    parameters.heights = {10};
    for (std::size_t i = 0; i < parameters.intensities.size(); ++i)
        parameters.intensities[i] = {static_cast<double>(i)};
    for (int type = 18; type <= 33; ++type)
        EXPECT_EQ(profile(parameters, type), "INT " + std::to_string(type - 18) + ".00 HEIG 10.0\n");
}

} // namespace
} // namespace STAAD
