/// Texts cut into lines, rows and statements: nothing is lost, and each line belongs to the command it was written for.

#include "staad/deck/deck.h"
#include "staad/deck/row_words.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD {
namespace {

using C = Command;

void expect_all_bytes(const std::string& text)
{
    const Deck deck(text);
    std::string lines;
    for (std::size_t line = 1; line <= deck.line_count(); ++line)
        lines += deck.line(line);
    EXPECT_EQ(lines, text);
    std::string rows;
    for (std::size_t row = 0; row < deck.row_count(); ++row) {
        EXPECT_FALSE(deck.row_text(row).empty());
        rows += deck.row_text(row);
    }
    EXPECT_EQ(rows, text);
    std::string statements;
    for (std::size_t i = 0; i < deck.statement_count(); ++i) {
        EXPECT_FALSE(deck.statement_text(i).empty());
        const FileLines written = deck.lines(deck.statement(i));
        EXPECT_LE(written.last, deck.line_count());
        EXPECT_LE(written.first, written.last);
        statements += deck.statement_text(i);
    }
    EXPECT_EQ(statements, text);
}

TEST(Deck, KeepsEveryByteOfTexts)
{
    using namespace std::string_literals;
    for (const std::string& text :
         {""s, "\n"s, "\r"s, "\r\n"s, "\n\r"s, "-"s, "1 -"s, ";"s, "*"s, "<!"s, "FINISH"s, "\0"s, "\xEF\xBB\xBF"s,
          "\xEF\xBB\xBF-\n"s, "UNIT METER KN\r\r\n1 2\x1A"s, "FINISH\n1 -\n\n"s})
        expect_all_bytes(text);
}

TEST(Deck, KeepsEveryByteOfRandomTexts)
{
    const std::vector<std::string> pieces{"\n",
                                          "\r\n",
                                          "\r",
                                          " ",
                                          "\t",
                                          " -\n",
                                          "-",
                                          "*",
                                          "<!",
                                          "!>",
                                          ";",
                                          ",",
                                          "'",
                                          "\"",
                                          "\xEF\xBB\xBF",
                                          "\x1A",
                                          "_G",
                                          "XR",
                                          "1",
                                          "2.5 ",
                                          " TO ",
                                          "ALL ",
                                          "UNIT METER KN",
                                          "JOINT COORDINATES",
                                          "DEFINE MATERIAL START",
                                          "START USER TABLE",
                                          "START JOB",
                                          "LOAD 1",
                                          "JOINT LOAD",
                                          "END",
                                          "END JOB",
                                          "PARAMETER",
                                          "DEFINE 1893 LOAD",
                                          "FROB",
                                          "FINISH",
                                          "\xD6\xF9"};
    for (unsigned seed = 0; seed < 400; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::string text;
        for (auto count = random() % 80; count > 0; --count) {
            if (seed % 4 == 0)
                text += static_cast<char>(random() % 256);
            else
                text += pieces[random() % pieces.size()] + (random() % 3 == 0 ? "\n" : "");
        }
        expect_all_bytes(text);
    }
}

/// A physical line and the command whose statement it lies in.
struct owned_line {
    const char* text;
    Command command;
};

struct owned_case {
    const char* form;
    const char* why;
    std::vector<owned_line> lines;
};

void expect_owners(const owned_case& each)
{
    SCOPED_TRACE(each.why);
    std::string text;
    for (const owned_line& line : each.lines)
        text += std::string(line.text) + "\n";
    const Deck deck(text);
    std::size_t line = 0;
    for (std::size_t i = 0; i < deck.statement_count(); ++i) {
        const DeckStatement statement = deck.statement(i);
        const std::size_t last = deck.row(statement.past_row - 1).lines.last;
        for (; line < last && line < each.lines.size(); ++line)
            EXPECT_STREQ(command_info(statement.command).line, command_info(each.lines[line].command).line)
                << "line " << line + 1 << ": " << each.lines[line].text;
    }
    EXPECT_EQ(line, each.lines.size());
}

TEST(Deck, GivesLinesToTheirCommands)
{
    const owned_case cases[] = {
        {"comment",
         "before the first command, after heads, among data; never a command",
         {{"* FINISH", C::none},
          {"STAAD SPACE", C::title},
          {"* JOINT COORDINATES", C::title},
          {"MEMBER OFFSET", C::member_offset},
          {"*234567", C::member_offset},
          {"1 START 0 1 0", C::member_offset},
          {"", C::member_offset},
          {"*MEMB TRUSS", C::member_offset}}},
        {"generated-block",
         "belongs to the command before it, whatever its words",
         {{"DEFINE WIND LOAD", C::define_wind},
          {"TYPE 1", C::define_wind},
          {"<! STAAD PRO GENERATED DATA", C::define_wind},
          {"LOAD 7 -", C::define_wind},
          {"FINISH !> END GENERATED", C::define_wind},
          {"INT 0.5 HEIG 4", C::define_wind},
          {"MEMBER TRUSS", C::member_truss}}},
        {"generated-block",
         "one that nothing ends is one line",
         {{"DEFINE WIND LOAD", C::define_wind}, {"<! GENERATED", C::define_wind}, {"LOAD 7", C::load_case}}},
        {"lower-case",
         "letters do not matter",
         {{"joint Coordinates", C::joint_coordinates}, {"1 0 0 0", C::joint_coordinates}}},
        {"abbreviated",
         "four letters, plurals, a letter too many; three are none",
         {{"MEMB INCI", C::member_incidences},
          {"MEMBER PROPERTIES", C::member_property},
          {"SUPPORT", C::supports},
          {"JOINT COORDINATESN", C::joint_coordinates},
          {"JOI COOR", C::unknown}}},
        {"no-finish", "the last line counts", {{"MEMBER TRUSS", C::member_truss}, {"1", C::member_truss}}},
        {"no-finish",
         "what follows FINISH is nothing",
         {{"FINISH", C::finish}, {"LOAD 1", C::finish}, {"* end", C::finish}}},
        {"placeholder",
         "neither command nor data",
         {{"JOINT LOAD", C::joint_load},
          {"1 FY -1", C::joint_load},
          {"{combinations_to_add}", C::unknown},
          {"LOAD 2", C::load_case}}},
        {"unknown-command",
         "takes its lines with it, up to the next command",
         {{"MEMBER INCIDENCES", C::member_incidences},
          {"1 1 2", C::member_incidences},
          {"FROBNICATE 12 34", C::unknown},
          {"5 6 7 8", C::unknown},
          {"MEMBER TRUSS", C::member_truss}}},
        {"block-between",
         "a command ends the block wherever it stands; signs and points begin numbers, too",
         {{"JOINT COORDINATES", C::joint_coordinates},
          {"1 0 0 0;", C::joint_coordinates},
          {"SUPPORTS", C::supports},
          {"_BASE FIXED", C::supports},
          {"XRANGE 0 1 FIXED", C::supports},
          {"MEMB XRANGE 0 1 FIXED", C::supports},
          {"ALL FIXED", C::supports},
          {"JOINT COORDINATES", C::joint_coordinates},
          {"-1 0 0 0", C::joint_coordinates},
          {".5 0 0 0", C::joint_coordinates},
          {"ALL 0 0 0", C::unknown}}},
        {"unit-any-order",
         "a block goes on after UNIT lines, but not after another command",
         {{"JOINT COORDINATES", C::joint_coordinates},
          {"1 0 0 0", C::joint_coordinates},
          {"UNIT FEET KIP", C::unit},
          {"* still feet", C::unit},
          {"UNIT INCH", C::unit},
          {"2 0 0 0", C::joint_coordinates},
          {"REPEAT 1 0 0 1", C::joint_coordinates},
          {"UNIT METER KN", C::unit},
          {"PRINT ALL", C::print},
          {"3 0 0 0", C::unknown}}},
        {"unit-in-a-case",
         "user tables have units of their own, job lines have none; among materials UNIT counts",
         {{"DEFINE MATERIAL START", C::define_material},
          {"UNIT INCH KIP", C::unit},
          {"E 1", C::define_material},
          {"END DEFINE MATERIAL", C::define_material},
          {"START USER TABLE", C::user_table},
          {"UNIT INCH KIP", C::user_table},
          {"END", C::user_table},
          {"START JOB INFORMATION", C::job_information},
          {"UNIT 5", C::job_information},
          {"LOAD TESTS", C::job_information},
          {"END JOB INFORMATION", C::job_information},
          {"LOAD 1", C::load_case}}},
        {"group-definition",
         "an END of any of its forms ends a block",
         {{"START GROUP DEFINITION", C::groups},
          {"MEMBER", C::groups},
          {"_MEMBER 1 2", C::groups},
          {"END", C::groups},
          {"DEFINE MATERIAL", C::define_material},
          {"E 1", C::define_material},
          {"END DEFINE", C::define_material},
          {"E 1 ALL", C::constant}}},
        {"group-definition",
         "without END the block ends at a command and takes neither the deck nor the next block's END",
         {{"DEFINE MATERIAL START", C::define_material},
          {"ISOTROPIC A", C::define_material},
          {"E 1", C::define_material},
          {"MEMBER TRUSS", C::member_truss},
          {"DEFINE MATERIAL START", C::define_material},
          {"MEMBER TRUSS", C::define_material},
          {"END DEFINE MATERIAL", C::define_material},
          {"DEFINE ENVELOPE", C::define_envelope},
          {"1 2 ENVELOPE 1", C::define_envelope},
          {"DEFINE REFERENCE LOADS", C::define_reference},
          {"LOAD R1", C::load_case},
          {"END DEFINE REFERENCE LOADS", C::end_define_reference}}},
        {"case-words",
         "titles that end like other commands; LIST, COMB, GENERATION, ENVELOPE are no cases",
         {{"LOAD 1 DEAD AND LIVE LOAD", C::load_case},
          {"LOAD COMB 2 LOAD LIST", C::load_combination},
          {"1 1.4 -", C::load_combination},
          {"2 -0.3", C::load_combination},
          {"LOAD LIST 1 2", C::load_list},
          {"LOAD LIST ENV 4 TO 7", C::load_list},
          {"LOAD GENERATION 75", C::load_generation},
          {"TYPE 3 0 0 0 XINC 1", C::load_generation},
          {"LOADING 3", C::load_case}}},
        {"code-load",
         "a number before LOAD is a code, no member",
         {{"MEMBER LOAD", C::member_load},
          {"1893 UNI GY -1", C::member_load},
          {"1893 LOAD X 1", C::code_load},
          {"SPECTRUM SRSS X 1 ACC", C::spectrum},
          {"1 6.082; 2 2.649;", C::spectrum},
          {"2 2.649;", C::spectrum},
          {"JOINT LOAD", C::joint_load}}},
        {"define-seismic",
         "weights look like loads, after a UNIT line as well; checks end the definition",
         {{"DEFINE 1893 LOAD", C::define_seismic},
          {"ZONE 0.16 RF 5", C::define_seismic},
          {"SELFWEIGHT 1", C::define_seismic},
          {"MEMBER WEIGHT", C::define_seismic},
          {"1 UNI -12.88", C::define_seismic},
          {"UNIT METER KG", C::unit},
          {"FLOOR WEIGHT", C::define_seismic},
          {"YRANGE 0 3 FLOAD -5", C::define_seismic},
          {"REFERENCE LOAD Y", C::define_seismic},
          {"R1 1.0", C::define_seismic},
          {"CHECK SOFT STORY", C::irregularity},
          {"FLOOR LOAD", C::floor_load},
          {"YRANGE 0 3 FLOAD -5", C::floor_load},
          {"SELFWEIGHT Y -1", C::self_weight}}},
        {"design",
         "parameters between other lines of a design, UNIT among them",
         {{"PARAMETER 1", C::parameter},
          {"CODE AISC", C::parameter},
          {"BETA 1 ALL", C::parameter},
          {"UNIT MMS KN", C::unit},
          {"LY 300 MEMB 1", C::parameter},
          {"CHECK CODE ALL", C::code_check},
          {"KY 1 ALL", C::parameter},
          {"PERFORM ANALYSIS", C::perform},
          {"KY 1 ALL", C::unknown}}},
        {"design",
         "UNIT within a block of design counts",
         {{"START CONCRETE DESIGN", C::concrete_design},
          {"MEMBER PROPERTY 1", C::concrete_design},
          {"UNIT MMS KN", C::unit},
          {"FC 30 ALL", C::concrete_design},
          {"END CONCRETE DESIGN", C::concrete_design},
          {"PERFORM ANALYSIS", C::perform}}},
        {"mesh",
         "its lines are its own",
         {{"DEFINE MESH", C::define_mesh},
          {"A JOINT 1", C::define_mesh},
          {"GENERATE ELEMENT QUAD", C::generate_element}}},
        {"substitute", "one line", {{"SUBST J WITH A", C::substitute}, {"FINISH", C::finish}}},
        {"input-width", "one line", {{"INPUT WIDTH 79", C::page}, {"SET NL 100", C::set}}},
    };
    for (const owned_case& each : cases)
        expect_owners(each);
}

TEST(Deck, StatesWithoutTrailingCommentsTheLinesOfAStatement)
{
    const Deck deck("SUPPORTS\n1 FIXED\n\n* of the members\nMEMBER TRUSS\n*\n1\n*\n");
    ASSERT_EQ(deck.statement_count(), 2U);
    EXPECT_EQ(deck.lines(deck.statement(0)).last, 2U);
    EXPECT_EQ(deck.lines(deck.statement(1)).first, 5U);
    EXPECT_EQ(deck.lines(deck.statement(1)).last, 7U);
    EXPECT_EQ(deck.statement_text(0), "SUPPORTS\n1 FIXED\n\n* of the members\n");
}

TEST(Deck, FromAFileThatIsNotThereIsEmpty)
{
    std::error_code error;
    EXPECT_EQ(Deck::from_file("no/such/deck.std", error).text(), "");
    EXPECT_TRUE(error);
}

} // namespace
} // namespace STAAD
