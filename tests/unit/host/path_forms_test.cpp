/// Files named by a std::filesystem::path: they need only be readable, and no box asks for a model.

#include "staad/report/read_report.h"
#include "staad/storeys/layered_project.h"
#include "tests/support/deck.h"
#include "tests/support/force_listing.h"
#include "tests/support/model_equal.h"
#include "tests/support/project_folder.h"
#include "tests/support/scripted_services.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#ifndef _WIN32
#    include <sys/stat.h> // mkfifo
#endif

namespace STAAD {
namespace {

namespace fs = std::filesystem;
using texts = std::vector<std::string>;

const std::string deck = "UNIT MMS KN\nJOINT COORDINATES\n1 0 0 0; 2 0 3000 0;\nMEMBER INCIDENCES\n101 1 2;\n"
                         "START GROUP DEFINITION\nMEMBER\n_OLD 101\nEND GROUP DEFINITION\nFINISH\n";
const std::string listing = listings::section({"101 1:DEAD @0", "@3000", "2:LIVE @0"});

std::string first_code(const ReadReport& report)
{
    return report.findings.empty() ? "" : report.findings.front().code;
}

class PathForms : public testing::Test {
protected:
    scripted_services desktop_;
    const project_folder folder_{deck};
    const fs::path path_ = folder_.model();
};

TEST_F(PathForms, ReadAndWriteAsTheNarrowOnes)
{
    SdReader narrow;
    SdReader model;
    ASSERT_TRUE(narrow.ReadSDDataFromStdFile(folder_.model()));
    ASSERT_TRUE(model.ReadSDDataFromStdFile(path_));
    EXPECT_EQ(model_differences(model, narrow), texts());

    const fs::path written = path_.parent_path() / "written.std";
    std::error_code error = std::make_error_code(std::errc::io_error);
    ASSERT_TRUE(model.WriteDataToFile(written, error));
    EXPECT_FALSE(error);
    EXPECT_TRUE(narrow.ReadSDDataFromStdFile(written.string())) << "a std::string goes to the form of a path";
    EXPECT_EQ(narrow.beams.size(), 1U);
    EXPECT_FALSE(model.WriteDataToFile(path_.parent_path() / "no" / "folder", error));
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}

TEST_F(PathForms, ReportAFileThatIsMissing)
{
    const fs::path missing = path_.parent_path() / "missing";
    ReadReport report;
    SdReader model;
    EXPECT_FALSE(model.ReadSDDataFromStdFile(missing, report));
    EXPECT_EQ(first_code(report), "file-missing");
    ASSERT_TRUE(model.ReadSDDataFromText(deck));
    ASSERT_TRUE(model.ReadForceMomentFromText(listing));
    EXPECT_FALSE(model.ReadForceMomentFromTxtFile(missing, report));
    EXPECT_EQ(first_code(report), "file-missing");
    EXPECT_TRUE(model.beam_forces.empty());
}

TEST_F(PathForms, OfForcesReturnWhetherThereAreAny)
{
    const fs::path beside = folder_.path("deck.txt");
    SdReader model;
    struct forces_case {
        const char* why;
        std::string listing;
        bool want;
    };
    const forces_case cases[] = {
        {"a member and its first load case", listing, true},
        {"no title", "101 1:DEAD 0 1 2 3 4 5 6\n", false},
        {"a member that the model does not have", listings::section({"999 1:DEAD @0", "2:LIVE @0"}), false},
    };
    ASSERT_TRUE(model.ReadSDDataFromText(deck));
    for (const forces_case& c : cases) {
        folder_.write("deck.txt", c.listing);
        EXPECT_EQ(model.ReadForceMomentFromTxtFile(beside), c.want) << c.why;
        EXPECT_EQ(model.ReadForceMomentFromText(c.listing), c.want) << c.why;
        EXPECT_EQ(model.beam_forces.empty(), !c.want) << c.why;
    }
    model.Reset();
    EXPECT_FALSE(model.ReadForceMomentFromTxtFile(beside));
    EXPECT_TRUE(desktop_.messages.empty()) << "no box about a model without members";
    EXPECT_FALSE(model.ReadForceMomentFromText(listing));
    EXPECT_EQ(desktop_.messages.size(), 1U) << "the form of a text shows it";
}

TEST_F(PathForms, BuildProjectsWithTheListingBesideTheModelOrTheOneChosen)
{
    folder_.write("deck.txt", listing);
    StaadProProject_layered project;
    ReadReport of_model;
    ReadReport of_forces;
    ASSERT_TRUE(project.BuidFromFile(path_, 1, of_model, of_forces));
    EXPECT_EQ(project.layers.at(0).members.at(0).forces.records.size(), 1U);
    EXPECT_TRUE(desktop_.questions.empty());
    ASSERT_TRUE(project.BuidFromFile(path_, 0));
    EXPECT_EQ(project.layers.at(0).members.at(0).forces.records.size(), 0U);

    fs::rename(fs::path(path_).replace_extension(".txt"), path_.parent_path() / "other.lst");
    desktop_.chosen_file = (path_.parent_path() / "other.lst").string();
    ASSERT_TRUE(project.BuidFromFile(path_, 1));
    EXPECT_EQ(project.layers.at(0).members.at(0).forces.records.size(), 1U);
    EXPECT_EQ(desktop_.questions.size(), 1U);
}

TEST_F(PathForms, AskBeforeTheyTakeOver)
{
    desktop_.readable = false; // is asked of names that are const char* only
    SdReader model = decks::read(deck);
    model.groups.clear();
    model.compWithOldProj(path_);
    EXPECT_TRUE(model.groups.empty()) << "answered no";
    desktop_.answer = PlatformServices::Answer::Yes;
    model.compWithOldProj(path_.parent_path() / "missing");
    EXPECT_EQ(desktop_.messages.size(), 1U) << "no question about a file that is not there";
    model.compWithOldProj(path_);
    ASSERT_EQ(model.groups.size(), 1U);
    EXPECT_EQ(model.groups[0].name, "_OLD");
}

#ifndef _WIN32
/// What `read(path)` gives of a pipe that `text` comes from.
template<class Read>
bool read_from_pipe(const std::string& text, Read read)
{
    const project_folder folder("");
    const fs::path pipe = folder.path("pipe");
    EXPECT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    std::thread writer([&] { std::ofstream(pipe) << text; });
    const bool result = read(pipe);
    writer.join();
    return result;
}

TEST_F(PathForms, ReadPipes)
{
    SdReader model;
    EXPECT_TRUE(read_from_pipe(deck, [&](const fs::path& pipe) { return model.ReadSDDataFromStdFile(pipe); }));
    EXPECT_TRUE(read_from_pipe(listing, [&](const fs::path& pipe) { return model.ReadForceMomentFromTxtFile(pipe); }));
}
#endif

} // namespace
} // namespace STAAD
