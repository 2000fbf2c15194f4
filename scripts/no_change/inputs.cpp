#include "no_change/inputs.h"

#include "no_change/damage.h"
#include "tests/support/chinese_texts.h"
#include "tests/support/force_listing.h"
#include "tests/support/hostile_decks.h"
#include "tests/support/random_deck.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace no_change {
namespace {

std::uint64_t any_seed(chance& random)
{
    return static_cast<std::uint64_t>(random.between(0, std::numeric_limits<int>::max() - 1));
}

std::string random_deck(chance& random)
{
    const std::uint64_t seed = any_seed(random);
    const int members = random.one_in(400) ? 4000 : random.one_in(20) ? 60 : random.between(1, 20);
    return STAAD::decks::make_random_deck(seed, members).text;
}

std::string hostile_deck(chance& random)
{
    const STAAD::decks::hostile_deck& deck = random.any_of(STAAD::decks::hostile_decks());
    return deck.text(static_cast<std::size_t>(random.between(10, 1200)));
}

std::string random_number(chance& random)
{
    const std::string whole = std::to_string(random.between(-90, 90));
    const std::string part = std::to_string(random.between(0, 999));
    switch (random.between(0, 11)) {
    case 0:
        return whole + "." + part + "E +0" + std::to_string(random.between(0, 3));
    case 1:
        return whole + "." + part + random.any_of({"E-02", "e+01", "E -01", "E"});
    case 2:
        return random.any_of({"x", "-", ".", "1.2.3", "1e999", "0", "-0.0"});
    default:
        return whole + "." + part;
    }
}

/// Positions rise, mostly by as much as the member is long divided by the stations.
std::string random_stations(chance& random)
{
    const int count = random.one_in(3) ? 9 : random.between(0, 12);
    const int step = random.between(1, 900);
    std::string text;
    for (int station = 0; station < count; ++station) {
        const int position = random.one_in(12) ? random.between(0, 9000) : station * step;
        text += "   " + std::to_string(position / 1000) + "." + std::to_string(1000 + position % 1000).substr(1);
        text += random.one_in(15) ? "00004" : "";
        for (int value = random.one_in(30) ? 5 : 6; value > 0; --value)
            text += "  " + random_number(random);
        text += "\n";
    }
    return text;
}

std::string listing_section(chance& random, const std::vector<int>& members)
{
    using STAAD::listings::title_text;
    const title_text& title = random.one_in(5) ? STAAD::listings::member_forces : STAAD::listings::element_forces;
    std::string text = random.one_in(2) ? title.gbk : title.utf8;
    text += "\n--------\n member load case distance\n (any words)\n ";
    text += random.any_of({"(m) (kN) (kN) (kN-m)", "(mm) (kN) (N-m)", "(cm) (MTON) (mton-m)", "(in) (kip) (kip-in)",
                           "(ft) (lb) (lb-ft)", "(m) (MN)", "(m)", "", "m kN kN-m", "(dm) (kg) (kg-cm)", "() (m) (N)"});
    text += "\n";
    for (const int member : members) {
        if (random.one_in(6))
            continue;
        text += "  " + std::to_string(random.one_in(12) ? member + 7000 : member);
        for (int load_case = random.between(0, 4); load_case < 5; ++load_case) {
            text += " " + std::to_string(random.one_in(4) ? random.between(1, 12) : load_case + 1);
            text += random.any_of({":DEAD", ":LIVE LOAD", ":", ":1.2 D + 1E", ": A :B", ""});
            text += random_stations(random);
        }
    }
    return text + random.any_of({"\n", "\n\n", "end of page\n", ""});
}

std::string random_name(chance& random)
{
    return random.any_of<const char*>({"STEEL", "C30", "CONCRETE", "", "\xD6\xF9 7",
                                       "a long name of more than the "
                                       "seventy-nine characters that a line of the written file may have in all"});
}

std::vector<double> random_values(chance& random, int most)
{
    std::vector<double> values;
    for (int count = random.between(0, most); count > 0; --count)
        values.push_back(random_value(random));
    return values;
}

void fill_wind(chance& random, STAAD::WindLoadParam& wind)
{
    wind.title = random_name(random);
    wind.base_press = random_value(random);
    wind.soil_type = random.any_of<const char*>({"A", "B", "C", "D", "", "E", "b"});
    wind.structure_high = random_value(random);
    wind.is_betaz = random.one_in(2);
    wind.base_period = random_value(random);
    for (double& width : wind.aweather_width)
        width = random_value(random);
    for (auto& of_wind : wind.mius)
        for (double& factor : of_wind)
            factor = random_value(random);
    wind.intensity_number = random.between(-1, 12);
    wind.intensity_isometry = random_value(random);
    wind.intensity_floor = random_value(random);
    wind.heights = random_values(random, 12);
    for (auto& profile : wind.intensities)
        profile = random.one_in(3) ? random_values(random, 12) : wind.heights;
}

void fill_seismic(chance& random, STAAD::SeismicParam& seismic)
{
    namespace chinese = STAAD::chinese;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        seismic.dir_active[axis] = random.one_in(2);
        seismic.dir_factor[axis] = random.between(-1, 3);
    }
    seismic.y_freedom = random.one_in(2);
    seismic.eq_type = random.any_of({chinese::frequent.gbk, chinese::frequent.utf8, "", "far"});
    seismic.post_method = random.one_in(2);
    seismic.force_type = random.one_in(2);
    seismic.eq_intensity = random.between(5, 9);
    seismic.eq_group = random.any_of({chinese::second_group.gbk, chinese::second_group.utf8, "", "1"});
    seismic.special_accelerate = random.one_in(2);
    seismic.damping_factor = random_value(random);
    seismic.proportion_factor = random_value(random);
    seismic.loadno_factor = random_values(random, 5);
    seismic.loadno_count = random.between(-1, 5);
    seismic.loadno.clear();
    for (int count = random.between(0, 5); count > 0; --count)
        seismic.loadno.push_back(random.between(0, 8));
    seismic.periods = random_values(random, 14);
    seismic.point_number = random.one_in(4) ? random.between(-1, 14) : static_cast<int>(seismic.periods.size());
    for (std::string* title : {&seismic.spectrum_title_x, &seismic.spectrum_title_y, &seismic.spectrum_title_z})
        *title = random.any_of<const char*>({"SPECTRUM CQC X 1 ACC DAMP 0.05 SCALE 9.8", "", "SPECTRUM SRSS Y 1"});
    for (std::vector<double>* values : {&seismic.spectrum_x, &seismic.spectrum_y, &seismic.spectrum_z}) {
        *values = random_values(random, 14);
        if (!random.one_in(4))
            values->resize(seismic.periods.size(), 0.25);
    }
}

