#include "staad/report/finding_codes.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace STAAD {
namespace {

using code = FindingCode;

constexpr Finding::Severity note = Finding::Note;
constexpr Finding::Severity warning = Finding::Warning;
constexpr Finding::Severity error = Finding::Error;

// Meaning and advice are cells of a Markdown table, too: no "|" in them.
constexpr FindingCodeInfo table[] = {
    {code::file_missing, "file-missing", error, "The file does not exist.", "Check the path."},
    {code::file_access, "file-access", error, "The file cannot be opened; a host opens it for reading and writing.",
     "Check its permissions; a host may pass the text from memory instead."},
    {code::file_unreadable, "file-unreadable", error, "The file or standard input cannot be read to its end.",
     "Copy the file to a local disk and try again."},
    {code::not_a_deck, "not-a-deck", error, "The input is empty, a folder, binary, or a listing of forces.",
     "Give the deck as plain text."},
    {code::not_a_listing, "not-a-listing", error, "The input is empty, a folder, binary, UTF-16, or a deck.",
     "Give the listing that the analysis printed as plain text."},
    {code::no_unit, "no-unit", error,
     "No line begins with UNIT and has a line after it; or the text is UTF-16, or its "
     "lines end with carriage returns alone.",
     "Add the UNIT line; save the deck as plain text with line feeds."},
    {code::no_joints, "no-joints", error, "No JOINT COORDINATES line follows the UNIT line.",
     "See the line that was probably meant, reported with it."},
    {code::no_members, "no-members", error, "No line after the joints is exactly MEMBER INCIDENCES.",
     "See the line that was probably meant, reported with it."},
    {code::limit, "limit", error, "A list, all lists together or long texts grow past the limits of one reading.",
     "Shorten the list at the line named."},
    {code::memory, "memory", error, "There is not enough memory to read the input.",
     "Close other programs, or use a machine with more memory."},

    {code::keyword_near, "keyword-near", warning, "A line is nearly a keyword and is not read as one.",
     "Write the keyword exactly: upper case, no other blanks, nothing after it."},
    {code::skipped, "skipped", note, "Lines of a command that no block understood.",
     "Check whether the model needs them."},
    {code::block_open, "block-open", warning, "A block has no closing line.", "Add the closing line."},
    {code::block_ended, "block-ended", warning, "A line ends a block although data lines come after it.",
     "Remove the comment, leading blank or other line that ended it."},
    {code::item_short, "item-short", warning, "A joint, member, element or surface has too few numbers.",
     "Complete it: missing numbers count as 0."},
    {code::item_number, "item-number", warning, "A joint, member, element or surface has a number below 1.",
     "Number it from 1 on; a command among the joints is read as a joint of number 0."},
    {code::number_word, "number-word", warning, "A word is in the place of a number, or a number is missing.",
     "Write a number: the word, or the gap, counts as 0."},
    {code::list_stopped, "list-stopped", warning, "A list ends at a word that lists do not know, such as BY or ALL.",
     "Write the numbers out, or as TO ranges."},
    {code::list_no_record, "list-no-record", warning,
     "A line has no effect: the model has none of the numbers in its list.", "Check the numbers."},
    {code::joint_unknown, "joint-unknown", warning, "The number of a joint that the file does not define.",
     "Define the joint, or correct the number."},
    {code::member_unknown, "member-unknown", warning, "The number of a member that the file does not define.",
     "Define the member, or correct the number."},
    {code::element_unknown, "element-unknown", warning, "The number of an element that the file does not define.",
     "Define the element, or correct the number."},
    {code::unit_word, "unit-word", warning, "A unit is not known, or a moment unit is missing: its factor is 1.",
     "Use a unit word of the tables; METERS and KIPS are not known."},
    {code::unit_short, "unit-short", warning, "The UNIT line has no force word: no factor is taken from it.",
     "Give length and force: UNIT METER KN."},
    {code::unit_later, "unit-later", warning, "A later UNIT line changes nothing, though its words differ.",
     "Convert the values after it to the units of the first line."},
    {code::density, "density", warning, "The concrete density is taken from a line of the material block.",
     "Check the value; it is often that of E."},
    {code::load_number, "load-number", warning, "The header of a load case has no number.",
     "Number the load case; reference loads are read as load case 0."},
    {code::load_again, "load-again", warning, "A load case has a second header; the loads of both stay.",
     "Give each load case a number of its own."},
    {code::load_block, "load-block", warning, "A load block is not understood and kept as text.",
     "Do not count on its loads: its numbers are taken for members."},

    {code::line_unread, "line-unread", warning, "The complete reading does not understand a line, or a part of it.",
     "Correct it; the structure goes without what it says."},
    {code::command_unknown, "command-unknown", warning, "A line begins with a word of no command; it is kept as text.",
     "Correct the word if it is meant for a command."},
    {code::command_kept, "command-kept", note, "Statements that say nothing about structure and loads, kept as text.",
     "None needed."},
    {code::command_passed_over, "command-passed-over", note, "Statements that the complete reading passes over.",
     "None needed."},
    {code::hidden_content, "hidden-content", warning,
     "The deck holds more than the structure shows: the analysis program makes elements, loads or changes of it.",
     "Do not count on the structure being whole."},
    {code::form_kept, "form-kept", warning, "A form of a command that is kept as text and not understood further.",
     "Check what it says by hand."},
    {code::number_again, "number-again", warning, "Two joints, members or elements have one number; the later counts.",
     "Number them apart."},
    {code::two_items, "two-items", note, "A line without a semicolon is read as two joints or members.",
     "Write a semicolon between them."},
    {code::group_unknown, "group-unknown", warning, "A list names a group that the deck does not define.",
     "Define the group, or correct its name."},
    {code::material_unknown, "material-unknown", warning, "A material that neither the deck nor the program defines.",
     "Define the material, or correct its name."},
    {code::table_unknown, "table-unknown", warning, "A user table, or a row of one, that the deck does not define.",
     "Define it, or correct the name."},
    {code::case_unknown, "case-unknown", warning, "A sum names a load case that the deck does not have.",
     "Define the case, or correct its number."},
    {code::case_again, "case-again", warning, "A load case has a second header; its loads join those of the first.",
     "Number the cases apart."},
    {code::outside_case, "outside-case", warning, "Loads stand before the first load case.",
     "Write the header of their case before them."},
    {code::not_in_container, "not-in-container", note, "What the container of the host has no place for.",
     "Take it from the structure."},
    {code::changed_in_container, "changed-in-container", note, "What the container holds in another form.",
     "Take it from the structure."},

    {code::force_no_model, "force-no-model", error, "The model has no members to take the forces.",
     "Read the model before its forces."},
    {code::force_no_title, "force-no-title", error, "No line of the listing is the title of a section of beam forces.",
     "Print beam forces with the analysis, and choose that listing."},
    {code::force_section, "force-section", note, "A section of forces was read: its members and units.",
     "None needed."},
    {code::force_section_short, "force-section-short", warning, "A section ends before its unit line and is skipped.",
     "Print the listing again."},
    {code::force_short_line, "force-short-line", warning, "A line of the listing holds no station.",
     "A station is a position, three forces and three moments."},
    {code::force_no_member, "force-no-member", warning, "A station before the first member is skipped.",
     "Print the listing again."},
    {code::force_unknown_member, "force-unknown-member", warning,
     "The listing has a member that the model does not have.", "Check that deck and listing belong together."},
    {code::force_other_model, "force-other-model", warning,
     "More members of the listing are missing in the model than are found.", "Choose the listing of this model."},
    {code::force_last_case, "force-last-case", warning, "A load case of a member is left out: no other follows it.",
     "Print one more load case, or one more member."},
    {code::force_cut_off, "force-cut-off", warning, "The listing breaks off in a member.", "Print the listing again."},
    {code::force_case_again, "force-case-again", warning,
     "A load case of a member is printed twice: it has the stations of both.", "Print each load case once."},
    {code::force_few_stations, "force-few-stations", warning, "A load case of a member has fewer than two stations.",
     "Print two stations or more: the downstream lists go without it."},

    {code::member_without_forces, "member-without-forces", warning, "A member asked for has no forces.",
     "Check its number against the listing."},
    {code::case_without_forces, "case-without-forces", warning, "A load case asked for has no forces.",
     "Check its number against the listing."},
    {code::nothing_selected, "nothing-selected", warning, "No member asked for has forces of a load case asked for.",
     "Ask for other members or load cases."},

    {code::json, "json", error, "A file of parameters is no JSON object.", "Correct it at the line and column named."},
    {code::field_unknown, "field-unknown", error, "A field of parameters has a name that is not known.",
     "See the names in the template."},
    {code::field_missing, "field-missing", error, "A field of parameters is missing.", "Add it; see the template."},
    {code::field_twice, "field-twice", error, "A field of parameters is there twice.", "Remove one."},
    {code::field_value, "field-value", error, "A field of parameters has a value that it cannot have.",
     "Correct the value; see the template."},
    {code::list_length, "list-length", error, "Lists of parameters that belong together differ in length.",
     "Give the same number of values in each."},
    {code::spectrum, "spectrum", warning, "A response spectrum is not written.", "Complete its values."},

    {code::numbers, "numbers", note, "Joints, members or elements have new numbers in the written deck.",
     "Use the new numbers with it; lists named with the note still have the old ones."},
    {code::kept_units, "kept-units", note, "Numbers in sections, supports and releases keep the units of the input.",
     "Convert them by hand."},
    {code::gravity, "gravity", note, "Equivalent gravity is written in kN and mm with two decimals.",
     "Check that line loads have not become zero."},
    {code::generated, "generated", note, "Four wind load cases with one number and a seismic one are always written.",
     "Give their parameters, or remove the load cases."},
    {code::loads, "loads", note, "Loads are written in kN and mm and in the model's axes.", "Check the line shown."},
    {code::loads_left_out, "loads-left-out", note, "Loads that are not written.", "Add them by hand."},
    {code::offsets, "offsets", note, "Member offsets are not written.", "Add them by hand."},
    {code::trusses, "trusses", note, "Truss, tension-only and compression-only members are written as plain ones.",
     "Declare them by hand."},
    {code::surfaces, "surfaces", note, "Surfaces are written as elements.", "Mesh them, or define the surfaces again."},
    {code::sections, "sections", note, "Sections are written as bare mm, which the analysis program cannot read.",
     "Write them by hand."},
    {code::no_section, "no-section", note, "The list of members without a section has nothing after it.",
     "Give them a section."},
    {code::materials, "materials", note, "A material is not in the written material library.",
     "Define it in the written deck."},
    {code::user_tables, "user-tables", note, "User tables are written in a form that the analysis program cannot read.",
     "Copy them from the input."},
};

constexpr bool is_in_order_of_codes()
{
    for (std::size_t i = 0; i < std::size(table); ++i)
        if (table[i].code != static_cast<FindingCode>(i))
            return false;
    return true;
}
static_assert(is_in_order_of_codes());
static_assert(std::size(table) == number_of_finding_codes, "a code has no row");

} // namespace

FindingCodeList finding_codes() noexcept
{
    return {std::begin(table), std::end(table)};
}

const FindingCodeInfo& finding_code_info(FindingCode code) noexcept
{
    return table[static_cast<std::size_t>(code)];
}

const FindingCodeInfo* find_finding_code(std::string_view text) noexcept
{
    const auto found =
        std::find_if(std::begin(table), std::end(table), [text](const auto& row) { return row.text == text; });
    return found == std::end(table) ? nullptr : found;
}

Finding make_finding(FindingCode code, std::string text, std::size_t first_line, std::size_t last_line)
{
    const FindingCodeInfo& info = finding_code_info(code);
    Finding finding;
    finding.severity = info.severity;
    finding.code = info.text;
    finding.first_line = first_line;
    finding.last_line = last_line;
    finding.text = std::move(text);
    return finding;
}

} // namespace STAAD
