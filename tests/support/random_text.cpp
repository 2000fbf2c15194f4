#include "tests/support/random_text.h"

#include <algorithm>
#include <array>

namespace STAAD::decks {
namespace {

std::string plain_spelling(const decimal& number)
{
    std::string digits = std::to_string(number.digits < 0 ? -number.digits : number.digits);
    const auto places = static_cast<std::size_t>(number.places);
    if (digits.size() <= places)
        digits.insert(0, places + 1 - digits.size(), '0');
    if (places > 0)
        digits.insert(digits.size() - places, ".");
    return (number.digits < 0 ? "-" : "") + digits;
}

void add_number(id_list& list, int number)
{
    list.words.push_back(std::to_string(number));
    list.pieces.push_back({number, number, false});
}

/// "TO bound", which adds first..bound.
void add_range(id_list& list, int first, int bound)
{
    list.words.insert(list.words.end(), {"TO", std::to_string(bound)});
    if (first <= bound)
        list.pieces.push_back({first, bound, true});
}

void add_split_range(chance& random, id_list& list, int first, int last, list_kind kind)
{
    const int middle = random.between(first, last - 1);
    add_range(list, first + 1, middle);
    if (kind == list_kind::general && random.one_in(3)) {
        add_range(list, first + 1, last);
    } else if (kind == list_kind::group && random.one_in(2)) {
        add_range(list, middle + 1, last);
    } else {
        add_number(list, middle + 1);
        add_range(list, middle + 2, last);
    }
}

void add_stretch(chance& random, id_list& list, int first, int last, list_kind kind)
{
    if (kind != list_kind::whole_ranges && random.one_in(6)) {
        for (int number = first; number <= last; ++number)
            add_number(list, number);
        return;
    }
    add_number(list, first);
    if (first == last)
        return;
    if (kind != list_kind::whole_ranges && random.one_in(4))
        add_split_range(random, list, first, last, kind);
    else
        add_range(list, first + 1, last);
}

} // namespace

double decimal::value() const
{
    double power = 1.0;
    for (int place = 0; place < places; ++place)
        power *= 10.0;
    return static_cast<double>(digits) / power;
}

std::string decimal::spelled(chance& random) const
{
    const std::string plain = plain_spelling(*this);
    switch (random.between(0, 7)) {
    case 0:
        return std::to_string(digits) + random.any_of({"E-", "e-", "E-0", "e-00"}) + std::to_string(places);
    case 1:
        return digits < 0 ? plain : '+' + plain;
    case 2:
        return plain + (places > 0 ? "00" : ".");
    case 3:
        return plain.compare(0, 2, "0.") == 0 ? plain.substr(1) : plain;
    case 4:
        return plain + random.any_of({"E0", "E+0", "e00"});
    default:
        return plain;
    }
}

decimal random_decimal(chance& random, int low, int high)
{
    const int places = random.between(0, 4);
    std::int64_t scale = 1;
    for (int place = 0; place < places; ++place)
        scale *= 10;
    const std::int64_t fraction = random.between(0, static_cast<int>(scale) - 1);
    return {random.between(low, high) * scale + fraction, places};
}

std::vector<int> id_list::ids() const
{
    std::vector<int> numbers;
    for (const id_piece& piece : pieces) {
        for (int number = piece.first; number <= piece.last; ++number)
            numbers.push_back(number);
    }
    return numbers;
}

id_list random_list(chance& random, const std::vector<int>& pool, list_kind kind)
{
    id_list list;
    const int stretches = random.between(1, random.one_in(5) ? 12 : 4);
    for (int stretch = 0; stretch < stretches; ++stretch) {
        const int first = random.any_of(pool);
        if (random.one_in(2)) {
            add_number(list, random.one_in(10) ? first + random.between(1, 5) : first);
            continue;
        }
        const int last = random.any_of(pool);
        if (last < first && random.one_in(8)) {
            add_number(list, first);
            add_range(list, first + 1, last); // a falling range adds nothing
        } else {
            add_stretch(random, list, std::min(first, last), std::max(first, last), kind);
        }
    }
    return list;
}

text_layout::text_layout(chance& random, bool is_plain)
    : random_(random), is_plain_(is_plain), line_end_(random.one_in(3) ? "\r\n" : "\n"),
      line_length_(random.between(15, 79))
{
    if (random_.one_in(10))
        text_ += "\xEF\xBB\xBF";
}

void text_layout::line(const std::string& text)
{
    empty_lines();
    end_line(text);
}

void text_layout::words(const std::vector<std::string>& words)
{
    words_then(words, "");
}

void text_layout::words_then(const std::vector<std::string>& head, const std::string& tail)
{
    empty_lines();
    std::string line;
    const auto add = [this, &line](const std::string& word) {
        const bool is_full = line.size() + 1 + word.size() + 2 > static_cast<std::size_t>(line_length_);
        if (!line.empty() && (is_full || random_.one_in(60))) {
            end_line(line + random_.any_of({" -", is_plain_ ? " -" : "-", "  -"}));
            empty_lines();
            line = random_.one_in(5) ? gap() : "";
        } else if (!line.empty()) {
            line += gap();
        }
        line += word;
    };
    for (const std::string& word : head)
        add(word);
    if (!tail.empty())
        add(tail);
    end_line(line);
}

void text_layout::items(const std::vector<std::vector<std::string>>& items, bool begun_by_blank)
{
    const std::size_t per_line = random_.one_in(4) ? 1 : static_cast<std::size_t>(random_.between(1, 8));
    for (std::size_t first = 0; first < items.size(); first += per_line) {
        const std::size_t end = std::min(items.size(), first + per_line);
        std::vector<std::string> line;
        for (std::size_t item = first; item < end; ++item) {
            line.insert(line.end(), items[item].begin(), items[item].end());
            if (item + 1 < end)
                line.back() += random_.any_of({";", ";", " ;", ";;", "; ;"});
        }
        if (random_.one_in(2))
            line.back() += random_.any_of({";", " ; "});
        if (begun_by_blank && random_.one_in(5))
            line.front().insert(0, gap());
        words(line);
    }
}

void text_layout::noise()
{
    if (random_.one_in(3))
        comment();
    else if (random_.one_in(3))
        line(random_.any_of({"PRINT ALL", "PERFORM ANALYSIS", "INPUT WIDTH 79", "UNIT INCHES POUND", "SET NL 100"}));
}

void text_layout::comment()
{
    line(random_.any_of({"* remark", "*", "*--------------------", "*1 2 3 4; 5 6 7 8;", "* 1 TO 9 PRIS YD 0.5 -",
                         "* \xB3\xFE\xBF\xD5"}));
}

std::string text_layout::take()
{
    if (random_.one_in(4) && !text_.empty())
        text_.erase(text_.size() - (random_.one_in(2) ? 1 : line_end_.size())); // a last CR goes, too
    if (random_.one_in(10))
        text_ += "\x1A\x1A";
    return std::move(text_);
}

std::string text_layout::gap()
{
    return random_.one_in(6) ? std::string(static_cast<std::size_t>(random_.between(2, 4)), ' ') : " ";
}

void text_layout::empty_lines()
{
    while (!is_plain_ && random_.one_in(25))
        end_line(random_.any_of({"", "   ", "\t", " \t ", "*{ 1 2 3 4; -", "*{"}));
}

void text_layout::end_line(std::string text)
{
    text_ += std::move(text);
    text_ += line_end_;
}

} // namespace STAAD::decks