void change_members(chance& random, STAAD::SdReader& model)
{
    for (STAAD::SdBeam& member : model.beams) {
        member.kind_code = random.one_in(10) ? random.between(-1, 9) : model.GetBeamType(member);
        switch (random.between(0, 19)) {
        case 0:
            member.id = random.between(-3, 40);
            break;
        case 1:
            member.node_end = random.between(-1, static_cast<int>(model.nodes.size()) + 1);
            break;
        case 2:
            member.beta = random_value(random);
            break;
        case 3:
            member.material = member.sect_country = random_name(random);
            break;
        case 4:
            member.sect_name = random.any_of<const char*>({"SJIJOIST", "", "JOIST"});
            break;
        case 5:
            member.sect_text = random.any_of<const char*>(
                {"", "PRIS500X300", "TABLE ST 18K4", "UPTABLE 1 H100X200", "TAPERED 1 2 3 4 5", "table st a;b"});
            break;
        case 6:
            member.int_list.push_back(random.between(-1, static_cast<int>(model.load_defs.size()) + 2));
            break;
        case 7:
            std::reverse(member.int_list.begin(), member.int_list.end());
            break;
        default:
            break;
        }
    }
}

void change_lists(chance& random, STAAD::SdReader& model)
{
    const auto any_number = [&random] {
        return random.one_in(9) ? random.any_of<int>({-1, 0, 2147483647, -7}) : random.between(1, 30);
    };
    for (int count = random.between(0, 4); count > 0; --count) {
        STAAD::SdGroup group{random.any_of<const char*>({"JOINT", "MEMBER", "ELEMENT", "FLOOR", "GEOMETRY", "", "X"}),
                             random_name(random),
                             {}};
        std::vector<unsigned>& support =
            model.supports[random.any_of<const char*>({"FIXED", "PINNED", "", "ENFORCED"})];
        std::vector<unsigned>& release = model.releases[random_name(random)];
        for (int number = random.between(0, 40); number > 0; --number) {
            group.ids.push_back(any_number());
            (random.one_in(2) ? support : release).push_back(static_cast<unsigned>(any_number()));
        }
        model.groups.push_back(group);
        model.brace_ids.insert(any_number());
        STAAD::SdUserSectionTable& table = model.usr_tables[random.between(-1, 12)];
        table.SetType(static_cast<STAAD::UsrDefineSectionType>(random.between(-1, 12)));
        table.AddRecord(random_name(random), "0.2 0.01 0.08 0.015");
    }
}

