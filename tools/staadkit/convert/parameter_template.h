/// Examples of parameter files, for people to fill in.
#ifndef TOOLS_STAADKIT_CONVERT_PARAMETER_TEMPLATE_H
#define TOOLS_STAADKIT_CONVERT_PARAMETER_TEMPLATE_H

#include "output/std_output.h"

#include <string>

namespace tool {

inline constexpr const char* wind_template = "wind";
inline constexpr const char* seismic_template = "seismic";

/// Prints the file of that name with the values of a small building: what read_parameters() takes.
exit_code print_template(const std::string& name);

} // namespace tool

#endif
