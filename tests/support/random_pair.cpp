#include "tests/support/random_pair.h"

#include "tests/support/placed_models.h"
#include "tests/support/random_text.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

namespace STAAD::decks {
namespace {

using limits = std::numeric_limits<double>;

/// One coordinate of a joint; `step` is one choice for the whole model.
using coordinate = double (*)(chance& random, double step);

/// A metre apart, with what rounding in a program's output does to them.
double building(chance& random, double)
{
    return 1000.0 * random.between(0, 3) + random.any_of<double>({0, 0, 0, 0.004, -0.004, 0.05});
}

/// Closer to each other than the tolerance, around places where cells may end.
double cluster(chance& random, double step)
{
    return random.any_of<double>({0, 100, -4500, 3000.25, 6000.5}) + step * random.between(-3, 3) / 4;
}

/// A chain whose links are shorter than the tolerance.
double chain(chance& random, double step)
{
    return step * random.between(-10, 20);
}

/// On the lines that a division of space may have, and one bit beside them.
double border(chance& random, double)
{
    const double line = random.any_of<double>({0.05, 0.1, 0.125, 0.2, 0.25, 0.5, 1}) * random.between(-4, 8);
    const double beside = random.any_of<double>({limits::infinity(), -limits::infinity()});
    return random.one_in(3) ? std::nextafter(line, beside) : line;
}

/// Where doubles lie about as far apart as the tolerance, or much farther, or are no places at all.
double far_out(chance& random, double)
{
    const double sign = random.one_in(3) ? -1 : 1;
    switch (random.between(0, 7)) {
    case 0:
        return sign * (0x1p49 + 0.0625 * random.between(-3, 4));
    case 1:
        return sign * (0x1p47 + 0.03125 * random.between(-4, 4));
    case 2:
        return sign * random.any_of<double>({0x1p31, 0x1p32, 0x1p53, 0x1p62, 0x1p63, 0x1p64, 1e20, 1e300});
    case 3:
        return sign * random.any_of<double>({limits::max(), std::nextafter(limits::max(), 0.0), limits::infinity()});
    case 4:
        return random.one_in(4) ? limits::quiet_NaN() : sign * limits::denorm_min();
    default:
        return sign * random.any_of<double>({2147483647, 214748364.75, 1e9}) + 0.05 * random.between(-3, 3);
    }
}

struct axes {
    coordinate along;
    coordinate across;
};

constexpr axes axes_of_kind[] = {
    {building, building}, // building
    {cluster, building},  // clusters_in_line
    {cluster, cluster},   // clusters
    {chain, building},    // chains
    {chain, chain},       // crossing_chains
    {border, building},   // borders_in_line
    {border, border},     // borders
    {far_out, building},  // far_out_in_line
    {far_out, far_out},   // far_out
};

/// Where the joints of a pair of models may be.
struct places {
    axes of;
    double step;
};

int random_position(chance& random, const std::vector<SdNode>& joints)
{
    const int last = static_cast<int>(joints.size());
    return random.one_in(20) ? random.between(-1, last + 1) : random.between(0, last);
}

void add_random_member(chance& random, SdReader& model)
{
    const int start = random_position(random, model.nodes);
    model.beams.push_back(placed::member(random.between(1, 50), start, random_position(random, model.nodes)));
}

void add_random_shell(chance& random, SdReader& model)
{
    std::vector<int> corners;
    for (int i = random.between(0, 4); i > 0; --i)
        corners.push_back(random_position(random, model.nodes));
    model.shells.push_back(placed::shell(random.between(1, 50), corners));
}

placed::point random_place(chance& random, const places& where)
{
    placed::point place;
    place.x = where.of.along(random, where.step);
    place.y = where.of.across(random, where.step);
    place.z = where.of.across(random, where.step);
    std::swap(place.x, *random.any_of({&place.y, &place.z, &place.x}));
    return place;
}

SdReader random_model(chance& random, const places& where, int joints)
{
    SdReader model;
    for (int i = random.between(0, joints); i > 0; --i)
        model.nodes.push_back(placed::joint(random.between(1, 50), random_place(random, where)));
    for (int i = random.between(0, joints); i > 0; --i)
        add_random_member(random, model);
    for (int i = random.between(0, joints); i > 0; --i)
        add_random_shell(random, model);
    return model;
}

/// Moved by a little, or by a little too much.
double moved(chance& random, double value)
{
    return random.one_in(4) ? value + random.any_of<double>({0.05, -0.05, 0.04, 0.0999, -0.0999, 0.1, -0.1}) : value;
}

/// The joints of `model` in another order, renumbered, some of them moved, gone or new; `position_of` becomes
/// the position here of each joint there, 0 for one that is gone.
std::vector<SdNode> rearranged_joints(chance& random, const SdReader& model, std::vector<int>& position_of)
{
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < model.nodes.size(); ++i)
        order.push_back(i);
    if (!random.one_in(4))
        random.shuffle(order);
    std::vector<SdNode> joints;
    position_of.assign(model.nodes.size() + 1, 0);
    for (const std::size_t from : order) {
        if (random.one_in(8))
            continue;
        const SdNode& joint = model.nodes[from];
        joints.push_back(placed::joint(random.between(1, 50),
                                       {moved(random, joint.x), moved(random, joint.y), moved(random, joint.z)}));
        position_of[from + 1] = static_cast<int>(joints.size());
        if (random.one_in(8))
            joints.push_back(joint);
    }
    return joints;
}

int translated(const std::vector<int>& position_of, int position)
{
    const auto index = static_cast<std::size_t>(position);
    return position < 0 || index >= position_of.size() ? position : position_of[index];
}

/// The members of `model` over joints that have moved in the list, some of them turned, gone or new.
void add_rearranged_members(chance& random, const SdReader& model, const std::vector<int>& position_of, SdReader& to)
{
    for (const SdBeam& member : model.beams) {
        int start = translated(position_of, member.node_start);
        int end = translated(position_of, member.node_end);
        if (random.one_in(3))
            std::swap(start, end);
        if (!random.one_in(8))
            to.beams.push_back(placed::member(random.between(1, 50), start, end));
        if (random.one_in(8))
            add_random_member(random, to);
    }
    random.shuffle(to.beams);
}

void add_rearranged_shells(chance& random, const SdReader& model, const std::vector<int>& position_of, SdReader& to)
{
    for (const SdShell& shell : model.shells) {
        std::vector<int> corners;
        for (const int corner : shell.node_ids)
            corners.push_back(translated(position_of, corner));
        if (random.one_in(6))
            random.shuffle(corners);
        if (!random.one_in(8))
            to.shells.push_back(placed::shell(random.between(1, 50), corners));
        if (random.one_in(8))
            add_random_shell(random, to);
    }
    random.shuffle(to.shells);
}

SdReader rearranged(chance& random, const SdReader& model)
{
    SdReader other;
    std::vector<int> position_of;
    other.nodes = rearranged_joints(random, model, position_of);
    add_rearranged_members(random, model, position_of, other);
    add_rearranged_shells(random, model, position_of, other);
    return other;
}

} // namespace

model_pair make_random_pair(std::uint64_t seed, place_kind kind, int joints)
{
    chance random(seed);
    const places where{axes_of_kind[static_cast<std::size_t>(kind)],
                       random.any_of<double>({0.04, 0.05, 0.06, 0.0625, 0.075, 0.09, 0.099})};
    model_pair made;
    made.now = random_model(random, where, joints);
    made.earlier = random.one_in(3) ? random_model(random, where, joints) : rearranged(random, made.now);
    return made;
}

} // namespace STAAD::decks
