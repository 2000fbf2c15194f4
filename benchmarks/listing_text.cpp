#include "listing_text.h"

#include <array>
#include <cstdio>
#include <random>

namespace STAAD::bench {
namespace {

// Details of beam element internal forces, in GBK; a rule; two lines of column names; units.
constexpr const char* heading = "\xC1\xBA\xB5\xA5\xD4\xAA\xC4\xDA\xC1\xA6\xCF\xEA\xCF\xB8\xD0\xC5\xCF\xA2\n"
                                "----------------------------------------\n"
                                " member load case  distance  axial  shear  shear  torsion  moment  moment\n"
                                " \n"
                                " (m) (kN) (kN) (kN) (kN-m) (kN-m) (kN-m)\n";

constexpr double spacing = 0.5; // m between stations

class listing_writer {
public:
    explicit listing_writer(std::string& text) : text_(text) {}

    void member(std::size_t number) { add("%6zu ", number); }
    void blank_member() { text_.append(7, ' '); }
    void load_case(std::size_t number) { add("%3zu:CASE %-3zu", number, number); }
    void blank_load_case() { text_.append(12, ' '); }

    void station(double position)
    {
        add("%9.3f", position);
        for (int i = 0; i < 6; ++i)
            add("%10.3f", static_cast<double>(values_() % 2'000'001) * 1e-3 - 1000.0);
        text_ += '\n';
    }

private:
    template<class Value>
    void add(const char* format, Value value)
    {
        std::array<char, 64> buffer{};
        std::snprintf(buffer.data(), buffer.size(), format, value);
        text_ += buffer.data();
    }
    void add(const char* format, std::size_t first, std::size_t second)
    {
        std::array<char, 64> buffer{};
        std::snprintf(buffer.data(), buffer.size(), format, first, second);
        text_ += buffer.data();
    }

    std::string& text_;
    std::mt19937 values_; // gives the same numbers everywhere
};

} // namespace

std::string listing_text(const listing_options& options)
{
    constexpr std::size_t line_size = 89;
    std::string text = heading;
    text.reserve(text.size() + options.all_stations() * line_size);
    listing_writer writer(text);
    for (std::size_t member = 1; member <= options.members; ++member) {
        for (std::size_t load_case = 1; load_case <= options.cases; ++load_case) {
            for (std::size_t station = 0; station < options.stations; ++station) {
                station == 0 && load_case == 1 ? writer.member(member) : writer.blank_member();
                station == 0 ? writer.load_case(load_case) : writer.blank_load_case();
                writer.station(spacing * static_cast<double>(station));
            }
        }
    }
    return text;
}

} // namespace STAAD::bench
