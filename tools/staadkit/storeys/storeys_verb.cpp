// The verb "storeys": the storeys of a model and their contents.

#include "cli/messages.h"
#include "cli/open_model.h"
#include "cli/text_encoding.h"
#include "cli/verbs.h"
#include "output/json_writer.h"
#include "output/std_output.h"
#include "staad/host/force_file.h"
#include "storeys/storey_fields.h"
#include "storeys/storey_summary.h"
#include "storeys/storey_text.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tool {
namespace {

struct storeys_options {
    std::string file;
    reading_choice reading = reading_choice::host;
    bool with_forces = false;
    std::string listing; ///< empty: the one beside the file
    bool as_json = false;
    bool with_notes = false;
};

/// The listing asked for; nothing, after a message, if there is none.
std::optional<std::string> find_listing(const storeys_options& options)
{
    if (!options.listing.empty())
        return options.listing;
    std::string found = STAAD::find_force_file(options.file);
    if (!found.empty())
        return found;
    print_error(printable_name(options.file) + ": no listing beside it, " +
                printable_name(STAAD::force_file_beside(options.file)) + "; --forces LISTING names another");
    return std::nullopt;
}

void put_text(std_output& out, const std::string& name, const std::optional<opened_forces>& forces,
              const storeys_summary& summary)
{
    out.put(printable_name(name) + '\n');
    if (forces)
        out.put("forces: " + printable_name(forces->name) + '\n');
    put_storeys(out, summary, forces.has_value());
}

exit_code report_storeys(opened_model& opened, const std::optional<opened_forces>& forces,
                         const storeys_options& options)
{
    const storeys_summary summary = summarise_storeys(std::move(opened.model));
    const exit_code result = summary.storeys.empty() ? done_with_findings : done;
    if (summary.storeys.empty())
        print_error(printable_name(opened.name) + ": no storeys: no upright and no level member gives a level");
    if (options.as_json)
        return print_document(storeys_document{opened, forces, &summary}, result);
    std_output out;
    put_text(out, opened.name, forces, summary);
    return out.close(result);
}

/// Reads the model and the listing asked for, and prints their findings. False if there is no model, or no listing.
bool read_inputs(opened_model& opened, std::optional<opened_forces>& forces, const storeys_options& options)
{
    const STAAD::Finding::Severity least = least_severity(options.with_notes);
    opened = open_model(options.file, options.reading);
    print_findings(opened.name, opened.report, least, {});
    if (!opened.was_read || !options.with_forces)
        return opened.was_read;
    const std::optional<std::string> listing = find_listing(options);
    if (!listing)
        return false;
    forces = open_forces(*listing, opened.model);
    print_findings(forces->name, forces->report, least, {});
    return forces->was_read;
}

exit_code run_storeys(const storeys_options& options)
{
    if (options.with_forces && options.file == "-" && (options.listing.empty() || options.listing == "-")) {
        print_error(options.listing.empty() ? "standard input has no listing beside it; --forces LISTING names one"
                                            : "standard input is the model already");
        return wrong_usage;
    }
    opened_model opened;
    std::optional<opened_forces> forces;
    try {
        if (read_inputs(opened, forces, options))
            return report_storeys(opened, forces, options);
    } catch (const std::bad_alloc&) {
        give_up_for_memory(opened);
        print_finding(opened.name, opened.report.findings.back());
    }
    return options.as_json ? print_document(storeys_document{opened, forces, nullptr}, no_model) : no_model;
}

} // namespace

verb_action set_up_storeys(CLI::App& command)
{
    const auto options = std::make_shared<storeys_options>();
    command.add_option("FILE", options->file, "The .std file to read; - reads standard input")
        ->required()
        ->option_text(" ");
    CLI::Option* const forces = command.add_option(
        "--forces", options->listing, "Count members with forces, from LISTING or the .txt file beside FILE");
    forces->expected(0, 1)->type_name("[LISTING]");
    add_reading_option(command, options->reading);
    command.add_flag("--json", options->as_json, "Print JSON, with the numbers of all joints, members and shells");
    command.add_flag("--notes", options->with_notes, "Also print notes, not only warnings and errors");
    return [options, forces] {
        options->with_forces = forces->count() != 0;
        return run_storeys(*options);
    };
}

} // namespace tool
