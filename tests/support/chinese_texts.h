/// The lines in Chinese that explain the generated wind and seismic data, in GBK, and the texts that
/// the seismic parameters are told apart by.
#ifndef STAAD_TESTS_SUPPORT_CHINESE_TEXTS_H
#define STAAD_TESTS_SUPPORT_CHINESE_TEXTS_H

namespace STAAD::chinese {

// ---- wind, in the order written -----------------------------------------------------------------

inline constexpr const char* wind_types = // type numbers of the automatically defined wind loads
    "*{ \xD7\xD4\xB6\xAF\xB6\xA8\xD2\xE5\xB5\xC4\xB7\xE7\xBA\xC9\xD4\xD8\xB5\xC4\xC0\xE0"
    "\xD0\xCD\xBA\xC5";
inline constexpr const char* structure_high = // total height of the building
    "*{ \xBD\xA8\xD6\xFE\xBD\xE1\xB9\xB9\xB5\xC4\xD7\xDC\xB8\xDF\xB6\xC8";
inline constexpr const char* is_betaz = // whether the gust factor is considered
    "*{ \xCA\xC7\xB7\xF1\xBF\xBC\xC2\xC7\xB7\xE7\xD5\xF1\xCF\xB5\xCA\xFD\xB5\xC4\xD3\xB0"
    "\xCF\xEC";
inline constexpr const char* base_period = // fundamental period of the building
    "*{ \xBD\xA8\xD6\xFE\xBD\xE1\xB9\xB9\xBB\xF9\xB1\xBE\xD7\xD4\xD5\xF1\xD6\xDC\xC6\xDA";
inline constexpr const char* base_press = // basic wind pressure
    "*{ \xBB\xF9\xB1\xBE\xB7\xE7\xD1\xB9\xD6\xB5";
inline constexpr const char* soil_type = // site terrain roughness category, one character misspelt
    "*{ \xB3\xA1\xB5\xD8\xCD\xC1\xB4\xD6\xD4\xEC\xB6\xC8\xC0\xE0\xB1\xF0";
inline constexpr const char* aweather_width = // windward width for the four wind directions
    "*{ \xCB\xC4\xB8\xF6\xB7\xE7\xCF\xF2\xB5\xC4\xD3\xAD\xB7\xE7\xC3\xE6\xBF\xED\xB6\xC8";
inline constexpr const char* structure_type = // structure type (space or plane)
    "*{ \xBD\xE1\xB9\xB9\xC0\xE0\xD0\xCD\xA3\xA8\xBF\xD5\xBC\xE4\xBB\xF2\xC6\xBD\xC3\xE6"
    "\xA3\xA9";
inline constexpr const char* mius = // shape coefficients, four winds, four faces; a blank at the end
    "*{ \xB7\xE7\xBA\xC9\xD4\xD8\xCC\xE5\xD0\xCD\xCF\xB5\xCA\xFD\xA3\xAC\xCB\xC4\xB8\xF6"
    "\xB7\xE7\xCF\xF2\xA3\xAC\xCB\xC4\xB8\xF6\xC3\xE6 ";
inline constexpr const char* intensity_flag = // method of computing the pressure intensity over the height
    "*{ \xBC\xC6\xCB\xE3\xB7\xE7\xD1\xB9\xC7\xBF\xB6\xC8/\xB8\xDF\xB6\xC8\xC7\xFA\xCF"
    "\xDF\xB5\xC4\xB7\xBD\xCA\xBD";
inline constexpr const char* intensity_number = // points, given by the user, at which the intensity is computed
    "*{ \xD3\xC3\xBB\xA7\xD6\xB8\xB6\xA8\xD0\xE8\xD2\xAA\xBC\xC6\xCB\xE3\xB7\xE7\xD1\xB9"
    "\xC7\xBF\xB6\xC8\xB5\xC4\xB5\xE3\xCA\xFD";
inline constexpr const char* intensity_isometry = // spacing of the intensity at equal distances
    "*{ \xB5\xC8\xBE\xE0\xC0\xEB\xBC\xC6\xCB\xE3\xB7\xE7\xD1\xB9\xC7\xBF\xB6\xC8\xCA\xB1"
    "\xB5\xC4\xBE\xE0\xC0\xEB\xD6\xB5";
inline constexpr const char* intensity_floor = // storey height of the intensity storey by storey
    "*{ \xB0\xB4\xD5\xD5\xB2\xE3\xB8\xDF\xBC\xC6\xCB\xE3\xB8\xF7\xB5\xE3\xB7\xE7\xD1\xB9"
    "\xC7\xBF\xB6\xC8\xCA\xB1\xB5\xC4\xB2\xE3\xB8\xDF\xB6\xC8";

// ---- seismic, in the order written ----------------------------------------------------------------

inline constexpr const char* direction_factor = // direction and factor of the force
    "*{ \xC1\xA6\xD7\xF7\xD3\xC3\xB5\xC4\xB7\xBD\xCF\xF2\xD3\xEB\xCF\xB5\xCA\xFD";
inline constexpr const char* y_freedom = // whether the freedom along Y is considered
    "*{ \xCA\xC7\xB7\xF1\xBF\xBC\xC2\xC7 Y \xCF\xF2\xD7\xD4\xD3\xC9\xB6\xC8";
inline constexpr const char* code_type = // code type
    "*{ \xB9\xE6\xB7\xB6\xC0\xE0\xD0\xCD";
inline constexpr const char* eq_type = // earthquake type (far, near, or frequent, rare)
    "*{ \xB5\xD8\xD5\xF0\xC0\xE0\xD0\xCD(\xD4\xB6\xA1\xA2\xBD\xFC\xBB\xF2\xD5\xDF\xB6"
    "\xE0\xD3\xF6\xA1\xA2\xBA\xB1\xD3\xF6)";
inline constexpr const char* post_method = // superposition method
    "*{ \xB5\xD8\xD5\xF0\xB5\xFC\xBC\xD3\xB7\xBD\xB7\xA8";
inline constexpr const char* force_type = // type of force action
    "*{ \xC1\xA6\xB5\xC4\xD7\xF7\xD3\xC3\xC0\xE0\xD0\xCD";
inline constexpr const char* eq_intensity = // seismic intensity
    "*{ \xB5\xD8\xD5\xF0\xC1\xD2\xB6\xC8";
inline constexpr const char* eq_group = // seismic design group
    "*{ \xB5\xD8\xD5\xF0\xB7\xD6\xD7\xE9";
inline constexpr const char* special_accelerate = // whether the design acceleration of the region is 0.15g or 0.35g
    "*{ \xCA\xC7\xB7\xF1\xB5\xD8\xD5\xF0\xBC\xD3\xCB\xD9\xB6\xC8\xCE\xAA"
    "0.15g\xA1\xA2"
    "0.35g\xB5\xC4\xB5\xD8\xC7\xF8";
inline constexpr const char* point_number = // points kept for the response spectrum
    "*{ \xB1\xA3\xB4\xE6\xB7\xB4\xD3\xA6\xC6\xD7\xC7\xFA\xCF\xDF\xB5\xC4\xB5\xE3\xB5\xC4"
    "\xB8\xF6\xCA\xFD";
inline constexpr const char* damping_factor = // damping ratio
    "*{ \xD7\xE8\xC4\xE1\xCF\xB5\xCA\xFD";
inline constexpr const char* proportion_factor = // scale factor, 9.8 for accelerations
    "*{ \xB1\xC8\xC0\xFD\xCF\xB5\xCA\xFD,\xBC\xD3\xCB\xD9\xB6\xC8\xCA\xB1\xCE\xAA"
    "9.8";
inline constexpr const char* loadno_factor = // basic load cases of the equivalent gravity and their factors
    "*{ \xB5\xC3\xB5\xBD\xB5\xC8\xD0\xA7\xD6\xD8\xC1\xA6\xCA\xB1\xB5\xC4\xBB\xF9\xB1\xBE"
    "\xB9\xA4\xBF\xF6\xBA\xC5\xBC\xB0\xC6\xE4\xCF\xB5\xCA\xFD";

// ---- texts of the seismic parameters, in both encodings -------------------------------------------

/// One text as hosts hand it over.
struct encoded {
    const char* gbk;
    const char* utf8;
};

inline constexpr encoded far = {"\xD4\xB6", "\xE8\xBF\x9C"};                          // far
inline constexpr encoded near = {"\xBD\xFC", "\xE8\xBF\x91"};                         // near
inline constexpr encoded frequent = {"\xB6\xE0\xD3\xF6", "\xE5\xA4\x9A\xE9\x81\x87"}; // frequent
inline constexpr encoded rare = {"\xBA\xB1\xD3\xF6", "\xE7\xBD\x95\xE9\x81\x87"};     // rare
inline constexpr encoded first_group = {"\xB5\xDA\xD2\xBB\xD7\xE9",
                                        "\xE7\xAC\xAC\xE4\xB8\x80\xE7\xBB\x84"}; // first group
inline constexpr encoded second_group = {"\xB5\xDA\xB6\xFE\xD7\xE9",
                                         "\xE7\xAC\xAC\xE4\xBA\x8C\xE7\xBB\x84"}; // second group
inline constexpr encoded third_group = {"\xB5\xDA\xC8\xFD\xD7\xE9",
                                        "\xE7\xAC\xAC\xE4\xB8\x89\xE7\xBB\x84"}; // third group

} // namespace STAAD::chinese

#endif
