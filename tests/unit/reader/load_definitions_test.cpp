/// One definition text to kind, direction and values; and definitions that a host adds.

#include "staad/model/sd_reader.h"
#include "staad/text/number_text.h"
#include "tests/support/sd_reader_access.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using access = detail::sd_reader_access;
using doubles = std::vector<double>;

constexpr double foot = 12 * 25.4;
constexpr double kip = 4.445206;

LoadDefination parsed(const std::string& text, double length_factor, double force_factor)
{
    SdReader model;
    model.length_factor = length_factor;
    model.force_factor = force_factor;
    return access::get_load_defnination_from_string(model, {text, 12});
}

struct definition {
    const char* why;
    const char* text;
    const char* want; ///< kind, direction: values
};

/// Lengths in units of 1000 mm, forces in units of 8 kN: no result is rounded.
void expect_definitions(const std::vector<definition>& rows)
{
    for (const definition& row : rows) {
        const LoadDefination got = parsed(row.text, 1000.0, 8.0);
        std::string shown = got.kind + ", " + got.direction + ":";
        for (const double value : got.values)
            shown += ' ' + detail::format_real(value);
        EXPECT_EQ(shown, row.want) << row.text << ": " << row.why;
        EXPECT_EQ(got.load_case, 12) << row.text;
    }
}

TEST(LoadDefinition, ReadsMemberLoadsByTheirThirdWord)
{
    expect_definitions({
        {"force per length, then lengths", "MEMBER LOAD UNI GY -500 0 3 0.5", "MEMBER LOAD UNI, GZ: -4 0 3000 500"},
        {"all along the member", "MEMBER LOAD UNI GY -500", "MEMBER LOAD UNI, GZ: -4"},
        {"moment per length", "MEMBER LOAD UMOM GX 5 1 2", "MEMBER LOAD UMOM, GY: 40 1000 2000"},
        {"force, then lengths", "MEMBER LOAD CON GZ 5 1.5 0.25", "MEMBER LOAD CON, GX: 40 1500 250"},
        {"moment, then lengths", "MEMBER LOAD CMOM GX 5 2", "MEMBER LOAD CMOM, GY: 40000 2000"},
        {"forces per length only", "MEMBER LOAD LIN Y -500 -250 0", "MEMBER LOAD LIN, Z: -4 -2 0"},
        {"one of them", "MEMBER LOAD LIN Y -500", "MEMBER LOAD LIN, Z: -4"},
        {"none of them", "MEMBER LOAD LIN Y", "MEMBER LOAD LIN, Z:"},
        {"two forces per length, then lengths", "MEMBER LOAD TRAP GY -500 -250 1 2",
         "MEMBER LOAD TRAP, GZ: -4 -2 1000 2000"},
        {"without lengths", "MEMBER LOAD TRAP GY -500 -250", "MEMBER LOAD TRAP, GZ: -4 -2"},
        {"a missing second force is 0", "MEMBER LOAD TRAP GY -500", "MEMBER LOAD TRAP, GZ: -4 0"},
        {"both missing", "MEMBER LOAD TRAP GY", "MEMBER LOAD TRAP, GZ: 0 0"},
        {"a missing force is 0, uniform load", "MEMBER LOAD UNI GY", "MEMBER LOAD UNI, GZ: 0"},
        {"uniform moment", "MEMBER LOAD UMOM GY", "MEMBER LOAD UMOM, GZ: 0"},
        {"point load", "MEMBER LOAD CON GY", "MEMBER LOAD CON, GZ: 0"},
        {"point moment", "MEMBER LOAD CMOM GY", "MEMBER LOAD CMOM, GZ: 0"},
        {"words count as 0", "MEMBER LOAD CON GY A 1 B 2", "MEMBER LOAD CON, GZ: 0 1000 0 2000"},
        {"other words have no values", "MEMBER LOAD PRESTRESS GY 5 1", "MEMBER LOAD PRESTRESS, GZ:"},
        {"the word is whole", "MEMBER LOAD UNIF GY 5 1", "MEMBER LOAD UNIF, GZ:"},
        {"small letters are read as capitals", "member load uni gy -500", "MEMBER LOAD UNI, GZ: -4"},
        {"extra blanks do not matter after the first word pair", "MEMBER LOAD  UNI   GY  -500  1 ",
         "MEMBER LOAD UNI, GZ: -4 1000"},
        {"exponents", "MEMBER LOAD CON GY -5e-1 1.5E0", "MEMBER LOAD CON, GZ: -4 1500"},
    });
}

