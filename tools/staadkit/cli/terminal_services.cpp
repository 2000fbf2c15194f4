#include "cli/terminal_services.h"

#include "cli/progress_line.h"
#include "cli/terminal.h"
#include "cli/text_encoding.h"

#include <cstdio>
#include <string>

namespace tool {
namespace {

void print(std::string_view text)
{
    clear_progress();
    static_cast<void>(std::fwrite(text.data(), 1, text.size(), stderr)); // a failure here cannot be reported anywhere
}

char lower_case(char c) noexcept
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// "caption: text" as a line of text.
std::string message_text(const STAAD::PlatformServices::Message& message)
{
    const std::string caption = utf8_from_utf16(message.caption);
    return (caption.empty() ? caption : caption + ": ") + utf8_from_utf16(message.text);
}

/// The first description of files in a dialog's filter.
std::string kind_of_file(std::u16string_view filter)
{
    return utf8_from_utf16(filter.substr(0, filter.find(u'|')));
}

} // namespace

bool can_ask() noexcept
{
    return is_terminal(stderr) && is_terminal(stdin);
}

std::optional<std::string> ask(std::string_view question)
{
    if (!can_ask())
        return std::nullopt;
    print(question);
    std::string line;
    for (int c = std::getchar(); c != '\n'; c = std::getchar()) {
        if (c == EOF)
            return std::nullopt;
        line += static_cast<char>(c);
    }
    return line;
}

bool ask_yes_no(std::string_view question)
{
    std::string answer = ask(std::string(question) + " [y/N] ").value_or(std::string());
    for (char& c : answer)
        c = lower_case(c);
    return answer == "y" || answer == "yes";
}

STAAD::PlatformServices::Answer terminal_services::ShowMessage(const Message& message)
{
    if (message.buttons == Buttons::YesNo)
        return ask_yes_no(message_text(message)) ? Answer::Yes : Answer::No;
    print("staadkit: " + message_text(message) + '\n');
    return Answer::Ok;
}

std::string terminal_services::AskForFile(const FileQuestion& question)
{
    return ask("File to open, " + kind_of_file(question.filter) + ": ").value_or(std::string());
}

bool terminal_services::CanRead(const char* path)
{
    return beneath_.CanRead(path);
}

} // namespace tool
