#include "cli/open_model.h"

#include "cli/messages.h"
#include "staad/report/finding_codes.h"
#include "staad/report/read_limit.h"

#include <new>
#include <utility>

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

bool read_model(const std::string& path, opened_model& opened)
{
    const input_bytes input = read_input(path, FindingCode::not_a_deck);
    if (input.error) {
        opened.report.findings = {*input.error};
        return false;
    }
    if (opened.model.ReadSDDataFromText(input.text(), opened.report))
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

void fail_for_memory(opened_model& opened, const char* text)
{
    opened.model = {};
    opened.was_read = false;
    add_finding(opened.report, FindingCode::memory, text);
}

} // namespace

opened_model open_model(const std::string& path)
{
    opened_model opened;
    opened.name = input_name(path);
    try {
        opened.was_read = read_model(path, opened);
    } catch (const STAAD::ReadLimitError& error) {
        opened.model = {}; // what was read so far may fill the memory
        add_finding(opened.report, FindingCode::limit, error.text(), error.first_line());
    } catch (const std::bad_alloc&) {
        fail_for_memory(opened, "not enough memory to read it");
    }
    return opened;
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
    fail_for_memory(opened, "not enough memory to show what it holds");
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
