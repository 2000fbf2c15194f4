/// The catalogue: every row is found by the words that it names.

#include "staad/deck/catalogue.h"
#include "staad/deck/command_match.h"
#include "staad/text/words.h"

#include <gtest/gtest.h>

#include <string>

namespace STAAD {
namespace {

/// The row of the catalogue that a line begins; null: none.
const CommandInfo* row_of_line(const std::string& line)
{
    const Deck deck(line);
    return detail::find_command(detail::row_words(deck, 0));
}

/// A line with words in the place of the signs that stand for some.
std::string line_of_form(const CommandInfo& info, std::string form)
{
    for (std::size_t at = 0; (at = form.find_first_of("*#@", at)) != std::string::npos; ++at)
        form.replace(at, 1, form[at] == '#' ? "2002" : form[at] == '@' ? "XYZZY" : "1893");
    const bool asks_for_more = std::string(info.short_form).find('@') != std::string::npos;
    return asks_for_more && form.find("XYZZY") == std::string::npos ? form + " XYZZY" : form;
}

TEST(Catalogue, FindsEveryRowByItsWordsAndItsShortForm)
{
    for (const CommandInfo& each : command_catalogue()) {
        if (each.command == Command::none || each.command == Command::unknown)
            continue;
        EXPECT_EQ(row_of_line(line_of_form(each, each.words) + " 1"), &each) << each.words;
        EXPECT_EQ(row_of_line(detail::to_lower_ascii(line_of_form(each, each.short_form))), &each) << each.short_form;
    }
}

TEST(Catalogue, TellsCommandsApartThatBeginAlike)
{
    const struct {
        const char* line;
        Command command;
        const char* why;
    } cases[] = {
        {"SUPPORT DISPLACEMENT", Command::other_load, "no support"},
        {"SUPPORTS", Command::supports, "no more words"},
        {"LOAD COMBINATION 3", Command::load_combination, "no case"},
        {"DEFINE IBC 2015", Command::define_seismic, "a code without LOAD"},
        {"DEFINE WIND LOAD", Command::define_wind, "a load that is no code"},
        {"DEFINE MOVING LOAD", Command::define_moving, "the same"},
        {"DEFINE TIME HISTORY", Command::define_other, "any other"},
        {"CHECK CODE ALL", Command::code_check, "a check of members"},
        {"CHECK IRREGULARITIES", Command::irregularity, "one of the building"},
        {"END", Command::design, "ends what the catalogue does not know"},
        {"END DEFINE REFERENCE LOADS", Command::end_define_reference, "ends what it knows"},
        {"FIXED GROUP", Command::design, "no loads at fixed ends"},
    };
    for (const auto& each : cases) {
        const CommandInfo* found = row_of_line(each.line);
        ASSERT_NE(found, nullptr) << each.line;
        EXPECT_EQ(found->command, each.command) << each.line << ": " << each.why;
    }
    for (const char* line : {"MEMBER 1 TO 3", "JOINT 5", "EL 1", "12 13", "-1893 LOAD", "_GROUP LOAD", " "})
        EXPECT_EQ(row_of_line(line), nullptr) << line;
}

TEST(Catalogue, HasARowForEachCommand)
{
    for (std::size_t i = 0; i < number_of_commands; ++i) {
        const auto command = static_cast<Command>(i);
        EXPECT_EQ(command_info(command).command, command);
        EXPECT_STRNE(command_info(command).line, "");
    }
    EXPECT_EQ(command_info(static_cast<Command>(250)).command, Command::unknown);
}

} // namespace
} // namespace STAAD
