#include "no_change/damage.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace no_change {
namespace {

using STAAD::decks::chance;
using texts = std::vector<std::string>;

/// The parts of `text` between bars.
texts divided(std::string_view text)
{
    texts parts(1);
    for (const char c : text) {
        if (c == '|')
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

const texts odd_words = divided(
    "TO|BY|ALL|0|-1|1e400|-1e-400|1.5.2|--5|0x1F|nan|inf|1E|1E+|.|-|;|99999|*|7;|0.00005|1e7|1E-3|2147483647|"
    "2147483648|-2147483649|16777217|abc|_G1|MEMB|LIST|START|END|BOTH|LOCAL|UNI|CON|LIN|TRAP|CMOM|UMOM|CONC|GX|GY|"
    "GZ|FX|MZ|fy|X|PX|YD|ZD|YB|ZB|OD|ID|ST|UPTABLE|TABLE|PRIS|PRISMATIC|TAPERED|PIPE|TUBE|TH|THICKNESS|SUR|"
    "LOADTYPE|TITLE|Seismic|WIND|dead|LIVE|Kip|FEET|INCHES|mton|KG-CM|kn-m|Mns|\xD6\xF9|\xFF|\t|1:|2:LIVE|1.5E +03|"
    "(kN-m)|+.5|5.|1,5");

const texts odd_lines = divided(
    "|   |*|* comment|*{ 1 2 3|-|1 -|UNIT FEET KIP|UNIT INCHES POUND|UNIT CM MTON KG-M|UNIT|UNIT METER|"
    "JOINT COORDINATES|JOINT COORDINATES CYLINDRICAL|MEMBER INCIDENCES|ELEMENT INCIDENCES SHELL|ELEMENT PROPERTY|"
    "SURFACE INCIDENCE|SURFACE PROPERTY|START GROUP DEFINITION|END GROUP DEFINITION|JOINT|MEMBER|FLOOR|"
    "START USER TABLE|TABLE 1|TABLE 5|WIDE FLANGE|CHANNEL|DOUBLE ANGLE|PRISMATIC|PIPE|END|DEFINE MATERIAL START|"
    "ISOTROPIC CONCRETE|DENSITY 25|END DEFINE MATERIAL|MEMBER PROPERTY|MEMBER PROPERTY CHINESE|"
    "1 2 UPTABLE 1 H100X200|1 2 UPTABLE 1 H105X200|3 UPTABLE 2 H110X200|1 TO 5 PRIS YD 0.5 ZD 0.3|"
    "2 4 PRIS YD 0.5 ZD 0.3 YB 0.1 ZB 0.2|3 PRIS YD 0.4|1 TAPERED 0.5 0.01 0.3 0.2 0.02|"
    "2 TABLE ST PIPE OD 0.3 ID 0.28|4 TABLE ST TUBE TH 0.01 WT 0.2 DT 0.3|5 TABLE LD L100X10 SP 0.01|CONSTANTS|"
    "BETA 90 ALL|BETA 45 MEMB 1 TO 3|MATERIAL CONCRETE ALL|MATERIAL C30 MEMB 1 2 3|MATERIAL STEEL ELEMENT 1 TO 4|"
    "SUPPORTS|1 2 FIXED BUT MX KFY 100|MEMBER RELEASE|1 START MZ MY|MEMBER OFFSET|2 END 0 -0.25 0.1|"
    "1 START LOCAL 0.1 0 0|MEMBER TRUSS|MEMBER TENSION|MEMBER COMPRESSION|1 TO 3 5|"
    "LOAD 3 LOADTYPE Seismic TITLE EQX|LOAD 1|LOAD LIST 1 2|LOAD COMB 9|LOADING 4|SELFWEIGHT Y -1|"
    "SELFWEIGHT Z -1 LIST 1 TO 3|MEMBER LOAD|1 TO 3 UNI GY -5 0 2|1 CON GX 3 1.5|2 TRAP Y -1 -2 0 3|JOINT LOAD|"
    "1 2 FX 5 MZ 7|AREA LOAD|1 TO 4 ALOAD -0.5|FLOOR LOAD|YRANGE 0 5 FLOAD -0.3|ELEMENT LOAD|1 2 PR GY -3|FINISH|"
    "1 TO 2000000000|1 TO 2000000000 FIXED|PERFORM ANALYSIS");

/// The lines of `text`, line ends left on them.
texts lines_of(const std::string& text)
{
    texts lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size() - 1) + 1;
        lines.push_back(text.substr(at, end - at));
        at = end;
    }
    return lines;
}

std::size_t any_place(chance& random, std::size_t size)
{
    return size == 0 ? 0 : static_cast<std::size_t>(random.between(0, static_cast<int>(size) - 1));
}

/// First and last place of a word of the line, or of what stands for one in a line without any.
std::pair<std::size_t, std::size_t> any_word(chance& random, const std::string& line)
{
    constexpr const char* ends = " ;\r\n";
    const std::size_t begin = std::min(line.find_first_not_of(ends, any_place(random, line.size())), line.size());
    return {begin, std::min(line.find_first_of(ends, begin), line.size())};
}

void damage_word(chance& random, std::string& line, std::string other_line)
{
    const auto [begin, end] = any_word(random, line);
    const std::string word = line.substr(begin, end - begin);
    const auto [other_begin, other_end] = any_word(random, other_line);
    switch (random.between(0, 7)) {
    case 0:
        line.erase(begin, end - begin);
        break;
    case 1:
        line.insert(begin, word + " ");
        break;
    case 2:
        line.insert(begin, random.any_of(odd_words) + " ");
        break;
    case 3:
        line.insert(end, random.any_of({" ", "  ", "\t", ";", "E", "-", "0", "5", "."}));
        break;
    case 4:
        line.replace(begin, end - begin, other_line, other_begin, other_end - other_begin);
        break;
    case 5:
        for (std::size_t at = begin; at < end; ++at)
            line[at] = static_cast<char>(line[at] >= 'A' && line[at] <= 'Z' ? line[at] + 32 : line[at]);
        break;
    default:
        line.replace(begin, end - begin, random.any_of(odd_words));
    }
}

void damage_line(chance& random, texts& lines)
{
    const std::size_t at = any_place(random, lines.size());
    const std::size_t other = any_place(random, lines.size());
    const auto place = lines.begin() + static_cast<std::ptrdiff_t>(at);
    switch (random.between(0, 9)) {
    case 0:
        lines.erase(place);
        break;
    case 1:
        lines.insert(place, std::string(lines[other]));
        break;
    case 2:
        std::swap(lines[at], lines[other]);
        break;
    case 3: {
        const auto end = place + static_cast<std::ptrdiff_t>(std::min<std::size_t>(3, lines.size() - at));
        std::rotate(std::min(lines.begin() + static_cast<std::ptrdiff_t>(other), place), place, end);
        break;
    }
    case 4:
        lines[at].insert(0, random.any_of({" ", "  ", "\t", "*", "*{ ", "-", "\r"}));
        break;
    case 5:
        lines[at].insert(lines[at].find_last_not_of("\r\n") + 1,
                         random.any_of({" -", "-", " ", " ;", "\r", " 5", "\x1A"}));
        break;
    case 6:
        lines[at].resize(any_place(random, lines[at].size())); // the next line follows on it
        break;
    default:
        lines.insert(place, random.any_of(odd_lines) + "\n");
    }
}

void damage_byte(chance& random, std::string& text)
{
    const std::size_t at = any_place(random, text.size());
    switch (random.between(0, 5)) {
    case 0:
        text.erase(at, static_cast<std::size_t>(random.between(1, 40)));
        break;
    case 1:
        text.insert(at, 1, static_cast<char>(random.between(0, 255)));
        break;
    case 2:
        text.insert(at, random.any_of({"\n", "\r\n", "\r", " ", "-\n", ";", ".", "E", "0", "9", "\x1A"}));
        break;
    case 3:
        text.resize(text.size() - any_place(random, 1 + text.size() / 4)); // breaks off
        break;
    default:
        text[at] = random.any_of({' ', '0', '1', '9', '.', '-', '+', 'E', 'T', ';', ':', '*', '\n', '\0', '\xFF'});
    }
}

} // namespace

std::string damaged(chance& random, const std::string& text, int faults)
{
    std::string result = text;
    for (; faults > 0 && !result.empty(); faults -= 4) {
        if (random.one_in(4))
            damage_byte(random, result);
        texts lines = lines_of(result);
        for (int fault = std::min(faults, 4); fault > 0 && !lines.empty(); --fault) {
            const std::size_t at = any_place(random, lines.size());
            if (random.one_in(2))
                damage_word(random, lines[at], lines[any_place(random, lines.size())]);
            else
                damage_line(random, lines);
        }
        result.clear();
        for (const std::string& line : lines)
            result += line;
    }
    return result;
}

} // namespace no_change
