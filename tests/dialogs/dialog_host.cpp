/// A program that runs one operation of the library that talks to its user, and writes down what was shown and what
/// came of it: UTF-8, one line each. dialogs.sh answers the dialogs and reads the lines.
///
///     dialog_host import-without-model RESULT LISTING
///     dialog_host take-over RESULT MODEL EARLIER_MODEL
///     dialog_host forces RESULT MODEL
///
/// Or reads what has been typed into the file dialog that another program shows.
///
///     dialog_host read-file-dialog RESULT

#include "staad/model/sd_reader.h"
#include "staad/storeys/layered_project.h"
#include "tests/dialogs/onlooker.h"
#include "tests/support/model_equal.h"

#include <windows.h>

#include <cstddef>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace STAAD {
namespace {

/// What a scenario is run with: the arguments after RESULT.
using arguments = std::vector<const char*>;

std::wstring current_folder()
{
    std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
    folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
    return folder;
}

/// A model that has everything but members.
SdReader model_without_members()
{
    SdReader model;
    model.nodes.resize(2);
    model.groups = {{"JOINT", "_LEFT", {1}}};
    model.unit_text = "UNIT FEET KIP";
    model.length_factor = 304.8;
    model.beam_forces[3].beam = 3;
    model.beam_forces[3].records[1].points = {{0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0}};
    return model;
}

void import_without_model(const arguments& given, result_file& result)
{
    const SdReader before = model_without_members();
    SdReader model = before;
    {
        const onlooker looking(result);
        model.ReadForceMomentFromTxtFile(given.at(0));
    }
    for (const std::string& difference : model_differences(model, before))
        result.line("changed " + difference);
    result.line("members with forces " + std::to_string(model.beam_forces.size()));
}

template<class Number>
std::string joined(const std::vector<Number>& numbers)
{
    std::string text;
    for (const Number number : numbers)
        text += " " + std::to_string(number);
    return text;
}

void take_over(const arguments& given, result_file& result)
{
    SdReader model;
    result.line(model.ReadSDDataFromStdFile(given.at(0)) ? "read" : "not read");
    {
        const onlooker looking(result);
        model.compWithOldProj(given.at(1));
    }
    for (const SdGroup& group : model.groups)
        result.line("group " + group.name + joined(group.ids));
    for (const auto& [description, joints] : model.supports)
        result.line("support " + description + joined(joints));
    for (const auto& [description, members] : model.releases)
        result.line("release " + description + joined(members));
}

std::string text_of(const ForcePoint& point)
{
    char text[160];
    std::snprintf(text, sizeof text, "%g: %g %g %g, %g %g %g", point.position, point.f1, point.f2, point.f3, point.m1,
                  point.m2, point.m3);
    return text;
}

void write_forces(const LayerMember& entry, result_file& result)
{
    for (const auto& [number, record] : entry.forces.records) {
        for (const ForcePoint& point : record.points)
            result.line("member " + std::to_string(entry.member.id) + ", load case " + std::to_string(number) + " at " +
                        text_of(point));
    }
}

void forces(const arguments& given, result_file& result)
{
    const std::wstring folder = current_folder();
    StaadProProject_layered project;
    bool built = false;
    {
        const onlooker looking(result);
        built = project.BuidFromFile(given.at(0), 1);
    }
    result.line(built ? "built" : "not built");
    result.line(current_folder() == folder ? "same current folder" : "another current folder");
    for (const StoreyLayer& storey : project.layers) {
        result.line("storey with " + std::to_string(storey.members.size()) + " members");
        for (const LayerMember& entry : storey.members)
            write_forces(entry, result);
    }
}

void read_dialog(const arguments&, result_file& result)
{
    read_file_dialog(result);
}

using scenario = void (*)(const arguments&, result_file&);

const std::map<std::string, scenario> scenarios = {{"import-without-model", import_without_model},
                                                   {"take-over", take_over},
                                                   {"forces", forces},
                                                   {"read-file-dialog", read_dialog}};

} // namespace
} // namespace STAAD

int main(int argc, char** argv)
{
    const auto chosen = argc > 2 ? STAAD::scenarios.find(argv[1]) : STAAD::scenarios.end();
    if (chosen == STAAD::scenarios.end()) {
        std::fputs("usage: dialog_host SCENARIO RESULT PATH...\n", stderr);
        return 2;
    }
    STAAD::result_file result(argv[2]);
    chosen->second({argv + 3, argv + argc}, result);
    result.line("done");
}
