/// Groups, supports and releases of an earlier project, taken over in the numbers of this model.
#include "staad/host/platform_services.h"
#include "staad/model/positions.h"
#include "staad/model/sd_reader.h"
#include "staad/text/number_lookup.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

/// Turns numbers of one list of the earlier model into those of this model's counterparts.
template<class Record>
class number_translation {
public:
    /// `old_to_new` holds positions.
    number_translation(const std::vector<Record>& earlier, const std::vector<Record>& now,
                       const std::map<int, int>& old_to_new)
        : positions_(detail::number_lookup::of(earlier, detail::same_number::first_counts)), now_(now),
          old_to_new_(old_to_new)
    {
    }

    /// Numbers without a counterpart are left out.
    template<class Id>
    std::vector<Id> operator()(const std::vector<Id>& numbers) const
    {
        std::vector<Id> translated;
        for (const Id number : numbers) {
            const auto entry = old_to_new_.find(positions_.position(static_cast<int>(number)));
            const Record* const record =
                entry == old_to_new_.end() ? nullptr : detail::at_position(now_, entry->second);
            if (record != nullptr)
                translated.push_back(static_cast<Id>(record->id));
        }
        return translated;
    }

private:
    detail::number_lookup positions_; // in the earlier list
    const std::vector<Record>& now_;
    const std::map<int, int>& old_to_new_;
};

/// The lists under every description, also those that end empty.
template<class Lists, class Translation>
Lists translated(const Lists& lists, const Translation& translate)
{
    Lists result;
    for (const auto& [description, numbers] : lists)
        result.emplace_hint(result.end(), description, translate(numbers));
    return result;
}

} // namespace

void SdReader::compWithOldProj(const char* path)
{
    PlatformServices& services = GetPlatformServices();
    if (path == nullptr || !services.CanRead(path))
        return;
    // The project data already exist. Compare, and take over the earlier data?
    const PlatformServices::Message question{{},
                                             u"\u5DE5\u7A0B\u6570\u636E\u5DF2\u5B58\u5728\uFF0C\u662F\u5426"
                                             u"\u5BF9\u6BD4\u5E76\u63D0\u53D6\u539F\u6709\u7684\u6570\u636E\uFF1F",
                                             PlatformServices::Buttons::YesNo,
                                             PlatformServices::Icon::None};
    if (services.ShowMessage(question) != PlatformServices::Answer::Yes)
        return;
    SdReader earlier;
    if (earlier.ReadSDDataFromStdFile(path))
        TakeOverFrom(earlier);
}

void SdReader::TakeOverFrom(const SdReader& earlier)
{
    MakeMap(earlier);
    const number_translation joints(earlier.nodes, nodes, old_proj_maps.joints_old_to_new);
    const number_translation members(earlier.beams, beams, old_proj_maps.members_old_to_new);

    // Complete before any of it replaces what is here: `earlier` may be this very model.
    std::vector<SdGroup> taken_groups;
    for (SdGroup group : earlier.groups) {
        // Element groups go by joints, too: the numbers in them are taken for those of joints.
        group.ids = group.GetIdType() == SdGroup::MemberId ? members(group.ids) : joints(group.ids);
        if (!group.ids.empty())
            taken_groups.push_back(std::move(group));
    }
    auto taken_supports = translated(earlier.supports, joints);
    auto taken_releases = translated(earlier.releases, members);
    groups = std::move(taken_groups);
    supports = std::move(taken_supports);
    for (auto& [description, numbers] : taken_releases)
        releases[description] = std::move(numbers);
}

} // namespace STAAD