TEST(LoadDefinition, JoinsOnlyTheWordsThatAreThere)
{
    expect_definitions({
        {"block alone", "MEMBER LOAD", "MEMBER LOAD, Z:"},
        {"no direction", "MEMBER LOAD UNI", "MEMBER LOAD UNI, Z: 0"},
        {"none for a trapezoid", "MEMBER LOAD TRAP", "MEMBER LOAD TRAP, Z: 0 0"},
        {"words count from the left even if the block holds more", "MEMBER LOADS UNI GY -500",
         "MEMBER LOADS UNI, GZ: -4"},
        {"area alone", "AREA LOAD", "AREA LOAD, Z: 0"},
        {"area without pressure", "AREA LOAD ALOAD", "AREA LOAD ALOAD, Z: 0"},
        {"nothing", "", ", :"},
    });
}

TEST(LoadDefinition, TurnsTheDirectionOfMemberLoads)
{
    const struct {
        const char* why;
        const char* word;
        const char* want;
    } directions[] = {
        {"global", "GX", "GY"},
        {"global", "GY", "GZ"},
        {"global", "GZ", "GX"},
        {"local", "X", "Y"},
        {"local", "Y", "Z"},
        {"local", "Z", "X"},
        {"projected", "PX", "PY"},
        {"small letters", "gy", "GZ"},
        {"only the last letter turns", "XY", "XZ"},
        {"an axis inside a word keeps the word", "YA", "YA"},
        {"a word without axis is no direction", "5", "Z"},
        {"nor are letters alone", "ALL", "Z"},
    };
    for (const auto& one : directions)
        EXPECT_EQ(parsed(std::string("MEMBER LOAD UNI ") + one.word + " 1", 1.0, 1.0).direction, one.want)
            << one.word << ": " << one.why;
}

TEST(LoadDefinition, AWordInThePlaceOfTheDirectionIsNotAValue)
{
    EXPECT_EQ(parsed("MEMBER LOAD UNI -5 3", 1.0, 1.0).values, (doubles{3}));
    EXPECT_EQ(parsed("MEMBER LOAD LIN -1 -2 -3", 1.0, 1.0).values, (doubles{-2, -3}));
}

TEST(LoadDefinition, ReadsTheOtherKinds)
{
    expect_definitions({
        {"a pressure, divided by the length twice", "AREA LOAD ALOAD -125000", "AREA LOAD ALOAD, Z: -1"},
        {"words after do not matter", "AREA LOAD ALOAD -125000 GX 5", "AREA LOAD ALOAD, Z: -1"},
        {"a factor, not scaled", "SELFWEIGHT Y -1.5", "SELFWEIGHT, Z: -1.5"},
        {"along another axis", "SELFWEIGHT X 1", "SELFWEIGHT, Y: 1"},
        {"any word is a direction", "SELFWEIGHT ALL -1", "SELFWEIGHT, ALL: -1"},
        {"no factor", "SELFWEIGHT Z", "SELFWEIGHT, X: 0"},
        {"no direction", "SELFWEIGHT", "SELFWEIGHT, : 0"},
        {"any first word that begins so", "SELFWEIGHTS Y -1", "SELFWEIGHT, Z: -1"},
        {"floors have no values", "FLOOR LOAD FLOAD -2 GX", "FLOOR LOAD, Z:"},
        {"alone", "FLOOR LOAD", "FLOOR LOAD, Z:"},
        {"elements are not understood", "ELEMENT LOAD PR -1", ", :"},
        {"nor is a text without block", " UNI GY -5", ", :"},
        {"nor a block after a blank", " MEMBER LOAD UNI GY -5", ", :"},
        {"nor two blanks inside the block", "MEMBER  LOAD UNI GY -5", ", :"},
        {"small letters are read as capitals", "floor load fload", "FLOOR LOAD, Z:"},
    });
}

TEST(LoadDefinition, ReadsJointLoadsIntoSixSlots)
{
    expect_definitions({
        {"the file's X, Y, Z are the model's y, z, x", "JOINT LOAD FX 1 FY 2 FZ 3 MX 4 MY 5 MZ 6",
         "JOINT LOAD, Z: 24 8 16 48000 32000 40000"},
        {"one force", "JOINT LOAD FY -10", "JOINT LOAD, Z: 0 0 -80 0 0 0"},
        {"none", "JOINT LOAD", "JOINT LOAD, Z: 0 0 0 0 0 0"},
        {"a later word for a slot wins", "JOINT LOAD FX 1 FX 2", "JOINT LOAD, Z: 0 16 0 0 0 0"},
        {"even as the last word, without number", "JOINT LOAD FX 1 MZ 6 FX", "JOINT LOAD, Z: 0 0 0 48000 0 0"},
        {"every word is looked at, a number's place included", "JOINT LOAD FX FY 2", "JOINT LOAD, Z: 0 0 16 0 0 0"},
        {"other words are passed over", "JOINT LOAD 7 FA 1 FX 1 X FZ 3", "JOINT LOAD, Z: 24 8 0 0 0 0"},
        {"words are whole", "JOINT LOAD FXX 1 MYY 2", "JOINT LOAD, Z: 0 0 0 0 0 0"},
        {"small letters are read as capitals", "joint load fy -10", "JOINT LOAD, Z: 0 0 -80 0 0 0"},
        {"the first two words are not looked at", "JOINT LOADFX 1", "JOINT LOAD, Z: 0 0 0 0 0 0"},
    });
}

