/// The report of "info" on a file, as text and JSON.
#ifndef TOOLS_STAADKIT_INFO_INFO_REPORT_H
#define TOOLS_STAADKIT_INFO_INFO_REPORT_H

#include "cli/open_model.h"
#include "info/model_summary.h"
#include "info/structure_summary.h"
#include "output/json_writer.h"
#include "output/std_output.h"

#include <string>

namespace tool {

/// An opened file and its summaries: of the model, null if none was read, and of the structure, null if it was not
/// read completely.
struct info_report {
    const opened_deck& opened;
    const model_summary* summary;
    const structure_summary* complete;
};

/// Prints one model on many lines. There must be a summary.
void put_info_text(std_output& out, const info_report& report);

/// One line for one of several files: its contents, or why it has no model.
std::string info_line(const opened_deck& opened);

/// Prints one object: what the text shows, numbers not rounded, and the findings.
void put_info_json(std_output& out, const info_report& report);
/// Adds the same object to an array.
void add_info_json(json_array& array, const info_report& report);

} // namespace tool

#endif
