/// The report of "info" for programs.
#ifndef TOOLS_STAADKIT_INFO_INFO_JSON_H
#define TOOLS_STAADKIT_INFO_INFO_JSON_H

#include "cli/open_model.h"
#include "info/model_summary.h"

#include <nlohmann/json.hpp>

namespace tool {

/// What the text report tells, numbers not rounded, with the findings; `summary` null: no model.
nlohmann::ordered_json json_report(const opened_model& opened, const model_summary* summary);

} // namespace tool

#endif
