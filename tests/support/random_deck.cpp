#include "tests/support/random_deck.h"

#include "tests/support/placed_models.h"
#include "tests/support/random_loads.h"
#include "tests/support/random_sections.h"
#include "tests/support/random_text.h"
#include "tests/support/random_units.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <sstream>
#include <vector>

namespace STAAD::decks {
namespace {

using words = std::vector<std::string>;

std::string joined_by_blanks(const words& parts)
{
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : " ") + part;
    return text;
}

words together(words first, const words& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

class deck_maker {
public:
    deck_maker(std::uint64_t seed, int members, deck_kind kind)
        : random_(seed), out_(random_, kind == deck_kind::plain), units_(random_unit_line(random_)), members_(members),
          is_plain_(kind == deck_kind::plain)
    {
        if (is_plain_)
            units_ = {"UNIT METER KN", 1000.0};
    }

    random_deck make() &&
    {
        enter_unit();
        choose_joints();
        choose_members();
        choose_shells();
        choose_surfaces();
        write();
        return {std::move(model_), out_.take()};
    }

private:
    /// Whether to add something that no plain deck has.
    bool odd_one_in(int count) { return !is_plain_ && random_.one_in(count); }

    void add_noise()
    {
        if (!is_plain_)
            out_.noise();
    }

    /// A list of numbers of the pool; of a plain deck each once and ascending, with no number that has no record.
    id_list list_from(const std::vector<int>& pool, list_kind kind)
    {
        if (!is_plain_)
            return random_list(random_, pool, kind);
        std::vector<int> numbers = pool;
        std::sort(numbers.begin(), numbers.end());
        return plain_list(numbers, 0, numbers.size());
    }

    id_list plain_list(const std::vector<int>& numbers, std::size_t begin, std::size_t end)
    {
        id_list list;
        for (std::size_t first = begin; first < end;) {
            const std::size_t last =
                random_.one_in(2)
                    ? first
                    : static_cast<std::size_t>(random_.between(static_cast<int>(first), static_cast<int>(end) - 1));
            list.words.push_back(std::to_string(numbers[first]));
            list.pieces.push_back({numbers[first], numbers[first], false});
            if (last > first) {
                list.words.insert(list.words.end(), {"TO", std::to_string(numbers[last])});
                list.pieces.push_back({numbers[first] + 1, numbers[last], true});
            }
            first = last + static_cast<std::size_t>(random_.between(2, 5));
        }
        return list;
    }

    // ---- what the deck holds -------------------------------------------------------------------

    void enter_unit()
    {
        model_.unit_text = units_.text;
        model_.length_factor = units_.length_factor;
        model_.force_factor = units_.force_factor;
        model_.force_length_factor = units_.force_length_factor;
    }

    /// Distinct numbers with gaps between, in random order or ascending. Of a plain deck without gaps, and none that
    /// another kind of record has.
    std::vector<int> choose_numbers(int count)
    {
        std::vector<int> numbers;
        int number = random_.one_in(4) ? random_.between(1, 200000) : 0;
        if (is_plain_)
            number += plain_numbers_ += 1000000;
        for (int i = 0; i < count; ++i) {
            number += odd_one_in(3) ? random_.between(1, 5) : 1;
            numbers.push_back(number);
        }
        if (random_.one_in(3))
            random_.shuffle(numbers);
        return numbers;
    }

    /// Now and then a number that no record has.
    int any_joint() { return odd_one_in(100) ? random_.between(900000, 900099) : random_.any_of(joint_ids_); }

    double length(const decimal& number) const { return number.value() * units_.length_factor; }

    void choose_joints()
    {
        joint_ids_ = choose_numbers(random_.between(is_plain_ ? 4 : 2, members_ + 2));
        for (const int number : joint_ids_) {
            const decimal x = random_decimal(random_, -60, 60);
            const decimal y = random_decimal(random_, 0, 90);
            const decimal z = random_decimal(random_, -60, 60);
            model_.nodes.push_back(placed::joint(number, {length(z), length(x), length(y)}));
            model_.node_index[number] = static_cast<int>(model_.nodes.size());
            joint_items_.push_back({std::to_string(number), spelled(x), spelled(y), spelled(z)});
            add_ignored_word(joint_items_.back());
        }
    }

    void add_ignored_word(words& item)
    {
        if (odd_one_in(40))
            item.push_back("99");
    }

    std::string spelled(const decimal& number) { return number.spelled(random_); }

    /// Position of a joint that a member or an element names; unknown joints enter the index.
    int named_position(int joint) { return model_.node_index.emplace(joint, 0).first->second; }

    void choose_members()
    {
        member_ids_ = choose_numbers(members_);
        for (const int number : member_ids_) {
            const int start = any_joint();
            int end = any_joint();
            while (is_plain_ && end == start)
                end = any_joint();
            model_.beams.push_back(placed::member(number, named_position(start), named_position(end)));
            model_.beam_index[number] = static_cast<int>(model_.beams.size());
            member_items_.push_back({std::to_string(number), std::to_string(start), std::to_string(end)});
            add_ignored_word(member_items_.back());
        }
    }

    void choose_shells()
    {
        if (random_.one_in(3))
            return;
        shell_ids_ = choose_numbers(random_.between(1, members_));
        for (const int number : shell_ids_) {
            SdShell shell;
            shell.id = number;
            shell.material = "C1";
            words item{std::to_string(number)};
            const int corners = random_.between(3, 4);
            for (int corner = 0; corner < corners; ++corner) {
                const int joint = is_plain_ ? joint_ids_[static_cast<std::size_t>(corner)] : any_joint();
                shell.node_ids.push_back(named_position(joint));
                item.push_back(std::to_string(joint));
            }
            model_.shells.push_back(shell);
            model_.shell_index[number] = static_cast<int>(model_.shells.size());
            shell_items_.push_back(item);
        }
    }

    void choose_surfaces()
    {
        if (!random_.one_in(3))
            return;
        surface_ids_ = choose_numbers(random_.between(1, 8));
        for (const int number : surface_ids_) {
            SdSurface surface;
            surface.material = "CONCRETE";
            words item;
            for (int corner = random_.between(is_plain_ ? 3 : 2, 6); corner > 0; --corner) {
                surface.node_ids.push_back(any_joint());
                item.push_back(std::to_string(surface.node_ids.back()));
            }
            surface.id = number;
            item.insert(item.end(), {random_.any_of({"SUR", "SURFACE"}), std::to_string(number)});
            model_.surfaces.push_back(surface);
            model_.surface_index[number] = static_cast<int>(model_.surfaces.size());
            surface_items_.push_back(item);
        }
    }

    // ---- blocks: each decides, enters the model and lays out its lines --------------------------

    using block = void (deck_maker::*)();

    /// A block in its place, or not at all.
    void add_maybe(std::vector<block>& blocks, block write_block)
    {
        if (random_.one_in(2))
            blocks.push_back(write_block);
    }

    void write(const std::vector<block>& blocks)
    {
        for (const block write_block : blocks) {
            add_noise();
            (this->*write_block)();
        }
        add_noise();
    }

    void write()
    {
        // found wherever they stand, even before the joints
        std::vector<block> anywhere;
        add_maybe(anywhere, &deck_maker::write_user_tables);
        add_maybe(anywhere, &deck_maker::write_material_block);
        add_maybe(anywhere, &deck_maker::write_supports);
        add_maybe(anywhere, &deck_maker::write_releases);
        add_maybe(anywhere, &deck_maker::write_offsets);
        add_maybe(anywhere, &deck_maker::write_braces);
        if (!surface_ids_.empty())
            anywhere.push_back(&deck_maker::write_surfaces);
        random_.shuffle(anywhere);
        const auto some = random_.one_in(4) ? random_.between(0, static_cast<int>(anywhere.size())) : 0;
        std::vector<block> before(anywhere.begin(), anywhere.begin() + some);
        std::vector<block> after(anywhere.begin() + some, anywhere.end());
        add_maybe(after, &deck_maker::write_groups);
        if (!shell_ids_.empty())
            after.push_back(&deck_maker::write_shells);
        random_.shuffle(after);

        write_head();
        write(before);
        write_joints();
        out_.line("MEMBER INCIDENCES");
        out_.items(member_items_, true);
        write(after);
        write_assignments();
        write_loads();
        finish_surfaces();
    }

    void write_head()
    {
        if (is_plain_ || random_.one_in(2))
            out_.line("STAAD SPACE");
        if (random_.one_in(3))
            out_.comment();
        out_.line(model_.unit_text);
    }

    void write_joints()
    {
        out_.line(random_.any_of({"JOINT COORDINATES", "JOINT COORDINATES", "JOINT COORDINATES CARTESIAN"}));
        const auto half = joint_items_.begin() + static_cast<std::ptrdiff_t>(joint_items_.size() / 2);
        out_.items({joint_items_.begin(), half}, true);
        if (random_.one_in(3))
            out_.comment();
        out_.items({half, joint_items_.end()}, true);
    }

    void write_shells()
    {
        out_.line("ELEMENT INCIDENCES SHELL");
        out_.items(shell_items_, false);
        add_noise();
        if (random_.one_in(2))
            write_thickness();
    }

    /// Enters the unknown numbers that stand alone in the element index, and calls `visit(position)`
    /// for the others.
    template<class Visit>
    void for_each_element(int number, bool stands_alone, Visit visit)
    {
        auto found = model_.shell_index.find(number);
        if (found == model_.shell_index.end() && stands_alone)
            found = model_.shell_index.emplace(number, 0).first;
        if (found != model_.shell_index.end() && found->second > 0)
            visit(static_cast<std::size_t>(found->second - 1));
    }

    void write_thickness()
    {
        out_.line("ELEMENT PROPERTY");
        for (int line = random_.between(1, 5); line > 0; --line) {
            const decimal value = random_decimal(random_, 0, 9);
            const id_list list = list_from(shell_ids_, list_kind::whole_ranges);
            for (const id_piece& piece : list.pieces) {
                for (int number = piece.first; number <= piece.last; ++number)
                    for_each_element(number, !piece.is_range, [&](std::size_t position) {
                        model_.shells[position].thickness = truncated(length(value));
                    });
            }
            words tail{random_.any_of({"THICKNESS", "TH"}), spelled(value)};
            if (odd_one_in(4))
                tail.insert(tail.end() - 1, {"0.75", "0.5", "0.25"}); // a value for each corner: the last counts
            out_.words(together(list.words, tail));
            if (odd_one_in(10))
                out_.line(std::to_string(shell_ids_.front()) + " 0.5"); // two words: no element
        }
    }

    void write_surfaces()
    {
        out_.line("SURFACE INCIDENCE");
        out_.items(surface_items_, false);
        if (random_.one_in(3))
            return;
        out_.line(random_.any_of({"SURFACE PROPERTY", "SURFACE PROPERTY SIMPLE"}));
        for (int line = random_.between(1, 4); line > 0; --line) {
            const decimal value = random_decimal(random_, 0, 9);
            const id_list list = list_from(surface_ids_, list_kind::general);
            for (const int number : list.ids()) {
                const auto found = model_.surface_index.find(number);
                if (found != model_.surface_index.end())
                    model_.surfaces[static_cast<std::size_t>(found->second - 1)].thickness = truncated(length(value));
            }
            out_.words(together(list.words, {"THICKNESS", spelled(value)}));
            if (odd_one_in(4))
                out_.line(std::to_string(surface_ids_.front()) + " 0.5"); // two words: no surface
        }
    }

    /// Every surface once more among the shells, its corners as positions. Unknown joints stay out of
    /// the index here.
    void finish_surfaces()
    {
        for (const SdSurface& surface : model_.surfaces) {
            SdShell shell;
            shell.id = surface.id;
            shell.thickness = surface.thickness;
            shell.material = material_of_all_.empty() ? surface.material : material_of_all_;
            for (const int joint : surface.node_ids) {
                const auto found = model_.node_index.find(joint);
                shell.node_ids.push_back(found == model_.node_index.end() ? 0 : found->second);
            }
            model_.shells.push_back(shell);
        }
    }

    void write_groups()
    {
        out_.line("START GROUP DEFINITION");
        std::string kind;
        for (int line = random_.between(1, 8); line > 0; --line) {
            if (random_.one_in(2) || (is_plain_ && kind.empty())) {
                kind = is_plain_ ? random_.any_of({"JOINT", "MEMBER", "FLOOR"})
                                 : random_.any_of({"JOINT", "MEMBER", "ELEMENT", "GEOMETRY", "FLOOR"});
                out_.line(kind);
            }
            if (odd_one_in(10))
                out_.line(random_.any_of({"JOINT ", "_LONELY", " FLOOR"})); // one word: no group, no kind
            const std::string name = "_G" + std::to_string(is_plain_ ? line : random_.between(1, 99));
            const id_list list = list_from(kind == "JOINT" ? joint_ids_ : member_ids_, list_kind::group);
            model_.groups.push_back({kind, name, list.ids()});
            words line_words = together({name}, list.words);
            if (odd_one_in(6))
                line_words.insert(line_words.end(), {random_.any_of({"0", "ALL"}), "7"}); // ends the list
            out_.words(line_words);
        }
        out_.line("END GROUP DEFINITION");
    }

    void write_user_tables()
    {
        words body;
        struct row {
            int table;
            std::size_t line;
        };
        std::vector<row> rows;
        for (int table = 1; table <= random_.between(1, 3); ++table) {
            body.push_back(random_.any_of({"TABLE ", is_plain_ ? "TABLE " : "TABLE  "}) + std::to_string(table));
            SdUserSectionTable& record = model_.usr_tables[table];
            record.unit = "00UNIT METER KN";
            record.type = "00WIDE FLANGE";
            if (!odd_one_in(4)) {
                record.unit = random_.any_of({"UNIT METER KN", is_plain_ ? "UNIT METER KN" : "UNIT INCHES KIP"});
                record.type = random_.any_of({"WIDE FLANGE", "CHANNEL", "TUBE", "ISECTION", "GENERAL"});
                body.insert(body.end(), {record.unit, record.type});
            }
            for (int count = random_.between(1, 4); count > 0; --count) {
                rows.push_back({table, body.size()});
                const int depth = is_plain_ ? 100 + static_cast<int>(rows.size()) : random_.between(100, 120);
                body.push_back("H" + std::to_string(depth) + "X200");
                rows.push_back({table, body.size()});
                body.push_back(joined_by_blanks(
                    {spelled(random_decimal(random_, 0, 1)), "0.3", is_plain_ ? "0.012" : "0.012 ", "0.2"}));
            }
        }
        body.push_back("END");
        for (const row& at : rows)
            model_.usr_tables[at.table].records[body[at.line]] = body[at.line + 1];
        out_.line("START USER TABLE");
        for (const std::string& text : body)
            out_.line(text);
    }

    void write_material_block()
    {
        out_.line("DEFINE MATERIAL START");
        out_.line("ISOTROPIC STEEL");
        out_.line("DENSITY 76.8195");
        if (random_.one_in(3)) {
            out_.line("ISOTROPIC BRICK");
        } else {
            // the first line that is no DENSITY line gives the density: what stands after its seventh column
            const decimal density = random_decimal(random_, 0, 30);
            model_.concrete_density = density.value();
            out_.line(
                random_.any_of({"ISOTROPIC CONCRETE", is_plain_ ? "ISOTROPIC CONCRETE" : "  ISOTROPIC CONCRETE C30"}));
            if (random_.one_in(2))
                out_.line("DENSITY 24.5");
            out_.line(random_.any_of({"POISSON ", "E      ", "ALPHA  "}) + spelled(density));
            out_.line("DENSITY 25.5");
        }
        out_.line("END DEFINE MATERIAL");
    }

    /// Lines of a list and a description each, into a map by description.
    void write_described(std::map<std::string, std::vector<unsigned>>& target, const std::vector<int>& pool,
                         std::initializer_list<const char*> descriptions)
    {
        std::vector<int> numbers = pool;
        std::sort(numbers.begin(), numbers.end());
        auto lines = static_cast<std::size_t>(random_.between(1, 6));
        if (is_plain_)
            lines = std::min(lines, pool.size());
        for (std::size_t line = 0; line < lines; ++line) {
            // in a plain deck each record once: of two descriptions the host reading keeps both
            const id_list list =
                is_plain_ ? plain_list(numbers, numbers.size() * line / lines, numbers.size() * (line + 1) / lines)
                          : random_list(random_, pool, list_kind::general);
            const std::string description = random_.any_of(descriptions);
            std::vector<unsigned>& ids = target[description];
            for (const int number : list.ids())
                ids.push_back(static_cast<unsigned>(number));
            std::istringstream text(description);
            out_.words(together(list.words, {std::istream_iterator<std::string>(text), {}}));
        }
    }

    void write_supports()
    {
        out_.line("SUPPORTS");
        if (is_plain_) {
            write_described(model_.supports, joint_ids_,
                            {"FIXED", "PINNED", "FIXED BUT MX MZ", "FIXED BUT KFX 100", "FIXED BUT MY KMZ 12.50"});
            return;
        }
        write_described(model_.supports, joint_ids_,
                        {"FIXED", "PINNED", "FIXED BUT MX MZ", "FIXED BUT KFX 100 TO 7", "", "0 FIXED"});
    }

    void write_releases()
    {
        out_.line("MEMBER RELEASE");
        if (is_plain_) {
            write_described(model_.releases, member_ids_,
                            {"START MY MZ", "END MY MZ", "START MX", "END MP 0.5", "START KMZ 20"});
            return;
        }
        write_described(model_.releases, member_ids_,
                        {"START MY MZ", "END MY MZ", "START MX", "BOTH STARTING 2", "END MP 0.5"});
    }

    void write_offsets()
    {
        out_.line("MEMBER OFFSET");
        for (int line = random_.between(1, 6); line > 0; --line) {
            const bool at_start = random_.one_in(2);
            const decimal x = random_decimal(random_, -2, 2);
            const decimal y = random_decimal(random_, -2, 2);
            const decimal z = random_decimal(random_, -2, 2);
            const id_list list = list_from(member_ids_, list_kind::general);
            for_each_member(list, [&](SdBeam& member) {
                (at_start ? member.offset_start : member.offset_end) = {length(z), length(x), length(y)};
            });
            out_.words(together(list.words, {at_start ? "START" : "END", spelled(x), spelled(y), spelled(z)}));
        }
    }

    template<class Visit>
    void for_each_member(const id_list& list, Visit visit)
    {
        for (const int number : list.ids()) {
            const auto found = model_.beam_index.find(number);
            if (found != model_.beam_index.end())
                visit(model_.beams[static_cast<std::size_t>(found->second - 1)]);
        }
    }

    void write_braces()
    {
        for (int count = random_.between(1, 3); count > 0; --count) {
            out_.line(random_.any_of({"MEMBER TRUSS", "MEMBER TENSION", "MEMBER COMPRESSION"}));
            const id_list list = list_from(member_ids_, list_kind::general);
            for (const int number : list.ids())
                model_.brace_ids.insert(number);
            out_.words(list.words);
        }
    }

    // ---- properties, beta angles and materials ---------------------------------------------------

    void write_assignments()
    {
        const int property_blocks = random_.between(0, 2);
        for (int count = property_blocks; count > 0; --count)
            write_properties();
        // without CONSTANTS the property lines run on to the end of the file, over nothing that looks like one
        if (is_plain_ || random_.one_in(2))
            out_.line("CONSTANTS");
        for (int line = random_.between(0, 4); line > 0; --line)
            write_beta();
        for (int line = random_.between(0, 4); line > 0; --line)
            write_material();
        add_noise();
    }

    void write_properties()
    {
        std::string code = random_.any_of({"", "CHINESE", "AMERICAN", "JAPANESE NEW"});
        out_.line("MEMBER PROPERTY" + random_.any_of({std::string(" "), std::string("   ")}) + code +
                  random_.any_of({"", "  "}));
        for (int line = random_.between(0, 8); line > 0; --line) {
            const written_section section =
                is_plain_ ? plain_section(random_) : random_section(random_, units_.length_factor);
            const id_list list = list_from(member_ids_, list_kind::general);
            for_each_member(list, [&](SdBeam& member) {
                member.material = "STEEL";
                member.sect_country = code;
                member.sect_name = section.written;
                member.sect_text = section.normalised;
            });
            out_.words_then(list.words, section.written);
            if (odd_one_in(6))
                out_.line(random_.any_of({"1 PRIS YD", "ALL PRIS YD 0.5", "1 2 YD 0.5"})); // no property lines
            if (random_.one_in(6))
                out_.comment();
        }
    }

    void write_beta()
    {
        const decimal angle = random_decimal(random_, -180, 180);
        if (odd_one_in(6)) {
            out_.words({"BETA", spelled(angle), "ALL"}); // names no member
            return;
        }
        const id_list list = list_from(member_ids_, list_kind::general);
        for_each_member(list, [&](SdBeam& member) { member.beta = angle.value(); });
        words line = together({"BETA", spelled(angle), "MEMB"}, list.words);
        if (odd_one_in(5))
            line.insert(line.end(), {random_.any_of({"0", "ALL", "to"}), "1"}); // ends the list
        out_.words(line);
    }

    void write_material()
    {
        const std::string name = random_.any_of({"STEEL", "CONCRETE", "C30", "Q345"});
        if (random_.one_in(8)) {
            material_of_all_ = name;
            for (SdBeam& member : model_.beams)
                member.material = name;
            for (SdShell& shell : model_.shells)
                shell.material = name;
            out_.words({"MATERIAL", name, "ALL"});
            return;
        }
        const bool of_elements = !shell_ids_.empty() && random_.one_in(2);
        const id_list list = list_from(of_elements ? shell_ids_ : member_ids_, list_kind::whole_ranges);
        for (const id_piece& piece : list.pieces) {
            for (int number = piece.first; number <= piece.last; ++number)
                assign_material(name, number, !piece.is_range);
        }
        out_.words(together({"MATERIAL", name, random_.any_of({"MEMB", "MEMBER"})}, list.words));
    }

    /// A number that a member has is that member's; any other is an element's.
    void assign_material(const std::string& name, int number, bool stands_alone)
    {
        const auto member = model_.beam_index.find(number);
        if (member != model_.beam_index.end())
            model_.beams[static_cast<std::size_t>(member->second - 1)].material = name;
        else
            for_each_element(number, stands_alone,
                             [&](std::size_t position) { model_.shells[position].material = name; });
    }

    // ---- loads ---------------------------------------------------------------------------------

    void write_loads()
    {
        const int cases = random_.one_in(4) ? 0 : random_.between(1, 6);
        for (int count = cases; count > 0; --count)
            write_load_case();
        if (odd_one_in(2)) {
            out_.line("LOAD COMB 77 ALL OF THEM TOGETHER");
            out_.line("MEMBER LOAD");
            out_.line("1 UNI GY -1"); // after the first combination nothing is read
        } else if (cases > 0 && odd_one_in(2)) {
            out_.line(std::to_string(member_ids_.front()) + " UNI GY -1"); // nor is the last line of a file
            return;
        }
        out_.line("FINISH");
    }

    void write_load_case()
    {
        write_load_header();
        for (int count = random_.between(0, 3); count > 0; --count) {
            if (random_.one_in(8))
                write_selfweight();
            if (is_plain_) {
                load_block_ = random_.any_of({"MEMBER LOAD", "MEMBER LOAD", "JOINT LOAD", "AREA LOAD", "FLOOR LOAD"});
                out_.line(load_block_);
            } else if (!random_.one_in(6)) {
                load_block_ = random_.any_of({"MEMBER LOAD", "MEMBER LOAD", "JOINT LOAD", "JOINT LOAD", "AREA LOAD",
                                              "FLOOR LOAD", "ELEMENT LOAD", "JOINT LOAD "});
                out_.line(load_block_);
            }
            for (int line = random_.between(0, 5); line > 0; --line) {
                add_noise();
                write_load_line();
            }
        }
    }

    void write_load_header()
    {
        LoadCase header;
        header.id = is_plain_ ? static_cast<int>(model_.load_cases.size()) + 1 : random_.between(1, 12);
        words line{"LOAD", std::to_string(header.id)};
        if (random_.one_in(4)) {
            // fewer than six words: no texts, and a second word that is no number opens case 0
            if (odd_one_in(4)) {
                header.id = 0;
                line.back() = random_.any_of({"LIST", "R1"});
            }
            for (int count = is_plain_ ? 0 : random_.between(0, 3); count > 0; --count)
                line.push_back(random_.any_of({"LOADTYPE", "Dead", "TITLE"}));
        } else if (random_.one_in(4)) {
            line.insert(line.end(), {"DEAD", "LOAD", "FROM", "SLAB"});
        } else {
            const words type = random_.any_of(std::vector<words>{{"Dead"}, {"Roof", "Live"}, {"WIND", "FROM", "X"}});
            const words title = random_.any_of(std::vector<words>{{"EQ", "X", "DIR"}, {"DL", "LOAD"}});
            header.type_text = joined_by_blanks(type);
            header.title = joined_by_blanks(title);
            line.push_back("LOADTYPE");
            line = together(together(together(line, type), {"TITLE"}), title);
        }
        load_case_ = header.id;
        model_.load_cases[header.id] = header;
        out_.words(line);
    }

    int add_definition(const std::string& text, const written_load& load)
    {
        const int number = static_cast<int>(model_.raw_load_defs.size()) + 1;
        model_.raw_load_defs[number] = {text, load_case_};
        model_.load_defs[number] = {load.kind, load.direction, load.values, load_case_};
        return number;
    }

    void write_selfweight()
    {
        written_load load = random_selfweight(random_);
        while (is_plain_ && load.words[1] == "ALL")
            load = random_selfweight(random_);
        const int number = add_definition(joined_by_blanks(load.words), load);
        if (random_.one_in(2)) {
            const id_list list = list_from(member_ids_, list_kind::general);
            for_each_member(list, [number](SdBeam& member) { member.int_list.push_back(number); });
            out_.words(together(together(load.words, {"LIST"}), list.words));
        } else {
            out_.words(load.words);
        }
    }

    void write_load_line()
    {
        const bool on_joints = load_block_ == "JOINT LOAD";
        const id_list list = list_from(on_joints ? joint_ids_ : member_ids_, list_kind::general);
        if (odd_one_in(12)) {
            out_.words(together(list.words, {"FY"})); // one word after the list: nothing is stored
            return;
        }
        if (odd_one_in(12)) {
            out_.words(together(list.words, {"UNI", "GY", "-5;"})); // lines with ";" are passed over
            return;
        }
        const written_load load =
            is_plain_ ? plain_load(random_, load_block_) : random_load(random_, load_block_, units_);
        std::string text = load_block_;
        for (const std::string& word : load.words)
            text += ' ' + word;
        const int number = add_definition(text, load);
        for (const int id : list.ids()) {
            const auto& index = on_joints ? model_.node_index : model_.beam_index;
            const auto found = index.find(id);
            if (found == index.end() || found->second == 0)
                continue;
            const auto position = static_cast<std::size_t>(found->second - 1);
            (on_joints ? model_.nodes[position].extra_ids : model_.beams[position].int_list).push_back(number);
        }
        out_.words(together(list.words, load.words));
    }

    chance random_;
    text_layout out_;
    unit_line units_;
    int members_;
    bool is_plain_;
    int plain_numbers_ = 0;
    SdReader model_;
    std::vector<int> joint_ids_;
    std::vector<int> member_ids_;
    std::vector<int> shell_ids_;
    std::vector<int> surface_ids_;
    std::vector<words> joint_items_;
    std::vector<words> member_items_;
    std::vector<words> shell_items_;
    std::vector<words> surface_items_;
    std::string material_of_all_;
    std::string load_block_;
    int load_case_ = 1;
};

} // namespace

random_deck make_random_deck(std::uint64_t seed, int members, deck_kind kind)
{
    return deck_maker(seed, members, kind).make();
}

} // namespace STAAD::decks
