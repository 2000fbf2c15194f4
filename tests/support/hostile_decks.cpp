#include "tests/support/hostile_decks.h"

#include <algorithm>
#include <sstream>
#include <string_view>
#include <utility>

namespace STAAD::decks {
namespace {

/// Three joints, two members, an element and a surface. A line of no meaning ends them, so that anything may follow.
const std::string frame = "UNIT METER KN\n"
                          "JOINT COORDINATES\n"
                          "1 0 0 0; 2 0 3 0; 3 4 3 0\n"
                          "MEMBER INCIDENCES\n"
                          "1 1 2; 2 2 3\n"
                          "ELEMENT INCIDENCES SHELL\n"
                          "1 1 2 3\n"
                          "SURFACE INCIDENCE\n"
                          "1 2 3 SUR 1\n"
                          "PRINT ALL\n";
const std::string finish = "FINISH\n";

/// `part` up to about so many bytes. A "#" in it is a number that grows.
std::string repeated(std::string_view part, std::size_t size)
{
    const std::size_t mark = part.find('#');
    std::string text;
    text.reserve(size + part.size());
    for (int number = 1; text.size() < size; ++number) {
        text += part.substr(0, mark);
        if (mark != part.npos)
            text.append(std::to_string(number)).append(part.substr(mark + 1));
    }
    return text;
}

/// The frame, `head`, `part` again and again, `tail`.
struct repetition {
    std::string name;
    std::string head;
    std::string part;
    std::string tail = {};
    answer want = answer::model;
};

/// Two thousand million numbers on every kind of line that has a list.
std::vector<repetition> endless_ranges()
{
    const std::string all = "1 TO 2000000000";
    return {
        {"endless sections", "MEMBER PROPERTY\n", all + " TABLE ST A\n"},
        {"endless beta angles", "", "BETA 90 MEMB " + all + "\n"},
        {"endless materials", "", "MATERIAL C30 MEMB " + all + "\n"},
        {"endless offsets", "MEMBER OFFSET\n", all + " START 0 0.1 0\n"},
        {"endless thicknesses", "ELEMENT PROPERTY\n", all + " THICKNESS 0.2\n"},
        {"endless surfaces", "SURFACE PROPERTY\n", all + " THICKNESS 0.2\n"},
        {"endless member loads", "LOAD 1\nMEMBER LOAD\n", all + " UNI GY -1\n"},
        {"endless joint loads", "LOAD 1\nJOINT LOAD\n", all + " FY -1\n"},
        {"endless selfweights", "LOAD 1\n", "SELFWEIGHT Y -1 LIST " + all + "\n"},
        {"endless supports", "SUPPORTS\n", all + " FIXED\n", "", answer::too_large},
        {"endless releases", "MEMBER RELEASE\n", all + " START MZ\n", "", answer::too_large},
        {"endless ties", "MEMBER TRUSS\n", all + "\n", "", answer::too_large},
        {"endless groups", "START GROUP DEFINITION\nMEMBER\n", "_A " + all + "\n", "END GROUP DEFINITION\n",
         answer::too_large},
    };
}

/// "1 TO 9 TO 9 TO 9 ..." on one line, and lists as long as the text.
std::vector<repetition> long_lists()
{
    const std::string chain = "TO 9 ";
    return {
        {"a chain of ranges of supports", "SUPPORTS\n1 ", chain, "FIXED\n"},
        {"a chain of ranges of a group", "START GROUP DEFINITION\nMEMBER\n_A 1 ", chain, "\nEND GROUP DEFINITION\n"},
        {"a chain of ranges of ties", "MEMBER TRUSS\n1 ", chain, "\n"},
        {"a chain of ranges of a section", "MEMBER PROPERTY\n1 ", chain, "TABLE ST A\n"},
        {"a chain of ranges of a load", "LOAD 1\nMEMBER LOAD\n1 ", chain, "UNI GY -1\n"},
        {"a chain of ranges of a material", "MATERIAL C30 MEMB 1 ", chain, "\n"},
        {"a chain of endless ranges of a section", "MEMBER PROPERTY\n1 ", "TO 2000000000 ", "TABLE ST A\n"},
        {"words TO alone", "SUPPORTS\n", "TO ", "FIXED\n"},
        {"one number again and again", "SUPPORTS\n", "1 ", "FIXED\n"},
        {"numbers that no record has", "MEMBER PROPERTY\n", "# ", "TABLE ST A\n"},
        {"a line for every number", "SUPPORTS\n", "# FIXED\n"},
        {"a description for every number", "SUPPORTS\n1 FIXED BUT KFX", "#\n1 FIXED BUT KFX"},
    };
}

std::vector<repetition> long_lines()
{
    return {
        {"continuation lines", "SUPPORTS\n", "1 -\n", "FIXED\n"},
        {"continuation lines with blank lines", "SUPPORTS\n", "1 -\n \n", "FIXED\n"},
        {"lines of only a continuation mark", "", "-\n"},
        {"a line of letters", "", "A", "\n"},
        {"a line of blanks", "", " ", "\n"},
        {"a line of digits", "SUPPORTS\n", "9", " FIXED\n"},
        {"a line of semicolons", "JOINT COORDINATES\n", ";", "\n"},
        {"a long name of a group", "START GROUP DEFINITION\nMEMBER\n_", "A", " 1\nEND GROUP DEFINITION\n"},
        {"a long section", "MEMBER PROPERTY\n1 PRIS ", "YD 0.5 ", "\n"},
        {"a long tapered section", "MEMBER PROPERTY\n1 TAPERED ", "0.5 ", "\n"},
        {"a long load", "LOAD 1\nMEMBER LOAD\n1 UNI GY ", "-1 ", "\n"},
        {"empty lines", "", "\n"},
        {"comments", "", "*\n"},
    };
}

/// The same thing over and over.
std::vector<repetition> repetitions()
{
    return {
        {"groups of one name", "START GROUP DEFINITION\nMEMBER\n", "_A 1\n", "END GROUP DEFINITION\n"},
        {"load headers", "", "LOAD #\n"},
        {"load headers in full", "", "LOAD # LOADTYPE Dead TITLE DL\n"},
        {"load definitions", "LOAD 1\nMEMBER LOAD\n1 UNI GY -", "#\n1 UNI GY -"},
        {"materials", "", "MATERIAL C# MEMB 1\n"},
        {"sections", "MEMBER PROPERTY\n1 TABLE ST A", "#\n1 TABLE ST A"},
        {"user tables", "START USER TABLE\n", "TABLE #\nUNIT METER KN\nCHANNEL\nA\n1E300 1E300 1E300 1E300\n", "END\n"},
        {"user tables of one huge number", "START USER TABLE\n",
         "TABLE 99999999999\nUNIT METER KN\nPIPE\nA\n1E300 -1E300\n", "END\n"},
        {"rows of a user table", "START USER TABLE\nTABLE 1\nUNIT METER KN\nCHANNEL\n", "R#\n1 1 1 1\n", "END\n"},
    };
}

/// Every command over and over, and a few with what belongs to them.
std::vector<repetition> commands()
{
    std::istringstream all(
        "SUPPORTS|MEMBER RELEASE|MEMBER OFFSET|MEMBER PROPERTY|MEMBER PROPERTY CHINESE|MEMBER TRUSS|CONSTANTS|"
        "START GROUP DEFINITION|END GROUP DEFINITION|JOINT COORDINATES|MEMBER INCIDENCES|"
        "ELEMENT INCIDENCES SHELL|ELEMENT PROPERTY|SURFACE INCIDENCE|SURFACE PROPERTY|DEFINE MATERIAL START|"
        "ISOTROPIC CONCRETE|END DEFINE MATERIAL|START USER TABLE|TABLE 1|END|UNIT FEET KIP|LOAD 1|LOAD COMB 2|"
        "MEMBER LOAD|JOINT LOAD|FINISH|BETA 90 ALL|BETA 90 MEMB|MATERIAL C30 ALL|MATERIAL C30 MEMB|"
        "SELFWEIGHT Y -1|SUPPORTS\n1 FIXED|MEMBER RELEASE\n1 START MZ|MEMBER OFFSET\n1 START 0 0.1 0|"
        "MEMBER TRUSS\n1|START GROUP DEFINITION\nMEMBER\n_A 1\nEND GROUP DEFINITION|"
        "START USER TABLE\nTABLE 1\nEND|ELEMENT INCIDENCES SHELL\n1 1 2 3|ELEMENT PROPERTY\n1 THICKNESS 0.2|"
        "MEMBER PROPERTY\n1 TABLE ST A|MEMBER LOAD\n1 UNI GY -1|NO SUCH COMMAND|MEMBER  LOAD");
    std::vector<repetition> rows;
    for (std::string lines; std::getline(all, lines, '|');) {
        std::string name = "repeated: " + lines;
        std::replace(name.begin(), name.end(), '\n', '/');
        rows.push_back({name, "", lines + '\n'});
    }
    return rows;
}

std::vector<repetition> other_bytes()
{
    using namespace std::string_literals;
    return {
        {"zero bytes", "", "\0"s, "\n"},
        {"lines of a zero byte", "", "\0\n"s},
        {"zero bytes in a list", "SUPPORTS\n1 \0"s, "2 \0"s, "FIXED\n"},
        {"broken UTF-8", "", "\xFF\xC3\x28\n"},
        {"broken UTF-8 in commands", "", "MEMBER\xFF LOAD\n"},
        {"carriage returns in a model", "", "\r"},
    };
}

/// Texts with nothing before or after the part.
std::vector<repetition> bare_parts()
{
    using namespace std::string_literals;
    return {
        {"nothing but: UNIT METER KN", "", "UNIT METER KN\n"},
        {"nothing but: UNIT METER KN/JOINT COORDINATES", "", "UNIT METER KN\nJOINT COORDINATES\n"},
        {"only empty lines", "", "\n"},
        {"only carriage returns", "", "\r"},
        {"only continuation marks", "", "-"},
        {"only zero bytes", "", "\0"s},
        {"only broken UTF-8", "", "\xFF"},
    };
}

std::string joints_and_members_on_one_line(std::size_t size)
{
    return "UNIT METER KN\nJOINT COORDINATES\n" + repeated("1 0 0 0;", size / 2) + "\nMEMBER INCIDENCES\n" +
           repeated("1 1 1;", size / 2) + "\nFINISH\n";
}

/// As many load lines as members, each line over all of them; no more members than a reading can have references.
std::string load_lines_over_all_members(std::size_t size)
{
    constexpr int most_members = 10'000;
    std::string text = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 1 0 0\nMEMBER INCIDENCES\n";
    int count = 0;
    while (count < most_members && text.size() < size / 2)
        text += std::to_string(++count) + " 1 2\n";
    const std::string line = "1 TO " + std::to_string(count) + " UNI GY -1\n";
    text += "LOAD 1\nMEMBER LOAD\n";
    for (int i = 0; i < count; ++i)
        text += line;
    return text + finish;
}

std::string lines_ended_by_carriage_returns(std::size_t size)
{
    std::string text = frame + repeated("SUPPORTS\n1 FIXED\n", size) + finish;
    std::replace(text.begin(), text.end(), '\n', '\r');
    return text;
}

std::string utf16(std::size_t size)
{
    std::string text = "\xFF\xFE";
    for (const char c : frame + repeated("SUPPORTS\n1 FIXED\n", size / 2) + finish)
        text.append({c, '\0'});
    return text;
}

} // namespace

const std::vector<hostile_deck>& hostile_decks()
{
    static const std::vector<hostile_deck> decks = [] {
        std::vector<hostile_deck> all = {
            {"joints and members on one line", answer::model, joints_and_members_on_one_line},
            {"load lines over all members", answer::model, load_lines_over_all_members},
            {"lines ended by carriage returns alone", answer::no_model, lines_ended_by_carriage_returns},
            {"UTF-16", answer::no_model, utf16},
        };
        for (const auto& rows :
             {endless_ranges(), long_lists(), long_lines(), repetitions(), commands(), other_bytes()})
            for (const repetition& row : rows)
                all.push_back({row.name, row.want, [row](std::size_t size) {
                                   return frame + row.head + repeated(row.part, size) + row.tail + finish;
                               }});
        for (const repetition& row : bare_parts())
            all.push_back({row.name, answer::no_model, [row](std::size_t size) { return repeated(row.part, size); }});
        return all;
    }();
    return decks;
}

} // namespace STAAD::decks
