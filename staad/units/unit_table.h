/// The unit words of the format and their factors. Data only.
///
/// The factors are this system's own and are kept to the last bit: a kip of 4.445206 kN, g of
/// 9.8 m/s2, a foot computed from inches. Projects converted earlier were converted with them.
#ifndef STAAD_UNITS_UNIT_TABLE_H
#define STAAD_UNITS_UNIT_TABLE_H

#include <string_view>

namespace STAAD::detail {

struct unit_word {
    std::string_view word; ///< lower case
    double factor;
};

inline constexpr double foot_in_mm = 12 * 25.4; // 304.79999999999995, one unit in the last place below 304.8
inline constexpr double kip_in_kn = 4.445206;
inline constexpr double pound_in_kn = 0.004445206;

/// mm per unit.
inline constexpr unit_word length_words[] = {
    {"feet", foot_in_mm}, {"ft", foot_in_mm}, {"inches", 25.4},  {"in", 25.4},  {"mms", 1.0},
    {"mm", 1.0},          {"cm", 10.0},       {"dms", 100.0},    {"dm", 100.0}, {"meter", 1000.0},
    {"m", 1000.0},        {"kms", 1000000.0}, {"km", 1000000.0},
};

/// kN per unit.
inline constexpr unit_word force_words[] = {
    {"pound", pound_in_kn}, {"kip", kip_in_kn}, {"kg", 9.8 * 0.001}, {"mton", 9.8},
    {"dn", 0.01},           {"n", 0.001},       {"kn", 1.0},         {"mn", 1000.0},
};

/// kN*mm per unit; the first hyphen of the word is left out.
inline constexpr unit_word moment_words[] = {
    {"kipin", kip_in_kn * 25.4},
    {"kipft", kip_in_kn * 304.8}, // 304.8 exactly, unlike the foot of the length words
    {"lbin", pound_in_kn * 25.4},
    {"lbft", pound_in_kn* foot_in_mm},
    {"knm", 1000.0},
    {"nm", 1.0},
    {"mtonm", 9800.0},
    {"mtoncm", 98.0},
    {"kgm", 9.8},
    {"kgcm", 0.098},
};

} // namespace STAAD::detail

#endif
