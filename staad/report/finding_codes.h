/// Every code that a finding can have: its text, severity, meaning and advice.
#ifndef STAAD_REPORT_FINDING_CODES_H
#define STAAD_REPORT_FINDING_CODES_H

#include "staad/export.h"
#include "staad/report/read_report.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace STAAD {

/// The codes of the library and of the command-line tool. The text of a code is its name with hyphens.
enum class FindingCode : int {
    // No text can be read from a file, or no model from a text.
    file_missing,
    file_access,
    file_unreadable,
    not_a_deck,
    not_a_listing,
    no_unit,
    no_joints,
    no_members,
    limit,
    memory,
    // Lines of a deck.
    keyword_near,
    skipped,
    block_open,
    block_ended,
    item_short,
    item_number,
    number_word,
    list_stopped,
    list_no_record,
    joint_unknown,
    member_unknown,
    element_unknown,
    unit_word,
    unit_short,
    unit_later,
    density,
    load_number,
    load_again,
    load_block,
    // What the complete reading reports beside these.
    line_unread,
    command_unknown,
    command_kept,
    command_passed_over,
    hidden_content,
    form_kept,
    number_again,
    two_items,
    group_unknown,
    material_unknown,
    table_unknown,
    case_unknown,
    case_again,
    outside_case,
    not_in_container,
    changed_in_container,
    // Force listings.
    force_no_model,
    force_no_title,
    force_section,
    force_section_short,
    force_short_line,
    force_no_member,
    force_unknown_member,
    force_other_model,
    force_last_case,
    force_cut_off,
    force_case_again,
    force_few_stations,
    // Selections of forces.
    member_without_forces,
    case_without_forces,
    nothing_selected,
    // Files of parameters.
    json,
    field_unknown,
    field_missing,
    field_twice,
    field_value,
    list_length,
    spectrum,
    // What a written deck says differently from the one read, or leaves out.
    numbers,
    kept_units,
    gravity,
    generated,
    loads,
    loads_left_out,
    offsets,
    trusses,
    surfaces,
    sections,
    no_section,
    materials,
    user_tables,
};

inline constexpr std::size_t number_of_finding_codes = static_cast<std::size_t>(FindingCode::user_tables) + 1;

/// One code.
struct FindingCodeInfo {
    FindingCode code;
    const char* text;           ///< short and fixed, for programs: "unit-word"
    Finding::Severity severity; ///< of its findings; of `keyword_near` an error where it cost the model
    const char* meaning;        ///< one line
    const char* advice;         ///< one line
};

/// All codes in the order of the enumeration, for range-based loops.
struct FindingCodeList {
    const FindingCodeInfo* first;
    const FindingCodeInfo* past_last;

    const FindingCodeInfo* begin() const noexcept { return first; }
    const FindingCodeInfo* end() const noexcept { return past_last; }
    std::size_t size() const noexcept { return static_cast<std::size_t>(past_last - first); }
};

STAAD_API FindingCodeList finding_codes() noexcept;

/// The entry of a code. Cost: one look-up.
STAAD_API const FindingCodeInfo& finding_code_info(FindingCode code) noexcept;

/// The same by the code's text, as a Finding holds it; null if no code has that text.
STAAD_API const FindingCodeInfo* find_finding_code(std::string_view text) noexcept;

/// A finding of the code's own severity. `first_line` and `last_line` are physical lines, from 1; 0: the
/// text as a whole. Throws std::bad_alloc.
STAAD_API Finding make_finding(FindingCode code, std::string text, std::size_t first_line = 0,
                               std::size_t last_line = 0);

} // namespace STAAD

#endif
