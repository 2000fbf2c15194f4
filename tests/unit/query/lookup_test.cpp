/// Numbers of the file to positions in the model, and back to consecutive numbers.

#include "staad/query/lookup.h"
#include "staad/text/number_lookup.h"
#include "tests/support/sd_reader_access.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using access = detail::sd_reader_access;
using numbers = std::vector<int>;
using detail::number_lookup;
using detail::same_number;

template<class Record>
std::vector<Record> numbered(const numbers& ids)
{
    std::vector<Record> records(ids.size());
    for (std::size_t i = 0; i < ids.size(); ++i)
        records[i].id = ids[i];
    return records;
}

template<class Record>
numbers ids_of(const std::vector<Record>& records)
{
    numbers ids;
    for (const Record& record : records)
        ids.push_back(record.id);
    return ids;
}

struct lookup_row {
    const char* why;
    numbers list;
    int number;
    int first; // 1-based, 0: not there
    int last;
};

const lookup_row lookups[] = {
    {"an empty list", {}, 1, 0, 0},
    {"the first", {10, 20, 30}, 10, 1, 1},
    {"the last", {10, 20, 30}, 30, 3, 3},
    {"between two", {10, 20, 30}, 15, 0, 0},
    {"below all", {10, 20, 30}, 9, 0, 0},
    {"above all", {10, 20, 30}, 31, 0, 0},
    {"a position is no number", {10, 20, 30}, 1, 0, 0},
    {"in any order", {30, 10, 20}, 10, 2, 2},
    {"twice in the list", {5, 7, 5}, 5, 1, 3},
    {"three times, side by side", {5, 5, 5}, 5, 1, 3},
    {"once among others that stand twice", {5, 7, 5, 7, 6}, 6, 5, 5},
    {"zero is a number here", {3, 0}, 0, 2, 2},
    {"negative numbers, too", {-3, 4}, -3, 1, 1},
    {"numbers far apart", {INT_MAX, 1, INT_MIN}, INT_MIN, 3, 3},
    {"the largest of them", {INT_MAX, 1, INT_MIN}, INT_MAX, 1, 1},
    {"between numbers far apart", {INT_MAX, 1, INT_MIN}, 2, 0, 0},
    {"smallest number in a dense list", {1, 2, 3}, INT_MIN, 0, 0},
    {"largest number in a dense list", {1, 2, 3}, INT_MAX, 0, 0},
    {"twice and far apart", {2000000000, 1, 2000000000}, 2000000000, 1, 3},
};

TEST(Lookups, GiveTheFirstOrTheLastPosition)
{
    for (const lookup_row& c : lookups) {
        SCOPED_TRACE(c.why);
        SdReader model;
        model.nodes = numbered<SdNode>(c.list);
        model.beams = numbered<SdBeam>(c.list);
        model.shells = numbered<SdShell>(c.list);
        const int want = c.first == 0 ? -1 : c.first;
        EXPECT_EQ(model.locateNodeIndex(c.number), want);
        EXPECT_EQ(model.locateBeamIndex(c.number), want);
        EXPECT_EQ(model.locateShellIndex(c.number), want);
        EXPECT_EQ(number_lookup::of(model.nodes, same_number::first_counts).position(c.number), c.first);
        EXPECT_EQ(number_lookup::of(model.nodes, same_number::last_counts).position(c.number), c.last);
    }
    EXPECT_EQ(number_lookup().position(0), 0) << "made of nothing";
}

TEST(Locate, LooksAtItsOwnListAndAtNoIndex)
{
    SdReader model;
    model.nodes = numbered<SdNode>({1});
    model.beams = numbered<SdBeam>({9, 2});
    model.node_index = {{2, 1}};
    EXPECT_EQ(model.locateNodeIndex(1), 1);
    EXPECT_EQ(model.locateNodeIndex(2), -1);
    EXPECT_EQ(model.locateBeamIndex(2), 2);
    EXPECT_EQ(model.locateShellIndex(2), -1);
}

