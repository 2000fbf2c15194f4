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
using by_description = std::map<std::string, std::vector<unsigned>>;
using texts = std::vector<std::string>;

/// The project data already exist; compare and extract the earlier data?
const std::u16string question = u"\u5DE5\u7A0B\u6570\u636E\u5DF2\u5B58\u5728\uFF0C"
                                u"\u662F\u5426\u5BF9\u6BD4\u5E76\u63D0\u53D6\u539F\u6709\u7684\u6570\u636E\uFF1F";

/// The joints and members of the earlier project as a file, and its definitions.
const std::string earlier_deck = decks::joined({"UNIT METER KN",
                                                "JOINT COORDINATES",
                                                "10 0 0 0; 20 0 0 1; 30 0 0 2; 40 0 0 9", // file Z is model x
                                                "MEMBER INCIDENCES",
                                                "7 10 20; 8 20 30; 9 30 40",
                                                "START GROUP DEFINITION",
                                                "JOINT",
                                                "_J 30 40 10",
                                                "MEMBER",
                                                "_M 7 TO 9",
                                                "ELEMENT",
                                                "_E 20",
                                                "FLOOR",
                                                "_GONE 40",
                                                "END GROUP DEFINITION",
                                                "SUPPORTS",
                                                "10 20 FIXED",
                                                "40 PINNED",
                                                "MEMBER RELEASE",
                                                "8 9 START MZ",
                                                "FINISH"});

/// A model with definitions of its own, compared with some other project before.
SdReader model_with_definitions()
{
    SdReader model = take_over::now();
    model.groups = {{"JOINT", "_OWN", {57}}};
    model.supports["ROLLER"] = {57};
    model.releases["START MZ"] = {203};
    model.releases["END MY"] = {203};
    model.unit_text = "UNIT FEET KIP";
    model.length_factor = 304.8;
    model.old_proj_maps.joints_new_to_old[3] = 4;
    model.old_proj_maps.shells_old_to_new[5] = 6;
    return model;
}

TEST(TakeOverQuestion, IsAYesNoQuestionWithoutCaptionAndIcon)
{
    const temporary_file file(earlier_deck);
    scripted_services desktop;
    desktop.answer = Answer::No;
    SdReader model = take_over::now();
    model.compWithOldProj(file.path());
    ASSERT_EQ(desktop.messages.size(), 1U);
    const PlatformServices::Message& message = desktop.messages.front();
    EXPECT_TRUE(message.text == question);
    EXPECT_TRUE(message.caption.empty());
    EXPECT_EQ(message.buttons, PlatformServices::Buttons::YesNo);
    EXPECT_EQ(message.icon, PlatformServices::Icon::None);
    EXPECT_EQ(desktop.tested_paths, texts{file.path()}) << "the name is passed on as it is";
    EXPECT_TRUE(desktop.questions.empty());
}

TEST(TakeOverQuestion, IsAskedAnewByEachCall)
{
    const temporary_file file(earlier_deck);
    scripted_services desktop;
    desktop.answer = Answer::Yes;
    SdReader model = take_over::now();
    model.compWithOldProj(file.path());
    model.compWithOldProj(file.path());
    EXPECT_EQ(desktop.messages.size(), 2U);
    EXPECT_EQ(file.content(), earlier_deck) << "the earlier file is only read";
}

TEST(TakeOverQuestion, AnsweredYesTakesGroupsSupportsAndReleasesOver)
{
    const temporary_file file(earlier_deck);
    scripted_services desktop;
    desktop.answer = Answer::Yes;
    SdReader model = model_with_definitions();
    model.compWithOldProj(file.path());
    ASSERT_EQ(model.groups.size(), 3U);
    EXPECT_EQ(record_differences(model.groups[0], SdGroup{"JOINT", "_J", {53, 51}}), texts());
    EXPECT_EQ(record_differences(model.groups[1], SdGroup{"MEMBER", "_M", {201, 202}}), texts());
    EXPECT_EQ(record_differences(model.groups[2], SdGroup{"ELEMENT", "_E", {52}}), texts());
    EXPECT_EQ(model.supports, (by_description{{"FIXED", {51, 52}}, {"PINNED", {}}}));
    EXPECT_EQ(model.releases, (by_description{{"END MY", {203}}, {"START MZ", {202}}}));
}

