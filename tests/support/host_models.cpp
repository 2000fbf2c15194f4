#include "tests/support/host_models.h"

#include "tests/support/chinese_texts.h"
#include "tests/support/placed_models.h"
#include "tests/support/written_text.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace STAAD::host_models {
namespace {

using written::add_case;
using written::add_load;

/// Numbers first, first + step ..., `count` of them.
std::vector<int> series(int first, int count, int step = 1)
{
    std::vector<int> numbers;
    for (int i = 0; i < count; ++i)
        numbers.push_back(first + step * i);
    return numbers;
}

struct frame_shape {
    int bays_x;
    int bays_z;
    std::vector<double> levels; ///< mm, the ground first
};

/// A regular frame, its bays 6 m along the file's X and 5 m along its Z. Joints are numbered 10, 20, 30 ... from
/// level to level, members 101, 102 ...: the columns storey by storey, then the beams floor by floor, at each
/// floor those along X first.
class frame_builder {
public:
    explicit frame_builder(const frame_shape& shape) : shape_(shape)
    {
        add_joints();
        for (int storey = 0; storey < storeys(); ++storey)
            add_columns(storey);
        for (int floor = 1; floor <= storeys(); ++floor)
            add_beams(floor);
    }

    SdReader take() { return std::move(model_); }

private:
    int storeys() const { return static_cast<int>(shape_.levels.size()) - 1; }
    int joints_of_level() const { return (shape_.bays_x + 1) * (shape_.bays_z + 1); }
    int joint_at(int level, int row, int column) const
    {
        return level * joints_of_level() + row * (shape_.bays_x + 1) + column + 1;
    }

    void add_joints()
    {
        for (const double level : shape_.levels) {
            for (int row = 0; row <= shape_.bays_z; ++row) {
                for (int column = 0; column <= shape_.bays_x; ++column) {
                    const int number = 10 * static_cast<int>(model_.nodes.size() + 1);
                    model_.nodes.push_back(placed::joint(number, {5000.0 * row, 6000.0 * column, level}));
                }
            }
        }
    }

    void add_member(int start, int end, BeamType kind, const char* material)
    {
        SdBeam member = placed::member(101 + static_cast<int>(model_.beams.size()), start, end);
        member.kind_code = kind;
        member.material = material;
        member.sect_country = "CHINESE";
        member.sect_text = kind == Column ? "PRIS500X500" : "PRIS550X300";
        model_.beams.push_back(member);
    }

    void add_columns(int storey)
    {
        for (int row = 0; row <= shape_.bays_z; ++row)
            for (int column = 0; column <= shape_.bays_x; ++column)
                add_member(joint_at(storey, row, column), joint_at(storey + 1, row, column), Column, "C40");
    }

    void add_beams(int floor)
    {
        for (int row = 0; row <= shape_.bays_z; ++row)
            for (int column = 0; column < shape_.bays_x; ++column)
                add_member(joint_at(floor, row, column), joint_at(floor, row, column + 1), Beam, "C30");
        for (int row = 0; row < shape_.bays_z; ++row)
            for (int column = 0; column <= shape_.bays_x; ++column)
                add_member(joint_at(floor, row, column), joint_at(floor, row + 1, column), Beam, "C30");
    }

