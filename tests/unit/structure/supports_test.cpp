/// Supports of joints and springs under elements.

#include "tests/unit/structure/read_deck.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

struct support_row {
    const char* form;
    std::vector<std::string> lines; // after SUPPORTS
    const char* set;
    const char* supports; // as text_of() writes them, separated by " | "
    const char* warnings;
    const char* why;
};

/// "position: held degrees, springs": degrees along and about the axes of the model.
std::string text_of(const Structure::Support& support)
{
    static const char* const names[] = {"x", "y", "z", "xx", "yy", "zz"};
    std::string text = std::to_string(support.joint) + ":" + (support.enforced ? " enforced" : "");
    if (support.is_kept)
        return text + " " + support.text;
    for (std::size_t i = 0; i < 6; ++i)
        if (support.held[i])
            text += std::string(" ") + names[i];
    for (std::size_t i = 0; i < 6; ++i)
        if (support.springs[i] != 0.0)
            text += std::string(" k") + names[i] + "=" + std::to_string(support.springs[i]);
    return text;
}

std::string text_of(const std::vector<Structure::Support>& supports)
{
    std::string text;
    for (const Structure::Support& support : supports)
        text += (text.empty() ? "" : " | ") + text_of(support);
    return text;
}

const support_row supports_rows[] = {
    {"fixed", {"1 4 FIXED"}, "", "0: x y z xx yy zz | 3: x y z xx yy zz", "", "all six, positions for numbers"},
    {"fixed", {"4 fixed", "1 Fixed;"}, "", "3: x y z xx yy zz | 0: x y z xx yy zz", "", "in the order of the text"},
    {"fixed", {"1 FIXTURE WALL"}, "", "0: x y z xx yy zz", "line-unread", "words left over are reported"},
    {"fixed", {"1 FLAT"}, "", "", "line-unread", "no support at all"},
    {"fixed", {"ALL"}, "", "", "line-unread", "a list of nothing"},
    {"fixed", {"99 FIXED"}, "", "", "joint-unknown", "no such joint"},
    {"pinned", {"1 TO 2 PINNED; 3 FIXED"}, "", "0: x y z | 1: x y z | 2: x y z xx yy zz", "", "moments free; items"},
    {"fixed-but", {"1 FIXED BUT FX MZ"}, "", "0: x z yy zz", "", "file X is model y, file Z is model x"},
    {"fixed-but", {"1 FIXED BUT FX MZ"}, "SET Z UP", "0: y z xx yy", "", "file X is model x"},
    {"fixed-but",
     {"1 FIXED BUT KFY 200 KMZ 50 MX"},
     "",
     "0: x y zz kz=0.200000 kxx=50000.000000",
     "",
     "kN/m is 1e-3 kN/mm, kN*m is 1e3 kN*mm; a spring frees its direction"},
    {"fixed-but", {"1 FIXED BUT KFY MX"}, "", "0: x y z xx yy zz", "line-unread", "a spring without a value"},
    {"fixed-but", {"1 PINNED BUT FX"}, "", "0: x z", "", "what is free of a pin"},
    {"enforced", {"1 ENFORCED BUT MX MY"}, "", "0: enforced x y z xx", "", "as FIXED BUT: MX, MY are model yy, zz"},
    {"enforced", {"1 ENFORCED"}, "", "0: enforced x y z xx yy zz", "", "all six"},
    {"support-kept",
     {"1 2 INCLINED  1 0 1 FIXED BUT MX", "3 ELASTIC MAT DIRECT Y SUBGRADE 5"},
     "",
     "0: INCLINED 1 0 1 FIXED BUT MX | 1: INCLINED 1 0 1 FIXED BUT MX | 2: ELASTIC MAT DIRECT Y SUBGRADE 5",
     "form-kept form-kept",
     "the words stay as text"},
    {"support-kept",
     {"1 GENERATE PINNED", "2 MULTILINEAR SPRING"},
     "",
     "0: GENERATE PINNED | 1: MULTILINEAR SPRING",
     "form-kept form-kept",
     "the words stay as text"},
    {"fixed",
     {"1 TO 3 FIXED", "2 PINNED"},
     "",
     "0: x y z xx yy zz | 2: x y z xx yy zz | 1: x y z",
     "",
     "the later line counts"},
    {"fixed",
     {"UNIT FEET KIP", "1 FIXED BUT KFX 12"},
     "",
     "0: x z xx yy zz ky=0.175127",
     "",
     "12 kip/ft = 12 * 4.4482216152605 / 304.8 kN/mm, after a UNIT line within the block"},
};

