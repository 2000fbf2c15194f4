// The verb "compare": how a model differs from an earlier one, and what it can take over from it.

#include "cli/messages.h"
#include "cli/open_model.h"
#include "cli/terminal_services.h"
#include "cli/text_encoding.h"
#include "cli/verbs.h"
#include "compare/comparison_fields.h"
#include "compare/comparison_text.h"
#include "compare/model_comparison.h"
#include "convert/conversion_notes.h"
#include "output/json_writer.h"
#include "output/model_output.h"
#include "output/std_output.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <new>
#include <string>

namespace tool {
namespace {

struct compare_options {
    std::string now;
    std::string earlier;
    std::string out; ///< empty: nothing is taken over
    reading_choice reading = reading_choice::host;
    bool force = false;
    bool yes = false;
    bool as_json = false;
    bool with_notes = false;

    bool takes_over() const { return !out.empty(); }
    /// The model goes to standard output, and no report is printed.
    bool out_is_standard_output() const { return out == "-"; }
};

/// An error in the arguments; empty if there is none.
std::string wrong_arguments(const compare_options& options)
{
    if (options.now == "-" && options.earlier == "-")
        return "only one of the models can come from standard input";
    if (options.out_is_standard_output() && options.as_json)
        return "--take-over - and --json both need standard output";
    return {};
}

/// Why nothing can be taken over from any model; empty if it can.
std::string why_no_take_over(const compare_options& options)
{
    if (!options.takes_over())
        return {};
    if (std::string reason = why_not_there(options.out, {options.now, options.earlier}, options.force); !reason.empty())
        return reason;
    return options.yes || can_ask() ? std::string()
                                    : "there is no terminal to ask at; --yes takes over and writes without a question";
}

exit_code put_text(const comparison_document& document, exit_code so_far)
{
    std_output out;
    out.put("NEW: " + printable_name(document.now.name) + "\nOLD: " + printable_name(document.earlier.name) + '\n');
    put_comparison(out, *document.compared);
    return out.close(so_far);
}

exit_code put_report(const comparison_document& document, const compare_options& options, exit_code so_far)
{
    if (options.out_is_standard_output())
        return so_far;
    return options.as_json ? print_document(document, so_far) : put_text(document, so_far);
}

exit_code take_over(opened_model& now, const opened_model& earlier, const compare_options& options, exit_code so_far)
{
    const std::string question =
        "Take groups, supports and releases over, and write " + printable_name(output_name(options.out)) + '?';
    if (!options.yes && !ask_yes_no(question))
        return fail_to_write(options.out, "not written: the answer was no");
    now.model.TakeOverFrom(earlier.model);
    const conversion_notes notes = notes_on(now.model, now.report, {});
    const std::string text = now.model.WriteDataToText();
    print_notes(output_name(options.out), text, notes);
    return write_output(options.out, text, so_far);
}

exit_code compare_read(opened_model& now, const opened_model& earlier, const compare_options& options)
{
    exit_code result = done;
    {
        const compared_models compared = compare_models(now.model, earlier.model);
        result = compared.comparison.differ() ? done_with_findings : done;
        result = put_report({now, earlier, &compared}, options, result);
    }
    if (!options.takes_over() || result == not_written)
        return result;
    try {
        return take_over(now, earlier, options, result);
    } catch (const std::bad_alloc&) {
        return fail_to_write(options.out, "not enough memory to write it");
    }
}

opened_model open_and_report(const std::string& path, const compare_options& options)
{
    opened_model opened = open_model(path, options.reading);
    print_findings(opened.name, opened.report, least_severity(options.with_notes), {});
    return opened;
}

exit_code run_compare(const compare_options& options)
{
    if (const std::string wrong = wrong_arguments(options); !wrong.empty()) {
        print_error(wrong);
        return wrong_usage;
    }
    if (const std::string reason = why_no_take_over(options); !reason.empty())
        return fail_to_write(options.out, reason);
    opened_model now = open_and_report(options.now, options);
    opened_model earlier = open_and_report(options.earlier, options);
    try {
        if (now.was_read && earlier.was_read)
            return compare_read(now, earlier, options);
    } catch (const std::bad_alloc&) {
        earlier.model = {};
        give_up_for_memory(now);
        print_finding(now.name, now.report.findings.back());
    }
    return options.as_json ? print_document(comparison_document{now, earlier, nullptr}, no_model) : no_model;
}

} // namespace

verb_action set_up_compare(CLI::App& command)
{
    const auto options = std::make_shared<compare_options>();
    command.add_option("NEW", options->now, "The new .std file; - reads standard input")->required()->option_text(" ");
    command.add_option("OLD", options->earlier, "The earlier .std file; - reads standard input")
        ->required()
        ->option_text(" ");
    add_reading_option(command, options->reading);
    CLI::Option* const out = command.add_option("--take-over", options->out,
                                                "Write NEW to OUT with the groups, supports and releases of OLD");
    out->type_name("OUT")->option_text("OUT");
    command.add_flag("--yes", options->yes, "Take over without asking first")->needs(out)->option_text(" ");
    command.add_flag("--force", options->force, "Overwrite OUT if it exists, even if it is NEW or OLD")
        ->needs(out)
        ->option_text(" ");
    command.add_flag("--json", options->as_json, "Print JSON, with all the numbers");
    command.add_flag("--notes", options->with_notes, "Also print notes of the reading, not only warnings and errors");
    return [options] { return run_compare(*options); };
}

} // namespace tool