    frame_shape shape_;
    SdReader model_;
};

void add_brace(SdReader& model, int start, int end, BeamType kind, const std::string& section)
{
    SdBeam brace = placed::member(501 + static_cast<int>(model.beams.size()), start, end);
    brace.kind_code = kind;
    brace.beta = -12.5;
    brace.material = "STEEL";
    brace.sect_text = section;
    model.beams.push_back(brace);
}

void add_shell(SdReader& model, const std::vector<int>& corners, int thickness, const std::string& material)
{
    SdShell shell = placed::shell(1 + static_cast<int>(model.shells.size()), corners);
    shell.thickness = thickness;
    shell.material = material;
    model.shells.push_back(shell);
}

/// The two-storey frame: 12 columns, 14 beams from member 13 on, 3 braces, 3 shells.
SdReader two_storeys()
{
    SdReader model = frame_builder({2, 1, {0, 4000, 7300}}).take();
    for (std::size_t i = 0; i < 3; ++i)
        model.beams[i].beta = 90;
    model.beams[3].beta = 0.0005;
    for (std::size_t i = 19; i < 26; ++i) { // the roof
        model.beams[i].sect_country = "AMERICAN";
        model.beams[i].sect_text = "TABLE ST W16X31";
    }
    for (std::size_t i = 24; i < 26; ++i) {
        model.beams[i].sect_name = "SJIJOIST";
        model.beams[i].sect_text = "TABLE ST 18K4";
    }
    add_brace(model, 1, 8, Brace, "TABLE ST PIP139.7X5");
    add_brace(model, 7, 14, Brace, "TABLE ST PIP139.7X5");
    add_brace(model, 13, 17, HorizontalBrace, "");
    model.beams[26].sect_country = model.beams[27].sect_country = "CHINESE";
    add_shell(model, {13, 14, 17, 16}, 120, "C30");
    add_shell(model, {14, 15, 18, 17}, 150, "C1");
    add_shell(model, {7, 8, 10}, 120, "C1");
    model.brace_ids = {101, 999};
    model.concrete_density = 25;
    return model;
}

void add_tables_and_lists(SdReader& model)
{
    model.usr_tables[2].records = {{"C8", "0.2 0.01 0.08 0.015"}, {"C10", "0.25 0.012 0.09 0.016"}};
    model.usr_tables[5].records = {{"T100", "0.1 0.1 0.006 0.008"}};
    model.usr_tables[12].type = "ISECTION";
    model.groups = {
        {"MEMBER", "_COLUMNS", series(101, 12)},
        {"JOINT", "_BASE", series(10, 6, 10)},
        {"MEMBER", "_ROOF_AND_BRACES", {126, 127, 120, 121, 122, 501, 529, 531}},
        {"FLOOR", "_SLAB", {2, 1}},
        {"GEOMETRY", "_\xC2\xA5", series(1001, 24, 3)}, // a storey, in GBK
        {"ELEMENT", "_NONE", {}},
    };
    model.supports = {{"FIXED", {10, 20, 30}}, {"PINNED", {60, 50, 40, 40}}, {"FIXED BUT MX", {}}};
    model.releases = {{"START MY MZ", {113, 114, 115}}, {"END MY MZ", {113, 115, 4294967295U}}};
}

void add_loads_of_every_kind(SdReader& model)
{
    add_case(model, 1, "Dead");
    add_case(model, 2, "Live");
    add_case(model, 5, "Wind FROM LEFT");
    add_case(model, 7, "");
    add_load(model, {"SELFWEIGHT", "Z", {-1}, 1}, series(1, 29));
    add_load(model, {"MEMBER LOAD UNI", "GZ", {-0.0085}, 1}, {19, 13, 14, 15, 17});
    add_load(model, {"MEMBER LOAD TRAP", "GZ", {-0.006, -0.014, 0, 2400}, 1}, {16});
    add_load(model, {"MEMBER LOAD CON", "GZ", {-28, 2500}, 1}, {16, 16});
    add_load(model, {"MEMBER LOAD UNI", "GZ", {-0.0085}, 1}, {18});
    add_load(model, {"FLOOR LOAD", "Z", {}, 2}, {});
    add_load(model, {"AREA LOAD ALOAD", "Z", {-5e-7}, 2}, {20, 21});
    add_load(model, {"MEMBER LOAD LIN", "Z", {-0.0032, -0.0064}, 2}, series(20, 7));
    add_load(model, {"MEMBER LOAD UMOM", "GY", {-1.2}, 5}, {1});
    add_load(model, {"MEMBER LOAD CMOM", "GY", {6000, 1500}, 5}, series(1, 12, 2));
    add_load(model, {"JOINT LOAD", "Z", {0, 4.1, 0, 0, 0, 18500}, 7}, {});
    model.nodes[6].extra_ids = {11};
}

void add_wind(SdReader& model, std::size_t points)
{
    WindLoadParam& wind = model.wl_param;
    wind.base_press = 0.45;
    wind.soil_type = "C";
    wind.structure_high = 52.76;
    wind.is_betaz = true;
    wind.base_period = 1.35;
    wind.aweather_width = {12.5, 12.49, 20, 20};
    wind.mius = {{{0.8, -0.5, -0.7, -0.7}, {-0.5, 0.8, -0.7, -0.7}, {-0.7, -0.7, 0.8, -0.5}, {-0.7, -0.7, -0.5, 0.8}}};
    wind.intensity_number = static_cast<int>(points);
    wind.intensity_isometry = 2.5;
    wind.intensity_floor = 3.3;
    for (std::size_t i = 0; i < points; ++i) {
        wind.heights.push_back(static_cast<double>(26 * (i + 1)) / 10);
        for (std::size_t type = 0; type < 16; ++type)
            wind.intensities[type].push_back((static_cast<double>(3 * i + 7 * type) - 20) / 100);
    }
}

void add_seismic(SdReader& model, int points)
{
    SeismicParam& seismic = model.eq_param;
    seismic.dir_active = {true, false, true};
    seismic.dir_factor = {1, 1, 2};
    seismic.y_freedom = true;
    seismic.eq_type = chinese::frequent.gbk;
    seismic.post_method = true;
    seismic.eq_intensity = 8;
    seismic.eq_group = chinese::second_group.utf8;
    seismic.special_accelerate = true;
    seismic.point_number = points;
    seismic.damping_factor = 0.05;
    seismic.proportion_factor = 9.8;
    seismic.loadno_count = 3;
    seismic.loadno = {1, 4, 2};
    seismic.loadno_factor = {1, 0.5, 0.5};
    seismic.spectrum_title_x = "SPECTRUM CQC X 1 ACC DAMP 0.05 SCALE 9.8";
    seismic.spectrum_title_y = "SPECTRUM CQC Y 0.65 ACC DAMP 0.05 SCALE 9.8";
    seismic.spectrum_title_z = "SPECTRUM CQC Z 1 ACC DAMP 0.05 SCALE 9.8";
    for (int i = 0; i < points; ++i) {
        seismic.periods.push_back(i / 10.0);
        seismic.spectrum_x.push_back((720 + 80 * i) / 10000.0);
        seismic.spectrum_y.push_back((468 + 52 * i) / 10000.0);
        seismic.spectrum_z.push_back((1600 - 35 * i) / 10000.0);
    }
}

} // namespace

