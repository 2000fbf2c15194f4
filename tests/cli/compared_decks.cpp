#include "compared_decks.h"

namespace cli_test {
namespace {

std::string block(const std::string& keyword, const std::string& lines)
{
    return lines.empty() ? std::string() : keyword + '\n' + lines;
}

} // namespace

std::string frame_deck(const frame_parts& parts)
{
    const std::string groups =
        parts.groups.empty() ? "" : "START GROUP DEFINITION\n" + parts.groups + "END GROUP DEFINITION\n";
    return "STAAD SPACE\nUNIT METER KN\nJOINT COORDINATES\n" + parts.joints + "MEMBER INCIDENCES\n" + parts.members +
           block("ELEMENT INCIDENCES SHELL", parts.elements) + groups +
           block("MEMBER PROPERTY CHINESE", parts.sections) + "CONSTANTS\nMATERIAL C30 ALL\n" +
           block("SUPPORTS", parts.supports) + block("MEMBER RELEASE", parts.releases) + "FINISH\n";
}

} // namespace cli_test