TEST(ElementCount, IsThatOfTheShellsBeforeTheCopiesOfSurfaces)
{
    SdReader model;
    EXPECT_EQ(element_count(model), 0U);
    model.shells.resize(5);
    EXPECT_EQ(element_count(model), 5U);
    model.surfaces.resize(2);
    EXPECT_EQ(element_count(model), 3U);
    model.surfaces.resize(9);
    EXPECT_EQ(element_count(model), 0U) << "a host's model may have more surfaces than shells";
}

struct walk_row {
    const char* why;
    numbers list;
    int first;
    int last;
    std::vector<std::pair<int, int>> want; // number, last position
};

const walk_row walks[] = {
    {"both ends belong to it", {1, 2, 3, 4}, 2, 3, {{2, 2}, {3, 3}}},
    {"ascending, whatever the order of the list", {4, 2, 3}, 1, 9, {{2, 2}, {3, 3}, {4, 1}}},
    {"each number once", {2, 3, 2}, 2, 3, {{2, 3}, {3, 2}}},
    {"only numbers that are there", {10, 30}, 1, 2000000000, {{10, 1}, {30, 2}}},
    {"none in between", {10, 30}, 11, 29, {}},
    {"a falling range", {1, 2, 3}, 3, 1, {}},
    {"all integers", {INT_MAX, 0, INT_MIN}, INT_MIN, INT_MAX, {{INT_MIN, 3}, {0, 2}, {INT_MAX, 1}}},
    {"an empty list", {}, INT_MIN, INT_MAX, {}},
};

TEST(NumberLookup, WalksARangeOverTheNumbersThatAreThere)
{
    for (const walk_row& c : walks) {
        std::vector<std::pair<int, int>> found;
        number_lookup::of(numbered<SdBeam>(c.list), same_number::last_counts)
            .for_each_in(c.first, c.last,
                         [&](detail::numbered_position at) { found.emplace_back(at.number, at.position); });
        EXPECT_EQ(found, c.want) << c.why;
    }
}

TEST(NumberLookup, FillsAnIndex)
{
    using index = std::map<int, int>;
    const auto records = numbered<SdShell>({30, 10, 30, INT_MIN});
    index first;
    number_lookup::of(records, same_number::first_counts).fill(first);
    EXPECT_EQ(first, (index{{INT_MIN, 4}, {10, 2}, {30, 1}}));
    index last;
    number_lookup::of(records, same_number::last_counts).fill(last);
    EXPECT_EQ(last, (index{{INT_MIN, 4}, {10, 2}, {30, 3}}));
}

TEST(ResetMemberId, NumbersMembersAndThenShells)
{
    SdReader model;
    model.nodes = numbered<SdNode>({100, 200});
    model.beams = numbered<SdBeam>({10, 20, 30});
    model.shells = numbered<SdShell>({1, 2});
    model.groups = {{"MEMBER", "_G", {10, 30}}};
    model.releases = {{"START MZ", {20}}};
    model.brace_ids = {30};
    model.beam_index = {{10, 1}, {20, 2}, {30, 3}};
    access::reset_member_id(model);
    EXPECT_EQ(ids_of(model.beams), (numbers{1, 2, 3}));
    EXPECT_EQ(ids_of(model.shells), (numbers{4, 5}));
    EXPECT_EQ(ids_of(model.nodes), (numbers{100, 200})) << "joints keep their numbers";
    EXPECT_EQ(model.groups[0].ids, (numbers{10, 30})) << "what refers to old numbers keeps them";
    EXPECT_EQ(model.releases["START MZ"], std::vector<unsigned>{20});
    EXPECT_EQ(model.brace_ids, std::set<int>{30});
    EXPECT_EQ(model.beam_index, (std::map<int, int>{{10, 1}, {20, 2}, {30, 3}}));
}

} // namespace
} // namespace STAAD
