/// The Chinese texts of written files: GBK bytes, each with its meaning in English.
#ifndef STAAD_WRITER_GENERATED_GBK_TEXTS_H
#define STAAD_WRITER_GENERATED_GBK_TEXTS_H

#include <span>
#include <string_view>

namespace STAAD::detail {

/// Comments of the generated wind loads.
namespace wind_text {

// type numbers of the automatically defined wind loads
inline constexpr std::string_view auto_type_numbers =
    "\xD7\xD4\xB6\xAF\xB6\xA8\xD2\xE5\xB5\xC4\xB7\xE7\xBA\xC9\xD4\xD8\xB5\xC4\xC0\xE0\xD0\xCD\xBA\xC5";
// total height of the building
inline constexpr std::string_view total_height = "\xBD\xA8\xD6\xFE\xBD\xE1\xB9\xB9\xB5\xC4\xD7\xDC\xB8\xDF\xB6\xC8";
// whether the gust factor is considered
inline constexpr std::string_view gust_factor_considered =
    "\xCA\xC7\xB7\xF1\xBF\xBC\xC2\xC7\xB7\xE7\xD5\xF1\xCF\xB5\xCA\xFD\xB5\xC4\xD3\xB0\xCF\xEC";
// fundamental natural period of the building
inline constexpr std::string_view base_period =
    "\xBD\xA8\xD6\xFE\xBD\xE1\xB9\xB9\xBB\xF9\xB1\xBE\xD7\xD4\xD5\xF1\xD6\xDC\xC6\xDA";
// basic wind pressure
inline constexpr std::string_view base_pressure = "\xBB\xF9\xB1\xBE\xB7\xE7\xD1\xB9\xD6\xB5";
// site terrain roughness category; one character is misspelt, and must stay so
inline constexpr std::string_view terrain_roughness =
    "\xB3\xA1\xB5\xD8\xCD\xC1\xB4\xD6\xD4\xEC\xB6\xC8\xC0\xE0\xB1\xF0";
// windward width for the four wind directions
inline constexpr std::string_view windward_widths =
    "\xCB\xC4\xB8\xF6\xB7\xE7\xCF\xF2\xB5\xC4\xD3\xAD\xB7\xE7\xC3\xE6\xBF\xED\xB6\xC8";
// structure type (space or plane)
inline constexpr std::string_view structure_type =
    "\xBD\xE1\xB9\xB9\xC0\xE0\xD0\xCD\xA3\xA8\xBF\xD5\xBC\xE4\xBB\xF2\xC6\xBD\xC3\xE6\xA3\xA9";
// wind load shape coefficients, four wind directions, four faces; ends in a blank
inline constexpr std::string_view shape_coefficients =
    "\xB7\xE7\xBA\xC9\xD4\xD8\xCC\xE5\xD0\xCD\xCF\xB5\xCA\xFD\xA3\xAC\xCB\xC4\xB8\xF6\xB7\xE7\xCF\xF2\xA3\xAC\xCB\xC4"
    "\xB8\xF6\xC3\xE6 ";
// method of computing the curve of pressure over height
inline constexpr std::string_view intensity_method =
    "\xBC\xC6\xCB\xE3\xB7\xE7\xD1\xB9\xC7\xBF\xB6\xC8/\xB8\xDF\xB6\xC8\xC7\xFA\xCF\xDF\xB5\xC4\xB7\xBD\xCA\xBD";
// number of points, given by the user, at which the pressure is computed
inline constexpr std::string_view intensity_points = "\xD3\xC3\xBB\xA7\xD6\xB8\xB6\xA8\xD0\xE8\xD2\xAA\xBC\xC6\xCB\xE3"
                                                     "\xB7\xE7\xD1\xB9\xC7\xBF\xB6\xC8\xB5\xC4\xB5\xE3\xCA\xFD";
// spacing where the pressure is computed at equal distances
inline constexpr std::string_view equal_distance =
    "\xB5\xC8\xBE\xE0\xC0\xEB\xBC\xC6\xCB\xE3\xB7\xE7\xD1\xB9\xC7\xBF\xB6\xC8\xCA\xB1\xB5\xC4\xBE\xE0\xC0\xEB\xD6\xB5";
// storey height where the pressure is computed storey by storey
inline constexpr std::string_view storey_height =
    "\xB0\xB4\xD5\xD5\xB2\xE3\xB8\xDF\xBC\xC6\xCB\xE3\xB8\xF7\xB5\xE3\xB7\xE7\xD1\xB9\xC7\xBF\xB6\xC8\xCA\xB1\xB5\xC4"
    "\xB2\xE3\xB8\xDF\xB6\xC8";

} // namespace wind_text

/// Comments of the generated seismic loads.
namespace seismic_text {

// directions and factors of the force action
inline constexpr std::string_view directions_and_factors =
    "\xC1\xA6\xD7\xF7\xD3\xC3\xB5\xC4\xB7\xBD\xCF\xF2\xD3\xEB\xCF\xB5\xCA\xFD";
// whether the freedom in Y is considered
inline constexpr std::string_view y_freedom_considered =
    "\xCA\xC7\xB7\xF1\xBF\xBC\xC2\xC7 Y \xCF\xF2\xD7\xD4\xD3\xC9\xB6\xC8";
// code type
inline constexpr std::string_view code_type = "\xB9\xE6\xB7\xB6\xC0\xE0\xD0\xCD";
// earthquake type (far, near, or frequent, rare)
inline constexpr std::string_view earthquake_type =
    "\xB5\xD8\xD5\xF0\xC0\xE0\xD0\xCD("
    "\xD4\xB6\xA1\xA2\xBD\xFC\xBB\xF2\xD5\xDF\xB6\xE0\xD3\xF6\xA1\xA2\xBA\xB1\xD3\xF6)";
// seismic superposition method
inline constexpr std::string_view superposition_method = "\xB5\xD8\xD5\xF0\xB5\xFC\xBC\xD3\xB7\xBD\xB7\xA8";
// type of force action
inline constexpr std::string_view force_type = "\xC1\xA6\xB5\xC4\xD7\xF7\xD3\xC3\xC0\xE0\xD0\xCD";
// seismic intensity
inline constexpr std::string_view seismic_intensity = "\xB5\xD8\xD5\xF0\xC1\xD2\xB6\xC8";
// seismic design group
inline constexpr std::string_view design_group = "\xB5\xD8\xD5\xF0\xB7\xD6\xD7\xE9";
// whether the design acceleration of the region is 0.15g or 0.35g
inline constexpr std::string_view special_acceleration =
    "\xCA\xC7\xB7\xF1\xB5\xD8\xD5\xF0\xBC\xD3\xCB\xD9\xB6\xC8\xCE\xAA"
    "0.15g\xA1\xA2"
    "0.35g\xB5\xC4\xB5\xD8\xC7\xF8";
// number of points kept of the response-spectrum curve
inline constexpr std::string_view spectrum_points =
    "\xB1\xA3\xB4\xE6\xB7\xB4\xD3\xA6\xC6\xD7\xC7\xFA\xCF\xDF\xB5\xC4\xB5\xE3\xB5\xC4\xB8\xF6\xCA\xFD";
// damping ratio
inline constexpr std::string_view damping_ratio = "\xD7\xE8\xC4\xE1\xCF\xB5\xCA\xFD";
// scale factor, 9.8 for accelerations
inline constexpr std::string_view scale_factor =
    "\xB1\xC8\xC0\xFD\xCF\xB5\xCA\xFD,\xBC\xD3\xCB\xD9\xB6\xC8\xCA\xB1\xCE\xAA"
    "9.8";
// basic load cases and their factors for the equivalent gravity
inline constexpr std::string_view equivalent_gravity =
    "\xB5\xC3\xB5\xBD\xB5\xC8\xD0\xA7\xD6\xD8\xC1\xA6\xCA\xB1\xB5\xC4\xBB\xF9\xB1\xBE\xB9\xA4\xBF\xF6\xBA\xC5\xBC\xB0"
    "\xC6\xE4\xCF\xB5\xCA\xFD";

} // namespace seismic_text

/// A word that a host may give in either encoding, and its number in the file.
struct numbered_word {
    std::string_view gbk;
    std::string_view utf8;
    int number;
};

inline constexpr numbered_word earthquake_types[] = {
    {"\xD4\xB6", "\xE8\xBF\x9C", 1},                     // far
    {"\xBD\xFC", "\xE8\xBF\x91", 2},                     // near
    {"\xB6\xE0\xD3\xF6", "\xE5\xA4\x9A\xE9\x81\x87", 3}, // frequent
    {"\xBA\xB1\xD3\xF6", "\xE7\xBD\x95\xE9\x81\x87", 4}, // rare
};

inline constexpr numbered_word design_groups[] = {
    {"\xB5\xDA\xD2\xBB\xD7\xE9", "\xE7\xAC\xAC\xE4\xB8\x80\xE7\xBB\x84", 1}, // first group
    {"\xB5\xDA\xB6\xFE\xD7\xE9", "\xE7\xAC\xAC\xE4\xBA\x8C\xE7\xBB\x84", 2}, // second group
    {"\xB5\xDA\xC8\xFD\xD7\xE9", "\xE7\xAC\xAC\xE4\xB8\x89\xE7\xBB\x84", 3}, // third group
};

/// Number of `word`, 0 if it is none of `words`.
constexpr int number_of(std::string_view word, std::span<const numbered_word> words) noexcept
{
    for (const numbered_word& each : words) {
        if (word == each.gbk || word == each.utf8)
            return each.number;
    }
    return 0;
}

} // namespace STAAD::detail

#endif
