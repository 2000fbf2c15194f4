/// Element thicknesses, and the materials that MATERIAL lines assign.

#include "staad/model/sd_reader.h"
#include "tests/support/shown.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// Members 1 to 3 and 20, elements 1 to 5 (1 twice), and these lines.
SdReader read_with(const std::string& lines, const std::string& unit = "UNIT MMS KN")
{
    SdReader model;
    EXPECT_TRUE(model.ReadSDDataFromText(unit +
                                         "\nJOINT COORDINATES\n1 0 0 0; 2 5 0 0; 3 5 3 0\nMEMBER INCIDENCES\n"
                                         "1 1 2; 2 2 3; 3 3 1; 20 1 3\nELEMENT INCIDENCES SHELL\n"
                                         "1 1 2 3; 2 1 2 3; 3 1 2 3; 4 1 2 3; 5 1 2 3; 1 3 2 1\n" +
                                         lines + "\nFINISH\n"))
        << lines;
    return model;
}

/// Numbers in the index of elements that no element has; the others must be there as they were read.
std::string unknown_elements(const SdReader& model)
{
    std::map<int, int> known;
    std::vector<int> unknown;
    for (const auto& [number, position] : model.shell_index) {
        if (position == 0)
            unknown.push_back(number);
        else
            known[number] = position;
    }
    EXPECT_EQ(shown(known), "1: 6; 2: 2; 3: 3; 4: 4; 5: 5");
    return shown(unknown);
}

const struct {
    const char* why;
    const char* lines;
    const char* want;          ///< of the six elements in the order read
    const char* entered = "-"; ///< unknown numbers that enter the index
} thicknesses[] = {
    {"a range", "ELEMENT PROPERTY\n1 TO 3 TH 200", "0 200 200 0 0 200"},
    {"single numbers", "ELEMENT PROPERTY\n2 5 THICKNESS 120", "0 120 0 0 120 0"},
    {"the word is not looked at", "ELEMENT PROPERTY\n2 5 7 120", "0 120 0 0 120 0"},
    {"of a number that stands twice the last element", "ELEMENT PROPERTY\n1 TH 90", "0 0 0 0 0 90"},
    {"later lines overrule earlier ones", "ELEMENT PROPERTY\n1 TO 5 TH 100\n3 TH 50", "0 100 50 100 100 100"},
    {"truncated, not rounded", "ELEMENT PROPERTY\n2 TH 199.9", "0 199 0 0 0 0"},
    {"toward zero", "ELEMENT PROPERTY\n2 TH -199.9", "0 -199 0 0 0 0"},
    {"past 32 bits the largest number", "ELEMENT PROPERTY\n2 TH 1e20", "0 2147483647 0 0 0 0"},
    {"a last word that is no number", "ELEMENT PROPERTY\n2 TH 5\n2 5 TH X", "0 0 0 0 0 0"},
    {"the last word is the value: four corners are not understood", "ELEMENT PROPERTY\n2 TH 100 200", "0 200 0 0 0 0"},
    {"two words list no element", "ELEMENT PROPERTY\n2 200", "0 0 0 0 0 0"},
    {"nor does one", "ELEMENT PROPERTY\n2", "0 0 0 0 0 0"},
    {"joined lines", "ELEMENT PROPERTY\n1 TO 2 4 -\n5 TH 80", "0 80 0 80 80 80"},
    {"TO without a bound", "ELEMENT PROPERTY\n2 TO TH 80", "0 80 0 0 0 0"},
    {"a leading blank ends the block", "ELEMENT PROPERTY\n2 TH 80\n 3 TH 80\n4 TH 80", "0 80 0 0 0 0"},
    {"so does a zero", "ELEMENT PROPERTY\n0 TH 80\n3 TH 80", "0 0 0 0 0 0"},
    {"so does a comment", "ELEMENT PROPERTY\n2 TH 80\n* 3\n4 TH 80", "0 80 0 0 0 0"},
    {"the keyword is the whole line", "ELEMENT PROPERTY X\n2 TH 80", "0 0 0 0 0 0"},
    {"the first keyword counts", "ELEMENT PROPERTY\n2 TH 80\nELEMENT PROPERTY\n3 TH 80", "0 80 0 0 0 0"},
    {"other lines may come before", "FOO\nELEMENT PROPERTY\n2 TH 80", "0 80 0 0 0 0"},
    {"unknown numbers enter the index", "ELEMENT PROPERTY\n2 77 9 TH 80", "0 80 0 0 0 0", "9 77"},
    {"in a range they do not", "ELEMENT PROPERTY\n4 TO 9 TH 80", "0 0 0 80 80 0"},
    {"only the number before the range", "ELEMENT PROPERTY\n70 TO 90 TH 80", "0 0 0 0 0 0", "70"},
    {"a range over everything costs nothing", "ELEMENT PROPERTY\n1 TO 2000000000 TH 80", "0 80 80 80 80 80"},
    {"not even a thousand of them",
     "ELEMENT PROPERTY\n2 TO 2147483647 TO 2147483647 TO 2147483647 TO 2147483647 TO 2147483647 TH 80",
     "0 80 80 80 80 0"},
};

