/// The lists that the downstream design program takes: one load case of each kind, station by station.

#include "tests/support/force_listing.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace STAAD {
namespace {

using listings::values;
using listings::values_of;

const values zeros{};

/// Load cases of the model: number and type as written after LOADTYPE.
std::map<int, LoadCase> cases(const std::vector<std::pair<int, const char*>>& types)
{
    std::map<int, LoadCase> made;
    for (const auto& [number, type] : types) {
        made[number].id = number;
        made[number].type_text = type;
    }
    return made;
}

/// Station i of record n has the position i and f1 = 100 n + i.
BeamLoadCaseRecord record(int load_case, int stations)
{
    BeamLoadCaseRecord made;
    made.load_case = load_case;
    made.points = {{99, 99, 99, 99, 99, 99, 99}}; // printed stations are not looked at
    for (int i = 0; i < stations; ++i)
        made.pkpm_points.push_back({double(i), 100.0 * load_case + i, 2, 3, 4, 5, 6});
    return made;
}

values point(int load_case, int station)
{
    return {double(station), 100.0 * load_case + station, 2, 3, 4, 5, 6};
}

BeamForceAndMOM forces(const std::vector<BeamLoadCaseRecord>& records)
{
    BeamForceAndMOM made;
    made.beam = 1;
    for (const BeamLoadCaseRecord& one : records)
        made.records[one.load_case] = one;
    return made;
}

/// Which load case each kind comes from, 0: none.
struct list_case {
    const char* why;
    std::vector<std::pair<int, const char*>> types;
    std::vector<int> recorded; ///< load cases of nine stations each
    int dead;
    int live;
    int wind;
    int seismic;
};

const list_case list_cases[] = {
    {"one of each", {{1, "Dead"}, {2, "Live"}, {3, "Wind"}, {4, "Seismic"}}, {1, 2, 3, 4}, 1, 2, 3, 4},
    {"in any order", {{1, "Seismic"}, {2, "Wind"}, {3, "Live"}, {4, "Dead"}}, {1, 2, 3, 4}, 4, 3, 2, 1},
    {"of two dead cases the higher number counts, nothing is added up",
     {{1, "Dead"}, {2, "Live"}, {3, "Dead"}},
     {1, 2, 3},
     3,
     2,
     0,
     0},
    {"whose record is there", {{1, "Dead"}, {2, "Live"}, {3, "Dead"}}, {1, 2}, 1, 2, 0, 0},
    {"the same of every kind",
     {{1, "Live"}, {2, "Live"}, {3, "Wind"}, {4, "Wind"}, {5, "Seismic"}, {6, "Seismic"}},
     {1, 2, 3, 4, 5, 6},
     0,
     2,
     4,
     6},
    {"wind alone: the others are zeros", {{4, "Wind"}}, {4}, 0, 0, 4, 0},
    {"only the beginning of the type counts, in any letter case",
     {{1, "DEAD LOAD"}, {2, "live (reducible)"}, {3, "wINDWARD"}, {4, "SEISMIC-H"}},
     {1, 2, 3, 4},
     1,
     2,
     3,
     4},
    {"cases of no type are passed over",
     {{1, "Dead"}, {2, ""}, {3, "Roof Live"}, {4, "Snow"}},
     {1, 2, 3, 4},
     1,
     0,
     0,
     0},
    {"so are cases that the model does not have", {{1, "Dead"}}, {1, 2, 101}, 1, 0, 0, 0},
    {"and cases without a record", {{1, "Dead"}, {2, "Live"}}, {1}, 1, 0, 0, 0},
    {"negative numbers are numbers", {{-1, "Dead"}, {0, "Live"}}, {-1, 0}, -1, 0, 0, 0},
};

TEST(LoadLists, TakeOneCaseOfEachKind)
{
    for (const list_case& c : list_cases) {
        std::vector<BeamLoadCaseRecord> records;
        for (const int number : c.recorded)
            records.push_back(record(number, 9));
        const auto list = forces(records).get_pkpm_load_on_section(cases(c.types));
        ASSERT_EQ(list.size(), 9U) << c.why;
        const bool zero_is_live = c.types.front().first == -1; // the one row in which 0 is a load case
        for (int i = 0; i < 9; ++i) {
            const BeamLoadList& station = list[static_cast<std::size_t>(i)];
            EXPECT_EQ(values_of(station.dead), c.dead == 0 ? zeros : point(c.dead, i)) << c.why;
            EXPECT_EQ(values_of(station.live), c.live == 0 && !zero_is_live ? zeros : point(c.live, i)) << c.why;
            EXPECT_EQ(values_of(station.wind), c.wind == 0 ? zeros : point(c.wind, i)) << c.why;
            EXPECT_EQ(values_of(station.seismic), c.seismic == 0 ? zeros : point(c.seismic, i)) << c.why;
        }
    }
}

TEST(LoadLists, AreEmptyWithoutAKnownKind)
{
    const BeamForceAndMOM member = forces({record(1, 9), record(2, 9)});
    EXPECT_TRUE(member.get_pkpm_load_on_section({}).empty()) << "no load case in the model";
    EXPECT_TRUE(member.get_pkpm_load_on_section(cases({{3, "Dead"}})).empty()) << "others";
    EXPECT_TRUE(member.get_pkpm_load_on_section(cases({{1, ""}, {2, "Snow"}})).empty()) << "of no kind";
    EXPECT_TRUE(BeamForceAndMOM().get_pkpm_load_on_section(cases({{1, "Dead"}})).empty()) << "no records";
}

TEST(LoadLists, TakeNothingFromRecordsThatWereNotResampled)
{
    const auto types = cases({{1, "Dead"}, {2, "Live"}, {3, "Dead"}});
    EXPECT_TRUE(forces({record(1, 0), record(2, 0)}).get_pkpm_load_on_section(types).empty());
    const auto list = forces({record(1, 9), record(2, 9), record(3, 0)}).get_pkpm_load_on_section(types);
    ASSERT_EQ(list.size(), 9U);
    EXPECT_EQ(values_of(list[8].dead), zeros) << "case 3 counts, and has nothing";
    EXPECT_EQ(values_of(list[8].live), point(2, 8));
}

TEST(LoadLists, AreAsLongAsTheLongest)
{
    const auto list = forces({record(1, 2), record(2, 5), record(3, 1)})
                          .get_pkpm_load_on_section(cases({{1, "Dead"}, {2, "Live"}, {3, "Seismic"}}));
    ASSERT_EQ(list.size(), 5U);
    EXPECT_EQ(values_of(list[1].dead), point(1, 1));
    EXPECT_EQ(values_of(list[2].dead), zeros) << "position included";
    EXPECT_EQ(values_of(list[4].live), point(2, 4));
    EXPECT_EQ(values_of(list[0].seismic), point(3, 0));
    EXPECT_EQ(values_of(list[1].seismic), zeros);
    EXPECT_EQ(values_of(list[0].wind), zeros);
}

} // namespace
} // namespace STAAD
