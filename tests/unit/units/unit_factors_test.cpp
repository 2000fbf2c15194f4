/// The three factors of a UNIT line, to the last bit.

#include "tests/support/sd_reader_access.h"

#include <gtest/gtest.h>

#include <bit>
#include <cctype>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using access = detail::sd_reader_access;

struct factors {
    double length;
    double force;
    double moment;
};

/// Factors of a UNIT line, in a model that had others before.
factors factors_of(const std::string& line)
{
    SdReader model;
    model.length_factor = 7.0;
    model.force_factor = 8.0;
    model.force_length_factor = 9.0;
    model.unit_text = line;
    access::unify_staadpro_unit(model);
    EXPECT_EQ(model.unit_text, line) << "the line itself stays";
    return {model.length_factor, model.force_factor, model.force_length_factor};
}

std::uint64_t bits(double value)
{
    return std::bit_cast<std::uint64_t>(value);
}

std::string upper(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

struct word_row {
    const char* why;
    const char* word;
    std::uint64_t want; // a bit pattern where no short literal is the exact value
};

const word_row lengths[] = {
    {"12 x 25.4 in doubles, the last bit below 304.8", "feet", 0x40730CCCCCCCCCCC},
    {"the same", "ft", 0x40730CCCCCCCCCCC},
    {"an inch", "inches", bits(25.4)},
    {"an inch", "in", bits(25.4)},
    {"the unit of the model", "mms", bits(1.0)},
    {"the unit of the model", "mm", bits(1.0)},
    {"ten of it", "cm", bits(10.0)},
    {"a hundred", "dms", bits(100.0)},
    {"a hundred", "dm", bits(100.0)},
    {"a thousand", "meter", bits(1000.0)},
    {"a thousand", "m", bits(1000.0)},
    {"a million", "kms", bits(1000000.0)},
    {"a million", "km", bits(1000000.0)},
};

const word_row forces[] = {
    {"a thousandth of the kip", "pound", bits(0.004445206)},
    {"the system's own kip", "kip", bits(4.445206)},
    {"9.8 x 0.001 in doubles, not 0.0098", "kg", 0x3F841205BC01A36F},
    {"g is 9.8", "mton", bits(9.8)},
    {"ten newtons", "dn", bits(0.01)},
    {"a newton", "n", bits(0.001)},
    {"the unit of the model", "kn", bits(1.0)},
    {"a thousand of it", "mn", bits(1000.0)},
};

const word_row moments[] = {
    {"4.445206 x 25.4", "kipin", 0x405C3A207AC9CAB9},
    {"4.445206 x 304.8, not x (12 x 25.4)", "kipft", 0x40952B985C17580B},
    {"0.004445206 x 25.4", "lbin", 0x3FBCE78DCD9B6F56},
    {"0.004445206 x (12 x 25.4)", "lbft", 0x3FF5ADAA5A349380},
    {"a metre is a thousand millimetres", "knm", bits(1000.0)},
    {"newtons and metres cancel", "nm", bits(1.0)},
    {"9.8 kN x 1000 mm", "mtonm", bits(9800.0)},
    {"9.8 kN x 10 mm", "mtoncm", bits(98.0)},
    {"0.0098 kN x 1000 mm", "kgm", bits(9.8)},
    {"0.0098 kN x 10 mm", "kgcm", bits(0.098)},
};

/// The words of a table, as they stand, in capitals and with a hyphen at every place in a moment word, after
/// `before`; `factor` is the one that they give.
void expect_words(std::span<const word_row> rows, const std::string& before, const std::string& after,
                  double factors::*factor, bool takes_hyphen)
{
    for (const word_row& c : rows) {
        const std::string plain = c.word;
        std::vector<std::string> spellings = {plain, upper(plain)};
        for (std::size_t place = 0; takes_hyphen && place <= plain.size(); ++place)
            spellings.push_back(upper(plain).insert(place, "-"));
        for (const std::string& word : spellings) {
            factors want = factors_of(before + " FOO" + after); // an unknown word: what the others give
            want.*factor = std::bit_cast<double>(c.want);
            const factors f = factors_of(before + " " + word + after);
            EXPECT_EQ(bits(f.*factor), c.want) << word << ": " << c.why << ", gives " << f.*factor;
            EXPECT_TRUE(f.length == want.length && f.force == want.force && f.moment == want.moment) << word;
        }
    }
}

TEST(UnitFactors, KnowEveryWord)
{
    expect_words(lengths, "UNIT", " MTON", &factors::length, false);
    expect_words(forces, "UNIT CM", "", &factors::force, false);
    expect_words(moments, "UNIT CM MTON", "", &factors::moment, true);
}

const struct {
    const char* why;
    const char* line;
    double length;
    double force;
    double moment;
} unit_lines[] = {
    {"metres and kilonewtons", "UNIT METER KN", 1000.0, 1.0, 1.0},
    {"with a moment word", "UNIT MMS KN KN-M", 1.0, 1.0, 1000.0},
    {"inches and pounds", "UNIT INCHES POUND", 25.4, 0.004445206, 1.0},
    {"any case", "UNIT Meter kN Kn-m", 1000.0, 1.0, 1000.0},
    {"runs of blanks", "UNIT   CM    MTON   MTON-M  ", 10.0, 9.8, 9800.0},
    {"the first word is not looked at", "UNITS CM MTON", 10.0, 9.8, 1.0},
    {"the moment is never derived from length and force", "UNIT METER MTON", 1000.0, 9.8, 1.0},
    {"nor must it agree with them", "UNIT METER KN KIP-IN", 1000.0, 1.0, 4.445206 * 25.4},
    {"words past the moment are ignored", "UNIT CM MTON KN-M FEET KIP", 10.0, 9.8, 1000.0},

    {"swapped words are unknown", "UNIT KN METER", 1.0, 1.0, 1.0},
    {"a plural that is not in the table", "UNIT METERS MTON", 1.0, 9.8, 1.0},
    {"another one", "UNIT CM KIPS", 10.0, 1.0, 1.0},
    {"and another", "UNIT CM POUNDS", 10.0, 1.0, 1.0},
    {"singulars that are not in the table", "UNIT INCH MTON", 1.0, 9.8, 1.0},
    {"one more", "UNIT FOOT MTON", 1.0, 9.8, 1.0},
    {"a word that begins like one of the table", "UNIT MET MTO", 1.0, 1.0, 1.0},
    {"the moment word of pounds is no force word", "UNIT CM LB", 10.0, 1.0, 1.0},
    {"a moment word that is unknown", "UNIT CM MTON TON-M", 10.0, 9.8, 1.0},
    {"an unknown word says nothing about the others", "UNIT FOO BAR KG-CM", 1.0, 1.0, 0.098},

    {"only the first hyphen of the moment word goes", "UNIT CM MTON K-N-M", 10.0, 9.8, 1.0},
    {"so two in a row leave one", "UNIT CM MTON KN--M", 10.0, 9.8, 1.0},
    {"hyphens stay in the length word", "UNIT M-M MTON", 1.0, 9.8, 1.0},
    {"and in the force word", "UNIT CM K-N KN-M", 10.0, 1.0, 1000.0},
    {"a hyphen alone is an unknown moment word", "UNIT CM MTON -", 10.0, 9.8, 1.0},

    {"two words are too few", "UNIT METER", 1.0, 1.0, 1.0},
    {"one word", "UNIT", 1.0, 1.0, 1.0},
    {"no blank after UNIT", "UNITMETER KN", 1.0, 1.0, 1.0},
    {"a tab does not separate", "UNIT METER\tKN", 1.0, 1.0, 1.0},
    {"nothing", "", 1.0, 1.0, 1.0},
    {"bytes past ASCII", "UNIT M\xC8 KN\xE9", 1.0, 1.0, 1.0},
};

TEST(UnitFactors, OfAWholeLine)
{
    for (const auto& c : unit_lines) {
        SCOPED_TRACE(c.why);
        const factors f = factors_of(c.line);
        EXPECT_EQ(f.length, c.length);
        EXPECT_EQ(f.force, c.force);
        EXPECT_EQ(f.moment, c.moment);
    }
}

} // namespace
} // namespace STAAD
