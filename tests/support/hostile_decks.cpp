#include "tests/support/hostile_decks.h"

#include <algorithm>
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

std::string repeated(std::string_view part, std::size_t size)
{
    std::string text;
    text.reserve(size + part.size());
    while (text.size() < size)
        text += part;
    return text;
}

/// The frame, `head`, `part` again and again, `tail`.
hostile_deck repeating(std::string name, std::string head, std::string part, std::string tail = "",
                       answer want = answer::model)
{
    return {std::move(name), want,
            [head, part, tail](std::size_t size) { return frame + head + repeated(part, size) + tail + finish; }};
}

/// The same, `part` followed by a number that grows, and by `end`.
hostile_deck counting(std::string name, std::string head, std::string part, std::string end, std::string tail = "")
{
    return {std::move(name), answer::model, [head, part, end, tail](std::size_t size) {
                std::string text = frame + head;
                for (int number = 1; text.size() < size; ++number)
                    text += part + std::to_string(number) + end;
                return text + tail + finish;
            }};
}

/// A text with nothing before or behind it.
hostile_deck bare(std::string name, std::string part, answer want = answer::no_model)
{
    return {std::move(name), want, [part](std::size_t size) { return repeated(part, size); }};
}

/// Lines as a name.
std::string on_one_line(std::string lines)
{
    std::replace(lines.begin(), lines.end(), '\n', '/');
    return lines;
}

using deck_list = std::vector<hostile_deck>;

/// Two thousand million numbers on every kind of line that has a list.
void add_endless_ranges(deck_list& decks)
{
    const std::string all = "1 TO 2000000000";
    decks.push_back(repeating("endless sections", "MEMBER PROPERTY\n", all + " TABLE ST A\n"));
    decks.push_back(repeating("endless beta angles", "", "BETA 90 MEMB " + all + "\n"));
    decks.push_back(repeating("endless materials", "", "MATERIAL C30 MEMB " + all + "\n"));
    decks.push_back(repeating("endless offsets", "MEMBER OFFSET\n", all + " START 0 0.1 0\n"));
    decks.push_back(repeating("endless thicknesses", "ELEMENT PROPERTY\n", all + " THICKNESS 0.2\n"));
    decks.push_back(repeating("endless surfaces", "SURFACE PROPERTY\n", all + " THICKNESS 0.2\n"));
    decks.push_back(repeating("endless member loads", "LOAD 1\nMEMBER LOAD\n", all + " UNI GY -1\n"));
    decks.push_back(repeating("endless joint loads", "LOAD 1\nJOINT LOAD\n", all + " FY -1\n"));
    decks.push_back(repeating("endless selfweights", "LOAD 1\n", "SELFWEIGHT Y -1 LIST " + all + "\n"));
    decks.push_back(repeating("endless supports", "SUPPORTS\n", all + " FIXED\n", "", answer::too_large));
    decks.push_back(repeating("endless releases", "MEMBER RELEASE\n", all + " START MZ\n", "", answer::too_large));
    decks.push_back(repeating("endless ties", "MEMBER TRUSS\n", all + "\n", "", answer::too_large));
    decks.push_back(repeating("endless groups", "START GROUP DEFINITION\nMEMBER\n", "_A " + all + "\n",
                              "END GROUP DEFINITION\n", answer::too_large));
}

/// "1 TO 9 TO 9 TO 9 ..." on one line, and lists as long as the text.
void add_long_lists(deck_list& decks)
{
    const std::string chain = "TO 9 ";
    decks.push_back(repeating("a chain of ranges of supports", "SUPPORTS\n1 ", chain, "FIXED\n"));
    decks.push_back(repeating("a chain of ranges of a group", "START GROUP DEFINITION\nMEMBER\n_A 1 ", chain,
                              "\nEND GROUP DEFINITION\n"));
    decks.push_back(repeating("a chain of ranges of ties", "MEMBER TRUSS\n1 ", chain, "\n"));
    decks.push_back(repeating("a chain of ranges of a section", "MEMBER PROPERTY\n1 ", chain, "TABLE ST A\n"));
    decks.push_back(repeating("a chain of ranges of a load", "LOAD 1\nMEMBER LOAD\n1 ", chain, "UNI GY -1\n"));
    decks.push_back(repeating("a chain of ranges of a material", "MATERIAL C30 MEMB 1 ", chain, "\n"));
    decks.push_back(
        repeating("a chain of endless ranges of a section", "MEMBER PROPERTY\n1 ", "TO 2000000000 ", "TABLE ST A\n"));
    decks.push_back(repeating("words TO alone", "SUPPORTS\n", "TO ", "FIXED\n"));
    decks.push_back(repeating("one number again and again", "SUPPORTS\n", "1 ", "FIXED\n"));
    decks.push_back(counting("numbers that no record has", "MEMBER PROPERTY\n", "", " ", "TABLE ST A\n"));
    decks.push_back(counting("a line for every number", "SUPPORTS\n", "", " FIXED\n"));
    decks.push_back(counting("a description for every number", "SUPPORTS\n1 FIXED BUT KFX", "", "\n1 FIXED BUT KFX"));
}

