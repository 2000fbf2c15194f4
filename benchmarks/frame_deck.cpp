#include "frame_deck.h"

#include "deck_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <utility>
#include <vector>

namespace STAAD::bench {
namespace {

/// Spans in mm, repeated along the building.
constexpr std::array<int, 4> spans_x = {7250, 6400, 8125, 5950};
constexpr std::array<int, 3> spans_z = {6000, 7350, 4825};
constexpr int ground_storey = 4200;
constexpr int upper_storey = 3650;

template<std::size_t Count>
std::vector<int> axes(const std::array<int, Count>& spans, int bays)
{
    std::vector<int> positions{0};
    for (int bay = 0; bay < bays; ++bay)
        positions.push_back(positions.back() + spans[static_cast<std::size_t>(bay) % Count]);
    return positions;
}

int level_height(int level)
{
    return level == 0 ? 0 : ground_storey + (level - 1) * upper_storey;
}

/// Kinds of member that share a section.
enum member_class {
    corner_column,
    edge_column,
    inner_column,
    edge_beam,
    long_beam,
    short_beam,
    secondary_beam,
    class_count
};

/// A member: its number is its position in the frame's list plus one.
struct frame_member {
    int start;
    int end;
    member_class kind;
    int storey;
};

/// Joints, members and plates of a frame, by number, before any text is written.
class frame {
public:
    explicit frame(const frame_options& options)
        : x_(axes(spans_x, options.bays_x)), z_(axes(spans_z, options.bays_z)), storeys_(options.storeys)
    {
        members_.reserve(options.members());
        for (int storey = 1; storey <= storeys_; ++storey) {
            add_columns(storey);
            add_beams_x(storey);
            add_beams_z(storey);
        }
    }

    int lines_x() const { return static_cast<int>(x_.size()); }
    int lines_z() const { return static_cast<int>(z_.size()); }
    int storeys() const { return storeys_; }
    int x(int line) const { return x_[static_cast<std::size_t>(line)]; }
    int z(int line) const { return z_[static_cast<std::size_t>(line)]; }
    int joints_per_level() const { return lines_x() * lines_z(); }
    int plates_per_level() const { return (lines_x() - 1) * (lines_z() - 1); }
    int joint(int level, int line_z, int line_x) const
    {
        return level * joints_per_level() + line_z * lines_x() + line_x + 1;
    }
    const std::vector<frame_member>& members() const { return members_; }
    int first_plate() const { return static_cast<int>(members_.size()) + 1; }

    bool is_edge(int line_z, int line_x) const { return is_end(line_z, lines_z()) || is_end(line_x, lines_x()); }
    bool is_corner(int line_z, int line_x) const { return is_end(line_z, lines_z()) && is_end(line_x, lines_x()); }

    /// Numbers of the members that `chosen` accepts, ascending.
    template<class Chosen>
    std::vector<int> member_ids(Chosen chosen) const
    {
        std::vector<int> ids;
        for (std::size_t i = 0; i < members_.size(); ++i) {
            if (chosen(members_[i]))
                ids.push_back(static_cast<int>(i) + 1);
        }
        return ids;
    }
    std::vector<int> members_of(member_class kind) const
    {
        return member_ids([kind](const frame_member& member) { return member.kind == kind; });
    }

private:
    static bool is_end(int line, int lines) { return line == 0 || line == lines - 1; }

    void add_columns(int storey)
    {
        for (int line_z = 0; line_z < lines_z(); ++line_z) {
            for (int line_x = 0; line_x < lines_x(); ++line_x) {
                const member_class kind = is_corner(line_z, line_x) ? corner_column
                                          : is_edge(line_z, line_x) ? edge_column
                                                                    : inner_column;
                members_.push_back({joint(storey - 1, line_z, line_x), joint(storey, line_z, line_x), kind, storey});
            }
        }
    }

    void add_beams_x(int storey)
    {
        for (int line_z = 0; line_z < lines_z(); ++line_z) {
            for (int bay = 0; bay + 1 < lines_x(); ++bay) {
                const bool is_long = x(bay + 1) - x(bay) > 7000;
                const member_class kind = is_end(line_z, lines_z()) ? edge_beam : is_long ? long_beam : short_beam;
                members_.push_back({joint(storey, line_z, bay), joint(storey, line_z, bay + 1), kind, storey});
            }
        }
    }

    void add_beams_z(int storey)
    {
        for (int bay = 0; bay + 1 < lines_z(); ++bay) {
            for (int line_x = 0; line_x < lines_x(); ++line_x) {
                const bool is_main = line_x % 3 == 0;
                const member_class kind = is_end(line_x, lines_x()) ? edge_beam : is_main ? long_beam : secondary_beam;
                members_.push_back({joint(storey, bay, line_x), joint(storey, bay + 1, line_x), kind, storey});
            }
        }
    }

