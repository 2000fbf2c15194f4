/// The question before definitions are taken over from an earlier project file, and what each answer does.

#include "tests/support/deck.h"
#include "tests/support/model_equal.h"
#include "tests/support/scripted_services.h"
#include "tests/support/take_over_models.h"
#include "tests/support/temporary_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace STAAD {
namespace {

using Answer = PlatformServices::Answer;
using texts = std::vector<std::string>;

/// The project data already exist; compare and extract the earlier data?
const std::u16string question = u"\u5DE5\u7A0B\u6570\u636E\u5DF2\u5B58\u5728\uFF0C"
                                u"\u662F\u5426\u5BF9\u6BD4\u5E76\u63D0\u53D6\u539F\u6709\u7684\u6570\u636E\uFF1F";

/// The joints and members of the earlier project as a file, in another unit, and its definitions.
const std::string earlier_deck = "UNIT CM KN\nJOINT COORDINATES\n"
                                 "10 0 0 0; 20 0 0 100; 30 0 0 200; 40 0 0 900\n" // file Z is model x
                                 "MEMBER INCIDENCES\n7 10 20; 8 20 30; 9 30 40\n"
                                 "START GROUP DEFINITION\nJOINT\n_J 30 40 10\nMEMBER\n_M 7 TO 9\nELEMENT\n_E 20\n"
                                 "FLOOR\n_GONE 40\nEND GROUP DEFINITION\n"
                                 "SUPPORTS\n10 20 FIXED\n40 PINNED\nMEMBER RELEASE\n8 9 START MZ\nFINISH\n";

/// A model with definitions of its own, compared with some other project before.
SdReader model_with_definitions()
{
    SdReader model = take_over_models::now();
    model.groups = {{"JOINT", "_OWN", {57}}};
    model.supports["ROLLER"] = {57};
    model.releases = {{"START MZ", {203}}, {"END MY", {203}}};
    model.unit_text = "UNIT FEET KIP";
    model.length_factor = 304.8;
    model.old_proj_maps.joints_new_to_old[3] = 4;
    return model;
}

class TakeOverQuestion : public testing::Test {
protected:
    /// Whether the comparison with `path` changed anything.
    static bool changes(scripted_services& desktop, Answer answer, const char* path)
    {
        desktop.answer = answer;
        SdReader model = model_with_definitions();
        model.compWithOldProj(path);
        EXPECT_TRUE(desktop.questions.empty());
        return !model_differences(model, model_with_definitions()).empty();
    }

    const temporary_file file_{earlier_deck};
    scripted_services desktop_;
};

TEST_F(TakeOverQuestion, IsAYesNoQuestionWithoutCaptionAndIcon)
{
    EXPECT_FALSE(changes(desktop_, Answer::No, file_.path()));
    ASSERT_EQ(desktop_.messages.size(), 1U);
    const PlatformServices::Message& message = desktop_.messages.front();
    EXPECT_TRUE(message.text == question);
    EXPECT_TRUE(message.caption.empty());
    EXPECT_EQ(message.buttons, PlatformServices::Buttons::YesNo);
    EXPECT_EQ(message.icon, PlatformServices::Icon::None);
    EXPECT_EQ(desktop_.tested_paths, texts{file_.path()}) << "the name is passed on as it is";
}

TEST_F(TakeOverQuestion, AnsweredYesDoesWhatTheCallWithoutQuestionDoes)
{
    desktop_.answer = Answer::Yes;
    SdReader asked = model_with_definitions();
    asked.compWithOldProj(file_.path());
    SdReader unasked = model_with_definitions();
    unasked.TakeOverFrom(decks::read(earlier_deck));
    EXPECT_EQ(model_differences(asked, unasked), texts());
    EXPECT_EQ(desktop_.messages.size(), 1U) << "the other call asks nothing";
    using by_description = std::map<std::string, std::vector<unsigned>>;
    EXPECT_EQ(asked.supports, (by_description{{"FIXED", {51, 52}}, {"PINNED", {}}}));
    asked.compWithOldProj(file_.path());
    EXPECT_EQ(desktop_.messages.size(), 2U) << "each call asks";
    EXPECT_EQ(file_.content(), earlier_deck) << "the earlier file is only read";
}

TEST_F(TakeOverQuestion, AnsweredWithAnythingButYesChangesNothing)
{
    EXPECT_FALSE(changes(desktop_, Answer::Ok, file_.path()));
    EXPECT_EQ(desktop_.messages.size(), 1U);
}

TEST_F(TakeOverQuestion, IsNotAskedIfTheFileCannotBeReadOrHasNoName)
{
    EXPECT_FALSE(changes(desktop_, Answer::Yes, nullptr));
    EXPECT_TRUE(desktop_.tested_paths.empty());
    desktop_.readable = false;
    EXPECT_FALSE(changes(desktop_, Answer::Yes, file_.path()));
    EXPECT_EQ(desktop_.tested_paths, texts{file_.path()}) << "the services say what can be read";
    EXPECT_TRUE(desktop_.messages.empty());
}

/// Scripted answers, and the usual test of files.
class real_files : public scripted_services {
public:
    explicit real_files(PlatformServices& usual) : usual_(usual) {}
    bool CanRead(const char* path) override { return usual_.CanRead(path); }

private:
    PlatformServices& usual_;
};

TEST_F(TakeOverQuestion, IsNotAskedAboutAMissingFile)
{
    SetPlatformServices(nullptr); // the usual ones
    real_files desktop(GetPlatformServices());
    EXPECT_FALSE(changes(desktop, Answer::Yes, (std::string(file_.path()) + ".missing").c_str()));
    EXPECT_FALSE(changes(desktop, Answer::Yes, ""));
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_TRUE(changes(desktop, Answer::Yes, file_.path()));
}

TEST_F(TakeOverQuestion, AnsweredYesAboutWhatGivesNoModelChangesNothing)
{
    const temporary_file empty("");
    const temporary_file no_members("UNIT METER KN\nJOINT COORDINATES\n10 0 0 0; 20 0 0 1\nSUPPORTS\n10 FIXED\n");
    const temporary_file no_unit("JOINT COORDINATES\n10 0 0 0; 20 0 0 1\nMEMBER INCIDENCES\n7 10 20\nFINISH\n");
    const std::string folder = std::filesystem::path(empty.path()).parent_path().string();
    const std::string gone = folder + "/gone.std"; // since the test of files
    for (const char* path : {empty.path(), no_members.path(), no_unit.path(), gone.c_str(), folder.c_str()}) {
        scripted_services desktop;
        EXPECT_FALSE(changes(desktop, Answer::Yes, path)) << path;
        EXPECT_EQ(desktop.messages.size(), 1U) << path << ": asked before it is opened";
    }
}

} // namespace
} // namespace STAAD
