#include "compare/taken_over.h"

#include "compare/number_finder.h"

#include <map>

namespace tool {
namespace {

using STAAD::SdGroup;
using STAAD::SdReader;

/// Tells which numbers of an earlier model have a counterpart: those of the first of several decide.
class counterpart_finder {
public:
    counterpart_finder(const std::vector<std::int64_t>& numbers, const std::map<int, int>& old_to_new)
        : finder_(numbers), old_to_new_(old_to_new)
    {
    }

    template<class Number>
    std::vector<int> without_counterpart(const std::vector<Number>& numbers) const
    {
        std::vector<int> lost;
        for (const Number number : numbers) {
            if (old_to_new_.count(finder_.first(static_cast<int>(number))) == 0)
                lost.push_back(static_cast<int>(number));
        }
        return lost;
    }

private:
    number_finder finder_;
    const std::map<int, int>& old_to_new_;
};

using described = std::map<std::string, std::vector<unsigned>>;

std::vector<taken_list> take(const described& lists, const counterpart_finder& finder)
{
    std::vector<taken_list> taken;
    for (const auto& [description, numbers] : lists)
        taken.push_back({description, {}, numbers.size(), finder.without_counterpart(numbers), false});
    return taken;
}

std::vector<taken_list> take(const std::vector<SdGroup>& groups, const counterpart_finder& joints,
                             const counterpart_finder& members)
{
    std::vector<taken_list> taken;
    for (const SdGroup& group : groups) {
        const SdGroup::IdType type = group.GetIdType();
        const counterpart_finder& finder = type == SdGroup::MemberId ? members : joints;
        taken.push_back({group.name, group.kind, group.ids.size(), finder.without_counterpart(group.ids),
                         type == SdGroup::ElementId});
    }
    return taken;
}

replaced_lists find_replaced(const SdReader& now, const SdReader& earlier)
{
    replaced_lists replaced;
    for (const SdGroup& group : now.groups)
        replaced.groups.push_back(group.name);
    for (const auto& [description, joints] : now.supports)
        replaced.supports.push_back(description);
    for (const auto& [description, members] : now.releases) {
        if (earlier.releases.count(description) != 0)
            replaced.releases.push_back(description);
    }
    return replaced;
}

} // namespace

taken_over summarise_take_over(const SdReader& now, const SdReader& earlier)
{
    const counterpart_finder joints(numbers_of(earlier.nodes), now.old_proj_maps.joints_old_to_new);
    const counterpart_finder members(numbers_of(earlier.beams), now.old_proj_maps.members_old_to_new);
    return {take(earlier.groups, joints, members), take(earlier.supports, joints), take(earlier.releases, members),
            find_replaced(now, earlier)};
}

} // namespace tool