TEST(TakeOverQuestion, AnsweredYesDoesWhatTheCallWithoutQuestionDoes)
{
    const temporary_file file(earlier_deck);
    scripted_services desktop;
    desktop.answer = Answer::Yes;
    SdReader asked = model_with_definitions();
    asked.compWithOldProj(file.path());
    SdReader unasked = model_with_definitions();
    unasked.TakeOverFrom(decks::read(earlier_deck));
    EXPECT_EQ(model_differences(asked, unasked), texts());
    EXPECT_EQ(desktop.messages.size(), 1U) << "the other call asks nothing";
    EXPECT_EQ(desktop.tested_paths.size(), 1U);
}

TEST(TakeOverQuestion, ComparesLengthsWhateverTheUnitsOfTheFiles)
{
    const temporary_file file(
        decks::joined({"UNIT CM KN", "JOINT COORDINATES", "10 0 0 0; 20 0 0 100", "MEMBER INCIDENCES", "7 10 20",
                       "SUPPORTS", "10 FIXED", "20 PINNED", "FINISH"}));
    scripted_services desktop;
    desktop.answer = Answer::Yes;
    SdReader model = model_with_definitions();
    model.compWithOldProj(file.path());
    EXPECT_EQ(model.supports, (by_description{{"FIXED", {51}}, {"PINNED", {52}}}));
    EXPECT_EQ(model.length_factor, 304.8) << "this model keeps its units";
    EXPECT_EQ(model.unit_text, "UNIT FEET KIP");
}

/// Compares with `path` and expects that nothing comes of it.
void expect_untouched(const char* path)
{
    const SdReader before = model_with_definitions();
    SdReader model = before;
    model.compWithOldProj(path);
    EXPECT_EQ(model_differences(model, before), texts());
}

TEST(TakeOverQuestion, NotAnsweredYesLeavesTheModelAsItIs)
{
    const temporary_file file(earlier_deck);
    for (const Answer answer : {Answer::No, Answer::Ok}) {
        scripted_services desktop;
        desktop.answer = answer;
        expect_untouched(file.path());
        EXPECT_EQ(desktop.messages.size(), 1U);
    }
}

TEST(TakeOverQuestion, IsNotAskedIfTheFileCannotBeRead)
{
    const temporary_file file(earlier_deck);
    scripted_services desktop;
    desktop.answer = Answer::Yes;
    desktop.readable = false;
    expect_untouched(file.path());
    EXPECT_TRUE(desktop.messages.empty()) << "the services tell what can be read";
    EXPECT_EQ(desktop.tested_paths, texts{file.path()});
}

TEST(TakeOverQuestion, IsNotAskedWithoutAName)
{
    scripted_services desktop;
    desktop.answer = Answer::Yes;
    expect_untouched(nullptr);
    EXPECT_TRUE(desktop.messages.empty());
}

/// Scripted answers, and the usual test of files.
class real_files : public scripted_services {
public:
    explicit real_files(PlatformServices& usual) : usual_(usual) { answer = Answer::Yes; }
    bool CanRead(const char* path) override { return usual_.CanRead(path); }

private:
    PlatformServices& usual_;
};

TEST(TakeOverQuestion, IsNotAskedAboutAMissingFile)
{
    const temporary_file file(earlier_deck);
    real_files desktop(GetPlatformServices());
    expect_untouched((std::string(file.path()) + ".missing").c_str());
    expect_untouched("");
    EXPECT_TRUE(desktop.messages.empty());
    SdReader model = take_over::now();
    model.compWithOldProj(file.path());
    EXPECT_EQ(desktop.messages.size(), 1U) << "the file itself is there";
}

TEST(TakeOverQuestion, AnsweredYesAboutAFileWithoutAModelChangesNothing)
{
    const texts contents = {"", "not a model\n",
                            "UNIT METER KN\nJOINT COORDINATES\n10 0 0 0; 20 0 0 1\nSUPPORTS\n10 FIXED\nFINISH\n",
                            "JOINT COORDINATES\n10 0 0 0; 20 0 0 1\nMEMBER INCIDENCES\n7 10 20\nFINISH\n"};
    for (const std::string& content : contents) {
        const temporary_file file(content);
        scripted_services desktop;
        desktop.answer = Answer::Yes;
        expect_untouched(file.path());
        EXPECT_EQ(desktop.messages.size(), 1U) << content << ": asked before it is opened";
    }
}

TEST(TakeOverQuestion, AnsweredYesAboutAFileThatIsGoneChangesNothing)
{
    const temporary_file file(earlier_deck);
    const std::string folder = std::filesystem::path(file.path()).parent_path().string();
    const std::string missing = folder + "/gone.std";
    for (const std::string& path : {missing, folder}) {
        scripted_services desktop;
        desktop.answer = Answer::Yes;
        expect_untouched(path.c_str());
        EXPECT_EQ(desktop.messages.size(), 1U);
    }
}

} // namespace
} // namespace STAAD
