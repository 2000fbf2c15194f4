/// Small listings of beam forces for the tests of the force import, and what was read from them in short.
#ifndef STAAD_TESTS_SUPPORT_FORCE_LISTING_H
#define STAAD_TESTS_SUPPORT_FORCE_LISTING_H

#include "staad/model/sd_reader.h"
#include "staad/report/read_report.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace STAAD::listings {

using lines = std::vector<std::string>;

/// One title in the encodings in which listings come.
struct title_text {
    const char* gbk;
    const char* utf8;
};

inline constexpr title_text element_forces = {
    // details of beam element internal forces
    "\xC1\xBA\xB5\xA5\xD4\xAA\xC4\xDA\xC1\xA6\xCF\xEA\xCF\xB8\xD0\xC5\xCF\xA2",
    "\xE6\xA2\x81\xE5\x8D\x95\xE5\x85\x83\xE5\x86\x85\xE5\x8A\x9B\xE8\xAF\xA6\xE7\xBB\x86\xE4\xBF\xA1\xE6\x81\xAF"};
inline constexpr title_text member_forces = {
    // details of beam internal forces
    "\xC1\xBA\xC4\xDA\xC1\xA6\xCF\xEA\xCF\xB8\xD0\xC5\xCF\xA2",
    "\xE6\xA2\x81\xE5\x86\x85\xE5\x8A\x9B\xE8\xAF\xA6\xE7\xBB\x86\xE4\xBF\xA1\xE6\x81\xAF"};

/// A unit line in whose units numbers are those of the model: mm, kN, kN*mm.
inline constexpr const char* model_units = "(mm) (kN) (N-m)";

/// Physical lines of a text that begins with a section.
inline constexpr std::size_t title_line = 1;
inline constexpr std::size_t unit_line = 5;
inline constexpr std::size_t first_data_line = 6;

/// "@7" becomes "7 1 2 3 4 5 6": a station at 7, the same values everywhere.
std::string with_stations(const std::string& line);

/// One section: title, heading, unit line, `data`, the empty line that closes it. Unit line and data are
/// written without the blank that they begin with; stations may be written "@7".
std::string section(const lines& data, const std::string& units = model_units,
                    const std::string& title = element_forces.gbk);

/// A model whose members 101, 102 ... stand at the positions 1, 2 ...
SdReader frame(int members = 5);

/// The listing, read for such a frame.
SdReader read(const std::string& listing);
ReadReport report_of(const std::string& listing);

/// What was kept, in one line: "1: 1(0 5) 2(0 5); 2:" says that the member at position 1 has the load
/// cases 1 and 2 with stations at 0 and 5, that at position 2 none. Records that stand under another
/// number than their own are marked with "!".
std::string stations(const SdReader& model);
/// The same of a section of `data` alone.
std::string stations_of(const lines& data);

/// Position, forces, moments.
using values = std::array<double, 7>;
values values_of(const ForcePoint& point);
std::vector<values> values_of_all(const std::vector<ForcePoint>& points);

/// The points of one record; empty if there is no such record.
std::vector<values> points(const SdReader& model, int position, int load_case);

} // namespace STAAD::listings

#endif
