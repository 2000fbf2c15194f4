/// The lists that the downstream design program takes: one load case of each kind, station by station.

#include "staad/text/words.h"
#include "tests/support/force_listing.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using listings::values;
using listings::values_of;

const values zeros{};

/// Load cases of the model, "1 Dead; 2 Live": number and type as written after LOADTYPE.
std::map<int, LoadCase> cases(const std::string& types)
{
    std::map<int, LoadCase> made;
    for (const std::string& one : SplitString(types, ";")) {
        std::size_t end = 0;
        const int number = std::stoi(one, &end);
        made[number].id = number;
        made[number].type_text = one.substr(end + 1);
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

const struct {
    const char* why;
    const char* types;
    const char* recorded; ///< load cases of nine stations each
    const char* want;     ///< which load case dead, live, wind and seismic come from
} list_cases[] = {
    {"one of each", "1 Dead; 2 Live; 3 Wind; 4 Seismic", "1 2 3 4", "1 2 3 4"},
    {"in any order", "1 Seismic; 2 Wind; 3 Live; 4 Dead", "1 2 3 4", "4 3 2 1"},
    {"of two dead cases the higher number counts, nothing is added up", "1 Dead; 2 Live; 3 Dead", "1 2 3", "3 2 - -"},
    {"whose record is there", "1 Dead; 2 Live; 3 Dead", "1 2", "1 2 - -"},
    {"the same of every kind", "1 Live; 2 Live; 3 Wind; 4 Wind; 5 Seismic; 6 Seismic", "1 2 3 4 5 6", "- 2 4 6"},
    {"wind alone: the others are zeros", "4 Wind", "4", "- - 4 -"},
    {"only the beginning of the type counts, in any letter case",
     "1 DEAD LOAD; 2 live (reducible); 3 wINDWARD; 4 SEISMIC-H", "1 2 3 4", "1 2 3 4"},
    {"cases of no type are passed over", "1 Dead; 2 ; 3 Roof Live; 4 Snow", "1 2 3 4", "1 - - -"},
    {"so are cases that the model does not have", "1 Dead", "1 2 101", "1 - - -"},
    {"and cases without a record", "1 Dead; 2 Live", "1", "1 - - -"},
    {"negative numbers are numbers", "-1 Dead; 0 Live", "-1 0", "-1 0 - -"},
};

/// The load case that nine stations of one kind come from; "-" if they are zeros.
std::string source(const std::vector<BeamLoadList>& list, ForcePoint BeamLoadList::*kind)
{
    EXPECT_EQ(list.size(), 9U);
    const bool none = values_of(list.at(0).*kind) == zeros;
    const int number = static_cast<int>((list.at(0).*kind).f1 / 100);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(values_of(list.at(static_cast<std::size_t>(i)).*kind), none ? zeros : point(number, i));
    return none ? "-" : std::to_string(number);
}

TEST(LoadLists, TakeOneCaseOfEachKind)
{
    for (const auto& c : list_cases) {
        SCOPED_TRACE(c.why);
        std::vector<BeamLoadCaseRecord> records;
        for (const std::string& number : SplitString(c.recorded, " "))
            records.push_back(record(std::stoi(number), 9));
        const auto list = forces(records).get_pkpm_load_on_section(cases(c.types));
        EXPECT_EQ(source(list, &BeamLoadList::dead) + ' ' + source(list, &BeamLoadList::live) + ' ' +
                      source(list, &BeamLoadList::wind) + ' ' + source(list, &BeamLoadList::seismic),
                  c.want);
    }
}

TEST(LoadLists, AreEmptyWithoutAKnownKind)
{
    const BeamForceAndMOM member = forces({record(1, 9), record(2, 9)});
    EXPECT_TRUE(member.get_pkpm_load_on_section({}).empty()) << "no load case in the model";
    EXPECT_TRUE(member.get_pkpm_load_on_section(cases("3 Dead")).empty()) << "others";
    EXPECT_TRUE(member.get_pkpm_load_on_section(cases("1 ; 2 Snow")).empty()) << "of no kind";
    EXPECT_TRUE(BeamForceAndMOM().get_pkpm_load_on_section(cases("1 Dead")).empty()) << "no records";
}

TEST(LoadLists, TakeNothingFromRecordsThatWereNotResampled)
{
    const auto types = cases("1 Dead; 2 Live; 3 Dead");
    EXPECT_TRUE(forces({record(1, 0), record(2, 0)}).get_pkpm_load_on_section(types).empty());
    const auto list = forces({record(1, 9), record(2, 9), record(3, 0)}).get_pkpm_load_on_section(types);
    ASSERT_EQ(list.size(), 9U);
    EXPECT_EQ(values_of(list[8].dead), zeros) << "case 3 counts, and has nothing";
    EXPECT_EQ(values_of(list[8].live), point(2, 8));
}

TEST(LoadLists, AreAsLongAsTheLongest)
{
    const auto list =
        forces({record(1, 2), record(2, 5), record(3, 1)}).get_pkpm_load_on_section(cases("1 Dead; 2 Live; 3 Seismic"));
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
