#include "staad/compare/pairs.h"

#include "staad/model/positions.h"
#include "staad/model/sd_reader.h"
#include "staad/query/lookup.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace STAAD {
namespace {

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

std::size_t index_of(int position)
{
    return static_cast<std::size_t>(position) - 1;
}

/// The records of one list of a model.
struct record_list {
    std::vector<std::int64_t> numbers;
    std::vector<int> places; ///< by record the position of the first one at its place; 0: it has no place
};

/// Finds records of a list by number.
class record_finder {
public:
    explicit record_finder(const std::vector<std::int64_t>& numbers) : passed_(numbers.size())
    {
        entries_.reserve(numbers.size());
        for (const std::int64_t number : numbers)
            entries_.emplace_back(number, static_cast<int>(entries_.size()) + 1);
        std::sort(entries_.begin(), entries_.end());
    }

    /// Position of the first record with this number, 0 if no record has it.
    int first(std::int64_t number) const { return position(number, first_entry(number)); }

    /// Position of the first record with this number that `is_free`. A record once found taken must stay so.
    template<class IsFree>
    int first_free(std::int64_t number, IsFree is_free)
    {
        const std::size_t first = first_entry(number);
        if (position(number, first) == 0)
            return 0;
        std::size_t& passed = passed_[first];
        int found = position(number, first + passed);
        while (found != 0 && !is_free(found))
            found = position(number, first + ++passed);
        return found;
    }

private:
    std::size_t first_entry(std::int64_t number) const
    {
        const auto entry = std::lower_bound(entries_.begin(), entries_.end(), std::pair(number, 0));
        return static_cast<std::size_t>(entry - entries_.begin());
    }
    int position(std::int64_t number, std::size_t entry) const
    {
        return entry < entries_.size() && entries_[entry].first == number ? entries_[entry].second : 0;
    }

    std::vector<std::pair<std::int64_t, int>> entries_;
    std::vector<std::size_t> passed_; // by the first entry of each number: how many of it are taken
};

/// Pairs the records of one list.
class list_pairing {
public:
    /// `place_in_old`: by record of `now` the first earlier record at its place.
    list_pairing(const record_list& now, const record_list& earlier, const std::vector<int>& place_in_old)
        : now_(now), earlier_(earlier), place_in_old_(place_in_old), old_records_(earlier.numbers)
    {
        pairs_.old_of_new.resize(now.numbers.size());
        pairs_.moved_of_new.resize(now.numbers.size());
        pairs_.new_of_old.resize(earlier.numbers.size());
        pairs_.moved_of_old.resize(earlier.numbers.size());
    }

    /// `is_same(new, old)` is asked of the positions of records of one number that have no place.
    template<class IsSame>
    Pairs pair(IsSame is_same)
    {
        join_by_place_and_number();
        join_by_place();
        join_by_number(is_same);
        return std::move(pairs_);
    }

private:
    void join(std::size_t index, int old)
    {
        pairs_.old_of_new[index] = old;
        pairs_.new_of_old[index_of(old)] = static_cast<int>(index) + 1;
    }

    void join_by_place_and_number()
    {
        for (std::size_t i = 0; i < place_in_old_.size(); ++i) {
            const int place = place_in_old_[i];
            const int old = place != 0 ? old_records_.first(now_.numbers[i]) : 0;
            if (old != 0 && earlier_.places[index_of(old)] == place && pairs_.new_of_old[index_of(old)] == 0)
                join(i, old);
        }
    }

    /// What is left at one place in both models, in list order.
    void join_by_place()
    {
        std::vector<int> first_at(earlier_.numbers.size()); // by index of the place
        std::vector<int> next_of(earlier_.numbers.size());
        for (int old = static_cast<int>(earlier_.places.size()); old > 0; --old) {
            const int place = earlier_.places[index_of(old)];
            if (place != 0 && pairs_.new_of_old[index_of(old)] == 0)
                next_of[index_of(old)] = std::exchange(first_at[index_of(place)], old);
        }
        for (std::size_t i = 0; i < place_in_old_.size(); ++i) {
            const int place = place_in_old_[i];
            if (place == 0 || pairs_.old_of_new[i] != 0)
                continue;
            int& first = first_at[index_of(place)];
            if (const int old = first; old != 0) {
                first = next_of[index_of(old)];
                join(i, old);
            }
        }
    }

    template<class IsSame>
    void join_by_number(IsSame is_same)
    {
        const auto is_free = [this](int old) {
            return pairs_.new_of_old[index_of(old)] == 0 && pairs_.moved_of_old[index_of(old)] == 0;
        };
        for (std::size_t i = 0; i < now_.numbers.size(); ++i) {
            const int old = pairs_.old_of_new[i] == 0 ? old_records_.first_free(now_.numbers[i], is_free) : 0;
            if (old == 0)
                continue;
            const int position = static_cast<int>(i) + 1;
            if (now_.places[i] == 0 && earlier_.places[index_of(old)] == 0 && is_same(position, old)) {
                join(i, old);
            } else {
                pairs_.moved_of_new[i] = old;
                pairs_.moved_of_old[index_of(old)] = position;
            }
        }
    }

    const record_list& now_;
    const record_list& earlier_;
    const std::vector<int>& place_in_old_;
    record_finder old_records_;
    Pairs pairs_;
};

/// Whether members or shells that lack a joint are the same as far as they have joints.
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

/// The three lists of a model. Which of its records stand at one place, its match with itself says: by the
/// same rule as between models.
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
        return true; // no place at all is one place, too
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
