/// Any text as a ".std" file: it is read the same with and without a report, the model refers only to records
/// that exist, and every query returns.

#include "fuzz/fuzz_target.h"
#include "fuzz/memory_limit.h"
#include "staad/model/sd_reader.h"
#include "staad/report/read_report.h"
#include "staad/storeys/layered_project.h"
#include "tests/support/model_equal.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>
#include <utility>
#include <vector>

namespace {

using STAAD::SdReader;

int last_position(std::size_t size)
{
    return static_cast<int>(size);
}

/// 0 stands for a record that does not exist.
bool are_positions(const std::vector<int>& numbers, std::size_t size)
{
    return std::all_of(numbers.begin(), numbers.end(),
                       [&](int number) { return number >= 0 && number <= last_position(size); });
}

bool leads_to_positions(const std::map<int, int>& index, std::size_t size)
{
    return std::all_of(index.begin(), index.end(),
                       [&](const auto& entry) { return entry.second >= 0 && entry.second <= last_position(size); });
}

bool are_loads(const std::vector<int>& numbers, const SdReader& model)
{
    return std::all_of(numbers.begin(), numbers.end(), [&](int number) { return model.load_defs.count(number) != 0; });
}

void check_references(const SdReader& model)
{
    for (const STAAD::SdNode& joint : model.nodes)
        fuzz::require(are_loads(joint.extra_ids, model), "loads of joints are there");
    for (const STAAD::SdBeam& member : model.beams) {
        fuzz::require(are_positions({member.node_start, member.node_end}, model.nodes.size()),
                      "ends of members are positions");
        fuzz::require(are_loads(member.int_list, model), "loads of members are there");
    }
    for (const STAAD::SdShell& shell : model.shells)
        fuzz::require(are_positions(shell.node_ids, model.nodes.size()), "corners of shells are positions");
    fuzz::require(leads_to_positions(model.node_index, model.nodes.size()), "joints of the index are there");
    fuzz::require(leads_to_positions(model.beam_index, model.beams.size()), "members of the index are there");
    fuzz::require(leads_to_positions(model.shell_index, model.shells.size()), "shells of the index are there");
    fuzz::require(leads_to_positions(model.surface_index, model.surfaces.size()), "surfaces of the index are there");
}

void ask_for_member(const SdReader& model, const STAAD::SdBeam& member)
{
    const STAAD::BeamType kind = model.GetBeamType(member);
    fuzz::require(kind >= STAAD::Beam && kind <= STAAD::HorizontalBrace, "a member is of a known kind");
    const int position = model.locateBeamIndex(member.id);
    fuzz::require(position >= 1 && position <= last_position(model.beams.size()), "a member is found by its number");
    try {
        model.GetSectionFromUsrTable(member.sect_name);
        model.GetSectionFromUsrTable(member.sect_text);
    } catch (const std::out_of_range&) { // for a blank row
    }
}

void ask_for_normal(const SdReader& model, int position)
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    model.NormalOfShell(position, x, y, z);
    fuzz::require(std::abs(std::hypot(x, y, z) - 1.0) < 1e-6, "a normal has the length 1");
}

void ask_everything(const SdReader& model)
{
    for (const STAAD::SdBeam& member : model.beams)
        ask_for_member(model, member);
    for (const STAAD::SdNode& joint : model.nodes)
        fuzz::require(model.locateNodeIndex(joint.id) > 0, "a joint is found by its number");
    for (int position = -1; position <= last_position(model.shells.size()) + 1; ++position)
        ask_for_normal(model, position);
}

void check_findings(const STAAD::ReadReport& report, std::string_view text)
{
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
    for (const STAAD::Finding& finding : report.findings) {
        fuzz::require(finding.first_line <= finding.last_line && finding.last_line <= lines,
                      "a finding stands in the text", finding.code);
        fuzz::require(!finding.code.empty() && !finding.text.empty() && finding.count > 0, "a finding says something",
                      finding.code);
    }
}

void build_storeys(SdReader model)
{
    const std::size_t joints = model.nodes.size();
    STAAD::StaadProProject_layered project;
    if (project.BuildFromModel(std::move(model)))
        fuzz::require(project.node_levels.size() == joints && !project.layers.empty(), "storeys have levels");
}

/// The remains of an earlier reading.
void check_that_it_reads_again(SdReader& model)
{
    const bool was_read = model.ReadSDDataFromText("UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3 0\n"
                                                   "MEMBER INCIDENCES\n1 1 2\nFINISH\n");
    fuzz::require(was_read && model.nodes.size() == 2 && model.beams.size() == 1, "a model can be read into again");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = fuzz::text_of(data, size);
    SdReader model;
    SdReader reported;
    STAAD::ReadReport report;
    bool was_read = false;
    bool was_read_with_report = false;
    const bool is_whole =
        fuzz::within_memory([&] { was_read = model.ReadSDDataFromText(text); }) &&
        fuzz::within_memory([&] { was_read_with_report = reported.ReadSDDataFromText(text, report); });
    if (is_whole) {
        fuzz::require(was_read == was_read_with_report, "a report changes no answer");
        fuzz::require(was_read || report.worst() == STAAD::Finding::Error, "there is a reason for no model");
        fuzz::require_none(STAAD::model_differences(model, reported), "a report changes no model");
        check_references(model);
        check_findings(report, text);
        ask_everything(model);
        fuzz::within_memory([&] { build_storeys(std::move(reported)); });
    }
    check_that_it_reads_again(model);
    return 0;
}