SdReader every_block()
{
    SdReader model = two_storeys();
    add_tables_and_lists(model);
    add_loads_of_every_kind(model);
    add_wind(model, 3);
    add_seismic(model, 7);
    return model;
}

SdReader tower()
{
    frame_shape shape{2, 2, {0, 4500}};
    while (shape.levels.size() < 16)
        shape.levels.push_back(shape.levels.back() + 3300);
    SdReader model = frame_builder(shape).take(); // 135 columns, then twelve beams for each of fifteen floors
    model.supports["FIXED"] = {10, 20, 30, 40, 50, 60, 70, 80, 90};
    add_case(model, 1, "Dead");
    add_case(model, 2, "Live");
    add_load(model, {"MEMBER LOAD UNI", "GZ", {-0.0125}, 1}, series(136, 168));
    add_load(model, {"MEMBER LOAD UNI", "GZ", {-0.01}, 1}, series(304, 12));
    add_load(model, {"MEMBER LOAD CON", "GZ", {-45.5, 3000}, 1}, series(136, 15, 12));
    add_load(model, {"MEMBER LOAD UNI", "GZ", {-0.0075}, 2}, series(136, 84, 2));
    add_wind(model, 20);
    add_seismic(model, 10);
    return model;
}

SdReader spectra(int points)
{
    SdReader model = written::row_of_members(1);
    add_case(model, 1);
    add_load(model, written::uniform(-2.5, 1), {1});
    add_seismic(model, points);
    return model;
}

} // namespace STAAD::host_models
