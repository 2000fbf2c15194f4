/// The data that "info" shows of a structure beside what it shows of every model.
#ifndef TOOLS_STAADKIT_INFO_STRUCTURE_SUMMARY_H
#define TOOLS_STAADKIT_INFO_STRUCTURE_SUMMARY_H

#include "info/model_summary.h"
#include "staad/report/read_report.h"
#include "staad/structure/structure.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// A text and how many records have it.
struct counted_text {
    std::string text;
    std::size_t count = 0;
};

/// One load case, or one reference case.
struct case_summary {
    const STAAD::Structure::LoadCase* load_case = nullptr;
    std::vector<counted_text> kinds; ///< of its loads, as JSON has them: "uniform", in the order of the text
    // Loaded, each counted once.
    std::size_t joints = 0;
    std::size_t members = 0;
    std::size_t elements = 0;
};

/// What a deck says and the structure does not, or says as text: a finding, or the statements of one command.
struct aside {
    std::string code; ///< of the finding; empty: statements
    std::string text; ///< of the finding; of statements the command
    std::size_t count = 0;
    std::vector<STAAD::FileLines> lines; ///< of the first few
};

/// What is beside the records of a structure, each thing in one of three lists.
struct asides {
    std::vector<aside> lost;     ///< structure and loads that are not in the records, by line
    std::vector<aside> kept;     ///< analysis and design, kept as text
    std::vector<aside> harmless; ///< what costs nothing
};

/// The structure must outlive it.
struct structure_summary {
    const STAAD::Structure* structure = nullptr;
    std::vector<group_summary> groups;
    std::vector<counted_text> supports; ///< joints by what holds them
    std::vector<counted_text> mats;     ///< elements by the springs under them
    std::vector<case_summary> load_cases;
    std::vector<case_summary> reference_cases;
    asides beside;
};

structure_summary summarise(const STAAD::Structure& structure, const STAAD::ReadReport& report);

/// The parts of summarise(): groups with the numbers of theirs that a record has; findings and kept statements sorted.
std::vector<group_summary> summarise_groups(const STAAD::Structure& structure);
asides sort_asides(const STAAD::Structure& structure, const STAAD::ReadReport& report);

} // namespace tool

#endif
