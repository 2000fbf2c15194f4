/// Listings as files: which are refused, which bytes do no harm, and what a second import replaces.

#include "staad/report/read_report.h"
#include "tests/support/deck.h"
#include "tests/support/force_listing.h"
#include "tests/support/model_equal.h"
#include "tests/support/shown.h"
#include "tests/support/temporary_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#ifndef _WIN32
#    include <sys/stat.h> // mkfifo
#    include <unistd.h>   // access
#endif

namespace STAAD {
namespace {

namespace fs = std::filesystem;
using texts = std::vector<std::string>;

const std::string byte_order_mark = "\xEF\xBB\xBF";
const std::string listing =
    listings::section({"101 1:A @0", "@5", "2:B @0", "102 1:A @1", "2:B @0"}, "(m) (kN) (kN-m)");
const char* const kept = "1: 1(0 5000) 2(0); 2: 1(1000)";

/// A frame with forces of an earlier import.
SdReader frame_with_forces()
{
    SdReader model = listings::frame();
    model.ReadForceMomentFromText(listings::section({"105 9:Z @0", "99:END @0"}));
    EXPECT_EQ(listings::stations(model), "5: 9(0)");
    return model;
}

std::string read_file(const std::string& content)
{
    const temporary_file file(content);
    SdReader model = listings::frame();
    model.ReadForceMomentFromTxtFile(file.path());
    return listings::stations(model);
}

TEST(ForceFile, IsReadLikeItsText)
{
    const temporary_file file(listing);
    SdReader from_file = listings::frame();
    from_file.ReadForceMomentFromTxtFile(file.path());
    EXPECT_EQ(listings::stations(from_file), kept);
    EXPECT_EQ(model_differences(from_file, listings::read(listing)), texts());
    EXPECT_EQ(from_file.beam_forces.at(1).records.at(1).pkpm_points.size(), 9U);
    EXPECT_EQ(file.content(), listing) << "opened for writing, and left as it was";
}

TEST(ForceFile, ReplacesWhatWasThere)
{
    const temporary_file file(listing);
    SdReader model = frame_with_forces();
    model.ReadForceMomentFromTxtFile(file.path());
    EXPECT_EQ(listings::stations(model), kept) << "nothing of member 105";
    model.ReadForceMomentFromTxtFile(file.path());
    EXPECT_EQ(listings::stations(model), kept) << "nothing is merged with the import before";
}

TEST(ForceFile, LeavesTheRestOfTheModel)
{
    SdReader model = frame_with_forces();
    SdReader before = model;
    model.ReadForceMomentFromText(listing);
    before.beam_forces = model.beam_forces;
    before.unit_text = "UNIT m kN kN-m";
    before.length_factor = 1000;
    before.force_factor = 1;
    before.force_length_factor = 1000;
    EXPECT_EQ(model_differences(model, before), texts());
}

std::string many_words()
{
    std::string words;
    for (int i = 0; i < 1 << 17; ++i)
        words += "w ";
    return words;
}

const struct {
    const char* why;
    std::string content;
    const char* want;
} content_cases[] = {
    {"CR LF", decks::with_cr(listing), kept},
    {"the last line without an end", listing.substr(0, listing.size() - 2), kept},
    {"the same after CR LF", decks::with_cr(listing).substr(0, decks::with_cr(listing).size() - 3), kept},
    {"a byte order mark", byte_order_mark + listing, kept},
    {"a byte order mark and a title in UTF-8",
     byte_order_mark + listings::section({"101 1:A @0", "2:B @0"}, listings::model_units, listings::member_forces.utf8),
     "1: 1(0)"},
    {"a mark of the end of file after it", listing + "\x1A", kept},
    {"an empty file", "", ""},
    {"zeros", std::string(5000, '\0'), ""},
    {"zeros before the first line", std::string(3, '\0') + "\n" + listing, kept},
    {"zeros in a load case title", listings::section({"101 1:A" + std::string(2, '\0') + "B @0", "2:B @0"}), "1: 1(0)"},
    {"one endless line", std::string(1 << 20, ' '), ""},
    {"endless words among the data",
     listings::section({"101 1:A @0", std::string(1 << 18, 'x'), "2:" + std::string(1 << 18, 'y') + " @0", "3:C @0"}),
     "1: 1(0) 2(0)"},
    {"endlessly many words", listings::section({"101 1:A @0", "2:" + many_words() + "@0", "3:C @0"}), "1: 1(0) 2(0)"},
};

TEST(ForceFile, TakesAnyBytes)
{
    for (const auto& c : content_cases)
        EXPECT_EQ(read_file(c.content), c.want) << c.why;
}

TEST(ForceFile, TakesAListingCutOffAnywhere)
{
    const std::string whole = listing + listings::section({"103 1:A @0", "2:B 1.5E +03 1 2 3 4 5 6", "3:C @0"});
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        SdReader model = listings::frame();
        EXPECT_NO_THROW(model.ReadForceMomentFromText(std::string_view(whole).substr(0, length))) << length;
    }
}

TEST(ForceFile, IsEmptyWhereItCannotBeOpened)
{
    const temporary_file file("");
    const std::string folder = fs::path(file.path()).parent_path().string();
    for (const std::string& path : {folder + "/missing.txt", folder + "/missing/forces.txt", folder, std::string()}) {
        SdReader model = frame_with_forces();
        const std::string unit_text = model.unit_text;
        model.ReadForceMomentFromTxtFile(path.c_str());
        EXPECT_TRUE(model.beam_forces.empty()) << path;
        EXPECT_EQ(model.unit_text, unit_text) << path;
    }
    EXPECT_FALSE(fs::exists(folder + "/missing.txt")) << "and is not made";
}

#ifndef _WIN32
TEST(ForceFile, RefusesAWriteProtectedFile)
{
    const temporary_file file(listing);
    fs::permissions(file.path(), fs::perms::owner_read);
    if (access(file.path(), W_OK) == 0)
        GTEST_SKIP() << "this user may write to everything";
    SdReader model = frame_with_forces();
    ReadReport report;
    model.ReadForceMomentFromTxtFile(file.path(), report);
    EXPECT_TRUE(model.beam_forces.empty());
    EXPECT_EQ(shown_fields(report.findings, &Finding::code), "file-access");
}

TEST(ForceFile, RefusesAPipeThatWouldNeverEnd)
{
    const temporary_file file("");
    const std::string pipe = std::string(file.path()) + ".pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    SdReader model = frame_with_forces();
    model.ReadForceMomentFromTxtFile(pipe.c_str());
    fs::remove(pipe);
    EXPECT_TRUE(model.beam_forces.empty());
}
#endif

} // namespace
} // namespace STAAD
