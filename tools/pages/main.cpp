// staadkit_pages FOLDER: writes the manual page and the completions into FOLDER, laid out as in share/.

#include "command_line.h"
#include "pages.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>

namespace {

void write_pages(const std::filesystem::path& folder)
{
    CLI::App app;
    tool::verb_action action;
    tool::set_up_command_line(app, action);
    const pages::command_outline outline = pages::outline_of(app);
    for (const pages::page& page : pages::all_pages) {
        const std::filesystem::path path = folder / page.path;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream file(path, std::ios::binary);
        file.exceptions(std::ios::badbit | std::ios::failbit);
        file << page.text(outline) << std::flush;
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        static_cast<void>(std::fputs("usage: staadkit_pages FOLDER\n", stderr));
        return 2;
    }
    try {
        write_pages(argv[1]);
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "staadkit_pages: %s\n", error.what()));
        return 1;
    }
    return 0;
}
