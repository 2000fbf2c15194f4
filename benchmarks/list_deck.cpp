/// Decks with one block only, whose number lists name everything.
#include "deck_text.h"
#include "frame_deck.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

namespace STAAD::bench {
namespace {

/// A row of members, elements and surfaces between two lines of joints.
void write_row(deck_text& out, int n, bool surfaces)
{
    item_text item;
    out.line("STAAD SPACE ROW");
    out.line("UNIT METER KN");
    out.line("JOINT COORDINATES");
    for (int joint = 1; joint <= n + 1; ++joint)
        out.item(
            item.clear().number(joint).metres(joint * 1250).metres(joint % 2 * 3650).metres(joint % 3 * 2400).view());
    out.end_items();
    out.line("MEMBER INCIDENCES");
    for (int member = 1; member <= n; ++member)
        out.item(item.clear().number(member).number(member).number(member + 1).view());
    out.end_items();
    if (surfaces) {
        out.line("SURFACE INCIDENCE");
        for (int surface = 1; surface <= n; ++surface)
            out.item(item.clear().number(surface).number(surface + 1).number(1).word("SUR").number(surface).view());
    } else {
        out.line("ELEMENT INCIDENCES SHELL");
        for (int element = 1; element <= n; ++element)
            out.item(item.clear().number(element).number(element).number(element + 1).number(1).view());
    }
    out.end_items();
}

std::vector<id_range> all_ids(list_style style, int n)
{
    if (style == list_style::one_range)
        return {{1, n}};
    std::vector<int> ids(static_cast<std::size_t>(n));
    std::iota(ids.begin(), ids.end(), 1);
    std::shuffle(ids.begin(), ids.end(), std::minstd_rand(4711)); // NOLINT: the same order on every run
    std::vector<id_range> singles;
    for (const int id : ids)
        singles.push_back({id, id});
    return singles;
}

/// The texts that open a block, precede and follow each of its lists, and close it.
struct list_frame {
    const char* opening;
    const char* head;
    const char* tail;
    const char* closing;
};

list_frame frame_of(list_block block)
{
    switch (block) {
    case list_block::property:
        return {"MEMBER PROPERTY AMERICAN", "", "TABLE ST W12X26", "CONSTANTS"};
    case list_block::beta:
        return {"CONSTANTS", "BETA 90 MEMB", "", ""};
    case list_block::material:
        return {"CONSTANTS", "MATERIAL STEEL MEMB", "", ""};
    case list_block::support:
        return {"SUPPORTS", "", "FIXED", ""};
    case list_block::release:
        return {"MEMBER RELEASE", "", "START MY MZ", ""};
    case list_block::offset:
        return {"MEMBER OFFSET", "", "START 0.15 0 0.2", ""};
    case list_block::truss:
        return {"", "", "", ""}; // each list has a keyword line of its own
    case list_block::group:
        return {"START GROUP DEFINITION\nMEMBER", "_ALL", "", "END GROUP DEFINITION"};
    case list_block::thickness:
        return {"ELEMENT PROPERTY", "", "THICKNESS 0.12", ""};
    case list_block::surface_thickness:
        return {"SURFACE PROPERTY", "", "THICKNESS 0.12", ""};
    case list_block::member_load:
        return {"LOAD 1 LOADTYPE Dead TITLE DEAD LOAD\nMEMBER LOAD", "", "UNI GY -12.5", ""};
    case list_block::joint_load:
        return {"LOAD 1 LOADTYPE Wind TITLE WIND LOAD\nJOINT LOAD", "", "FX 4.85", ""};
    }
    return {"", "", "", ""};
}

void line_unless_empty(deck_text& out, std::string_view text)
{
    if (!text.empty())
        out.line(text);
}

} // namespace

std::string make_list_deck(list_block block, list_style style, int n, int lines)
{
    deck_text out;
    write_row(out, n, block == list_block::surface_thickness);
    const list_frame parts = frame_of(block);
    const std::vector<id_range> ids = all_ids(style, n);
    line_unless_empty(out, parts.opening);
    for (int line = 0; line < lines; ++line) {
        if (block == list_block::truss)
            out.line("MEMBER TRUSS");
        out.list(parts.head, ids, parts.tail);
    }
    line_unless_empty(out, parts.closing);
    out.line("FINISH");
    return std::move(out).take();
}

} // namespace STAAD::bench
