/// The message box of an import without a model, and the services that show it.

#include "staad/host/platform_services.h"
#include "staad/report/read_report.h"
#include "tests/support/force_listing.h"
#include "tests/support/model_equal.h"
#include "tests/support/scripted_services.h"
#include "tests/support/temporary_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace STAAD {
namespace {

const std::string listing = listings::section({"101 1:A @0", "2:B @0"});

/// Error--Velkor, and the word for software.
const std::u16string caption = u"Error--Velkor\u8F6F\u4EF6";
/// No model has been read! Read the model first, then the internal forces.
const std::u16string text = u"\u6CA1\u6709\u8BFB\u53D6\u5DE5\u7A0B\u4FE1\u606F! "
                            u"\u8BFB\u53D6\u5DE5\u7A0B\u4FE1\u606F\u540E\u518D\u6765"
                            u"\u8BFB\u53D6\u5185\u529B\u4FE1\u606F.";

void expect_no_model(const scripted_services& desktop)
{
    ASSERT_EQ(desktop.messages.size(), 1U);
    const PlatformServices::Message& message = desktop.messages.front();
    EXPECT_TRUE(message.caption == caption);
    EXPECT_TRUE(message.text == text);
    EXPECT_EQ(message.buttons, PlatformServices::Buttons::Ok);
    EXPECT_EQ(message.icon, PlatformServices::Icon::Exclamation);
    EXPECT_TRUE(desktop.questions.empty());
}

TEST(ForceMessages, ComeOncePerCallBeforeAnythingIsOpened)
{
    const temporary_file file(listing);
    const std::string missing = std::string(file.path()) + ".missing";
    SdReader model;
    for (const char* const path : {file.path(), missing.c_str(), static_cast<const char*>(nullptr)}) {
        scripted_services desktop;
        model.ReadForceMomentFromTxtFile(path);
        expect_no_model(desktop);
    }
    ReadReport report;
    for (const std::string& text_of_it : {listing, listing + listing, std::string()}) {
        scripted_services desktop;
        model.ReadForceMomentFromText(text_of_it, report);
        expect_no_model(desktop);
    }
}

/// A model with something in every field that the import could touch, and no members.
SdReader without_members()
{
    SdReader model = listings::frame();
    model.ReadForceMomentFromText(listing);
    model.beams.clear(); // the index still knows them
    model.unit_text = "UNIT FEET KIP";
    model.length_factor = 7;
    model.force_factor = 8;
    model.force_length_factor = 9;
    return model;
}

TEST(ForceMessages, LeaveTheModelAsItWas)
{
    scripted_services desktop;
    const SdReader before = without_members();
    ASSERT_FALSE(before.beam_forces.empty());
    SdReader model = before;
    model.ReadForceMomentFromText(listings::section({"102 1:A @0", "2:B @0"}, "(m) (MN) (kN-m)"));
    model.ReadForceMomentFromTxtFile(nullptr);
    EXPECT_EQ(model_differences(model, before), std::vector<std::string>());
    EXPECT_EQ(desktop.messages.size(), 2U);
}

TEST(ForceMessages, AreNotShownOfOtherTrouble)
{
    scripted_services desktop;
    SdReader model = listings::frame();
    model.ReadForceMomentFromText(listing);
    model.ReadForceMomentFromText("");
    model.ReadForceMomentFromText(std::string(listings::element_forces.gbk) + "\n");
    model.ReadForceMomentFromText(listings::section({"999 1:A @0", "x", "2:B @0"}, "(rod)"));
    model.ReadForceMomentFromTxtFile("no such folder/no such file.txt");
    model.ReadForceMomentFromTxtFile(nullptr);
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_TRUE(desktop.questions.empty());
}

TEST(PlatformServicesInUse, AreTheOnesPutThereLast)
{
    PlatformServices* const usual = &GetPlatformServices();
    scripted_services first;
    {
        scripted_services second;
        EXPECT_EQ(&GetPlatformServices(), &second);
        SdReader().ReadForceMomentFromText(listing);
        EXPECT_EQ(first.messages.size() + 10 * second.messages.size(), 10U);
    }
    EXPECT_EQ(&GetPlatformServices(), usual) << "null brings back the default ones, not the ones before";
}

#ifndef _WIN32
TEST(DefaultPlatformServices, AnswerAtOnceSayNoAndTestFilesForReal)
{
    SetPlatformServices(nullptr);
    PlatformServices& services = GetPlatformServices();
    EXPECT_EQ(services.ShowMessage({caption, text, PlatformServices::Buttons::Ok, PlatformServices::Icon::Exclamation}),
              PlatformServices::Answer::Ok);
    EXPECT_EQ(services.ShowMessage({{}, u"?", PlatformServices::Buttons::YesNo, PlatformServices::Icon::None}),
              PlatformServices::Answer::No);
    EXPECT_EQ(services.AskForFile({u"text (*.txt)|*.txt||", 0}), "");
    const temporary_file file("");
    EXPECT_TRUE(services.CanRead(file.path()));
    for (const char* const path : {"no such file", "", static_cast<const char*>(nullptr)})
        EXPECT_FALSE(services.CanRead(path));
}
#endif

} // namespace
} // namespace STAAD
