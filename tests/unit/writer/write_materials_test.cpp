/// The material library, beta angles and the materials of members and shells.

#include "staad/model/sd_reader.h"
#include "staad/writer/normalised_text.h"
#include "tests/support/written_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace STAAD {
namespace {

TEST(WriteMaterialLibrary, IsFixedButForTheDensityOfTheConcrete)
{
    SdReader model = written::row_of_members(1);
    model.beams[0].material = "S355";
    model.concrete_density = 24.1234567;
    EXPECT_EQ(written::between(model, "DEFINE MATERIAL START", "MEMBER PROPERTY "), R"(ISOTROPIC STEEL
E 1.99947e+008
POISSON 0.3
DENSITY 76.8191
ALPHA 6e-006
DAMP 0.03
ISOTROPIC C1
E 2.17185e+007
POISSON 0.17
DENSITY 0
ALPHA 1e-005
DAMP 0.05
ISOTROPIC CONCRETE
E 2.17184e+007
POISSON 0.17
DENSITY 24.1235
ALPHA 5.5e-006
DAMP 0.05
ISOTROPIC STAINLESSSTEEL
E 1.93052e+008
POISSON 0.3
DENSITY 78.4477
ALPHA 9.9e-006
DAMP 0.03
ISOTROPIC ALUMINUM
E 6.89473e+007
POISSON 0.33
DENSITY 26.6017
ALPHA 1.28e-005
DAMP 0.03
END DEFINE MATERIAL
)");
    EXPECT_NE(normalised_text(SdReader()).find("\nDENSITY 23.5615\n"), std::string::npos) << "unless it is set";
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
    {"by name; shells stand after MEMB, too",
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

} // namespace
} // namespace STAAD
