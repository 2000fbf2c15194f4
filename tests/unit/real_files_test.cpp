// Files that engineers' tools wrote, where a copy of them is at hand: STAADKIT_REAL_FILES names the folder.

#include "staad/model/sd_reader.h"
#include "staad/report/read_report.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace {

using STAAD::ReadReport;
using STAAD::SdReader;

/// Counts as the folder's own notes give them.
struct real_file {
    const char* name;
    std::size_t joints;
    std::size_t members;
    std::size_t shells;
    std::size_t groups;
    std::size_t group_kinds;
};

const real_file real_files[] = {
    {"parking.std", 253, 617, 0, 0, 0},          {"rc-frame.std", 68, 110, 0, 11, 3},
    {"rc-plates.std", 73, 63, 36, 5, 2},         {"truss.std", 42, 81, 0, 0, 0},
    {"two-storey-offsets.std", 44, 76, 0, 1, 1},
};

std::string contents(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class RealFiles : public testing::Test {
protected:
    void SetUp() override
    {
        const char* const folder = std::getenv("STAADKIT_REAL_FILES");
        if (folder == nullptr)
            GTEST_SKIP() << "STAADKIT_REAL_FILES names no folder of real files";
        folder_ = std::string(folder) + "/";
    }

    std::string folder_;
};

// From memory: the files may lie there write-protected, and a file must be open for update.
TEST_F(RealFiles, HaveTheJointsMembersAndShellsThatTheirNotesTell)
{
    for (const real_file& file : real_files) {
        SCOPED_TRACE(file.name);
        SdReader model;
        ReadReport report;
        ASSERT_TRUE(model.ReadSDDataFromText(contents(folder_ + file.name), report));
        EXPECT_EQ(model.nodes.size(), file.joints);
        EXPECT_EQ(model.beams.size(), file.members);
        EXPECT_EQ(model.shells.size(), file.shells);
        EXPECT_EQ(model.groups.size(), file.groups);
        std::set<std::string> kinds;
        for (const STAAD::SdGroup& group : model.groups)
            kinds.insert(group.kind);
        EXPECT_EQ(kinds.size(), file.group_kinds);
        EXPECT_LT(report.worst(), STAAD::Finding::Error);
    }
}

TEST_F(RealFiles, NameOnlyJointsThatTheyDefine)
{
    for (const real_file& file : real_files) {
        SdReader model;
        ASSERT_TRUE(model.ReadSDDataFromText(contents(folder_ + file.name)));
        for (const STAAD::SdBeam& member : model.beams)
            EXPECT_TRUE(member.node_start > 0 && member.node_end > 0) << file.name << ", member " << member.id;
        for (const STAAD::SdShell& shell : model.shells)
            for (const int joint : shell.node_ids)
                EXPECT_GT(joint, 0) << file.name << ", element " << shell.id;
    }
}

} // namespace
