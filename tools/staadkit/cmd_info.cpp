// The verb "info": what a file holds.

#include "info_json.h"
#include "info_text.h"
#include "messages.h"
#include "model_summary.h"
#include "open_model.h"
#include "std_output.h"
#include "verbs.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <vector>

namespace tool {
namespace {

struct info_options {
    std::vector<std::string> files;
    bool as_json = false;
    bool with_notes = false;
};

/// Opens the files one after the other; of several models only one is held at a time.
class info_run {
public:
    explicit info_run(const info_options& options) : options_(options), is_single_(options.files.size() == 1) {}

    exit_code run()
    {
        for (const std::string& file : options_.files)
            report(open_model(file));
        if (options_.as_json)
            print_json();
        return out_.close(worst_);
    }

private:
    void report(const opened_model& opened)
    {
        // What was skipped stands in the report itself.
        print_findings(opened.name, opened.report, least_severity(options_.with_notes), skipped_code);
        if (!opened.was_read)
            worst_ = std::max(worst_, no_model);
        if (options_.as_json)
            add_json(opened);
        else if (!is_single_)
            out_.put(one_line_report(opened));
        else if (opened.was_read)
            out_.put(full_report(opened, summarise(opened.model, opened.report)));
    }

    void add_json(const opened_model& opened)
    {
        if (!opened.was_read) {
            reports_.push_back(json_report(opened, nullptr));
            return;
        }
        const model_summary summary = summarise(opened.model, opened.report);
        reports_.push_back(json_report(opened, &summary));
    }

    void print_json()
    {
        out_.put((is_single_ ? reports_.front() : reports_).dump(2));
        out_.put('\n');
    }

    const info_options& options_;
    const bool is_single_;
    std_output out_;
    nlohmann::ordered_json reports_ = nlohmann::ordered_json::array();
    exit_code worst_ = done;
};

} // namespace

verb_action set_up_info(CLI::App& command)
{
    const auto options = std::make_shared<info_options>();
    command.add_option("FILE", options->files, "The .std files to read; - reads standard input")
        ->required()
        ->option_text(" ");
    command.add_flag("--json", options->as_json, "Print JSON: an object, for several files an array of them");
    command.add_flag("--notes", options->with_notes, "Also print notes, not only warnings and errors");
    return [options] { return info_run(*options).run(); };
}

} // namespace tool
