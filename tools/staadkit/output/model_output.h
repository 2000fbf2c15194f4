/// Writes models to a file, completely or not at all, or to standard output.
#ifndef TOOLS_STAADKIT_OUTPUT_MODEL_OUTPUT_H
#define TOOLS_STAADKIT_OUTPUT_MODEL_OUTPUT_H

#include "cli/verbs.h"

#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// The name of an output for messages: "<stdout>" for "-".
std::string output_name(const std::string& path);

/// Why no file can be written to `path`, as far as can be seen beforehand; empty if it can. An existing file,
/// perhaps one of the `inputs`, is overwritten only with `force`. "-" can be written to.
std::string why_not_there(const std::string& path, const std::vector<std::string>& inputs, bool force);

/// Prints why the file was not written.
exit_code fail_to_write(const std::string& path, const std::string& reason);

/// Writes `text` to the file at `path`, to standard output for "-"; prints an error if it cannot. The result is
/// `so_far`, or `not_written`.
exit_code write_output(const std::string& path, std::string_view text, exit_code so_far);

} // namespace tool

#endif
