/// The lines in Chinese that explain the generated seismic data, in GBK, and the texts that the seismic parameters may
/// have.
#ifndef STAAD_TESTS_SUPPORT_CHINESE_TEXTS_H
#define STAAD_TESTS_SUPPORT_CHINESE_TEXTS_H

namespace STAAD::chinese {

// ---- lines, in the order written -------------------------------------------------------------------

inline constexpr const char* direction_factor = // direction and factor of the force
    "*{ \xC1\xA6\xD7\xF7\xD3\xC3\xB5\xC4\xB7\xBD\xCF\xF2\xD3\xEB\xCF\xB5\xCA\xFD";
inline constexpr const char* y_freedom = // whether the freedom along Y is considered
    "*{ \xCA\xC7\xB7\xF1\xBF\xBC\xC2\xC7 Y \xCF\xF2\xD7\xD4\xD3\xC9\xB6\xC8";
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
