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
std::string frame_deck(const frame_parts& parts = {});

} // namespace cli_test

#endif
