#include "staad/report/input_findings.h"

namespace STAAD::detail {
namespace {

void report_unit_word(std::string_view word, const char* what, const char* counts_as, line_place place,
                      finding_sink& findings)
{
    if (!word.empty())
        findings.add(FindingCode::unit_word, place,
                     [&] { return quote(word) + " is not a known " + what + " unit: " + counts_as; });
}

} // namespace

void report_file_trouble(file_trouble trouble, finding_sink& findings)
{
    constexpr line_place whole_file{0, 0};
    const auto fail = [&](FindingCode code, const char* text) {
        findings.add(code, whole_file, [text] { return std::string(text); });
    };
    if (trouble.is_missing)
        fail(FindingCode::file_missing, "the file does not exist");
    else if (trouble.is_folder)
        fail(FindingCode::file_access, "it is a folder, not a file");
    else if (trouble.is_refused)
        fail(FindingCode::file_access, trouble.for_update ? "the file cannot be opened for reading and writing"
                                                          : "the file cannot be opened for reading");
    else
        fail(FindingCode::file_unreadable, "the file cannot be read to its end");
}

void report_unit_words(std::string_view unit_line, bool is_short, const unknown_unit_words& unknown, line_place place,
                       finding_sink& findings)
{
    if (is_short)
        findings.add(FindingCode::unit_short, place,
                     [&] { return quote(unit_line) + " has no force word: lengths count as mm, forces as kN"; });
    report_unit_word(unknown.length, "length", "lengths count as mm", place, findings);
    report_unit_word(unknown.force, "force", "forces count as kN", place, findings);
    report_unit_word(unknown.moment, "moment", "printed moments count as kN*mm", place, findings);
}

} // namespace STAAD::detail
