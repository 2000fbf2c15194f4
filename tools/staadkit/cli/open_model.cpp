#include "cli/open_model.h"

#include "cli/messages.h"
#include "staad/report/finding_codes.h"
#include "staad/report/read_limit.h"
#include "staad/structure/container.h"
#include "staad/structure/read_structure.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <optional>
#include <utility>
#include <vector>

namespace tool {
namespace {

using STAAD::Finding;
using STAAD::FindingCode;

constexpr const char* binary = "binary, not text";

/// Whether the text is a listing of forces, to report files given in the wrong order.
bool is_listing(std::string_view text)
{
    STAAD::SdReader model;
    model.beams.emplace_back();
    STAAD::ReadReport report;
    model.ReadForceMomentFromText(text, report);
    return report.worst() != Finding::Error;
}

bool is_deck(std::string_view text)
{
    return STAAD::SdReader().ReadSDDataFromText(text);
}

/// The structure of the text; none if there is no UNIT line or no joint, which the report says.
std::optional<STAAD::Structure> read_completely(std::string_view text, STAAD::ReadReport& report)
{
    const STAAD::Deck deck{std::string(text)};
    return STAAD::read_structure(deck, report);
}

/// Reads into `opened`, with the findings of the container after those of the reading.
bool read_text(std::string_view text, reading_choice reading, opened_model& opened)
{
    if (reading == reading_choice::host)
        return opened.model.ReadSDDataFromText(text, opened.report);
    const std::optional<STAAD::Structure> structure = read_completely(text, opened.report);
    if (!structure)
        return false;
    STAAD::ReadReport container;
    STAAD::to_reader(*structure, opened.model, container);
    opened.report.density_from = container.density_from;
    std::move(container.findings.begin(), container.findings.end(), std::back_inserter(opened.report.findings));
    return true;
}

bool read_text(std::string_view text, reading_choice reading, opened_structure& opened)
{
    if (reading == reading_choice::host) {
        STAAD::SdReader model;
        if (!model.ReadSDDataFromText(text, opened.report))
            return false;
        opened.structure = STAAD::structure_of(model);
        return true;
    }
    std::optional<STAAD::Structure> structure = read_completely(text, opened.report);
    if (structure)
        opened.structure = std::move(*structure);
    return structure.has_value();
}

/// What the container takes of a structure but its loads: their lists, which it would write out, may be more numbers
/// than it holds.
void fill_without_loads(STAAD::Structure& structure, STAAD::SdReader& model)
{
    std::vector<STAAD::Structure::LoadCase> load_cases = std::exchange(structure.load_cases, {});
    STAAD::to_reader(structure, model);
    structure.load_cases = std::move(load_cases);
}

bool read_text(std::string_view text, reading_choice reading, opened_deck& opened)
{
    if (reading == reading_choice::host)
        return opened.model.ReadSDDataFromText(text, opened.report);
    opened.structure = read_completely(text, opened.report);
    if (opened.structure)
        fill_without_loads(*opened.structure, opened.model);
    return opened.structure.has_value();
}

template<class Opened>
bool read_deck(const std::string& path, reading_choice reading, Opened& opened)
{
    const input_bytes input = read_input(path, FindingCode::not_a_deck);
    if (input.error) {
        opened.report.findings = {*input.error};
        return false;
    }
    if (read_text(input.text(), reading, opened))
        return true;
    if (is_binary(input.text()))
        opened.report.findings = {kind_error(path, FindingCode::not_a_deck, binary)};
    else if (is_listing(input.text()))
        opened.report.findings = {kind_error(path, FindingCode::not_a_deck, "a listing of forces")};
    return false;
}

void read_forces(const std::string& path, STAAD::SdReader& model, STAAD::ReadReport& report)
{
    const input_bytes input = read_input(path, FindingCode::not_a_listing);
    if (input.error) {
        report.findings = {*input.error};
        return;
    }
    model.ReadForceMomentFromText(input.text(), report);
    if (report.worst() != Finding::Error || model.beams.empty())
        return;
    if (is_utf16(input.text()))
        report.findings = {
            kind_error(path, FindingCode::not_a_listing, "UTF-16, which is not read: save it as plain text")};
    else if (is_binary(input.text()))
        report.findings = {kind_error(path, FindingCode::not_a_listing, binary)};
    else if (is_deck(input.text()))
        report.findings = {kind_error(path, FindingCode::not_a_listing, "a deck")};
}

void empty(opened_model& opened)
{
    opened.model = {};
}

void empty(opened_structure& opened)
{
    opened.structure = {};
}

void empty(opened_deck& opened)
{
    opened.model = {};
    opened.structure.reset();
}

template<class Opened>
void fail_for_memory(Opened& opened, const char* text)
{
    empty(opened);
    opened.was_read = false;
    add_finding(opened.report, FindingCode::memory, text);
}

template<class Opened>
Opened open_as(const std::string& path, reading_choice reading)
{
    Opened opened;
    opened.name = input_name(path);
    try {
        opened.was_read = read_deck(path, reading, opened);
    } catch (const STAAD::ReadLimitError& error) {
        empty(opened); // what was read so far may fill the memory
        add_finding(opened.report, FindingCode::limit, error.text(), error.first_line());
    } catch (const std::bad_alloc&) {
        fail_for_memory(opened, "not enough memory to read it");
    }
    return opened;
}

constexpr const char* cannot_show = "not enough memory to show what it holds";

} // namespace

opened_model open_model(const std::string& path, reading_choice reading)
{
    return open_as<opened_model>(path, reading);
}

opened_structure open_structure(const std::string& path, reading_choice reading)
{
    return open_as<opened_structure>(path, reading);
}

opened_deck open_deck(const std::string& path, reading_choice reading)
{
    return open_as<opened_deck>(path, reading);
}

opened_forces open_forces(const std::string& path, STAAD::SdReader& model)
{
    opened_forces opened;
    opened.name = input_name(path);
    try {
        read_forces(path, model, opened.report);
    } catch (const std::bad_alloc&) {
        model.beam_forces.clear();
        add_finding(opened.report, FindingCode::memory, "not enough memory to read it");
    }
    opened.was_read = opened.report.worst() != Finding::Error;
    return opened;
}

void give_up_for_memory(opened_model& opened)
{
    fail_for_memory(opened, cannot_show);
}

void give_up_for_memory(opened_deck& opened)
{
    fail_for_memory(opened, cannot_show);
}

void give_up_for_memory(opened_structure& opened)
{
    fail_for_memory(opened, cannot_show);
}

std::string first_error(const STAAD::ReadReport& report)
{
    for (const Finding& finding : report.findings) {
        if (finding.severity == Finding::Error)
            return finding.text;
    }
    return {};
}

} // namespace tool
