/// Wind and seismic parameters as JSON: an object with every field of the record under its name, in
/// the form in which "dump" prints them within a model.
#ifndef TOOLS_STAADKIT_CONVERT_PARAMETER_FILE_H
#define TOOLS_STAADKIT_CONVERT_PARAMETER_FILE_H

#include "staad/model/parameters.h"
#include "staad/report/read_report.h"

#include <string>

namespace tool {

/// Fills the record from the file at `path`; its texts become GBK. Every field must be there, the
/// wind's free `title` excepted, and nothing else. The report holds an error for each field that is
/// not as it must be, in which case the record is not to be used, and warnings for what the written
/// file will not say.
STAAD::ReadReport read_parameters(const std::string& path, STAAD::WindLoadParam& record);
STAAD::ReadReport read_parameters(const std::string& path, STAAD::SeismicParam& record);
/// The same from the text of such a file.
STAAD::ReadReport parameters_of_text(const std::string& text, STAAD::WindLoadParam& record);
STAAD::ReadReport parameters_of_text(const std::string& text, STAAD::SeismicParam& record);

/// The part of this that needs a whole record. Errors: a negative pressure, heights that do not rise, a
/// list whose length is not that of its counterpart, a word or an intensity that the seismic and wind
/// codes do not have (empty and 0 stand for none). Warnings: spectra that will not be written.
void check_parameters(const STAAD::WindLoadParam& wind, STAAD::ReadReport& report);
void check_parameters(const STAAD::SeismicParam& seismic, STAAD::ReadReport& report);

/// Parameters of a small building, for people to change.
STAAD::WindLoadParam example_wind();
STAAD::SeismicParam example_seismic();

} // namespace tool

#endif
