#include "staad/compare/pairs.h"

#include "staad/compare/list_pairing.h"
#include "staad/model/positions.h"
#include "staad/model/sd_reader.h"
#include "staad/query/lookup.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace STAAD {
namespace {

using detail::index_of;
using detail::list_pairing;
using detail::record_list;

/// Above all numbers of files: surfaces have numbers of their own, and no element has the number of a surface.
constexpr std::int64_t surface_numbers = std::int64_t{1} << 40U;

template<class Record>
std::vector<std::int64_t> numbers_of(const std::vector<Record>& records)
{
    std::vector<std::int64_t> numbers;
    numbers.reserve(records.size());
    for (const Record& record : records)
        numbers.push_back(record.id);
    return numbers;
}

std::vector<std::int64_t> shell_numbers(const SdReader& model)
{
    std::vector<std::int64_t> numbers = numbers_of(model.shells);
    for (std::size_t i = element_count(model); i < numbers.size(); ++i)
        numbers[i] += surface_numbers;
    return numbers;
}

/// Whether members or shells that lack a joint are the same in the joints that they have.
class same_joints {
public:
    same_joints(const SdReader& now, const SdReader& earlier, const Pairs& joints)
        : now_(now), earlier_(earlier), joints_(joints)
    {
    }

    bool members(int position, int old) const
    {
        const SdBeam& member = now_.beams[index_of(position)];
        const SdBeam& other = earlier_.beams[index_of(old)];
        return is_same(member.node_start, other.node_start) && is_same(member.node_end, other.node_end);
    }

    bool shells(int position, int old) const
    {
        const std::vector<int>& corners = now_.shells[index_of(position)].node_ids;
        const std::vector<int>& others = earlier_.shells[index_of(old)].node_ids;
        return std::equal(corners.begin(), corners.end(), others.begin(), others.end(),
                          [this](int corner, int other) { return is_same(corner, other); });
    }

private:
    bool is_same(int joint, int old) const
    {
        const bool is_joint = at_position(now_.nodes, joint) != nullptr;
        const bool was_joint = at_position(earlier_.nodes, old) != nullptr;
        return is_joint == was_joint && (!is_joint || joints_.old_of_new[index_of(joint)] == old);
    }

    const SdReader& now_;
    const SdReader& earlier_;
    const Pairs& joints_;
};

/// The three lists of a model. Its match with itself gives the records at one place, by the same rule as
/// between models.
struct own_lists {
    explicit own_lists(const SdReader& model) : own_lists(model, match(model, model)) {}

    record_list joints;
    record_list members;
    record_list shells;

private:
    own_lists(const SdReader& model, ModelMatch own)
        : joints{numbers_of(model.nodes), std::move(own.joints.of_new)},
          members{numbers_of(model.beams), std::move(own.members.of_new)}, shells{shell_numbers(model),
                                                                                  std::move(own.shells.of_new)}
    {
    }
};

} // namespace

ModelPairs pair_records(const SdReader& now, const SdReader& earlier, const ModelMatch& matched)
{
    const own_lists lists(now);
    const own_lists old_lists(earlier);
    ModelPairs pairs;
    pairs.joints = list_pairing(lists.joints, old_lists.joints, matched.joints.of_new).pair([](int, int) {
        return true; // joints without a place are the same if their numbers are
    });
    const same_joints same(now, earlier, pairs.joints);
    pairs.members =
        list_pairing(lists.members, old_lists.members, matched.members.of_new).pair([&same](int position, int old) {
            return same.members(position, old);
        });
    pairs.shells =
        list_pairing(lists.shells, old_lists.shells, matched.shells.of_new).pair([&same](int position, int old) {
            return same.shells(position, old);
        });
    return pairs;
}

} // namespace STAAD
