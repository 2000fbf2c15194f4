/// A hash table from keys to indexes, for millions of records.
#ifndef STAAD_COMPARE_HASH_TABLE_H
#define STAAD_COMPARE_HASH_TABLE_H

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace STAAD::detail {

inline constexpr std::int32_t no_index = -1;

/// One more 64-bit part of a key taken into its hash.
constexpr std::uint64_t mixed(std::uint64_t hash, std::uint64_t part) noexcept
{
    hash = (hash ^ part) * 0x9E3779B97F4A7C15U;
    hash = (hash ^ (hash >> 30U)) * 0xBF58476D1CE4E5B9U;
    return hash ^ (hash >> 31U);
}

/// Open addressing, filled once and never emptied. Holds indexes only: `same(index)` says whether the record at
/// an index has the key that is looked for.
class hash_table {
public:
    /// Room for `count` different keys.
    explicit hash_table(std::size_t count) : slots_(std::bit_ceil(count * 2 + 1)) {}

    /// The index under a key, `no_index` for a new key; to be filled by the caller.
    template<class Same>
    std::int32_t& at(std::uint64_t hash, Same same)
    {
        slot& found = slots_[place(hash, same)];
        found.hash = static_cast<std::uint32_t>(hash);
        return found.index;
    }

    /// The index under a key, `no_index` if there is none.
    template<class Same>
    std::int32_t find(std::uint64_t hash, Same same) const
    {
        return slots_[place(hash, same)].index;
    }

private:
    struct slot {
        std::uint32_t hash = 0;
        std::int32_t index = no_index;
    };

    template<class Same>
    std::size_t place(std::uint64_t hash, Same same) const
    {
        const std::size_t mask = slots_.size() - 1;
        std::size_t at = static_cast<std::size_t>(hash >> 32U) & mask;
        while (slots_[at].index != no_index &&
               (slots_[at].hash != static_cast<std::uint32_t>(hash) || !same(slots_[at].index)))
            at = (at + 1) & mask;
        return at;
    }

    std::vector<slot> slots_;
};

} // namespace STAAD::detail

#endif
