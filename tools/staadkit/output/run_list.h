/// Numbers of joints, members and elements in one line of text.
#ifndef TOOLS_STAADKIT_OUTPUT_RUN_LIST_H
#define TOOLS_STAADKIT_OUTPUT_RUN_LIST_H

#include <string>
#include <vector>

namespace tool {

/// "1 TO 9 12 15 TO 20" in ascending order, as the lists of a .std file have it; of very many runs the
/// first ones and "...".
std::string run_list(const std::vector<int>& numbers);

} // namespace tool

#endif