void change_loads(chance& random, STAAD::SdReader& model)
{
    for (int count = random.between(0, 6); count > 0; --count) {
        STAAD::LoadDefination load;
        load.kind = random.any_of<const char*>({"MEMBER LOAD UNI", "MEMBER LOAD CON", "MEMBER LOAD TRAP", "JOINT LOAD",
                                                "MEMBER LOAD LIN", "SELFWEIGHT", "FLOOR LOAD", "MEMBER LOAD UMOM", ""});
        load.direction = random.any_of<const char*>({"GZ", "X", "GY", ""});
        load.values = random_values(random, 6);
        load.load_case = random.between(0, 5);
        const int number = model.add_a_load(load);
        for (STAAD::SdBeam& member : model.beams)
            if (random.one_in(3))
                member.int_list.push_back(number);
        model.load_cases[load.load_case].id = random.one_in(9) ? 99 : load.load_case;
    }
    for (auto& [number, load_case] : model.load_cases)
        if (random.one_in(3))
            load_case.type_text = random.any_of<const char*>({"Dead", "LIVE LOAD", "wind x", "Seismic", "Roof", ""});
}

} // namespace

double random_value(chance& random)
{
    using limits = std::numeric_limits<double>;
    switch (random.between(0, 19)) {
    case 0:
        return random.any_of({0.0, -0.0, 1e-9, 0.0005, -0.0005, 0.00049999, 1e10, 1e300, 0.5, 1.5, 2.5});
    case 1:
        return random.any_of({limits::quiet_NaN(), limits::infinity(), -limits::infinity(), limits::denorm_min(),
                              limits::max(), 999999.5, 1234567.891, 99999.95});
    case 2:
        return random.between(-100000, 100000) * 1e-7;
    case 3:
        return random.between(-100, 100);
    default:
        return STAAD::decks::random_decimal(random, -50, 50).value();
    }
}

std::string random_listing(chance& random, const STAAD::SdReader& model)
{
    std::vector<int> members;
    for (const STAAD::SdBeam& member : model.beams)
        members.push_back(member.id);
    if (random.one_in(3))
        random.shuffle(members);
    members.resize(std::min<std::size_t>(members.size(), 8));
    std::string text;
    for (int section = random.between(1, 2); section > 0; --section)
        text += listing_section(random, members);
    return random.one_in(3) ? damaged(random, text, random.between(1, 8)) : text;
}

inputs random_inputs(chance& random, const std::vector<base_deck>& bases)
{
    inputs made;
    const int kind = random.between(0, 9);
    if (kind == 0) {
        made.deck = hostile_deck(random);
    } else if (kind <= 2 && !bases.empty()) {
        const base_deck& base = random.any_of(bases);
        made.deck = base.deck;
        made.listing = random.one_in(8) ? damaged(random, base.listing, random.between(0, 12)) : "";
    } else {
        made.deck = random_deck(random);
    }
    made.earlier = random.one_in(4) ? random_deck(random) : damaged(random, made.deck, random.between(0, 3));
    if (kind % 2 == 0)
        made.deck = damaged(random, made.deck, random.one_in(6) ? 40 : random.between(1, 8));
    return made;
}

void move_to_grid(chance& random, STAAD::SdReader& model)
{
    const double grid = random.any_of({3000.0, 6000.0, 20000.0});
    for (STAAD::SdNode& joint : model.nodes)
        for (double* place : {&joint.x, &joint.y, &joint.z})
            *place = std::floor(*place / grid) * grid + random.any_of({0.0, 0.0, 0.0, 0.0, 0.0, 0.4, 0.5});
}

void change_as_a_host(chance& random, STAAD::SdReader& model)
{
    if (random.one_in(2))
        fill_wind(random, model.wl_param);
    if (random.one_in(2))
        fill_seismic(random, model.eq_param);
    change_members(random, model);
    change_lists(random, model);
    change_loads(random, model);
    for (STAAD::SdShell& shell : model.shells)
        shell.thickness = random.one_in(8) ? random.between(-5, 300) : shell.thickness;
    if (random.one_in(5))
        model.concrete_density = random_value(random);
}

} // namespace no_change
