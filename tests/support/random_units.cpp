#include "tests/support/random_units.h"

#include <vector>

namespace STAAD::decks {
namespace {

struct unit_word {
    const char* word;
    double factor;
};

const std::vector<unit_word> length_words = {
    {"METER", 1000.0}, {"METER", 1000.0}, {"m", 1000.0},      {"Mms", 1.0},   {"MM", 1.0},    {"FEET", 12 * 25.4},
    {"ft", 12 * 25.4}, {"INCHES", 25.4},  {"IN", 25.4},       {"CM", 10.0},   {"dms", 100.0}, {"DM", 100.0},
    {"km", 1000000.0}, {"METERS", 1.0},   {"kms", 1000000.0}, {"YARDS", 1.0},
};
const std::vector<unit_word> force_words = {
    {"KN", 1.0},   {"KN", 1.0},  {"kip", 4.445206}, {"POUND", 0.004445206}, {"KG", 9.8 * 0.001},
    {"MTON", 9.8}, {"N", 0.001}, {"dn", 0.01},      {"MN", 1000.0},         {"KIPS", 1.0},
};
const std::vector<unit_word> moment_words = {
    {"KN-M", 1000.0},
    {"knm", 1000.0},
    {"NM", 1.0},
    {"MTON-M", 9800.0},
    {"mtoncm", 98.0},
    {"KG-M", 9.8},
    {"kgcm", 0.098},
    {"KN--M", 1.0},
    {"TON-M", 1.0},
    {"KIP-IN", 4.445206 * 25.4},
    {"LB-IN", 0.004445206 * 25.4},
};

} // namespace

unit_line random_unit_line(chance& random)
{
    const unit_word length = random.any_of(length_words);
    const unit_word force = random.any_of(force_words);
    unit_line line;
    line.text = std::string("UNIT ") + length.word;
    if (random.one_in(15))
        return line; // two words: every factor is 1
    line.text += random.any_of({" ", "  "}) + std::string(force.word);
    line.length_factor = length.factor;
    line.force_factor = force.factor;
    if (random.one_in(3)) {
        const unit_word moment = random.any_of(moment_words);
        line.text += std::string(" ") + moment.word;
        line.force_length_factor = moment.factor;
    }
    return line;
}

} // namespace STAAD::decks
