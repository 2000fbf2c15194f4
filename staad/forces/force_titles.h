/// The lines that begin a section of beam forces.
#ifndef STAAD_FORCES_FORCE_TITLES_H
#define STAAD_FORCES_FORCE_TITLES_H

#include <string_view>

namespace STAAD::detail {

/// One title in the encodings in which listings come.
struct force_title {
    std::string_view gbk;
    std::string_view utf8;
};

/// In order of rank: the second counts only in listings without the first.
inline constexpr force_title force_titles[] = {
    // details of beam element internal forces
    {"\xC1\xBA\xB5\xA5\xD4\xAA\xC4\xDA\xC1\xA6\xCF\xEA\xCF\xB8\xD0\xC5\xCF\xA2",
     "\xE6\xA2\x81\xE5\x8D\x95\xE5\x85\x83\xE5\x86\x85\xE5\x8A\x9B\xE8\xAF\xA6\xE7\xBB\x86\xE4\xBF\xA1\xE6\x81\xAF"},
    // details of beam internal forces
    {"\xC1\xBA\xC4\xDA\xC1\xA6\xCF\xEA\xCF\xB8\xD0\xC5\xCF\xA2",
     "\xE6\xA2\x81\xE5\x86\x85\xE5\x8A\x9B\xE8\xAF\xA6\xE7\xBB\x86\xE4\xBF\xA1\xE6\x81\xAF"},
};

} // namespace STAAD::detail

#endif
