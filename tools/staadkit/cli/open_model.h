/// From names on the command line to a model, a structure, and forces.
#ifndef TOOLS_STAADKIT_CLI_OPEN_MODEL_H
#define TOOLS_STAADKIT_CLI_OPEN_MODEL_H

#include "cli/read_input.h"
#include "cli/reading_option.h"
#include "staad/model/sd_reader.h"
#include "staad/report/read_report.h"
#include "staad/structure/structure.h"

#include <optional>
#include <string>

namespace tool {

/// An input file and the findings from reading it.
struct opened_input {
    std::string name; ///< for messages: the path as given, "<stdin>" for "-"
    bool was_read = false;
    STAAD::ReadReport report; ///< has an error if no model or no forces were read
};

struct opened_model : opened_input {
    STAAD::SdReader model;
};

struct opened_structure : opened_input {
    STAAD::Structure structure;
};

/// What a report shows: a model, and of the complete reading the structure, whose loads the model is without.
struct opened_deck : opened_model {
    std::optional<STAAD::Structure> structure;
};

/// A listing of forces. The forces are in the model.
struct opened_forces : opened_input {};

/// Reads the file at `path`, or standard input for "-", opened for reading only. Of the complete reading the model is
/// what the container takes of the structure; the report then has what both say. Throws nothing: a file that needs
/// more memory than there is, or than a reading may use, gives no model.
opened_model open_model(const std::string& path, reading_choice reading);

/// The same as a structure, which of the host reading is what its model says.
opened_structure open_structure(const std::string& path, reading_choice reading);

/// The same for a report of what a deck holds. The report is that of the reading alone.
opened_deck open_deck(const std::string& path, reading_choice reading);

/// Reads the listing at `path`, or standard input for "-", into `model`. Throws nothing, as open_model.
opened_forces open_forces(const std::string& path, STAAD::SdReader& model);

/// Empties the model, or the structure, and reports the error: there is not enough memory to show it.
void give_up_for_memory(opened_model& opened);
void give_up_for_memory(opened_deck& opened);
void give_up_for_memory(opened_structure& opened);

/// Text of the first error of the report; empty if there is none.
std::string first_error(const STAAD::ReadReport& report);

} // namespace tool

#endif
