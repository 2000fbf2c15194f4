/// Any bytes read the complete way: what comes of them refers to nothing that is not there, and the same comes of the
/// text with other line ends, with comments and blank lines between its lines, and in lower case.

#include "fuzz/fuzz_target.h"
#include "fuzz/memory_limit.h"
#include "staad/structure/read_structure.h"
#include "staad/text/words.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

using STAAD::Deck;
using STAAD::Structure;

struct reading {
    std::optional<Structure> structure;
    STAAD::ReadReport report;
    bool is_whole = false; ///< it came to its end within bounds
};

reading read(const std::string& text)
{
    reading made;
    made.is_whole = fuzz::within_memory([&] { made.structure = STAAD::read_structure(Deck(text), made.report); });
    return made;
}

template<class Positions>
bool are_positions(const Positions& positions, std::size_t size)
{
    return std::all_of(std::begin(positions), std::end(positions),
                       [size](int position) { return position >= -1 && position < static_cast<int>(size); });
}

template<class Records>
void check_sources(const Structure& structure, const Records& records, std::size_t lines)
{
    for (const auto& record : records) {
        const STAAD::FileLines origin = STAAD::origin(structure, record.source);
        fuzz::require(origin.first >= 1 && origin.first <= origin.last && origin.last <= lines,
                      "a record comes from lines of the text");
        fuzz::require(record.number >= 1, "a record has a number");
    }
}

void check_references(const Structure& structure, std::size_t lines)
{
    const std::size_t joints = structure.joints.size();
    for (const Structure::Member& member : structure.members)
        fuzz::require(
            are_positions(std::array{member.start, member.end}, joints) &&
                are_positions(std::array{member.section}, structure.sections.size()) &&
                are_positions(std::array{member.material}, structure.materials.size()) &&
                are_positions(std::array{member.start_release, member.end_release}, structure.releases.size()) &&
                are_positions(std::array{member.cracked}, structure.cracked.size()),
            "members refer to positions");
    for (const Structure::Element& element : structure.elements)
        fuzz::require(are_positions(element.corners, joints), "elements refer to positions");
    for (const Structure::Solid& solid : structure.solids)
        fuzz::require(are_positions(solid.corners, joints), "solids refer to positions");
    for (const Structure::Surface& surface : structure.surfaces)
        fuzz::require(are_positions(surface.corners, joints), "surfaces refer to positions");
    check_sources(structure, structure.joints, lines);
    check_sources(structure, structure.members, lines);
    check_sources(structure, structure.elements, lines);
    check_sources(structure, structure.solids, lines);
    check_sources(structure, structure.surfaces, lines);
}

void check_findings(const STAAD::ReadReport& report, std::size_t lines)
{
    for (const STAAD::Finding& finding : report.findings)
        fuzz::require(finding.first_line <= finding.last_line && finding.last_line <= lines && !finding.text.empty() &&
                          finding.count > 0,
                      "a finding stands in the text and says something", finding.code);
}

bool is_same(double left, double right)
{
    return left == right || (left != left && right != right);
}

bool is_same(const STAAD::Vector3& left, const STAAD::Vector3& right)
{
    return is_same(left.x, right.x) && is_same(left.y, right.y) && is_same(left.z, right.z);
}

bool is_same(const Structure::Joint& left, const Structure::Joint& right)
{
    return left.number == right.number && is_same(left.x, right.x) && is_same(left.y, right.y) &&
           is_same(left.z, right.z);
}

bool is_same(const Structure::Member& left, const Structure::Member& right)
{
    return left.number == right.number && left.start == right.start && left.end == right.end &&
           is_same(left.beta, right.beta) && left.behaviour == right.behaviour &&
           is_same(left.start_offset, right.start_offset) && is_same(left.end_offset, right.end_offset);
}

bool is_same(const Structure::Element& left, const Structure::Element& right)
{
    return left.number == right.number && left.corners == right.corners &&
           std::equal(left.thickness.begin(), left.thickness.end(), right.thickness.begin(),
                      [](double a, double b) { return is_same(a, b); });
}

bool is_same(const Structure::Solid& left, const Structure::Solid& right)
{
    return left.number == right.number && left.corners == right.corners;
}

bool is_same(const Structure::Surface& left, const Structure::Surface& right)
{
    return left.number == right.number && left.corners == right.corners && is_same(left.thickness, right.thickness);
}

template<class Records>
void require_same(const Records& left, const Records& right, const char* claim)
{
    fuzz::require(std::equal(left.begin(), left.end(), right.begin(), right.end(),
                             [](const auto& a, const auto& b) { return is_same(a, b); }),
                  claim);
}

/// What does not go by the spelling of names.
void require_same_geometry(const Structure& left, const Structure& right, const char* claim)
{
    require_same(left.joints, right.joints, claim);
    require_same(left.members, right.members, claim);
    require_same(left.elements, right.elements, claim);
    require_same(left.solids, right.solids, claim);
    require_same(left.surfaces, right.surfaces, claim);
    fuzz::require(left.groups.size() == right.groups.size() && left.supports.size() == right.supports.size() &&
                      left.load_cases.size() == right.load_cases.size() &&
                      left.combinations.size() == right.combinations.size() && left.head.up == right.head.up &&
                      left.head.kind == right.head.kind,
                  claim);
}

void require_same_lists(const Structure& left, const Structure& right, const char* claim)
{
    require_same_geometry(left, right, claim);
    fuzz::require(left.head.title == right.head.title && left.head.job_lines == right.head.job_lines &&
                      left.sections.size() == right.sections.size() &&
                      left.materials.size() == right.materials.size() && left.kept.size() == right.kept.size(),
                  claim);
}

/// The lines of the text, each with other ends after it.
std::string with_line_ends(const Deck& deck, std::string_view end)
{
    std::string text;
    for (std::size_t line = 1; line <= deck.line_count(); ++line) {
        const std::string_view content = deck.line(line);
        text.append(content.substr(0, std::min(content.find_last_not_of("\r\n") + 1, content.size()))).append(end);
    }
    return text;
}

template<class Compare>
void check_again(const Structure& structure, const std::string& text, const char* claim, Compare compare)
{
    const reading again = read(text);
    if (!again.is_whole)
        return;
    fuzz::require(again.structure.has_value(), claim);
    compare(structure, *again.structure, claim);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(fuzz::text_of(data, size));
    const reading made = read(text);
    if (!made.is_whole)
        return 0;
    const Deck deck(text);
    check_findings(made.report, deck.line_count());
    fuzz::require(made.structure || made.report.worst() == STAAD::Finding::Error, "there is a reason for no structure");
    if (!made.structure)
        return 0;
    check_references(*made.structure, deck.line_count());
    check_again(*made.structure, with_line_ends(deck, "\r\n"), "the same with CR LF", require_same_lists);
    check_again(*made.structure, with_line_ends(deck, "\n* LOAD 1 -\n\n"), "the same with comments and blank lines",
                require_same_lists);
    check_again(*made.structure, STAAD::detail::to_lower_ascii(text), "the same in lower case", require_same_geometry);
    return 0;
}
