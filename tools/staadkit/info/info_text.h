/// The report of "info" for people.
#ifndef TOOLS_STAADKIT_INFO_INFO_TEXT_H
#define TOOLS_STAADKIT_INFO_INFO_TEXT_H

#include "cli/open_model.h"
#include "info/model_summary.h"
#include "output/std_output.h"

#include <string>

namespace tool {

/// All there is to tell about one model, on lines of its own.
void put_full_report(std_output& out, const opened_model& opened, const model_summary& summary);

/// One line for one of several files: what it holds, or why it holds no model.
std::string one_line_report(const opened_model& opened);

} // namespace tool

#endif
