/// A frame of three members and a listing of its forces, whose answers the tests know.
#ifndef TESTS_CLI_FORCE_DECKS_H
#define TESTS_CLI_FORCE_DECKS_H

#include "tool_run.h"

#include <string>
#include <string_view>
#include <vector>

namespace cli_test {

/// Members 11 (4 m), 12 (6 m), 13 (4 m); load cases 1 and 3 dead, 2 live, 4 wind, 5 of no type, 6 of a
/// type of its own.
std::string force_model();

/// A section: title, heading, unit line (line 5), `data` (from line 6), the empty line that closes it.
/// Lines of data are written without the blank that they begin with.
std::string force_section(const std::vector<std::string>& data,
                          std::string_view units = "(m) (kN) (kN) (kN) (kN-m) (kN-m) (kN-m)");

/// 14 stations that count: of member 12 the cases 1, 2, 3, 9, of 11 the cases 1, 4, of 13 the case 1. Case
/// 2 of member 13 ends the section; member 77 is not in the model.
std::string force_listing();

/// The two files in the folder of a run, and the verb called with them.
class force_files {
public:
    explicit force_files(const std::string& listing = force_listing(), const std::string& model = force_model());

    tool_result operator()(std::vector<std::string> options = {}) const;
    std::vector<std::string> call(std::vector<std::string> options = {}) const;

    const tool_run tool;
    const std::string model;
    const std::string listing;
};

} // namespace cli_test

#endif
