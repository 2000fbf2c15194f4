#include "staad/compare/take_over.h"

#include "staad/model/positions.h"
#include "staad/model/sd_reader.h"
#include "staad/text/number_lookup.h"

#include <map>
#include <utility>

namespace STAAD {
namespace {

/// Turns numbers of one list of the earlier model into those of their counterparts.
template<class Record>
class number_translation {
public:
    number_translation(const std::vector<Record>& earlier, const std::vector<Record>& now,
                       const std::vector<int>& new_of_old)
        : positions_(detail::number_lookup::of(earlier, detail::same_number::first_counts)), now_(now),
          new_of_old_(new_of_old)
    {
    }

    /// Numbers without a counterpart go to `lost`.
    template<class Number>
    std::vector<Number> operator()(const std::vector<Number>& numbers, std::vector<int>& lost) const
    {
        std::vector<Number> translated;
        for (const Number number : numbers) {
            if (const Record* const record = counterpart(static_cast<int>(number)))
                translated.push_back(static_cast<Number>(record->id));
            else
                lost.push_back(static_cast<int>(number));
        }
        return translated;
    }

private:
    const Record* counterpart(int number) const
    {
        const int* const position = at_position(new_of_old_, positions_.position(number));
        return position == nullptr ? nullptr : at_position(now_, *position);
    }

    detail::number_lookup positions_; // in the earlier list
    const std::vector<Record>& now_;
    const std::vector<int>& new_of_old_;
};

template<class Translation>
std::vector<TakenList> translated(const std::map<std::string, std::vector<unsigned>>& lists,
                                  const Translation& translate)
{
    std::vector<TakenList> result;
    result.reserve(lists.size());
    for (const auto& [description, numbers] : lists) {
        TakenList& list = result.emplace_back();
        list.description = description;
        list.numbers = translate(numbers, list.lost);
    }
    return result;
}

} // namespace

TakenOver definitions_to_take_over(const SdReader& now, const SdReader& earlier, const ModelMatch& matched)
{
    const number_translation joints(earlier.nodes, now.nodes, matched.joints.of_old);
    const number_translation members(earlier.beams, now.beams, matched.members.of_old);
    TakenOver result;
    result.groups.reserve(earlier.groups.size());
    for (const SdGroup& group : earlier.groups) {
        TakenGroup& taken = result.groups.emplace_back();
        taken.group.kind = group.kind;
        taken.group.name = group.name;
        taken.group.ids =
            group.GetIdType() == SdGroup::MemberId ? members(group.ids, taken.lost) : joints(group.ids, taken.lost);
    }
    result.supports = translated(earlier.supports, joints);
    result.releases = translated(earlier.releases, members);
    return result;
}

void take_over(SdReader& model, TakenOver definitions)
{
    std::vector<SdGroup> groups;
    groups.reserve(definitions.groups.size());
    for (TakenGroup& taken : definitions.groups) {
        if (!taken.group.ids.empty())
            groups.push_back(std::move(taken.group));
    }
    std::map<std::string, std::vector<unsigned>> supports;
    for (TakenList& list : definitions.supports)
        supports[std::move(list.description)] = std::move(list.numbers);
    model.groups = std::move(groups);
    model.supports = std::move(supports);
    for (TakenList& list : definitions.releases)
        model.releases[std::move(list.description)] = std::move(list.numbers);
}

void SdReader::TakeOverFrom(const SdReader& earlier)
{
    const ModelMatch matched = match(*this, earlier);
    old_proj_maps = to_maps(matched);
    take_over(*this, definitions_to_take_over(*this, earlier, matched));
}

} // namespace STAAD
