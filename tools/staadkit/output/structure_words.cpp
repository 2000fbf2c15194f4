#include "output/structure_words.h"

#include <cstddef>
#include <iterator>

namespace tool {
namespace {

using STAAD::Structure;
using Kind = Structure::Load::Kind;

// Each list is in the order of its enumeration.
constexpr const char* kinds[] = {"space", "plane", "truss", "floor"};
constexpr const char* behaviours[] = {"normal", "truss", "tension", "compression", "cable"};
constexpr const char* shapes[] = {"rectangle", "circle",  "tee",   "trapezoid",  "round_tube", "general", "tube",
                                  "pipe",      "tapered", "table", "user_table", "assigned",   "other"};
constexpr const char* group_kinds[] = {"joints", "members", "elements", "floor", "solids", "geometry"};
constexpr const char* directions[] = {"none",     "local_x",  "local_y",     "local_z",     "global_x",
                                      "global_y", "global_z", "projected_x", "projected_y", "projected_z"};

struct load_words {
    const char* kind;
    const char* on;
};
constexpr load_words loads[] = {{"joint_forces", "joints"},
                                {"uniform", "members"},
                                {"uniform_moment", "members"},
                                {"concentrated", "members"},
                                {"concentrated_moment", "members"},
                                {"linear", "members"},
                                {"trapezoidal", "members"},
                                {"pressure", "elements"},
                                {"partial_pressure", "elements"},
                                {"point_on_element", "elements"},
                                {"corner_pressure", "elements"},
                                {"trapezoidal_pressure", "elements"},
                                {"self_weight", "members"},
                                {"floor", "members"},
                                {"one_way", "members"},
                                {"area", "members"},
                                {"temperature", "members"},
                                {"strain", "members"},
                                {"cases", ""},
                                {"kept", ""}};

static_assert(std::size(kinds) == static_cast<std::size_t>(Structure::Kind::floor) + 1);
static_assert(std::size(behaviours) == static_cast<std::size_t>(Structure::Behaviour::cable) + 1);
static_assert(std::size(shapes) == static_cast<std::size_t>(Structure::Section::Shape::other) + 1);
static_assert(std::size(group_kinds) == static_cast<std::size_t>(Structure::GroupKind::geometry) + 1);
static_assert(std::size(directions) == static_cast<std::size_t>(Structure::Load::Direction::projected_z) + 1);
static_assert(std::size(loads) == static_cast<std::size_t>(Kind::kept) + 1);

} // namespace

std::string word_of(Structure::Kind kind)
{
    return kinds[static_cast<std::size_t>(kind)];
}

std::string word_of(Structure::Behaviour behaviour)
{
    return behaviours[static_cast<std::size_t>(behaviour)];
}

std::string word_of(Structure::Section::Shape shape)
{
    return shapes[static_cast<std::size_t>(shape)];
}

std::string word_of(Structure::GroupKind kind)
{
    return group_kinds[static_cast<std::size_t>(kind)];
}

std::string word_of(Kind kind)
{
    return loads[static_cast<std::size_t>(kind)].kind;
}

std::string word_of(Structure::Load::Direction direction)
{
    return directions[static_cast<std::size_t>(direction)];
}

std::string loaded_records(Kind kind)
{
    return loads[static_cast<std::size_t>(kind)].on;
}

} // namespace tool
