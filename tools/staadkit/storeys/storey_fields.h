/// The keys of the document that "storeys --json" prints.
#ifndef TOOLS_STAADKIT_STOREYS_STOREY_FIELDS_H
#define TOOLS_STAADKIT_STOREYS_STOREY_FIELDS_H

#include "cli/open_model.h"
#include "output/json_writer.h"
#include "storeys/storey_summary.h"

#include <optional>
#include <string>
#include <vector>

namespace tool {

template<class Visit>
void each_field(const level_contents& contents, Visit visit)
{
    visit("joints", contents.joints.size());
    visit_kinds(contents.members_of, visit);
    visit("shells", contents.shells());
    visit("members_with_forces", contents.members_with_forces);
    visit("joint_numbers", contents.joints);
    visit("member_numbers", contents.members);
    visit("element_numbers", contents.elements);
    visit("surface_numbers", contents.surfaces);
}

template<class Visit>
void each_field(const storey_summary& storey, Visit visit)
{
    visit("number", storey.number);
    visit("base_mm", storey.base);
    visit("height_mm", storey.height);
    visit("sections", storey.sections);
    each_field(storey.contents, visit);
}

template<class Visit>
void each_field(const numbered_section& section, Visit visit)
{
    visit("number", section.number);
    visit("property", section.property);
    visit("material", section.material);
    visit("members", section.members);
    visit("members_in_no_storey", section.in_none);
    visit("storeys", section.storeys);
}

/// Members and elements that are in no storey for the same reason.
struct outside_record {
    outside reason;
    const level_contents& contents;
};

template<class Visit>
void each_field(const outside_record& record, Visit visit)
{
    visit("reason", std::string(outside_word(record.reason)));
    each_field(record.contents, visit);
}

/// The whole document.
struct storeys_document {
    const opened_model& opened;
    const std::optional<opened_forces>& forces;
    const storeys_summary* summary; ///< null if no model was read
};

template<class Visit>
void each_field(const storeys_document& document, Visit visit)
{
    visit("file", document.opened.name);
    visit("was_read", document.opened.was_read);
    if (document.summary != nullptr) {
        visit("levels_mm", document.summary->levels);
        visit("storeys", document.summary->storeys);
        std::vector<outside_record> in_none;
        for (std::size_t i = 0; i < outside_reasons; ++i)
            in_none.push_back({static_cast<outside>(i), document.summary->in_none[i]});
        visit("in_no_storey", in_none);
        visit("sections", document.summary->sections);
    }
    visit("forces", document.forces);
    visit("findings", document.opened.report.findings);
}

} // namespace tool

#endif
