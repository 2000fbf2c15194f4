/// The services that the library needs of a desktop, on the terminal.
#ifndef TOOLS_STAADKIT_CLI_TERMINAL_SERVICES_H
#define TOOLS_STAADKIT_CLI_TERMINAL_SERVICES_H

#include "staad/host/platform_services.h"

#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// Messages go to standard error. Questions are asked at a terminal only; elsewhere the answer to a question is no,
/// and no file is chosen.
class terminal_services final : public STAAD::PlatformServices {
public:
    /// Tests of files go to `beneath`, which must outlive this.
    explicit terminal_services(STAAD::PlatformServices& beneath) noexcept : beneath_(beneath) {}

    Answer ShowMessage(const Message& message) override;
    std::string AskForFile(const FileQuestion& question) override;
    bool CanRead(const char* path) override;

private:
    STAAD::PlatformServices& beneath_;
};

/// Whether both standard error and standard input are a terminal.
bool can_ask() noexcept;

/// The line typed as answer, without its end. Nothing at the end of input, or without a terminal.
std::optional<std::string> ask(std::string_view question);

/// True for "y" or "yes", in any case.
bool ask_yes_no(std::string_view question);

} // namespace tool

#endif
