// The verb "dump": every public field of a model as JSON.

#include "cli/messages.h"
#include "cli/open_model.h"
#include "cli/verbs.h"
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
    bool with_notes = false;
};

exit_code run_dump(const dump_options& options)
{
    opened_model opened = open_model(options.file);
    print_findings(opened.name, opened.report, least_severity(options.with_notes), {});
    if (!opened.was_read)
        return no_model;
    std_output out;
    try {
        json_writer(out).document(opened.model);
    } catch (const std::bad_alloc&) {
        give_up_for_memory(opened);
        print_finding(opened.name, opened.report.findings.back());
        return out.close(no_model);
    }
    return out.close(done);
}

} // namespace

verb_action set_up_dump(CLI::App& command)
{
    const auto options = std::make_shared<dump_options>();
    command.add_option("FILE", options->file, "The .std file to read; - reads standard input")
        ->required()
        ->option_text(" ");
    command.add_flag("--notes", options->with_notes, "Also print notes, not only warnings and errors");
    return [options] { return run_dump(*options); };
}

} // namespace tool
