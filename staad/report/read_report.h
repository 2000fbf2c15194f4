/// What a reading reports about the text.
#ifndef STAAD_REPORT_READ_REPORT_H
#define STAAD_REPORT_READ_REPORT_H

#include "staad/export.h"

#include <cstddef>
#include <string>
#include <vector>

namespace STAAD {

/// One thing worth knowing about a text.
struct Finding {
    enum Severity : int { Note = 0, Warning = 1, Error = 2 };

    Severity severity = Note;
    std::string code;           ///< short and fixed, for programs: "unit-word"; report/finding_codes.h has them all
    std::size_t first_line = 0; ///< first physical line it is about, from 1; 0: the text as a whole
    std::size_t last_line = 0;  ///< last physical line it is about
    std::string text;           ///< for people, without place and severity, in English
    std::size_t count = 1;      ///< occurrences that this finding stands for
};

/// Physical lines of a text, from 1, both included. 0: nowhere.
struct FileLines {
    std::size_t first = 0;
    std::size_t last = 0;
};

/// Findings in the order in which the reading met them, which is not always that of the lines.
///
/// Of one code at most `most_per_code` findings are listed; one more of that code then counts all
/// further ones, its text that of the first of them. Findings of the code "skipped" are all listed:
/// their text is the words of a command, their count that of its lines which no block understood.
struct ReadReport {
    static constexpr std::size_t most_per_code = 50;

    std::vector<Finding> findings;
    /// The lines from which the reading of a deck took `concrete_density`; 0: it is the default.
    FileLines density_from;

    /// The gravest severity among the findings; Note if there are none.
    STAAD_API Finding::Severity worst() const;
};

} // namespace STAAD

#endif
