/// The bytes of an input: a file, a pipe, a device or standard input, opened for reading only.
#ifndef TOOLS_STAADKIT_CLI_READ_INPUT_H
#define TOOLS_STAADKIT_CLI_READ_INPUT_H

#include "staad/io/read_file.h"
#include "staad/report/finding_codes.h"

#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// The bytes of an input, or the error why there are none.
struct input_bytes {
    STAAD::FileBytes file;
    std::optional<STAAD::Finding> error;

    std::string_view text() const noexcept { return file.text(); }
};

/// Reads the file at `name`, or standard input for "-", to its end. A folder, an empty file, and a file whose
/// first bytes show that it is no text are errors of the code `wrong_kind`. Shows the progress of a long file
/// on a terminal. Throws std::bad_alloc.
input_bytes read_input(const std::string& name, STAAD::FindingCode wrong_kind);

/// Whether the bytes begin with one of the marks of UTF-16.
bool is_utf16(std::string_view bytes);

/// Whether bytes without a model or forces are no text: one of them is zero, and they are not UTF-16.
bool is_binary(std::string_view bytes);

/// An error of the code: "the file is a picture", or for "-" "standard input is a picture".
STAAD::Finding kind_error(const std::string& name, STAAD::FindingCode code, const std::string& kind);

/// The name of an input for messages: "<stdin>" for "-".
std::string input_name(const std::string& name);

} // namespace tool

#endif
