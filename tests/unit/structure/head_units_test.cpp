/// The head of a deck, its units, and what is no deck at all.

#include "staad/structure/reading.h"
#include "staad/units/exact_units.h"
#include "tests/unit/structure/shown_records.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <string>
#include <vector>

namespace STAAD {
namespace {

constexpr const char* one_joint = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0\n";

TEST(ReadHead, OfEveryForm)
{
    using Kind = Structure::Kind;
    using Up = Structure::UpAxis;
    const struct {
        const char* form;
        const char* lines;
        Kind kind;
        Up up;
        const char* title;
        std::vector<std::string> job;
    } cases[] = {
        {"title", "STAAD SPACE", Kind::space, Up::y, "", {}},
        {"title", "* first\nstaad plane  Two  Bays", Kind::plane, Up::y, "Two  Bays", {}},
        {"title", "STAAD TRUSS DXF IMPORT", Kind::truss, Up::y, "DXF IMPORT", {}},
        {"title", "STAAD FLOOR", Kind::floor, Up::y, "", {}},
        {"title", "STAAD Tower", Kind::space, Up::y, "Tower", {}},
        {"title", "", Kind::space, Up::y, "", {}},
        {"job-information",
         "STAAD SPACE\nSTART JOB INFORMATION\nENGINEER DATE 1-Jan-20\nENDEAVOUR LOAD 1\n\nEND JOB INFORMATION",
         Kind::space,
         Up::y,
         "",
         {"ENGINEER DATE 1-Jan-20", "ENDEAVOUR LOAD 1"}},
        {"set-z-up", "SET Z UP\nSTAAD SPACE", Kind::space, Up::z, "", {}},
        {"set-z-up", "STAAD SPACE\nset z Up", Kind::space, Up::z, "", {}},
        {"set-nl", "STAAD SPACE\nINPUT WIDTH 79\nSET NL 6\nSET Z DOWN", Kind::space, Up::y, "", {}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.lines);
        const test::deck_reading read = test::read_text(std::string(each.lines) + "\n" + one_joint);
        EXPECT_EQ(read.structure.head.kind, each.kind);
        EXPECT_EQ(read.structure.head.up, each.up);
        EXPECT_EQ(read.structure.head.title, each.title);
        EXPECT_EQ(read.structure.head.job_lines, each.job);
        EXPECT_EQ(read.structure.head.length_unit + " " + read.structure.head.force_unit, "METER KN");
    }
}

TEST(ReadUnits, FollowEveryUnitLine)
{
    constexpr double foot = 304.8;
    constexpr double kip = 4.4482216152605;
    const struct {
        const char* form;
        const char* lines;
        double length; ///< in force at the last statement
        double force;
        const char* words;
        const char* findings;
    } cases[] = {
        {"unit-metre-kn", "UNIT METER KN", 1000.0, 1.0, "METER KN", ""},
        {"unit-mm-kn", "UNIT MMS KN", 1.0, 1.0, "MMS KN", ""},
        {"unit-kns", "UNIT MMS KNS", 1.0, 1.0, "MMS KNS", ""},
        {"unit-newton", "UNIT MMS NEWTON", 1.0, 0.001, "MMS NEWTON", ""},
        {"unit-in-a-case", "UNIT METER KN\nLOAD 1\nUNIT METER KG\nMEMBER LOAD\n1 UNI GY -1", 1000.0, 0.00980665,
         "METER KG", ""},
        {"unit-in-a-case", "UNIT METER KN\nLOAD 1\nUNIT METER KG\nUNIT METER KN\nMEMBER LOAD", 1000.0, 1.0, "METER KN",
         ""},
        {"unit-imperial", "UNIT METER KN\nUNIT FEET KIPS", foot, kip, "FEET KIPS", ""},
        {"unit-length-alone", "UNIT METER KN\nUNIT INCH", 25.4, 1.0, "INCH KN", ""},
        {"unit-length-alone", "UNIT METER\nUNIT KIP", 1000.0, kip, "METER KIP", ""},
        {"unit-any-order", "unit kn Metre", 1000.0, 1.0, "Metre kn", ""},
        {"unit-any-order", "UNIT METER KN\nUNIT FURLONG KIP KN-M", 1000.0, kip, "METER KIP", "unit-word@2 unit-word@2"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.lines);
        const Deck deck(each.lines);
        Structure structure;
        ReadReport report;
        const detail::structure_reading context(deck, structure, report);
        const detail::exact_units& units = context.units_at(deck.statement_count() - 1);
        EXPECT_TRUE(context.has_units());
        EXPECT_EQ(units.length, each.length);
        EXPECT_EQ(units.force, each.force);
        EXPECT_EQ(units.length_word + " " + units.force_word, each.words);
        EXPECT_EQ(test::shown_findings(report), each.findings);
    }
}

TEST(ReadUnits, OfTheFirstLineCountBeforeIt)
{
    EXPECT_EQ(
        test::shown_joints(test::read_text("JOINT COORDINATES\n1 1 0 0\nUNIT FEET KIP\nUNIT METER KN\n").structure),
        "1:0,304.8,0");
    EXPECT_EQ(test::shown_joints(test::read_text("UNIT KIP\nJOINT COORDINATES\n1 1 0 0\nUNIT FEET\n").structure),
              "1:0,304.8,0");
}

TEST(ReadUnits, KnowEverySpelling)
{
    const struct {
        double factor;
        bool is_force;
        std::vector<const char*> words;
    } cases[] = {
        {25.4, false, {"IN", "INC", "INCH", "INCHES"}},
        {304.8, false, {"FT", "FO", "FOOT", "FEE", "FEET"}},
        {1.0, false, {"MM", "MMS"}},
        {10.0, false, {"CM", "CMS"}},
        {100.0, false, {"DM", "DMS", "DME"}},
        {1000.0, false, {"M", "MS", "MET", "METE", "METER", "METERS", "METRE", "METRES", "MTS"}},
        {1e6, false, {"KM", "KMS"}},
        {4.4482216152605, true, {"KIP", "KIPS"}},
        {0.0044482216152605, true, {"LB", "LBS", "LBF", "POU", "POUN", "POUND", "POUNDS"}},
        {0.00980665, true, {"KG", "KGS", "KGF"}},
        {9.80665, true, {"MTON", "MTONS", "MTO"}},
        {0.001, true, {"N", "NEW", "NEWT", "NEWTON", "NEWTONS"}},
        {1.0, true, {"KN", "KNS"}},
        {0.01, true, {"DN", "DNS"}},
        {1000.0, true, {"MN", "MNS"}},
    };
    const auto bits = [](std::optional<double> value) { return value ? std::bit_cast<std::uint64_t>(*value) : 0; };
    for (const auto& each : cases)
        for (std::string word : each.words)
            for (const bool is_lower : {false, true}) {
                for (char& c : word)
                    c = static_cast<char>(is_lower ? c | 0x20 : c);
                EXPECT_EQ(bits(each.is_force ? detail::exact_force(word) : detail::exact_length(word)),
                          bits(each.factor))
                    << word;
                EXPECT_FALSE(each.is_force ? detail::exact_length(word) : detail::exact_force(word)) << word;
            }
    for (const char* word : {"", "X", "MMM", "METRIC", "FEETS", "KNM", "KN-M", "KIPFT", "1", "M.", "TON"})
        EXPECT_FALSE(detail::exact_length(word) || detail::exact_force(word)) << word;
}

TEST(ReadStructure, AsksForUnitsAndJoints)
{
    const struct {
        const char* text;
        const char* findings;
        const char* why;
    } cases[] = {
        {"", "no-unit@0", "no deck"},
        {"STAAD SPACE\nJOINT COORDINATES\n1 0 0 0\n", "no-unit@0", "units are never guessed"},
        {"* UNIT METER KN\nJOINT COORDINATES\n1 0 0 0\n", "no-unit@0", "a comment is no line"},
        {"UNIT METER\nJOINT COORDINATES\n1 0 0 0\n", "no-unit@0", "nor is a force"},
        {"UNIT KN FURLONG\nJOINT COORDINATES\n1 0 0 0\n", "unit-word@1 no-unit@0", "nor a length"},
        {"UNIT METER KN\nSTAAD SPACE\n", "no-joints@0", "nothing to stand on"},
        {"UNIT METER KN\nJOINT COORDINATES\nX\n", "no-joints@0", "no line that has any"},
        {"UNIT METER KN\nJOINT COORDINATES\n1 0 0 0\nDELETE JOINTS 1\n", "no-joints@0", "none left"},
        {"UNIT METER KN\nJOINT COORDINATES\n1 0 0 0\n", "", "a deck without members is one"},
    };
    for (const auto& each : cases) {
        const test::deck_reading read = test::read_text(each.text);
        EXPECT_EQ(test::shown_findings(read.report), each.findings) << each.why;
        EXPECT_EQ(read.is_given, *each.findings == '\0') << each.why;
    }
}

} // namespace
} // namespace STAAD
