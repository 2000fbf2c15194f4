/// Parts of the text that a model is written as, and small models to write.
#ifndef STAAD_TESTS_SUPPORT_WRITTEN_TEXT_H
#define STAAD_TESTS_SUPPORT_WRITTEN_TEXT_H

#include "staad/model/sd_reader.h"

#include <string>
#include <vector>

namespace STAAD::written {

/// What stands between the line `first` and the next line `last`, both left out. Where one of them is
/// missing the test fails, and the result says so.
std::string between(const std::string& text, const std::string& first, const std::string& last);

/// The same of the text that `model` is written as.
std::string between(const SdReader& model, const std::string& first, const std::string& last);

/// Joints, members, shells; the user tables, groups and thicknesses after the shells.
std::string joints(const SdReader& model);
std::string members(const SdReader& model);
std::string shells_tables_groups(const SdReader& model);
/// Truss members and member properties.
std::string truss_and_properties(const SdReader& model);
/// Beta angles, materials, supports, releases and loads.
std::string constants_to_loads(const SdReader& model);
/// Supports, releases and loads of a model that has members of `one_material` alone.
std::string supports_to_loads(const SdReader& model);
/// Wind types and the four wind cases: everything from "DEFINE WIND LOAD" to the seismic case.
std::string wind(const SdReader& model);
/// The seismic case, its header line included, up to "FINISH".
std::string seismic(const SdReader& model);

/// Physical lines, without their line feeds. A text after the last line feed is a line as well.
std::vector<std::string> lines_of(const std::string& text);

inline constexpr const char* one_material = "C30";

/// Joints 1 to `members` + 1 in a row along the file's X, 1 m apart, and the members between them, all of
/// `one_material` and without a section.
SdReader row_of_members(int members);

/// A shell of `thickness` mm with the corners 1, 2 and 3.
SdShell shell(int thickness);

/// Adds a load case with a title, which is not written.
void add_case(SdReader& model, int number, const std::string& type = "Dead");

/// Puts a definition under the next number, and on the members at `positions` (from 1).
void add_load(SdReader& model, const LoadDefination& load, const std::vector<int>& positions);

/// A uniform load along GZ.
LoadDefination uniform(double value, int load_case);

} // namespace STAAD::written

#endif
