/// What an engineer has to know before using a normalised file: what it says differently from the input, and
/// what it leaves out.
#ifndef TOOLS_STAADKIT_CONVERT_CONVERSION_NOTES_H
#define TOOLS_STAADKIT_CONVERT_CONVERSION_NOTES_H

#include "staad/model/sd_reader.h"
#include "staad/report/finding_codes.h"
#include "staad/report/read_report.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// How to find the line of the written file that is the example of a note: after a line that begins with
/// `block`, the first that begins with `begin` and ends with `end`. Empty texts fit every line.
struct line_pattern {
    std::string block = {};
    std::string begin = {};
    std::string end = {};
    std::string part = {}; ///< anywhere in the line
    std::size_t item = 0;  ///< the line has the item of that number, as in "14 3 8;"
};

struct conversion_note {
    STAAD::FindingCode code;
    std::string text; ///< without the place; may hold texts of the model
    line_pattern example;
};

using conversion_notes = std::vector<conversion_note>;

/// The generated loads that have parameters.
struct given_parameters {
    bool wind = false;
    bool seismic = false;
};

/// The notes on a model as it was read. To be called before it is written, because writing changes its numbers.
conversion_notes notes_on(const STAAD::SdReader& model, const STAAD::ReadReport& report, given_parameters given);

/// Prints the notes that have their example in `text`, the content of the file `name`.
void print_notes(std::string_view name, std::string_view text, const conversion_notes& notes);

/// "joints", "joints and members", "joints, members and elements"
std::string enumerated(const std::vector<std::string>& names);

/// The parts of notes_on().
void note_numbers(const STAAD::SdReader& model, conversion_notes& notes);
void note_loads(const STAAD::SdReader& model, const STAAD::ReadReport& report, conversion_notes& notes);
void note_members(const STAAD::SdReader& model, conversion_notes& notes);
void note_sections(const STAAD::SdReader& model, conversion_notes& notes);

} // namespace tool

#endif
