#include "cli/reading_option.h"

#include <CLI/CLI.hpp>

#include <string>

namespace tool {
namespace {

constexpr const char* host_word = "host";
constexpr const char* complete_word = "complete";

std::string why_no_reading(const std::string& word)
{
    return word == host_word || word == complete_word ? std::string() : '\'' + word + "' is neither host nor complete";
}

} // namespace

void add_reading_option(CLI::App& command, reading_choice& reading)
{
    const bool is_host = reading == reading_choice::host;
    command
        .add_option_function<std::string>(
            "--reading",
            [&reading](const std::string& word) {
                reading = word == host_word ? reading_choice::host : reading_choice::complete;
            },
            is_host ? "Read as hosts do, the default, or completely, as the author meant it"
                    : "Read completely, as the author meant it, the default, or as hosts do")
        ->check(why_no_reading)
        ->take_last()
        ->type_name("READING")                                       // in messages
        ->option_text(std::string(host_word) + '|' + complete_word); // in the help
}

} // namespace tool