TEST(Supports, OfJoints)
{
    for (const support_row& row : supports_rows) {
        SCOPED_TRACE(row.lines.back() + ": " + row.why);
        std::vector<std::string> lines{"SUPPORTS"};
        lines.insert(lines.end(), row.lines.begin(), row.lines.end());
        const auto read = test::read_in_frame(lines, row.set);
        EXPECT_EQ(text_of(read.structure.supports), row.supports);
        EXPECT_EQ(test::warnings(read.report), row.warnings);
    }
}

TEST(Supports, KeepTheirWordsAndLines)
{
    const auto read =
        test::read_in_frame({"SUPPORTS", "1  FIXED   BUT MX", "MEMBER TRUSS", "1", "SUPPORT", "4 PINNED"});
    ASSERT_EQ(read.structure.supports.size(), 2U);
    EXPECT_EQ(read.structure.supports[0].text, "FIXED BUT MX");
    EXPECT_EQ(test::case_line(read.structure, read.structure.supports[0].source), 2U);
    EXPECT_EQ(test::case_line(read.structure, read.structure.supports[1].source), 6U);
}

struct mat_row {
    const char* form;
    std::vector<std::string> lines;
    const char* set;
    const char* mats; // "positions direction subgrade, words"
    const char* warnings;
    const char* why;
};

std::string text_of(const std::vector<Structure::Mat>& mats)
{
    std::string text;
    for (const Structure::Mat& mat : mats) {
        text += text.empty() ? "" : " | ";
        for (const int element : mat.elements)
            text += std::to_string(element) + " ";
        text += mat.direction.x == 1.0 ? "x " : mat.direction.y == 1.0 ? "y " : mat.direction.z == 1.0 ? "z " : "? ";
        text += std::to_string(mat.subgrade * 1e9) + (mat.one_way ? " one way" : "");
        text += mat.compression ? " compression" : "";
    }
    return text;
}

const mat_row mat_rows[] = {
    {"plate-mat",
     {"11 12 PLATE MAT DIRECT Y SUBGRADE 5000 PRINT"},
     "",
     "0 1 z 5000.000000",
     "",
     "elements, not joints; Y is up; kN/m3 is 1e-9 kN/mm3"},
    {"plate-mat", {"12 plate mat direct zonly subgrade 8 compression"}, "", "1 x 8.000000 one way compression", "", ""},
    {"plate-mat", {"ALL PLATE MAT DIRECT Z ONLY SUBG 8"}, "SET Z UP", "0 1 z 8.000000 one way", "", "Z is up"},
    {"plate-mat",
     {"11 PLATE MAT DIRECT Y SUBGRADE 5", "ALL PLATE MAT DIRECT Y SUBGRADE 6"},
     "",
     "0 1 z 6.000000",
     "",
     "the later line counts"},
    {"plate-mat",
     {"11 PLATE MAT DIRECT Y SUBGRADE 5", "11 PLATE MAT DIRECT X SUBGRADE 6"},
     "",
     "0 z 5.000000 | 0 y 6.000000",
     "",
     "springs along two axes stand beside each other"},
    {"plate-mat", {"11 PLATE MAT DIRECT W SUBGRADE 5"}, "", "", "line-unread", "no axis"},
    {"plate-mat", {"11 PLATE MAT DIRECT Y SUBGRADE"}, "", "", "line-unread", "no value"},
    {"plate-mat", {"1 PLATE MAT DIRECT Y SUBGRADE 5"}, "", "", "element-unknown", "joint 1 is no element"},
};

TEST(Supports, UnderElements)
{
    for (const mat_row& row : mat_rows) {
        SCOPED_TRACE(row.lines.back() + ": " + row.why);
        std::vector<std::string> lines{"SUPPORTS"};
        lines.insert(lines.end(), row.lines.begin(), row.lines.end());
        const auto read = test::read_in_frame(lines, row.set);
        EXPECT_EQ(text_of(read.structure.mats), row.mats);
        EXPECT_TRUE(read.structure.supports.empty());
        EXPECT_EQ(test::warnings(read.report), row.warnings);
    }
}

} // namespace
} // namespace STAAD
