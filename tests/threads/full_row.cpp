#include "tests/threads/full_row.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace STAAD {
namespace {

constexpr int load_cases = 4;
constexpr int loads_per_case = 3;

/// Two rows of joints, one above the other: joint k + 1 lies above joint k for odd k.
void add_joints(SdReader& model, int members)
{
    for (int i = 0; i <= members; ++i) {
        SdNode joint;
        joint.id = i + 1;
        joint.y = 1250.0 * (i / 2);
        joint.z = 3300.0 * (i % 2);
        model.nodes.push_back(joint);
    }
}

void add_members(SdReader& model, int members)
{
    for (int i = 0; i < members; ++i) {
        SdBeam member;
        member.id = 10 * i + 7;
        member.node_start = i + 1;
        member.node_end = i + 2;
        member.kind_code = i % 9 == 4 ? Brace : Beam;
        member.beta = 45.0 * (i % 3);
        member.material = i % 2 == 0 ? "STEEL" : "CONCRETE";
        member.sect_country = i % 5 == 0 ? "CHINESE" : "AMERICAN";
        member.sect_text = "TABLE ST B" + std::to_string(i % 7);
        member.sect_name = i % 11 == 0 ? "SJIJOIST" : "W12X26";
        model.beams.push_back(member);
    }
}

void add_shells(SdReader& model, int members)
{
    for (int i = 0; i + 3 <= members; i += 2) {
        SdShell shell;
        shell.id = i + 1;
        shell.node_ids = {i + 1, i + 2, i + 4, i + 3};
        shell.thickness = 120 + 10 * (i % 3);
        shell.material = "C1";
        model.shells.push_back(shell);
    }
}

void add_lists(SdReader& model, int members)
{
    model.groups = {{"MEMBER", "_ODD", {}}, {"JOINT", "_ALL", {}}, {"MEMBER", "_EVEN", {}}};
    for (int i = 1; i <= members; ++i) {
        model.groups[i % 2 == 0 ? 2 : 0].ids.push_back(i);
        model.groups[1].ids.push_back(i);
        const auto number = static_cast<unsigned>(i);
        model.supports[i % 4 == 0 ? "FIXED" : "PINNED"].push_back(number);
        model.releases[i % 3 == 0 ? "START MZ" : "END MY MZ"].push_back(number);
    }
    SdUserSectionTable table;
    table.SetType(Tee);
    table.AddRecord("T100", "0.1 0.01 0.02");
    model.usr_tables[2] = table;
}

void add_loads(SdReader& model, int first_case)
{
    int definition = 0;
    for (int c = 0; c < load_cases; ++c) {
        const int number = first_case + c;
        LoadCase load_case;
        load_case.id = number;
        load_case.type_text = "Dead";
        model.load_cases[number] = load_case;
        for (int i = 0; i < loads_per_case; ++i) {
            const LoadDefination load{"MEMBER LOAD UNI", "GZ", {-0.001 * number, 0.5 * i}, number};
            model.load_defs.emplace(++definition, load);
            for (std::size_t member = static_cast<std::size_t>(i); member < model.beams.size();
                 member += loads_per_case)
                model.beams[member].int_list.push_back(definition);
        }
    }
}

void add_wind(SdReader& model)
{
    WindLoadParam& wind = model.wl_param;
    wind.base_press = 0.5;
    wind.soil_type = "B";
    wind.structure_high = 3.3;
    for (int i = 0; i < 20; ++i)
        wind.heights.push_back(0.2 * i);
    for (std::size_t type = 0; type < wind.intensities.size(); ++type)
        wind.intensities[type].assign(20, 0.01 * static_cast<double>(type + 1));
}

void add_seismic(SdReader& model, int first_case)
{
    SeismicParam& seismic = model.eq_param;
    seismic.dir_active = {true, false, true};
    seismic.dir_factor = {1, 1, 1};
    seismic.y_freedom = true;
    seismic.eq_intensity = 7;
    seismic.loadno_count = load_cases;
    for (int c = 0; c < load_cases; ++c) {
        seismic.loadno.push_back(first_case + c);
        seismic.loadno_factor.push_back(0.25 * (c + 1));
    }
    seismic.point_number = 7;
    for (int i = 0; i < seismic.point_number; ++i)
        seismic.periods.push_back(0.1 * i);
    seismic.spectrum_title_x = "SPECTRUM CQC X";
    seismic.spectrum_title_y = "SPECTRUM CQC Y";
    seismic.spectrum_title_z = "SPECTRUM CQC Z";
    seismic.spectrum_x = seismic.spectrum_y = seismic.spectrum_z = seismic.periods;
}

} // namespace

SdReader make_full_row(int members, int first_case)
{
    SdReader model;
    add_joints(model, members);
    add_members(model, members);
    add_shells(model, members);
    add_lists(model, members);
    add_loads(model, first_case);
    add_wind(model);
    add_seismic(model, first_case);
    return model;
}

} // namespace STAAD