    std::vector<int> x_;
    std::vector<int> z_;
    int storeys_;
    std::vector<frame_member> members_;
};

void write_head(deck_text& out)
{
    out.line("STAAD SPACE REGULAR FRAME");
    out.line("START JOB INFORMATION");
    out.line("ENGINEER DATE 12-Jan-24");
    out.line("END JOB INFORMATION");
    out.line("INPUT WIDTH 79");
    out.line("UNIT METER KN");
}

void write_joints(deck_text& out, const frame& building)
{
    out.line("JOINT COORDINATES");
    item_text item;
    for (int level = 0; level <= building.storeys(); ++level) {
        for (int line_z = 0; line_z < building.lines_z(); ++line_z) {
            for (int line_x = 0; line_x < building.lines_x(); ++line_x) {
                item.clear().number(building.joint(level, line_z, line_x)).metres(building.x(line_x));
                item.metres(level_height(level)).metres(building.z(line_z));
                out.item(item.view());
            }
        }
    }
    out.end_items();
}

void write_members(deck_text& out, const frame& building)
{
    out.line("MEMBER INCIDENCES");
    item_text item;
    int number = 0;
    for (const auto& member : building.members())
        out.item(item.clear().number(++number).number(member.start).number(member.end).view());
    out.end_items();
}

void write_plates(deck_text& out, const frame& building)
{
    out.line("ELEMENT INCIDENCES SHELL");
    item_text item;
    int number = building.first_plate();
    for (int level = 1; level <= building.storeys(); ++level) {
        for (int bay_z = 0; bay_z + 1 < building.lines_z(); ++bay_z) {
            for (int bay_x = 0; bay_x + 1 < building.lines_x(); ++bay_x) {
                item.clear().number(number++);
                item.number(building.joint(level, bay_z, bay_x)).number(building.joint(level, bay_z, bay_x + 1));
                item.number(building.joint(level, bay_z + 1, bay_x + 1))
                    .number(building.joint(level, bay_z + 1, bay_x));
                out.item(item.view());
            }
        }
    }
    out.end_items();
}

void write_groups(deck_text& out, const frame& building, bool plates)
{
    out.line("START GROUP DEFINITION");
    out.line("JOINT");
    for (int level = 0; level <= building.storeys(); ++level) {
        const int first = building.joint(level, 0, 0);
        out.list("_LEVEL" + std::to_string(level), {{first, first + building.joints_per_level() - 1}}, "");
    }
    out.line("MEMBER");
    constexpr std::array<const char*, class_count> names = {"_CORNER", "_EDGECOL", "_INNER",    "_EDGEBEAM",
                                                            "_LONG",   "_SHORT",   "_SECONDARY"};
    for (int kind = 0; kind < class_count; ++kind)
        out.list(names[static_cast<std::size_t>(kind)], ranges_of(building.members_of(static_cast<member_class>(kind))),
                 "");
    if (plates) {
        out.line("FLOOR");
        for (int level = 1; level <= building.storeys(); ++level) {
            const int first = building.first_plate() + (level - 1) * building.plates_per_level();
            out.list("_FLOOR" + std::to_string(level), {{first, first + building.plates_per_level() - 1}}, "");
        }
    }
    out.line("END GROUP DEFINITION");
}

void write_tables(deck_text& out)
{
    out.line("START USER TABLE");
    out.line("TABLE 1");
    out.line("UNIT METER KN");
    out.line("WIDE FLANGE");
    for (int row = 0; row < 12; ++row) {
        out.line("H" + std::to_string(300 + 50 * row) + "X200");
        out.line("0.0095 0." + std::to_string(300 + 50 * row) + " 0.008 0.2 0.012 0.00013 1.6E-005 3E-007 0.003 0.004");
    }
    out.line("TABLE 2");
    out.line("UNIT METER KN");
    out.line("TUBE");
    out.line("BOX400");
    out.line("0.0247 0.4 0.4 0.016");
    out.line("END");
}

void write_thickness(deck_text& out, const frame& building)
{
    out.line("ELEMENT PROPERTY");
    const int per_level = building.plates_per_level();
    for (int level = 1; level <= building.storeys(); ++level) {
        const int first = building.first_plate() + (level - 1) * per_level;
        const int strip = std::max(1, per_level / 4);
        out.list("", {{first, first + strip - 1}}, "THICKNESS 0.15");
        if (strip < per_level)
            out.list("", {{first + strip, first + per_level - 1}}, "THICKNESS 0.12");
    }
}

void write_materials(deck_text& out)
{
    out.line("DEFINE MATERIAL START");
    out.line("ISOTROPIC STEEL");
    out.line("E 2.05E+008");
    out.line("POISSON 0.3");
    out.line("DENSITY 76.8195");
    out.line("ISOTROPIC CONCRETE");
    out.line("E 2.17185E+007");
    out.line("POISSON 0.17");
    out.line("DENSITY 23.5615");
    out.line("END DEFINE MATERIAL");
}

/// One list per class, since that is how the format's editors write sections.
void write_class(deck_text& out, const frame& building, member_class kind, std::string_view tail)
{
    const std::vector<int> ids = building.members_of(kind);
    if (!ids.empty())
        out.list("", ranges_of(ids), tail);
}

void write_properties(deck_text& out, const frame& building)
{
    out.line("MEMBER PROPERTY CHINESE");
    write_class(out, building, corner_column, "PRIS YD 0.7 ZD 0.7");
    write_class(out, building, edge_column, "PRIS YD 0.6 ZD 0.6");
    write_class(out, building, inner_column, "PRIS YD 0.65");
    write_class(out, building, edge_beam, "PRIS YD 0.55 ZD 0.3");
    out.line("MEMBER PROPERTY AMERICAN");
    write_class(out, building, long_beam, "UPTABLE 1 H550X200");
    write_class(out, building, short_beam, "TABLE ST W12X26");
    write_class(out, building, secondary_beam, "TAPERED 0.4 0.008 0.4 0.2 0.012");
}

bool is_concrete(const frame_member& member)
{
    return member.kind <= edge_beam;
}

void write_constants(deck_text& out, const frame& building)
{
    out.line("CONSTANTS");
    out.list("BETA 90 MEMB", ranges_of(building.members_of(edge_column)), "");
    out.list("BETA 45 MEMB", ranges_of(building.members_of(corner_column)), "");
    out.list("MATERIAL CONCRETE MEMB", ranges_of(building.member_ids(is_concrete)), "");
    out.list("MATERIAL STEEL MEMB",
             ranges_of(building.member_ids([](const frame_member& member) { return !is_concrete(member); })), "");
}

void write_supports(deck_text& out, const frame& building)
{
    std::array<std::vector<int>, 3> joints;
    for (int line_z = 0; line_z < building.lines_z(); ++line_z) {
        for (int line_x = 0; line_x < building.lines_x(); ++line_x) {
            const std::size_t kind = building.is_corner(line_z, line_x) ? 0 : building.is_edge(line_z, line_x) ? 1 : 2;
            joints[kind].push_back(building.joint(0, line_z, line_x));
        }
    }
    out.line("SUPPORTS");
    out.list("", ranges_of(joints[0]), "FIXED");
    if (!joints[1].empty())
        out.list("", ranges_of(joints[1]), "PINNED");
    if (!joints[2].empty())
        out.list("", ranges_of(joints[2]), "FIXED BUT MX MZ");
}

void write_releases(deck_text& out, const frame& building)
{
    out.line("MEMBER RELEASE");
    write_class(out, building, secondary_beam, "START MY MZ");
    write_class(out, building, secondary_beam, "END MY MZ");
}

void write_offsets(deck_text& out, const frame& building)
{
    out.line("MEMBER OFFSET");
    write_class(out, building, edge_beam, "START 0.15 0 0.2");
    write_class(out, building, edge_beam, "END -0.15 0 0.2");
}

void write_trusses(deck_text& out, const frame& building)
{
    const auto is_tie = [](const frame_member& member) { return member.kind == short_beam && member.storey % 4 == 0; };
    const std::vector<int> ids = building.member_ids(is_tie);
    if (ids.empty())
        return;
    out.line("MEMBER TRUSS");
    out.list("", ranges_of(ids), "");
}

constexpr std::array<const char*, 5> case_types = {"Dead", "Live", "Roof Live", "Wind", "Seismic"};
constexpr std::array<const char*, 6> member_loads = {"UNI GY -12.5",      "UNI GY -3.75 0.5 5.5",
                                                     "CON GY -48.2 2.35", "TRAP GY -2 -6.5 0.25 4.75",
                                                     "LIN Y -1.5 -4.25",  "UNI GX 0.85"};

/// Random stretches of numbers with gaps between, as loads on part of a building come.
class load_lists {
public:
    load_lists(int last, unsigned seed) : last_(last), random_(seed) {}

