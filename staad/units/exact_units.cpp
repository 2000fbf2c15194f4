#include "staad/units/exact_units.h"

#include "staad/text/words.h"

#include <algorithm>
#include <iterator>

namespace STAAD::detail {
namespace {

struct spelling {
    std::string_view word;
    double factor;
};

constexpr double inch = 25.4;
constexpr double foot = 304.8;

// Plural and short forms each have a row: "M" is a metre, "MN" a force, "MTON" one as well.
constexpr spelling lengths[] = {
    {"IN", inch},    {"INC", inch},     {"INCH", inch},     {"INCHES", inch},   {"FT", foot},      {"FO", foot},
    {"FOOT", foot},  {"FEE", foot},     {"FEET", foot},     {"MM", 1.0},        {"MMS", 1.0},      {"CM", 10.0},
    {"CMS", 10.0},   {"DM", 100.0},     {"DMS", 100.0},     {"DME", 100.0},     {"M", 1000.0},     {"MS", 1000.0},
    {"MET", 1000.0}, {"METE", 1000.0},  {"METER", 1000.0},  {"METERS", 1000.0}, {"METRE", 1000.0}, {"METRES", 1000.0},
    {"MTS", 1000.0}, {"KM", 1000000.0}, {"KMS", 1000000.0},
};

constexpr double gravity = 9.80665; // m/s2: a mass as a weight
constexpr double pound = 4.4482216152605e-3;
constexpr double kip = 4.4482216152605;

constexpr spelling forces[] = {
    {"KIP", kip},        {"KIPS", kip},       {"LB", pound},     {"LBS", pound},     {"LBF", pound},
    {"POU", pound},      {"POUN", pound},     {"POUND", pound},  {"POUNDS", pound},  {"KG", 9.80665e-3},
    {"KGS", 9.80665e-3}, {"KGF", 9.80665e-3}, {"MTON", gravity}, {"MTONS", gravity}, {"MTO", gravity},
    {"N", 1e-3},         {"NEW", 1e-3},       {"NEWT", 1e-3},    {"NEWTON", 1e-3},   {"NEWTONS", 1e-3},
    {"KN", 1.0},         {"KNS", 1.0},        {"DN", 1e-2},      {"DNS", 1e-2},      {"MN", 1e3},
    {"MNS", 1e3},
};

template<std::size_t Size>
std::optional<double> factor_of(const spelling (&spellings)[Size], std::string_view word) noexcept
{
    const auto same = [word](const spelling& each) {
        return each.word.size() == word.size() &&
               std::equal(word.begin(), word.end(), each.word.begin(),
                          [](char c, char wanted) { return to_upper_ascii(c) == wanted; });
    };
    const auto* found = std::find_if(std::begin(spellings), std::end(spellings), same);
    return found == std::end(spellings) ? std::nullopt : std::optional(found->factor);
}

} // namespace

std::optional<double> exact_length(std::string_view word) noexcept
{
    return factor_of(lengths, word);
}

std::optional<double> exact_force(std::string_view word) noexcept
{
    return factor_of(forces, word);
}

} // namespace STAAD::detail
