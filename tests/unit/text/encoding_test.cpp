// Texts of unknown encoding as UTF-8.

#include "staad/text/encoding.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace STAAD {
namespace {

struct text_case {
    const char* why;
    std::string text; ///< octal where a letter follows, which a hexadecimal escape would take in: \337 is DF
    const char* utf8;
};

const text_case latin1_cases[] = {
    {"a letter inside a word; DF 65 is a character of GBK", "Stra\337e", "Stra\u00DFe"},
    {"FC 6C is one, too", "M\xFCller", "M\u00FCller"},
    {"at the end of a word, before a blank", "caf\xE9 bar", "caf\u00E9 bar"},
    {"at the end of the text, where GBK lacks a second byte", "caf\xE9", "caf\u00E9"},
    {"at the beginning of a word", "\xC4nderung", "\u00C4nderung"},
    {"several, each alone", "Fl\344che \374ber T\xFCr", "Fl\u00E4che \u00FCber T\u00FCr"},
    {"two side by side between lower-case letters", "Gr\xF6\337e", "Gr\u00F6\u00DFe"},
    {"two of the same", "cr\xE9\351e", "cr\u00E9\u00E9e"},
    {"the sign of degrees; B0 43 is a character of GBK", "20 \260C", "20 \u00B0C"},
    {"a power after a unit", "kN/m\xB2", "kN/m\u00B2"},
    {"the sign of multiplication between numbers, which is no letter", "200\327300", "200\u00D7300"},
};

const text_case other_cases[] = {
    {"plain ASCII", "BEAM 1", "BEAM 1"},
    {"nothing", "", ""},
    {"UTF-8 stays as it stands", "Stra\xC3\237e", "Stra\u00DFe"},
    {"one Chinese character between blanks: a pair of bytes", "KL \xC1\xBA 1", "KL \u6881 1"},
    {"one beside a letter", "KL\xC1\2721", "KL\u68811"},
    {"between capitals, as in the name of a group", "A\xC1\272B", "A\u6881B"},
    {"between small letters: BA is no letter of Latin-1", "a\xC1\272b", "a\u6881b"},
    {"a rare character with an ASCII byte, among common ones", "\xD6\xEC\xE9\x46\xBB\xF9", "\u6731\u9555\u57FA"},
    {"a Chinese word outweighs a byte that stands alone", "\xC1\xBA\xC1\xBA a\260C", "\u6881\u6881 a\u7648"},
    {"a byte from 80 to 9F is no character of Latin-1", "\x81\x40", "\u4E02"},
    {"no encoding at all: every byte is shown as Latin-1", "\xC1\xBA\xC1", "\u00C1\u00BA\u00C1"},
    {"a letter that touches no ASCII letter is none of a word", "1 \xFF 2", "1 \u00FF 2"},
};

TEST(Encoding, KnowsLatin1FromChinese)
{
    for (const text_case& c : latin1_cases) {
        EXPECT_TRUE(looks_like_latin1(c.text)) << c.why;
        EXPECT_EQ(utf8_text(c.text), c.utf8) << c.why;
        EXPECT_EQ(printable_text(c.text), c.utf8) << c.why;
    }
    for (const text_case& c : other_cases) {
        EXPECT_FALSE(looks_like_latin1(c.text)) << c.why;
        EXPECT_EQ(utf8_text(c.text), c.utf8) << c.why;
    }
}

/// Every Chinese line that a written model has.
TEST(Encoding, TheTextsOfWrittenModelsAreChinese)
{
    std::ifstream file(STAADKIT_GOLDEN_FOLDER "/wind-and-seismic.std", std::ios::binary);
    std::size_t chinese = 0;
    for (std::string line; std::getline(file, line);) {
        if (is_ascii(line))
            continue;
        ++chinese;
        const std::string utf8 = utf8_text(line);
        EXPECT_TRUE(utf8_from_gbk(line) == utf8) << utf8;
        EXPECT_TRUE(gbk_from_utf8(utf8) == line) << utf8;
    }
    EXPECT_GT(chinese, 20U);
}

TEST(Encoding, KnowsWellFormedUtf8)
{
    const struct {
        const char* why;
        std::string text;
        bool is_well_formed;
    } cases[] = {
        {"two bytes", "\xC2\x80", true},
        {"three, the last before the surrogates", "\xED\x9F\xBF", true},
        {"four, the last code point", "\xF4\x8F\xBF\xBF", true},
        {"one past it", "\xF4\x90\x80\x80", false},
        {"a surrogate", "\xED\xA0\x80", false},
        {"overlong in two bytes", "\xC0\xAF", false},
        {"overlong in three", "\xE0\x9F\xBF", false},
        {"overlong in four", "\xF0\x8F\xBF\xBF", false},
        {"cut off", "\xE6\xA2", false},
        {"a second byte that is none", "\xE6\x41\x81", false},
        {"a second byte alone", "\x80", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(is_utf8(c.text), c.is_well_formed) << c.why;
    EXPECT_EQ(gbk_from_utf8("\u20B9"), std::nullopt) << "the sign of the rupee is not in GBK";
}

TEST(Encoding, ATerminalIsNotDriven)
{
    EXPECT_EQ(printable_text("a\x1B[2J\x7F"), "a\\x1B[2J\\x7F");
    EXPECT_EQ(printable_text("a\u0085"), "a\\x85") << "a control character of UTF-8";
    EXPECT_EQ(printable_text("\xC1\xBA\x1B"), "\u6881\\x1B") << "the control after a character of GBK";
    EXPECT_EQ(printable_text("\xC1\xBA\xC1\n"), "\\xC1\\xBA\\xC1\\x0A") << "bytes of no known encoding";
    EXPECT_EQ(escape_controls("\xC1\xBA\xC1\n"), "\xC1\xBA\xC1\\x0A") << "as they stand";
}

TEST(Encoding, MeasuresAndCutsByCells)
{
    EXPECT_EQ(display_width("a\u6881\u00E9"), 4U);
    EXPECT_EQ(clipped("abcdef", 6), "abcdef");
    EXPECT_EQ(clipped("abcdefg", 6), "abc...");
    EXPECT_EQ(clipped("\u6881\u6881\u6881\u6881", 6), "\u6881...") << "no half of a wide character";
}

TEST(Encoding, ReadsUtf16)
{
    EXPECT_EQ(utf8_from_utf16(u"a\u00E9\u6881\U0001F3D7"), "a\u00E9\u6881\U0001F3D7");
    const char16_t halves[] = {0xD83C, u'x', 0xDFD7};
    EXPECT_EQ(utf8_from_utf16({halves, 3}), "\uFFFDx\uFFFD");
}

} // namespace
} // namespace STAAD
