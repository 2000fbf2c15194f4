/// no_change_state FOLDER FIRST COUNT [DECK...]
///
/// Runs random decks through the library and prints, a line for each seed from FIRST on, the digest of all that a host
/// can see after each step; then, in a last line, how much that was. With COUNT 0 the state of seed FIRST itself.
/// Linked with two versions of the library, it shows whether they differ. FOLDER takes the files that are written.

#include "no_change/inputs.h"
#include "no_change/state.h"
#include "staad/model/sd_reader.h"
#include "staad/platform/platform_services.h"
#include "staad/project/layered_project.h"
#include "staad/reader/read_report.h"
#include "tests/support/random_pair.h"
#include "tests/support/scripted_services.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <typeinfo>
#include <vector>

namespace no_change {
namespace {

using STAAD::ReadReport;
using STAAD::SdReader;
using STAAD::StaadProProject_layered;

/// How much was compared.
struct totals {
    std::size_t decks, models, members, written_bytes, stations, list_entries, storeys, matches, exceptions;
};

std::string content_of(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void put_file(const std::string& path, const std::string& content)
{
    std::ofstream(path, std::ios::binary) << content;
}

std::vector<std::string> lines_of(const std::string& text)
{
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

class run {
public:
    run(const std::vector<base_deck>& bases, bool shown) : bases_(bases), state_(shown) {}

    /// The line of one seed.
    std::string line_of(std::uint64_t seed)
    {
        chance random(seed);
        line_ = std::to_string(seed);
        made_ = random_inputs(random, bases_);
        ++all.decks;
        step("inputs", [&] { state_.put_fields("deck, listing, earlier", made_.deck, made_.listing, made_.earlier); });

        SdReader model = read(random);
        SdReader earlier;
        step("earlier", [&] { put_reading(earlier, earlier.ReadSDDataFromText(made_.earlier)); });
        step("records", [&] { put_records(random); });
        if (random.one_in(2)) {
            move_to_grid(random, model);
            for (std::size_t i = 0; i < std::min(model.nodes.size(), earlier.nodes.size()); ++i)
                if (!random.one_in(5))
                    earlier.nodes[i] = model.nodes[i];
        }
        step("queries", [&] { put_queries(model); });
        read_forces(random, model);
        step("storeys", [&] { put_storeys(model); });
        step("matches", [&] { put_matches(model, earlier); });
        step("pair", [&] { put_pair(random); });
        step("written", [&] { put_written(model); });
        change_as_a_host(random, model);
        step("host-queries", [&] { put_queries(model); });
        step("host-written", [&] { put_written(model); });
        step("host-storeys", [&] { put_storeys(model); });
        step("host-matches", [&] { put_matches(model, earlier); });
        step("read-into", [&] { put_reading(model, model.ReadSDDataFromText(made_.earlier)); });
        if (seed % 4 == 0)
            step("files", [&] { put_files(random, model); });
        return line_;
    }

    totals all{};

private:
    template<class Action>
    void step(const char* name, Action action)
    {
        state_.begin(name);
        try {
            action();
        } catch (const std::exception& error) {
            ++all.exceptions;
            state_.put("exception", std::string(typeid(error).name()));
        }
        line_ += ' ' + state_.end();
    }

    void put_reading(const SdReader& model, bool was_read)
    {
        state_.put_fields("was_read, model", was_read, model);
        all.models += was_read;
        all.members += model.beams.size();
    }

    /// What the deck gives; after an exception nothing.
    SdReader read(chance& random)
    {
        SdReader result;
        step("read", [&] {
            SdReader model;
            put_reading(model, model.ReadSDDataFromText(made_.deck));
            result = std::move(model);
        });
        step("read-reported", [&] {
            SdReader model;
            ReadReport report;
            put_reading(model, model.ReadSDDataFromText(made_.deck, report));
        });
        step("braces", [&] {
            SdReader model;
            model.ReadBrace(lines_of(made_.deck));
            state_.put("model", model);
        });
        step("added-loads", [&] {
            SdReader model = result;
            for (const auto& [number, load] : result.load_defs)
                state_.put("number", model.add_a_load(load));
            STAAD::LoadDefination other{"MEMBER LOAD UNI", "GZ", {random_value(random)}, 1};
            state_.put("other", model.add_a_load(other));
            state_.put("model", model);
        });
        return result;
    }

    /// Records made from texts, and their own operations.
    void put_records(chance& random)
    {
        for (const std::string& line : lines_of(made_.deck.substr(0, 3000))) {
            state_.put("joint", STAAD::SdNode(line));
            state_.put("member", STAAD::SdBeam(line));
            state_.put("shell", STAAD::SdShell(line));
            state_.put("surface", STAAD::SdSurface(line));
            state_.put("copy", STAAD::SdShell(STAAD::SdSurface(line)));
            const STAAD::LoadCase load_case(line);
            state_.put_fields("load_case, type", load_case, load_case.load_type());
            const STAAD::Section section("C30", line);
            const STAAD::Section other("STEEL", random.any_of({"pris yd 0.5", "TABLE ST", ""}));
            state_.put_fields("section, equal, before", section, section == other, section < other);
        }
        STAAD::BeamForceAndMOM forces;
        for (int count = random.between(0, 5); count > 0; --count) {
            STAAD::BeamLoadCaseRecord record;
            record.load_case = random.between(1, 3);
            const double step = random.any_of({0.00005, 150.0});
            for (int point = random.between(0, 11); point > 0; --point)
                record.points.push_back({random.between(0, 40) * step, random_value(random), random_value(random), 1, 2,
                                         3, random_value(random)});
            STAAD::BeamForceAndMOM other;
            other.beam = random.between(0, 1);
            other.add_loadCase_record(record);
            record.sort_pkpm_format();
            state_.put("sorted", record);
            forces.add_loadCase_record(record);
            forces.merge(other);
        }
        forces.sort_pkpm_format();
        state_.put("forces", forces);
    }

    void put_queries(const SdReader& model)
    {
        for (const STAAD::SdBeam& member : model.beams) {
            state_.put_fields("kind, position", model.GetBeamType(member), model.locateBeamIndex(member.id));
            put_dimensions(model, member.sect_text);
            put_dimensions(model, member.sect_name);
        }
        for (const auto& [number, table] : model.usr_tables)
            for (const auto& [row, dimensions] : table.records)
                put_dimensions(model, "UPTABLE " + std::to_string(number) + " " + row);
        for (int number = -1; number <= static_cast<int>(model.shells.size()) + 1; ++number) {
            double x = 0.0;
            double y = 0.0;
            double z = 0.0;
            model.NormalOfShell(number, x, y, z);
            state_.put_fields("x, y, z, joint, shell", x, y, z, model.locateNodeIndex(number),
                              model.locateShellIndex(number));
        }
        for (const STAAD::SdGroup& group : model.groups)
            state_.put("ids", group.GetIdType());
    }

    void put_dimensions(const SdReader& model, const std::string& section)
    {
        try {
            state_.put("dimensions", model.GetSectionFromUsrTable(section));
        } catch (const std::out_of_range&) {
            state_.put("dimensions", std::string("out of range"));
        }
    }

    void read_forces(chance& random, SdReader& model)
    {
        if (made_.listing.empty())
            made_.listing = random_listing(random, model);
        step("forces", [&] {
            STAAD::scripted_services services;
            model.ReadForceMomentFromText(made_.listing);
            put_services(services);
            state_.put_fields("listing, model", made_.listing, model);
            for (const auto& [position, forces] : model.beam_forces) {
                const std::vector<STAAD::BeamLoadList> list = forces.get_pkpm_load_on_section(model.load_cases);
                state_.put("list", list);
                all.list_entries += list.size();
                for (const auto& [number, record] : forces.records)
                    all.stations += record.points.size();
            }
        });
        step("forces-reported", [&] {
            STAAD::scripted_services services;
            SdReader again = model;
            ReadReport report;
            again.ReadForceMomentFromText(made_.listing, report);
            state_.put("model", again);
        });
    }

    void put_services(const STAAD::scripted_services& services)
    {
        const auto bytes = [](const std::u16string& text) {
            return std::string(reinterpret_cast<const char*>(text.data()), 2 * text.size());
        };
        for (const STAAD::PlatformServices::Message& message : services.messages)
            state_.put_fields("caption, text, buttons, icon", bytes(message.caption), bytes(message.text),
                              message.buttons, message.icon);
        for (const STAAD::PlatformServices::FileQuestion& question : services.questions)
            state_.put_fields("filter, flags", bytes(question.filter), question.flags);
        state_.put("tested_paths", services.tested_paths);
    }

    void put_project(const StaadProProject_layered& project, bool was_built)
    {
        state_.put_fields("was_built, project", was_built, project);
        all.storeys += project.layers.size();
    }

    void put_storeys(const SdReader& model)
    {
        StaadProProject_layered project;
        const bool was_built = project.BuildFromModel(model);
        put_project(project, was_built);
    }

    void put_matches(SdReader model, const SdReader& earlier)
    {
        model.MakeMap(earlier);
        state_.put("maps", model.old_proj_maps);
        all.matches += model.old_proj_maps.joints_new_to_old.size();
        model.TakeOverFrom(earlier);
        state_.put("model", model);
    }

    /// Joints crowded, far out, on a line.
    void put_pair(chance& random)
    {
        const auto kind = static_cast<STAAD::decks::place_kind>(random.between(0, 8));
        const auto seed = static_cast<std::uint64_t>(random.between(0, 1 << 30));
        STAAD::decks::model_pair pair = STAAD::decks::make_random_pair(seed, kind, random.between(1, 30));
        for (SdReader* model : {&pair.now, &pair.earlier}) {
            change_as_a_host(random, *model);
            put_queries(*model);
            put_storeys(*model);
        }
        put_matches(pair.now, pair.earlier);
        put_written(std::move(pair.now));
    }

    void put_written(SdReader model)
    {
        const std::string text = model.WriteDataToText();
        state_.put_fields("text, model", text, model);
        all.written_bytes += text.size();
    }

    /// The calls that take files, and what they ask and answer.
    void put_files(chance& random, SdReader& model)
    {
        for (const char* name : {"model.std", "model.txt", "earlier.std", "chosen.txt", "out.std"})
            std::filesystem::remove(name);
        put_file("model.std", random.one_in(2) ? made_.deck : model.WriteDataToText());
        put_file("earlier.std", made_.earlier);
        put_file(random.any_of({"model.txt", "chosen.txt"}), made_.listing);
        SdReader unasked = model;
        StaadProProject_layered project;
        bool was_built = project.BuidFromFile("model.std", 1); // with the services that show nothing
        put_project(project, was_built);
        unasked.compWithOldProj("earlier.std");
        state_.put("unasked", unasked);

        STAAD::scripted_services services;
        using answers = STAAD::PlatformServices::Answer;
        services.answer = random.any_of({answers::Yes, answers::Yes, answers::No, answers::Ok});
        services.readable = !random.one_in(4);
        services.chosen_file = random.any_of({"chosen.txt", "chosen.txt", "", "none.txt"});
        const char* const path =
            random.any_of<const char*>({"model.std", "model.std", "model.std", "none.std", nullptr});

        ReadReport report;
        ReadReport of_forces;
        SdReader other;
        put_reading(other, other.ReadSDDataFromStdFile(path));
        SdReader reported;
        put_reading(reported, reported.ReadSDDataFromStdFile(path, report));
        const char* const listing = random.any_of<const char*>({"chosen.txt", "model.txt", "none.txt", nullptr});
        other.ReadForceMomentFromTxtFile(listing);
        state_.put("forces", other);
        reported.ReadForceMomentFromTxtFile(listing, report);
        state_.put("forces-reported", reported);

        const int with_forces = random.between(0, 2);
        was_built = project.BuidFromFile(path, with_forces);
        put_project(project, was_built);
        was_built = project.BuidFromFile("model.std", with_forces, report, of_forces);
        put_project(project, was_built);

        other.compWithOldProj(random.any_of<const char*>({"earlier.std", "earlier.std", "none.std", nullptr}));
        state_.put("compared", other);
        put_services(services);

        std::error_code error;
        const char* const out = random.any_of<const char*>({"out.std", "out.std", "no/such/out.std", nullptr});
        state_.put("was_written", other.WriteDataToFile(out, error));
        state_.put_fields("error, model, file", error.value(), other, content_of("out.std"));
        other.WriteDataToFile("out.std");
        state_.put("file", content_of("out.std"));
    }

    const std::vector<base_deck>& bases_;
    state state_;
    inputs made_;
    std::string line_;
};

} // namespace
} // namespace no_change

int main(int count, char** words)
{
    if (count < 4)
        return 2;
    std::vector<no_change::base_deck> bases;
    for (int i = 4; i < count; ++i) {
        const std::filesystem::path deck = words[i];
        bases.push_back({no_change::content_of(deck),
                         no_change::content_of(std::filesystem::path(deck).replace_extension(".txt"))});
    }
    std::filesystem::create_directories(words[1]);
    std::filesystem::current_path(words[1]);
    const std::uint64_t first = std::strtoull(words[2], nullptr, 10);
    const std::uint64_t seeds = std::strtoull(words[3], nullptr, 10);
    no_change::run run(bases, seeds == 0);
    for (std::uint64_t seed = first; seed < first + seeds; ++seed) {
        std::puts(run.line_of(seed).c_str());
        std::fflush(stdout);
    }
    if (seeds == 0)
        run.line_of(first);
    else
        std::printf("all: %zu decks, %zu models read with %zu members, %zu bytes written, %zu stations of forces, "
                    "%zu entries of lists, %zu storeys, %zu matched joints, %zu exceptions\n",
                    run.all.decks, run.all.models, run.all.members, run.all.written_bytes, run.all.stations,
                    run.all.list_entries, run.all.storeys, run.all.matches, run.all.exceptions);
    return 0;
}
