/// Wind and seismic parameters as JSON: an object with every field of the record under its name, as "dump"
/// prints it in a model.
#ifndef TOOLS_STAADKIT_CONVERT_PARAMETER_FILE_H
#define TOOLS_STAADKIT_CONVERT_PARAMETER_FILE_H

#include "staad/model/parameters.h"
#include "staad/report/read_report.h"

#include <string>

namespace tool {

/// Fills the record from the file at `path`; its texts become GBK. Every field must be there except the wind's
/// free `title`, and no others. The report has an error for each wrong field, in which case the record must not
/// be used, and warnings for what will not be written.
STAAD::ReadReport read_parameters(const std::string& path, STAAD::WindLoadParam& record);
STAAD::ReadReport read_parameters(const std::string& path, STAAD::SeismicParam& record);
/// Reads the text of such a file.
STAAD::ReadReport parameters_of_text(const std::string& text, STAAD::WindLoadParam& record);
STAAD::ReadReport parameters_of_text(const std::string& text, STAAD::SeismicParam& record);

/// The checks that need a whole record. Errors: a negative pressure, heights that do not rise, a list whose
/// length is not that of its counterpart, a word or an intensity that the wind and seismic codes do not have
/// (empty and 0: none given). Warnings: spectra that will not be written.
void check_parameters(const STAAD::WindLoadParam& wind, STAAD::ReadReport& report);
void check_parameters(const STAAD::SeismicParam& seismic, STAAD::ReadReport& report);

/// Parameters of a small building, to be changed by the user.
STAAD::WindLoadParam example_wind();
STAAD::SeismicParam example_seismic();

} // namespace tool

#endif
