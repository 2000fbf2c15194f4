/// The material library, beta angles and the materials of members and shells.

#include "staad/model/sd_reader.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace STAAD {
namespace {

constexpr const char* library_to_density = "DEFINE MATERIAL START\n"
                                           "ISOTROPIC STEEL\n"
                                           "E 1.99947e+008\n"
                                           "POISSON 0.3\n"
                                           "DENSITY 76.8191\n"
                                           "ALPHA 6e-006\n"
                                           "DAMP 0.03\n"
                                           "ISOTROPIC C1\n"
                                           "E 2.17185e+007\n"
                                           "POISSON 0.17\n"
                                           "DENSITY 0\n"
                                           "ALPHA 1e-005\n"
                                           "DAMP 0.05\n"
                                           "ISOTROPIC CONCRETE\n"
                                           "E 2.17184e+007\n"
                                           "POISSON 0.17\n"
                                           "DENSITY ";
constexpr const char* library_from_density = "\n"
                                             "ALPHA 5.5e-006\n"
                                             "DAMP 0.05\n"
                                             "ISOTROPIC STAINLESSSTEEL\n"
                                             "E 1.93052e+008\n"
                                             "POISSON 0.3\n"
                                             "DENSITY 78.4477\n"
                                             "ALPHA 9.9e-006\n"
                                             "DAMP 0.03\n"
                                             "ISOTROPIC ALUMINUM\n"
                                             "E 6.89473e+007\n"
                                             "POISSON 0.33\n"
                                             "DENSITY 26.6017\n"
                                             "ALPHA 1.28e-005\n"
                                             "DAMP 0.03\n"
                                             "END DEFINE MATERIAL\n";

TEST(WriteMaterialLibrary, IsFixedButForTheDensityOfTheConcrete)
{
    struct row {
        double density;
        const char* want;
    };
    const row rows[] = {
        {23.5615, "23.5615"}, {25.0, "25"},          {0.0, "0"}, {-0.0, "-0"}, {24.1234567, "24.1235"},
        {8.4e8, "8.4e+08"},   {2.45e-5, "2.45e-05"},
    };
    for (const row& c : rows) {
        SdReader model;
        model.concrete_density = c.density;
        EXPECT_EQ("DEFINE MATERIAL START\n" + written::between(model, "DEFINE MATERIAL START", "CONSTANTS"),
                  library_to_density + std::string(c.want) + library_from_density);
    }
}

TEST(WriteMaterialLibrary, IsTheSameForAModelOfOtherMaterials)
{
    SdReader model = written::row_of_members(2);
    model.beams[0].material = "S355";
    EXPECT_EQ(written::between(model, "DEFINE MATERIAL START", "MEMBER PROPERTY "),
              (library_to_density + std::string("23.5615") + library_from_density).substr(22));
}

// ---- materials of members and shells ------------------------------------------------------------------

/// Members and shells of these materials.
SdReader model_of(const std::vector<std::string>& members, const std::vector<std::string>& shells)
{
    SdReader model = written::row_of_members(static_cast<int>(members.size()));
    for (std::size_t i = 0; i < members.size(); ++i)
        model.beams[i].material = members[i];
    for (const std::string& material : shells) {
        model.shells.push_back(written::shell(100));
        model.shells.back().material = material;
    }
    return model;
}

struct material_row {
    const char* why;
    std::vector<std::string> members;
    std::vector<std::string> shells;
    const char* want;
};

const material_row material_rows[] = {
    {"neither members nor shells", {}, {}, ""},
    {"one material", {"C30", "C30"}, {}, "MATERIAL C30 ALL\n"},
    {"of members and shells", {"C30"}, {"C30"}, "MATERIAL C30 ALL\n"},
    {"of shells alone", {}, {"C1"}, "MATERIAL C1 ALL\n"},
    {"without a name", {"", ""}, {""}, "MATERIAL  ALL\n"},
    {"by name; shells stand behind MEMB, too",
     {"STEEL", "C30", "STEEL"},
     {"C30", "C1"},
     "MATERIAL C1 MEMB 5\nMATERIAL C30 MEMB 2 4\nMATERIAL STEEL MEMB 1 3\n"},
    {"no name comes first", {"A", "", "A"}, {}, "MATERIAL  MEMB 2\nMATERIAL A MEMB 1 3\n"},
    {"small letters, and bytes past ASCII after them",
     {"\xB8\xD6", "steel", "STEEL"},
     {},
     "MATERIAL STEEL MEMB 3\nMATERIAL steel MEMB 2\nMATERIAL \xB8\xD6 MEMB 1\n"},
    {"members and shells run on in one list",
     {"A", "B", "B"},
     {"B", "B", "A"},
     "MATERIAL A MEMB 1 6\nMATERIAL B MEMB 2 TO 5\n"},
};

TEST(WriteMaterials, NamesThemByNumberUnlessThereIsOnlyOne)
{
    for (const material_row& row : material_rows)
        EXPECT_EQ(written::constants_to_loads(model_of(row.members, row.shells)), row.want) << row.why;
}

/// "B" for members 11, 13 ... 69, `name` for those between: the list of "B".
std::string list_of_thirty(const std::string& name)
{
    std::vector<std::string> members(70, "AAA");
    for (std::size_t i = 10; i < 70; i += 2)
        members[i] = name;
    const std::string text = written::constants_to_loads(model_of(members, {}));
    return text.substr(text.find("MATERIAL " + name));
}

TEST(WriteMaterials, ContinuesLongLists)
{
    // the head of 19 characters, 19 numbers and the mark are 78
    EXPECT_EQ(list_of_thirty("STEEL"),
              "MATERIAL STEEL MEMB 11 13 15 17 19 21 23 25 27 29 31 33 35 37 39 41 43 45 47 -\n"
              "49 51 53 55 57 59 61 63 65 67 69\n");
    // the head of 20 and the same numbers and mark are 79
    EXPECT_EQ(list_of_thirty("STEEL2"),
              "MATERIAL STEEL2 MEMB 11 13 15 17 19 21 23 25 27 29 31 33 35 37 39 41 43 45 47 -\n"
              "49 51 53 55 57 59 61 63 65 67 69\n");
    // with a head of 21 they would be 80
    EXPECT_EQ(list_of_thirty("STEEL22"),
              "MATERIAL STEEL22 MEMB 11 13 15 17 19 21 23 25 27 29 31 33 35 37 39 41 43 45 -\n"
              "47 49 51 53 55 57 59 61 63 65 67 69\n");
}

TEST(WriteMaterials, EndsALineAtSeventyNineCharacters)
{
    const std::string longest(63, 'M');
    EXPECT_EQ(written::constants_to_loads(model_of({"A", longest}, {})),
              "MATERIAL A MEMB 1\nMATERIAL " + longest + " MEMB 2\n");
    const std::string too_long(64, 'M');
    EXPECT_EQ(written::constants_to_loads(model_of({"A", too_long}, {})),
              "MATERIAL A MEMB 1\nMATERIAL " + too_long + " MEMB -\n2\n");
}

// ---- beta angles ------------------------------------------------------------------------------------------

std::string beta_lines(const std::vector<double>& angles)
{
    SdReader model = written::row_of_members(static_cast<int>(angles.size()));
    for (std::size_t i = 0; i < angles.size(); ++i)
        model.beams[i].beta = angles[i];
    return written::between(model, "CONSTANTS", std::string("MATERIAL ") + written::one_material + " ALL");
}

struct beta_row {
    const char* why;
    std::vector<double> angles;
    const char* want;
};

constexpr double infinity = std::numeric_limits<double>::infinity();

const beta_row beta_rows[] = {
    {"no angle, no line", {0, 0, -0.0}, ""},
    {"the least angle first, whatever the order of the members", {90, 45, 90}, "BETA 45 MEMB 2\nBETA 90 MEMB 1 3\n"},
    {"less than 0 before more", {30, -30, 30, 30}, "BETA -30 MEMB 2\nBETA 30 MEMB 1 3 TO 4\n"},
    {"0.001 is an angle", {0.001}, "BETA 0.001 MEMB 1\n"},
    {"on either side of 0", {-0.001}, "BETA -0.001 MEMB 1\n"},
    {"less is none", {0.000999999, -0.000999999}, ""},
    {"as stored, no unit turned", {1.5707963}, "BETA 1.5708 MEMB 1\n"},
    {"two angles that print alike stay two lines", {90.0000001, 90, 90.0000001}, "BETA 90 MEMB 2\nBETA 90 MEMB 1 3\n"},
    {"angles without end", {infinity, 1, -infinity}, "BETA -inf MEMB 3\nBETA 1 MEMB 2\nBETA inf MEMB 1\n"},
    {"what is no number is no angle", {std::numeric_limits<double>::quiet_NaN(), 15}, "BETA 15 MEMB 2\n"},
    {"large angles", {1e308, 1234567}, "BETA 1.23457e+06 MEMB 2\nBETA 1e+308 MEMB 1\n"},
};

TEST(WriteBeta, GathersMembersUnderTheirExactAngle)
{
    for (const beta_row& row : beta_rows)
        EXPECT_EQ(beta_lines(row.angles), row.want) << row.why;
}

TEST(WriteBeta, StandsBeforeTheMaterials)
{
    SdReader model = model_of({"A", "B"}, {});
    model.beams[1].beta = 90;
    EXPECT_EQ(written::constants_to_loads(model), "BETA 90 MEMB 2\nMATERIAL A MEMB 1\nMATERIAL B MEMB 2\n");
}

TEST(WriteBeta, ContinuesLongLists)
{
    std::vector<double> angles(70, 0.0);
    for (std::size_t i = 10; i < 70; i += 2)
        angles[i] = 12.5; // members 11, 13 ... 69
    // the head of 14 characters, 21 numbers and the mark are 79
    EXPECT_EQ(beta_lines(angles), "BETA 12.5 MEMB 11 13 15 17 19 21 23 25 27 29 31 33 35 37 39 41 43 45 47 49 51 -\n"
                                  "53 55 57 59 61 63 65 67 69\n");
}

} // namespace
} // namespace STAAD
