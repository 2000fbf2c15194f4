// The verb "forces": internal forces of members, from the listing that the analysis printed.

#include "cli/messages.h"
#include "cli/open_model.h"
#include "cli/verbs.h"
#include "forces/force_selection.h"
#include "forces/forces_report.h"
#include "output/std_output.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <string>
#include <vector>

namespace tool {
namespace {

struct forces_options {
    std::string model;
    std::string listing;
    force_selection selection;
    reading_choice reading = reading_choice::host;
    bool extremes = false;
    bool lists = false;
    bool as_json = false;
    bool as_csv = false;
    bool with_notes = false;

    forces_view view() const
    {
        if (extremes)
            return forces_view::extremes;
        return lists ? forces_view::lists : forces_view::stations;
    }
};

exit_code put(const forces_report& report, const forces_options& options, exit_code so_far)
{
    std_output out;
    if (options.as_json)
        put_forces_json(out, report);
    else if (options.as_csv && report.listing.was_read)
        put_forces_csv(out, report);
    else if (report.listing.was_read)
        put_forces_text(out, report);
    return out.close(so_far);
}

/// Reads the listing and removes from the model what is not shown. False, after a message, if a member or load
/// case that was asked for does not exist.
bool fill(forces_report& report, const forces_options& options)
{
    STAAD::SdReader& model = report.model.model;
    report.listing = open_forces(options.listing, model);
    if (!report.listing.was_read)
        return true;
    if (const std::string unknown = unknown_in(options.selection, model); !unknown.empty()) {
        print_error(unknown);
        return false;
    }
    report.summary = summarise_forces(model, report.listing.report);
    keep_selected(options.selection, model, report.listing.report);
    return true;
}

exit_code run_forces(const forces_options& options)
{
    const STAAD::Finding::Severity least = least_severity(options.with_notes);
    forces_report report;
    report.view = options.view();
    report.is_selection = !options.selection.is_all();
    report.model = open_model(options.model, options.reading);
    report.listing.name = input_name(options.listing);
    print_findings(report.model.name, report.model.report, least, {});
    if (!report.model.was_read)
        return put(report, options, no_model);
    if (!fill(report, options))
        return wrong_usage;
    print_findings(report.listing.name, report.listing.report, least, {});
    return put(report, options, report.listing.was_read ? done : no_model);
}

/// Numbers of members or load cases; each occurrence of the option takes one list.
void add_numbers(CLI::App& command, const std::string& name, number_ranges& ranges, const std::string& help)
{
    const auto take = [&ranges](const std::string& list) { add_number_list(list, ranges); };
    command
        .add_option_function<std::vector<std::string>>(
            name, [](const std::vector<std::string>&) {}, help)
        ->allow_extra_args(false)
        ->check([](const std::string& list) {
            number_ranges ignored;
            return add_number_list(list, ignored);
        })
        ->each(take)
        ->type_name("LIST")
        ->option_text("LIST");
}

/// The help has no room for the options that the flag excludes; the error message names them.
CLI::Option* add_flag(CLI::App& command, const std::string& name, bool& flag, const std::string& help)
{
    return command.add_flag(name, flag, help)->option_text(" ");
}

} // namespace

verb_action set_up_forces(CLI::App& command)
{
    const auto options = std::make_shared<forces_options>();
    command.add_option("MODEL", options->model, "The .std file of the model; - reads standard input")
        ->required()
        ->option_text(" ");
    command.add_option("FORCES", options->listing, "The listing of the analysis; - reads standard input")
        ->required()
        ->option_text(" ")
        ->check([options](const std::string& listing) {
            const bool is_taken = listing == "-" && options->model == "-";
            return std::string(is_taken ? "standard input is the model already" : "");
        });
    add_reading_option(command, options->reading);
    add_numbers(command, "--member", options->selection.members,
                "Only these members, such as 7 or \"1 5 TO 9\"; may be given several times");
    add_numbers(command, "--case", options->selection.cases, "Only these load cases, in the same way");
    CLI::Option* const extremes =
        add_flag(command, "--extremes", options->extremes, "Largest and smallest of each force and moment, and where");
    add_flag(command, "--pkpm", options->lists,
             "The lists of the downstream design program: dead, live, wind, seismic at nine stations")
        ->excludes(extremes);
    CLI::Option* const as_json = add_flag(command, "--json", options->as_json, "Print JSON: an object");
    add_flag(command, "--csv", options->as_csv, "Print CSV, for spreadsheets")->excludes(as_json);
    add_flag(command, "--notes", options->with_notes, "Also print notes, not only warnings and errors");
    return [options] { return run_forces(*options); };
}

} // namespace tool