    /// The next few ranges, ascending; empty at the end.
    std::vector<id_range> next()
    {
        std::vector<id_range> ranges;
        const std::size_t count = 2 + random_() % 10;
        while (ranges.size() < count) {
            const int first = at_ + 1 + static_cast<int>(random_() % 8);
            if (first > last_)
                break;
            const int last = std::min(last_, first + static_cast<int>(random_() % 12));
            ranges.push_back({first, last});
            at_ = last;
        }
        return ranges;
    }

private:
    int last_;
    int at_ = 0;
    std::minstd_rand random_;
};

void write_load_case(deck_text& out, const frame& building, int number)
{
    const std::size_t type = static_cast<std::size_t>(number - 1) % case_types.size();
    out.line("LOAD " + std::to_string(number) + " LOADTYPE " + case_types[type] + " TITLE CASE " +
             std::to_string(number));
    if (number == 1)
        out.line("SELFWEIGHT Y -1");
    out.line("MEMBER LOAD");
    load_lists members(static_cast<int>(building.members().size()), static_cast<unsigned>(number));
    std::size_t load = static_cast<std::size_t>(number);
    for (auto ranges = members.next(); !ranges.empty(); ranges = members.next())
        out.list("", ranges, member_loads[load++ % member_loads.size()]);
    if (type < 3)
        return;
    out.line("JOINT LOAD");
    load_lists joints(building.joint(building.storeys(), 0, 0), static_cast<unsigned>(number) + 1000);
    for (auto ranges = joints.next(); !ranges.empty(); ranges = joints.next())
        out.list("", ranges, "FX 4.85 FZ -1.2");
}

void write_loads(deck_text& out, const frame& building, int cases)
{
    for (int number = 1; number <= cases; ++number)
        write_load_case(out, building, number);
    out.line("LOAD COMB " + std::to_string(cases + 1) + " DL AND LL");
    out.line("1 1.35 2 1.5");
}

void write_blocks(deck_text& out, const frame& building, const frame_options& options)
{
    if (options.groups)
        write_groups(out, building, options.plates);
    if (options.tables)
        write_tables(out);
    if (options.thickness && options.plates)
        write_thickness(out, building);
    if (options.constants)
        write_materials(out);
    if (options.properties)
        write_properties(out, building);
    if (options.constants)
        write_constants(out, building);
    if (options.supports)
        write_supports(out, building);
    if (options.releases)
        write_releases(out, building);
    if (options.offsets)
        write_offsets(out, building);
    if (options.trusses)
        write_trusses(out, building);
    if (options.loads)
        write_loads(out, building, options.load_cases);
}

} // namespace

frame_options& frame_options::with_all_blocks() noexcept
{
    plates = groups = tables = thickness = properties = constants = true;
    supports = releases = offsets = trusses = loads = true;
    return *this;
}

std::size_t frame_options::joints() const noexcept
{
    return static_cast<std::size_t>(bays_x + 1) * static_cast<std::size_t>(bays_z + 1) *
           static_cast<std::size_t>(storeys + 1);
}

std::size_t frame_options::members() const noexcept
{
    const auto x = static_cast<std::size_t>(bays_x);
    const auto z = static_cast<std::size_t>(bays_z);
    return (3 * x * z + 2 * x + 2 * z + 1) * static_cast<std::size_t>(storeys);
}

std::string make_frame_deck(const frame_options& options)
{
    const frame building(options);
    deck_text out;
    out.reserve(options.members() * 48);
    write_head(out);
    write_joints(out, building);
    write_members(out, building);
    if (options.plates)
        write_plates(out, building);
    write_blocks(out, building, options);
    out.line("FINISH");
    return std::move(out).take();
}

frame_options frame_of_about(std::size_t members, const frame_options& blocks)
{
    // storeys s and 2 s bays each way have about 12 s^3 members; what rounding leaves goes into bays_z
    const double wanted = static_cast<double>(members);
    const double storeys = std::max(1.0, std::round(std::cbrt(wanted / 12.0)));
    const double bays_x = 2.0 * storeys;
    const double bays_z = std::max(1.0, std::round((wanted / storeys - 2.0 * bays_x - 1.0) / (3.0 * bays_x + 2.0)));
    frame_options options = blocks;
    options.storeys = static_cast<int>(storeys);
    options.bays_x = static_cast<int>(bays_x);
    options.bays_z = static_cast<int>(bays_z);
    return options;
}

frame_options frame_of_bytes(std::size_t bytes, const frame_options& blocks)
{
    // a small frame gives the bytes per member, which grow slowly with the length of the numbers
    const frame_options sample = frame_of_about(10'000, blocks);
    double members = static_cast<double>(sample.members()) * static_cast<double>(bytes) /
                     static_cast<double>(make_frame_deck(sample).size()) * 0.85;
    for (;;) {
        const frame_options options = frame_of_about(static_cast<std::size_t>(members), blocks);
        const std::size_t size = make_frame_deck(options).size();
        if (size >= bytes)
            return options;
        members *= 1.01 * static_cast<double>(bytes) / static_cast<double>(size);
        members += 1.0;
    }
}

} // namespace STAAD::bench
