// The verb "convert": a model as normalised .std.

#include "cli/messages.h"
#include "cli/open_model.h"
#include "cli/verbs.h"
#include "convert/conversion_notes.h"
#include "convert/parameter_file.h"
#include "output/json_writer.h"
#include "output/model_output.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <new>
#include <string>

namespace tool {
namespace {

struct convert_options {
    std::string in;
    std::string out;
    std::string wind;
    std::string seismic;
    std::string template_name;
    reading_choice reading = reading_choice::host;
    bool force = false;
    bool with_notes = false;
};

// The names of the example parameter files.
constexpr const char* wind_template = "wind";
constexpr const char* seismic_template = "seismic";

std::string why_no_template(const std::string& name)
{
    if (name == wind_template || name == seismic_template)
        return {};
    return '\'' + name + "' is neither wind nor seismic";
}

exit_code print_template(const std::string& name)
{
    std_output out;
    if (name == wind_template)
        json_writer(out).document(example_wind());
    else
        json_writer(out).document(example_seismic());
    return out.close(done);
}

/// One of the two parameter files, and the findings from reading it.
template<class Record>
struct parameters {
    explicit parameters(const std::string& file) : path(file)
    {
        if (is_given())
            report = read_parameters(path, record);
    }

    bool is_given() const { return !path.empty(); }
    bool failed() const { return report.worst() == STAAD::Finding::Error; }
    void print_report() const { print_findings(path, report, STAAD::Finding::Warning, {}); }

    const std::string& path;
    Record record;
    STAAD::ReadReport report;
};

using wind_parameters = parameters<STAAD::WindLoadParam>;
using seismic_parameters = parameters<STAAD::SeismicParam>;

exit_code write_model(opened_model& opened, const wind_parameters& wind, const seismic_parameters& seismic,
                      const convert_options& options)
{
    const conversion_notes notes = notes_on(opened.model, opened.report, {wind.is_given(), seismic.is_given()});
    opened.model.wl_param = wind.record;
    opened.model.eq_param = seismic.record;
    const std::string text = opened.model.WriteDataToText();
    // The notes come first: they are easily missed after the warnings on a large model.
    print_notes(output_name(options.out), text, notes);
    print_findings(opened.name, opened.report, least_severity(options.with_notes), {});
    wind.print_report();
    seismic.print_report();
    return write_output(options.out, text, done);
}

exit_code run_convert(const convert_options& options)
{
    if (!options.template_name.empty())
        return print_template(options.template_name);
    if (const std::string reason = why_not_there(options.out, {options.in}, options.force); !reason.empty())
        return fail_to_write(options.out, reason);
    const wind_parameters wind(options.wind);
    const seismic_parameters seismic(options.seismic);
    if (wind.failed() || seismic.failed()) {
        wind.print_report();
        seismic.print_report();
        return wrong_usage;
    }
    opened_model opened = open_model(options.in, options.reading);
    if (!opened.was_read) {
        print_findings(opened.name, opened.report, least_severity(options.with_notes), {});
        return no_model;
    }
    try {
        return write_model(opened, wind, seismic, options);
    } catch (const std::bad_alloc&) {
        return fail_to_write(options.out, "not enough memory to write it");
    }
}

} // namespace

verb_action set_up_convert(CLI::App& command)
{
    const auto options = std::make_shared<convert_options>();
    CLI::Option* const in = command.add_option("IN", options->in, "The .std file to read; - reads standard input");
    CLI::Option* const out = command.add_option("OUT", options->out, "The .std file to write; - is standard output");
    in->required()->option_text(" ");
    out->required()->option_text(" ");
    command.add_option("--wind", options->wind, "JSON file with the parameters of the generated wind loads")
        ->type_name("FILE");
    command.add_option("--seismic", options->seismic, "JSON file with the parameters of the generated seismic case")
        ->type_name("FILE");
    add_reading_option(command, options->reading);
    command.add_flag("--force", options->force, "Overwrite OUT if it exists, even if it is IN");
    command.add_flag("--notes", options->with_notes, "Also print notes of the reading, not only warnings and errors");
    const auto choose_template = [options, in, out](const std::string& name) {
        options->template_name = name;
        in->required(false);
        out->required(false);
    };
    command
        .add_option_function<std::string>("--template", choose_template,
                                          "Print an example of a parameter file and exit")
        ->check(why_no_template)
        ->type_name("NAME")                                                // in messages
        ->option_text(std::string(wind_template) + '|' + seismic_template) // in the help
        ->excludes(in, out);
    return [options] { return run_convert(*options); };
}

} // namespace tool
