/// Writes a regular frame as a ".std" file, to try the library and the tool on files of any size.
#include "frame_deck.h"

#include <CLI/CLI.hpp>

#include <fstream>
#include <iostream>
#include <string>

int main(int argc, char** argv)
{
    using namespace STAAD::bench;
    CLI::App app("Writes a regular building frame as a .std file.");
    std::string path;
    std::size_t members = 1000;
    std::size_t megabytes = 0;
    bool geometry_only = false;
    app.add_option("FILE", path, "file to write; - for standard output")->required();
    CLI::Option* by_members = app.add_option("--members", members, "about this many members")->capture_default_str();
    app.add_option("--mb", megabytes, "at least this many million bytes instead")->excludes(by_members);
    app.add_flag("--geometry", geometry_only, "joints, members and plates only");
    CLI11_PARSE(app, argc, argv);

    frame_options blocks;
    if (!geometry_only)
        blocks.with_all_blocks();
    const frame_options options =
        megabytes > 0 ? frame_of_bytes(megabytes * 1'000'000, blocks) : frame_of_about(members, blocks);
    const std::string deck = make_frame_deck(options);
    if (path == "-") {
        std::cout << deck << std::flush;
        return std::cout ? 0 : 4;
    }
    std::ofstream out(path, std::ios::binary);
    out << deck << std::flush;
    if (!out) {
        std::cerr << path << ": error: could not be written\n";
        return 4;
    }
    std::cerr << path << ": " << options.members() << " members, " << deck.size() << " bytes\n";
    return 0;
}
