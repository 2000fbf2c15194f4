// The verb "info": what a file holds.

#include "cli/messages.h"
#include "cli/open_model.h"
#include "cli/progress_line.h"
#include "cli/verbs.h"
#include "info/info_report.h"
#include "output/std_output.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <vector>

namespace tool {
namespace {

struct info_options {
    std::vector<std::string> files;
    reading_choice reading = reading_choice::complete;
    bool as_json = false;
    bool with_notes = false;
};

struct summaries {
    std::optional<model_summary> of_model;
    std::optional<structure_summary> of_structure;
};

/// Those of a deck that was read; none, with a finding in `opened`, if there is not enough memory.
summaries summaries_of(opened_deck& opened)
{
    summaries made;
    try {
        if (opened.structure)
            made.of_structure = summarise(*opened.structure, opened.report);
        if (opened.was_read)
            made.of_model = summarise(opened.model, opened.report);
    } catch (const std::bad_alloc&) {
        made = {};
        give_up_for_memory(opened);
    }
    return made;
}

/// Opens the files one after the other, and holds one model at a time.
class info_printer {
public:
    explicit info_printer(const info_options& options) : options_(options), is_single_(options.files.size() == 1) {}

    exit_code print()
    {
        std::optional<progress_line> progress;
        if (!is_single_)
            progress.emplace(std::string(), progress_line::unit::files);
        std::size_t count = 0;
        for (const std::string& file : options_.files) {
            put_report(open_deck(file, options_.reading));
            if (progress)
                progress->update(++count, options_.files.size());
        }
        if (options_.as_json && !is_single_)
            array_.close();
        return out_.close(worst_);
    }

private:
    void put_report(opened_deck opened)
    {
        const summaries made = summaries_of(opened);
        const model_summary* const summary = made.of_model ? &*made.of_model : nullptr;
        // The report itself shows what was skipped.
        print_findings(opened.name, opened.report, least_severity(options_.with_notes), skipped_code);
        if (summary == nullptr)
            worst_ = std::max(worst_, no_model);
        const info_report report{opened, summary, made.of_structure ? &*made.of_structure : nullptr};
        if (options_.as_json && is_single_)
            put_info_json(out_, report);
        else if (options_.as_json)
            add_info_json(array_, report);
        else if (!is_single_)
            out_.put(info_line(opened));
        else if (summary != nullptr)
            put_info_text(out_, report);
    }

    const info_options& options_;
    const bool is_single_;
    std_output out_;
    json_array array_{out_};
    exit_code worst_ = done;
};

} // namespace

verb_action set_up_info(CLI::App& command)
{
    const auto options = std::make_shared<info_options>();
    command.add_option("FILE", options->files, "The .std files to read; - reads standard input")
        ->required()
        ->option_text(" ");
    add_reading_option(command, options->reading);
    command.add_flag("--json", options->as_json, "Print JSON: an object, for several files an array of them");
    command.add_flag("--notes", options->with_notes, "Also print notes, not only warnings and errors");
    return [options] { return info_printer(*options).print(); };
}

} // namespace tool