TEST(ThicknessLines, SetTheElementsTheyList)
{
    for (const auto& c : thicknesses) {
        SCOPED_TRACE(c.why);
        const SdReader model = read_with(c.lines);
        EXPECT_EQ(shown_fields(model.shells, &SdShell::thickness), c.want);
        EXPECT_EQ(unknown_elements(model), c.entered);
        EXPECT_EQ(model.beams.at(1).material, "");
    }
}

TEST(ThicknessLines, AreScaledBeforeTheyAreTruncated)
{
    EXPECT_EQ(read_with("ELEMENT PROPERTY\n2 TH 0.1999", "UNIT METER KN").shells.at(1).thickness, 199);
    EXPECT_EQ(read_with("ELEMENT PROPERTY\n2 TH 0.25", "UNIT METER KN").shells.at(1).thickness, 250);
    EXPECT_EQ(read_with("ELEMENT PROPERTY\n2 TH 0.5", "UNIT FEET KIP").shells.at(1).thickness, 152);
    EXPECT_EQ(read_with("ELEMENT PROPERTY\n2 TH 12.5", "UNIT CM KN").shells.at(1).thickness, 125);
}

TEST(ThicknessLines, AreLookedForAfterTheElementsOnly)
{
    const std::string before = "UNIT MMS KN\nJOINT COORDINATES\n1 0 0 0\nMEMBER INCIDENCES\n1 1 1\n"
                               "ELEMENT PROPERTY\n7 TH 80\n";
    SdReader model;
    ASSERT_TRUE(model.ReadSDDataFromText(before + "ELEMENT INCIDENCES SHELL\n7 1 1 1\n"));
    EXPECT_EQ(model.shells.at(0).thickness, 0);
    ASSERT_TRUE(model.ReadSDDataFromText(before));
    EXPECT_TRUE(model.shell_index.empty()) << "without elements they are not read";
}

const char* const only_c1 = "C1 C1 C1 C1 C1 C1";

