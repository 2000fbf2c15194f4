/// The table under the comparison: different keys stay apart though their hashes are the same.

#include "staad/compare/hash_table.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace STAAD::detail {
namespace {

using hash_function = std::uint64_t (*)(int key);

struct hash_row {
    const char* why;
    hash_function hash;
};

/// A hash has two halves: one says where to look first, the other what to look for.
const hash_row hashes[] = {
    {"mixed well", [](int key) { return mixed(0, static_cast<std::uint64_t>(key)); }},
    {"all the same", [](int) { return std::uint64_t{0}; }},
    {"all the same and in the last place", [](int) { return ~std::uint64_t{0}; }},
    {"the same place", [](int key) { return static_cast<std::uint64_t>(key); }},
    {"the same mark", [](int key) { return static_cast<std::uint64_t>(key) << 32U; }},
    {"two to a hash", [](int key) { return mixed(1, static_cast<std::uint64_t>(key / 2)); }},
};

/// Keys looked up by the table, each to be filled with its index in `keys`: the first of several.
hash_table filled(const std::vector<int>& keys, hash_function hash)
{
    hash_table table(keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
        std::int32_t& index = table.at(
            hash(keys[i]), [&](std::int32_t other) { return keys[static_cast<std::size_t>(other)] == keys[i]; });
        if (index == no_index)
            index = static_cast<std::int32_t>(i);
    }
    return table;
}

std::int32_t found(const hash_table& table, const std::vector<int>& keys, int key, hash_function hash)
{
    return table.find(hash(key), [&](std::int32_t index) { return keys[static_cast<std::size_t>(index)] == key; });
}

TEST(HashTable, FindsEveryKeyAndNoOther)
{
    std::vector<int> keys;
    for (int key = 0; key < 300; key += 3)
        keys.push_back(key);
    for (const hash_row& c : hashes) {
        const hash_table table = filled(keys, c.hash);
        for (int key = -3; key < 306; ++key) {
            const bool is_key = key >= 0 && key < 300 && key % 3 == 0;
            EXPECT_EQ(found(table, keys, key, c.hash), is_key ? key / 3 : no_index) << c.why << ", key " << key;
        }
        EXPECT_EQ(found(hash_table(0), {}, 1, c.hash), no_index) << c.why << ", no room for any key";
    }
}

TEST(HashTable, KeepsTheFirstIndexOfAKey)
{
    const std::vector<int> keys = {5, 7, 5, 5, 7, 6};
    for (const hash_row& c : hashes) {
        const hash_table table = filled(keys, c.hash);
        EXPECT_EQ(found(table, keys, 5, c.hash), 0) << c.why;
        EXPECT_EQ(found(table, keys, 7, c.hash), 1) << c.why;
        EXPECT_EQ(found(table, keys, 6, c.hash), 5) << c.why;
    }
}

TEST(HashTable, LeavesAPlaceFreeThatIsAskedForAndNotFilled)
{
    hash_table table(2);
    const auto no_key = [](std::int32_t) { return false; };
    for (std::uint64_t hash = 0; hash < 100; ++hash)
        EXPECT_EQ(table.at(hash << 32U | hash, no_key), no_index);
    table.at(7, no_key) = 0;
    EXPECT_EQ(table.find(7, [](std::int32_t index) { return index == 0; }), 0);
    EXPECT_EQ(table.find(8, [](std::int32_t index) { return index == 0; }), no_index) << "other hashes, other keys";
}

} // namespace
} // namespace STAAD::detail
