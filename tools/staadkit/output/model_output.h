/// Models on their way out: to a file that is there whole or not at all, or to standard output.
#ifndef TOOLS_STAADKIT_OUTPUT_MODEL_OUTPUT_H
#define TOOLS_STAADKIT_OUTPUT_MODEL_OUTPUT_H

#include "cli/verbs.h"

#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// The name of an output for messages: "<stdout>" for "-".
std::string output_name(const std::string& path);

/// Why no file can be written to `path`, as far as that shows beforehand; empty if one can. A file that is
/// there already, which may be one of the `inputs`, is overwritten only with `force`. "-" can be written to.
std::string why_not_there(const std::string& path, const std::vector<std::string>& inputs, bool force);

/// Tells why the file was not written.
exit_code fail_to_write(const std::string& path, const std::string& reason);

/// Writes `text` to the file at `path`, to standard output for "-"; prints an error if it cannot. The result is
/// `so_far`, or `not_written`.
exit_code write_output(const std::string& path, std::string_view text, exit_code so_far);

} // namespace tool

#endif