const struct {
    const char* why;
    const char* lines;
    const char* members;            ///< 1, 2, 3, 20
    const char* elements = only_c1; ///< in the order read
    const char* entered = "-";
} materials[] = {
    {"nothing said", "FOO", "- - - -"},
    {"everything", "MATERIAL CONCRETE ALL", "CONCRETE CONCRETE CONCRETE CONCRETE",
     "CONCRETE CONCRETE CONCRETE CONCRETE CONCRETE CONCRETE"},
    {"a range of members", "MATERIAL STEEL MEMB 1 TO 3", "STEEL STEEL STEEL -"},
    {"a number of both kinds is the member", "MATERIAL STEEL MEMB 2", "- STEEL - -"},
    {"another number is the element", "MATERIAL C30 MEMB 4 20", "- - - C30", "C1 C1 C1 C30 C1 C1"},
    {"a range over both", "MATERIAL C30 MEMB 2 TO 20", "- C30 C30 C30", "C1 C1 C1 C30 C30 C1"},
    {"later lines overrule earlier ones", "MATERIAL STEEL MEMB 1 TO 3\nMATERIAL C30 MEMB 2", "STEEL C30 STEEL -"},
    {"ALL, too", "MATERIAL STEEL MEMB 1\nMATERIAL C30 ALL", "C30 C30 C30 C30", "C30 C30 C30 C30 C30 C30"},
    {"joined lines", "MATERIAL STEEL MEMB 1 -\n3", "STEEL - STEEL -"},
    {"the line after it is not part of it", "MATERIAL STEEL MEMB 1\n2 3", "STEEL - - -"},
    {"anywhere in the file", "SUPPORTS\nMATERIAL STEEL MEMB 1", "STEEL - - -"},
    {"begins with the keyword is enough", "MATERIALS STEEL MEMB 1", "STEEL - - -"},
    {"a leading blank is not", " MATERIAL STEEL MEMB 1", "- - - -"},
    {"all in lower case is not ALL", "MATERIAL STEEL all", "- - - -"},
    {"ALL further on ends a list", "MATERIAL STEEL MEMB 1 ALL 2", "STEEL - - -"},
    {"hyphens separate numbers", "MATERIAL STEEL MEMB 1-3", "STEEL - STEEL -"},
    {"and names: the list then begins at MEMB and ends there", "MATERIAL C-30 MEMB 1 2", "- - - -"},
    {"without MEMB the first number is passed over", "MATERIAL STEEL 1 2 3", "- STEEL STEEL -"},
    {"a hyphen in the name makes up for MEMB", "MATERIAL A-B 1 2", "A-B A-B - -"},
    {"a name with a hyphen and ALL", "MATERIAL C-30 ALL", "C-30 C-30 C-30 C-30", "C-30 C-30 C-30 C-30 C-30 C-30"},
    {"no list", "MATERIAL STEEL MEMB", "- - - -"},
    {"only a name", "MATERIAL STEEL", "- - - -"},
    {"only the keyword", "MATERIAL", "- - - -"},
    {"unknown numbers enter the element index", "MATERIAL C30 MEMB 77 8", "- - - -", only_c1, "8 77"},
    {"in a range they do not", "MATERIAL C30 MEMB 20 TO 2000000000", "- - - C30"},
    {"only the number before the range", "MATERIAL C30 MEMB 70 TO 2000000000", "- - - -", only_c1, "70"},
};

TEST(MaterialLines, NameTheMaterialOfMembersAndElements)
{
    for (const auto& c : materials) {
        SCOPED_TRACE(c.why);
        const SdReader model = read_with(c.lines);
        EXPECT_EQ(shown_fields(model.beams, &SdBeam::material), c.members);
        EXPECT_EQ(shown_fields(model.shells, &SdShell::material), c.elements);
        EXPECT_EQ(unknown_elements(model), c.entered);
        EXPECT_EQ(shown(model.beam_index), "1: 1; 2: 2; 3: 3; 20: 4");
    }
}

TEST(MaterialLines, CountAboveTheMembersAsWell)
{
    SdReader model;
    ASSERT_TRUE(model.ReadSDDataFromText("MATERIAL STEEL ALL\nUNIT MMS KN\nJOINT COORDINATES\n1 0 0 0\n"
                                         "MEMBER INCIDENCES\n1 1 1\n"));
    EXPECT_EQ(model.beams.at(0).material, "STEEL");
}

TEST(MaterialLines, NameTheCopiesOfSurfacesOnlyWithAll)
{
    for (const bool all : {false, true}) {
        SdReader model; // a reading keeps the surfaces that it finds in the object
        model.surfaces = {SdSurface("1 1 1 SUR 50")};
        model.surfaces[0].material = "CONCRETE";
        const std::string line = all ? "MATERIAL C40 ALL\n" : "MATERIAL C40 MEMB 50\n";
        ASSERT_TRUE(
            model.ReadSDDataFromText("UNIT MMS KN\nJOINT COORDINATES\n1 0 0 0\nMEMBER INCIDENCES\n1 1 1\n" + line));
        EXPECT_EQ(model.shells.at(0).material, all ? "C40" : "CONCRETE");
        EXPECT_EQ(model.surfaces.at(0).material, "CONCRETE") << "the surface itself is no element";
    }
}

} // namespace
} // namespace STAAD
