/// Decks for the tests of the verb "compare": one frame today and earlier.
#ifndef TESTS_CLI_COMPARED_DECKS_H
#define TESTS_CLI_COMPARED_DECKS_H

#include <string>

namespace cli_test {

/// What tests change about the frame below.
struct frame_parts {
    std::string joints = "1 0 0 0; 2 6 0 0; 3 0 4 0; 4 6 4 0;\n";
    std::string members = "1 1 3; 2 2 4; 3 3 4;\n";
    std::string elements = "11 1 2 4 3;\n";
    std::string groups; ///< the lines between START and END GROUP DEFINITION
    std::string sections = "1 2 PRIS YD 0.4 ZD 0.4\n3 PRIS YD 0.5 ZD 0.3\n";
    std::string supports; ///< lines
    std::string releases; ///< lines
};

/// A portal frame with a shell in it.
inline std::string frame_deck(const frame_parts& parts = {})
{
    const auto block = [](const std::string& keyword, const std::string& lines) {
        return lines.empty() ? "" : keyword + '\n' + lines;
    };
    const std::string groups =
        parts.groups.empty() ? "" : "START GROUP DEFINITION\n" + parts.groups + "END GROUP DEFINITION\n";
    return "STAAD SPACE\nUNIT METER KN\nJOINT COORDINATES\n" + parts.joints + "MEMBER INCIDENCES\n" + parts.members +
           block("ELEMENT INCIDENCES SHELL", parts.elements) + groups +
           block("MEMBER PROPERTY CHINESE", parts.sections) + "CONSTANTS\nMATERIAL C30 ALL\n" +
           block("SUPPORTS", parts.supports) + block("MEMBER RELEASE", parts.releases) + "FINISH\n";
}

} // namespace cli_test

#endif
