// The verb "info": what a file holds.

#include "cli/messages.h"
#include "cli/open_model.h"
#include "cli/verbs.h"
#include "info/info_json.h"
#include "info/info_text.h"
#include "info/model_summary.h"
#include "output/std_output.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>
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
            tell(open_model(file));
        if (options_.as_json && !is_single_)
            out_.put("\n]\n");
        return out_.close(worst_);
    }

private:
    void tell(opened_model opened)
    {
        // What was skipped stands in the report itself.
        print_findings(opened.name, opened.report, least_severity(options_.with_notes), skipped_code);
        try {
            put_report(opened);
        } catch (const std::bad_alloc&) {
            give_up_for_memory(opened);
            print_finding(opened.name, opened.report.findings.back());
            put_report(opened);
        }
        if (!opened.was_read)
            worst_ = std::max(worst_, no_model);
    }

    void put_report(const opened_model& opened)
    {
        if (options_.as_json)
            put_json(opened);
        else if (!is_single_)
            out_.put(one_line_report(opened));
        else if (opened.was_read)
            put_full_report(out_, opened, summarise(opened.model, opened.report));
    }

    void put_json(const opened_model& opened)
    {
        nlohmann::ordered_json report = json_of(opened);
        if (is_single_) {
            out_.put(report.dump(2) += '\n');
            return;
        }
        // The array is written item by item, so that one report at a time takes memory.
        nlohmann::ordered_json items = nlohmann::ordered_json::array();
        items.push_back(std::move(report));
        const std::string text = items.dump(2);
        out_.put(is_first_item_ ? '[' : ',');
        out_.put(std::string_view(text).substr(1, text.size() - 3)); // without "[" and "\n]"
        is_first_item_ = false;
    }

    static nlohmann::ordered_json json_of(const opened_model& opened)
    {
        if (!opened.was_read)
            return json_report(opened, nullptr);
        const model_summary summary = summarise(opened.model, opened.report);
        return json_report(opened, &summary);
    }

    const info_options& options_;
    const bool is_single_;
    bool is_first_item_ = true;
    std_output out_;
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
