// The verb "dump": every public field of a model, or a structure, as JSON.

#include "cli/messages.h"
#include "cli/open_model.h"
#include "cli/verbs.h"
#include "dump/structure_json.h"
#include "output/json_writer.h"
#include "output/std_output.h"
#include "staad/model/fields.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <new>

namespace tool {
namespace {

struct dump_options {
    std::string file;
    reading_choice reading = reading_choice::host;
    bool as_structure = false;
    bool with_notes = false;
};

void put(std_output& out, const opened_model& opened)
{
    json_writer(out).document(opened.model);
}

void put(std_output& out, const opened_structure& opened)
{
    put_structure_json(out, opened.structure);
}

template<class Opened>
exit_code dump(Opened opened, const dump_options& options)
{
    print_findings(opened.name, opened.report, least_severity(options.with_notes), {});
    if (!opened.was_read)
        return no_model;
    std_output out;
    try {
        put(out, opened);
    } catch (const std::bad_alloc&) {
        give_up_for_memory(opened);
        print_finding(opened.name, opened.report.findings.back());
        return out.close(no_model);
    }
    return out.close(done);
}

exit_code run_dump(const dump_options& options)
{
    return options.as_structure ? dump(open_structure(options.file, options.reading), options)
                                : dump(open_model(options.file, options.reading), options);
}

constexpr const char* container_word = "container";
constexpr const char* structure_word = "structure";

std::string why_no_form(const std::string& word)
{
    return word == container_word || word == structure_word ? std::string()
                                                            : '\'' + word + "' is neither container nor structure";
}

} // namespace

verb_action set_up_dump(CLI::App& command)
{
    const auto options = std::make_shared<dump_options>();
    command.add_option("FILE", options->file, "The .std file to read; - reads standard input")
        ->required()
        ->option_text(" ");
    add_reading_option(command, options->reading);
    command
        .add_option_function<std::string>(
            "--form", [options](const std::string& word) { options->as_structure = word == structure_word; },
            "Print the host's container, the default, or the structure")
        ->check(why_no_form)
        ->take_last()
        ->type_name("FORM")                                                // in messages
        ->option_text(std::string(container_word) + '|' + structure_word); // in the help
    command.add_flag("--notes", options->with_notes, "Also print notes, not only warnings and errors");
    return [options] { return run_dump(*options); };
}

} // namespace tool
