/// DEFINE MATERIAL blocks.

#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// "C30 CONCRETE E=30 FCU=0.03": name, type, what is given.
std::string shown_material(const Structure::Material& material)
{
    std::string shown = material.name + (material.type.empty() ? "" : " " + material.type);
    const auto add = [&shown](const char* name, double value) {
        char text[64];
        std::snprintf(text, sizeof text, " %s=%.6g", name, value);
        shown += text;
    };
    const struct {
        const char* name;
        const std::optional<double>& value;
    } constants[] = {{"E", material.e},
                     {"G", material.g},
                     {"POISSON", material.poisson},
                     {"DENSITY", material.density},
                     {"ALPHA", material.alpha},
                     {"DAMP", material.damping}};
    for (const auto& each : constants)
        if (each.value)
            add(each.name, *each.value);
    for (const Structure::NamedValue& each : material.strengths)
        add(each.name.c_str(), each.value);
    return shown;
}

TEST(ReadMaterials, WithTheirConstants)
{
    const struct {
        const char* form;
        std::vector<std::string> lines; ///< of the block, in m and kN
        const char* materials;
        const char* findings;
        const char* why;
        double depth = 500.0; ///< mm, of a section of 0.5 after the block
    } cases[] = {
        {"material-constants",
         {"ISOTROPIC C30", "E 3e7", "POISSON 0.2", "DENSITY 25", "ALPHA 1e-05", "DAMP 0.05", "G 1.25e7"},
         "C30 E=30 G=12.5 POISSON=0.2 DENSITY=2.5e-08 ALPHA=1e-05 DAMP=0.05",
         "",
         "1 kN/m2 is 1e-6 kN/mm2, 1 kN/m3 1e-9 kN/mm3; ratios and ALPHA have no unit of force or length"},
        {"material-constants", {"isot Link", "e 1e20"}, "Link E=1e+14", "", "what is missing stays empty"},
        {"material-definition",
         {"ISOTROPIC 'MY STEEL'", "E 1e6", "ISOTROPIC S:355_J-2", "E 2e6 POISSON 0.3; CDAMP 0.02"},
         "'MY STEEL' E=1; S:355_J-2 E=2 POISSON=0.3 DAMP=0.02",
         "",
         "names; several constants on a line"},
        {"material-definition",
         {"ISOTROPIC A", "E 1e6", "DENSITY 10", "ISOTROPIC B", "E 2e6", "ISOTROPIC a", "E 3e6"},
         "A E=3 DENSITY=1e-08; B E=2",
         "",
         "a name again: later values count, the others stay"},
        {"material-definition",
         {"ISOTROPIC A", "E 1e6", "UNIT MMS KN", "ISOTROPIC B", "E 200"},
         "A E=1; B E=200",
         "",
         "a UNIT line within counts for what follows, in the block and after it",
         0.5},
        {"material-definition",
         {"ISOTROPIC A", "E 1e6", "2DORTHOTROPIC W", "E 5e6", "ISOTROPIC B", "E 2e6"},
         "A E=1; B E=2",
         "line-unread line-unread",
         "another kind of material is not taken for the one before"},
        {"material-definition", {"E 1e6", "ISOTROPIC"}, "", "line-unread line-unread", "constants of no material"},
        {"material-constants",
         {"ISOTROPIC A", "E", "POISSON 0.3 FOO 5", "G x"},
         "A POISSON=0.3",
         "line-unread line-unread line-unread",
         "words that are none; what stands before them counts"},
        {"material-type",
         {"ISOTROPIC C30", "TYPE concrete", "STRENGTH FCU 30000", "ISOTROPIC S", "TYPE STEEL",
          "STRENGTH FY 250000 FU 400000 RY 1.5 RT 1.2"},
         "C30 CONCRETE FCU=0.03; S STEEL FY=0.25 FU=0.4 RY=1.5 RT=1.2",
         "",
         "strengths are forces by area, RY and RT factors"},
        {"material-type",
         {"ISOTROPIC C30", "STRENGTH FCU 30000", "STRENGTH FCU 20000 FX 3", "TYPE"},
         "C30 FCU=0.02",
         "line-unread line-unread",
         "one strength again; one that is not known; a type of no word"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.form) + ": " + each.why);
        std::vector<std::string> lines = each.lines;
        lines.insert(lines.begin(), "DEFINE MATERIAL START");
        lines.insert(lines.end(), {"END DEFINE MATERIAL", "MEMBER PROPERTY", "1 PRIS YD 0.5"});
        const test::deck_reading read = test::read_in_frame(lines);
        std::string materials;
        for (const Structure::Material& material : read.structure.materials)
            materials += (materials.empty() ? "" : "; ") + shown_material(material);
        EXPECT_EQ(materials, each.materials);
        EXPECT_EQ(test::warnings(read.report), each.findings);
        EXPECT_EQ(read.structure.sections.at(0).values.at(0).value, each.depth);
    }
}

} // namespace
} // namespace STAAD
