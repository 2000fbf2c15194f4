/// What of wind and seismic parameters the written file will not say, or not as it must be said.
#ifndef TOOLS_STAADKIT_CONVERT_PARAMETER_CHECKS_H
#define TOOLS_STAADKIT_CONVERT_PARAMETER_CHECKS_H

#include "staad/model/parameters.h"
#include "staad/report/read_report.h"

namespace tool {

/// Adds warnings to `report`. Texts of the records are GBK.
void check_parameters(const STAAD::WindLoadParam& record, STAAD::ReadReport& report);
void check_parameters(const STAAD::SeismicParam& record, STAAD::ReadReport& report);

} // namespace tool

#endif