void add_long_lines(deck_list& decks)
{
    decks.push_back(repeating("continuation lines", "SUPPORTS\n", "1 -\n", "FIXED\n"));
    decks.push_back(repeating("continuation lines with blank lines", "SUPPORTS\n", "1 -\n \n", "FIXED\n"));
    decks.push_back(repeating("lines of only a continuation mark", "", "-\n"));
    decks.push_back(repeating("a line of letters", "", "A", "\n"));
    decks.push_back(repeating("a line of blanks", "", " ", "\n"));
    decks.push_back(repeating("a line of digits", "SUPPORTS\n", "9", " FIXED\n"));
    decks.push_back(repeating("a line of semicolons", "JOINT COORDINATES\n", ";", "\n"));
    decks.push_back(
        repeating("a long name of a group", "START GROUP DEFINITION\nMEMBER\n_", "A", " 1\nEND GROUP DEFINITION\n"));
    decks.push_back(repeating("a long section", "MEMBER PROPERTY\n1 PRIS ", "YD 0.5 ", "\n"));
    decks.push_back(repeating("a long tapered section", "MEMBER PROPERTY\n1 TAPERED ", "0.5 ", "\n"));
    decks.push_back(repeating("a long load", "LOAD 1\nMEMBER LOAD\n1 UNI GY ", "-1 ", "\n"));
    decks.push_back(repeating("empty lines", "", "\n"));
    decks.push_back(repeating("comments", "", "*\n"));
    decks.push_back({"joints and members on one line", answer::model, [](std::size_t size) {
                         return "UNIT METER KN\nJOINT COORDINATES\n" + repeated("1 0 0 0;", size / 2) +
                                "\nMEMBER INCIDENCES\n" + repeated("1 1 1;", size / 2) + "\nFINISH\n";
                     }});
}

/// The same thing over and over.
void add_repetitions(deck_list& decks)
{
    decks.push_back(
        repeating("groups of one name", "START GROUP DEFINITION\nMEMBER\n", "_A 1\n", "END GROUP DEFINITION\n"));
    decks.push_back(counting("load headers", "", "LOAD ", "\n"));
    decks.push_back(counting("load headers in full", "", "LOAD ", " LOADTYPE Dead TITLE DL\n"));
    decks.push_back(counting("load definitions", "LOAD 1\nMEMBER LOAD\n1 UNI GY -", "", "\n1 UNI GY -"));
    decks.push_back(counting("materials", "", "MATERIAL C", " MEMB 1\n"));
    decks.push_back(counting("sections", "MEMBER PROPERTY\n1 TABLE ST A", "", "\n1 TABLE ST A"));
    decks.push_back(counting("user tables", "START USER TABLE\n", "TABLE ",
                             "\nUNIT METER KN\nCHANNEL\nA\n1E300 1E300 1E300 1E300\n", "END\n"));
    decks.push_back(repeating("user tables of one huge number", "START USER TABLE\n",
                              "TABLE 99999999999\nUNIT METER KN\nPIPE\nA\n1E300 -1E300\n", "END\n"));
    decks.push_back(counting("rows of a user table", "START USER TABLE\nTABLE 1\nUNIT METER KN\nCHANNEL\n", "R",
                             "\n1 1 1 1\n", "END\n"));
    for (const char* line : {"SUPPORTS",
                             "MEMBER RELEASE",
                             "MEMBER OFFSET",
                             "MEMBER PROPERTY",
                             "MEMBER PROPERTY CHINESE",
                             "MEMBER TRUSS",
                             "CONSTANTS",
                             "START GROUP DEFINITION",
                             "END GROUP DEFINITION",
                             "JOINT COORDINATES",
                             "MEMBER INCIDENCES",
                             "ELEMENT INCIDENCES SHELL",
                             "ELEMENT PROPERTY",
                             "SURFACE INCIDENCE",
                             "SURFACE PROPERTY",
                             "DEFINE MATERIAL START",
                             "ISOTROPIC CONCRETE",
                             "END DEFINE MATERIAL",
                             "START USER TABLE",
                             "TABLE 1",
                             "END",
                             "UNIT FEET KIP",
                             "LOAD 1",
                             "LOAD COMB 2",
                             "MEMBER LOAD",
                             "JOINT LOAD",
                             "FINISH",
                             "BETA 90 ALL",
                             "BETA 90 MEMB",
                             "MATERIAL C30 ALL",
                             "MATERIAL C30 MEMB",
                             "SELFWEIGHT Y -1",
                             "SUPPORTS\n1 FIXED",
                             "MEMBER RELEASE\n1 START MZ",
                             "MEMBER OFFSET\n1 START 0 0.1 0",
                             "MEMBER TRUSS\n1",
                             "START GROUP DEFINITION\nMEMBER\n_A 1\nEND GROUP DEFINITION",
                             "START USER TABLE\nTABLE 1\nEND",
                             "ELEMENT INCIDENCES SHELL\n1 1 2 3",
                             "ELEMENT PROPERTY\n1 THICKNESS 0.2",
                             "MEMBER PROPERTY\n1 TABLE ST A",
                             "MEMBER LOAD\n1 UNI GY -1",
                             "NO SUCH COMMAND",
                             "MEMBER  LOAD"})
        decks.push_back(repeating("repeated: " + on_one_line(line), "", std::string(line) + "\n"));
    for (const char* line : {"UNIT METER KN", "UNIT METER KN\nJOINT COORDINATES"})
        decks.push_back(bare("nothing but: " + on_one_line(line), std::string(line) + "\n"));
}