TEST(LoadDefinition, KeepsTheOrderOfOperationsToTheLastBit)
{
    const struct {
        const char* why;
        const char* text;
        std::size_t place;
        double want;
        double other; ///< what another order gives: without a difference the row would prove nothing
    } rows[] = {
        {"by the force, then divided by the length", "MEMBER LOAD UNI GY -0.7", 0, -0.7 * kip / foot,
         -0.7 * (kip / foot)},
        {"the same for a linear load", "MEMBER LOAD LIN GY 1 -0.7", 1, -0.7 * kip / foot, -0.7 * (kip / foot)},
        {"and for both ends of a trapezoid", "MEMBER LOAD TRAP GY 1 -0.7", 1, -0.7 * kip / foot, -0.7 * (kip / foot)},
        {"divided by the length once more", "AREA LOAD ALOAD -0.7", 0, -0.7 * kip / foot / foot,
         -0.7 * kip / (foot * foot)},
        {"a point moment by the force, then by the length", "MEMBER LOAD CMOM GY -0.3", 0, -0.3 * kip * foot,
         -0.3 * (kip * foot)},
        {"a joint moment by one factor", "JOINT LOAD MX -0.3", 4, -0.3 * (kip * foot), -0.3 * kip * foot},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.text) + ": " + row.why);
        EXPECT_NE(row.want, row.other);
        EXPECT_EQ(parsed(row.text, foot, kip).values.at(row.place), row.want);
    }
}

LoadDefination load(const std::string& kind, const doubles& values, int load_case)
{
    return {kind, "GZ", values, load_case};
}

TEST(AddALoad, ReturnsTheNumberOfAnEqualDefinition)
{
    SdReader model;
    model.load_defs[3] = load("MEMBER LOAD UNI", {-5}, 1);
    model.load_defs[8] = load("MEMBER LOAD UNI", {-6}, 1);
    model.load_defs[9] = load("MEMBER LOAD UNI", {-5}, 1);
    EXPECT_EQ(model.add_a_load(load("MEMBER LOAD UNI", {-6}, 1)), 8);
    EXPECT_EQ(model.add_a_load(load("MEMBER LOAD UNI", {-5}, 1)), 3) << "the first of two equal ones";
    EXPECT_EQ(model.load_defs.size(), 3U);
    EXPECT_EQ(model.add_a_load(load("MEMBER LOAD UNI", {-5}, 2)), 4) << "what differs in any field, see load_case_test";
}

TEST(AddALoad, TakesTheCountPlusOneAsNumberAndReplacesWhatIsThere)
{
    SdReader model;
    model.load_defs[1] = load("MEMBER LOAD UNI", {-1}, 1);
    model.load_defs[3] = load("MEMBER LOAD UNI", {-3}, 1);
    EXPECT_EQ(model.add_a_load(load("MEMBER LOAD UNI", {-9}, 1)), 3);
    EXPECT_EQ(model.load_defs.size(), 2U);
    EXPECT_EQ(model.load_defs.at(3).values, (doubles{-9}));
}

TEST(AddALoad, LeavesTextsAndMembersAlone)
{
    SdReader model;
    ASSERT_TRUE(
        model.ReadSDDataFromText("UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 1 0 0\nMEMBER INCIDENCES\n1 1 2\n"
                                 "LOAD 1\nMEMBER LOAD\n1 CON GY -5\nJOINT LOAD\n1 FY 1\nFINISH\n"));
    EXPECT_EQ(model.add_a_load(load("MEMBER LOAD CON", {-5}, 1)), 1) << "a definition that the file has";
    EXPECT_EQ(model.add_a_load(load("MEMBER LOAD CON", {-5}, 2)), 3);
    EXPECT_EQ(model.raw_load_defs.size(), 2U);
    EXPECT_EQ(model.load_cases.size(), 1U);
    EXPECT_EQ(model.beams.at(0).int_list, (std::vector<int>{1}));
    EXPECT_EQ(model.nodes.at(0).extra_ids, (std::vector<int>{2}));
}

} // namespace
} // namespace STAAD