/// As many load lines as members, each line over all of them; no more members than a reading can have references.
void add_loads_over_all(deck_list& decks)
{
    decks.push_back({"load lines over all members", answer::model, [](std::size_t size) {
                         constexpr int most_members = 10'000;
                         std::string joints = "UNIT METER KN\nJOINT COORDINATES\n1 0 0 0; 2 1 0 0\n";
                         std::string members = "MEMBER INCIDENCES\n";
                         int count = 0;
                         while (count < most_members && members.size() < size / 2)
                             members += std::to_string(++count) + " 1 2\n";
                         const std::string line = "1 TO " + std::to_string(count) + " UNI GY -1\n";
                         std::string loads = "LOAD 1\nMEMBER LOAD\n";
                         for (int i = 0; i < count; ++i)
                             loads += line;
                         return joints + members + loads + finish;
                     }});
}

void add_other_bytes(deck_list& decks)
{
    using namespace std::string_literals;
    decks.push_back(repeating("zero bytes", "", "\0"s, "\n"));
    decks.push_back(repeating("lines of a zero byte", "", "\0\n"s));
    decks.push_back(repeating("zero bytes in a list", "SUPPORTS\n1 \0"s, "2 \0"s, "FIXED\n"));
    decks.push_back(repeating("broken UTF-8", "", "\xFF\xC3\x28\n"));
    decks.push_back(repeating("broken UTF-8 in commands", "", "MEMBER\xFF LOAD\n"));
    decks.push_back(repeating("carriage returns in a model", "", "\r"));
    decks.push_back(bare("only empty lines", "\n"));
    decks.push_back(bare("only carriage returns", "\r"));
    decks.push_back(bare("only continuation marks", "-"));
    decks.push_back(bare("only zero bytes", "\0"s));
    decks.push_back(bare("only broken UTF-8", "\xFF"));
    decks.push_back({"lines ended by carriage returns alone", answer::no_model, [](std::size_t size) {
                         std::string text = frame + repeated("SUPPORTS\n1 FIXED\n", size) + finish;
                         for (char& c : text)
                             c = c == '\n' ? '\r' : c;
                         return text;
                     }});
    decks.push_back({"UTF-16", answer::no_model, [](std::size_t size) {
                         std::string text = "\xFF\xFE";
                         for (const char c : frame + repeated("SUPPORTS\n1 FIXED\n", size / 2) + finish)
                             text.append({c, '\0'});
                         return text;
                     }});
}

} // namespace

const std::vector<hostile_deck>& hostile_decks()
{
    static const deck_list decks = [] {
        deck_list list;
        add_endless_ranges(list);
        add_long_lists(list);
        add_long_lines(list);
        add_repetitions(list);
        add_loads_over_all(list);
        add_other_bytes(list);
        return list;
    }();
    return decks;
}

} // namespace STAAD::decks
