// Differences that are meant between the host reading's model of a plain deck and the container of the complete one.
#ifndef STAAD_TESTS_STRUCTURE_PLAIN_DIFFERENCES_H
#define STAAD_TESTS_STRUCTURE_PLAIN_DIFFERENCES_H

#include "staad/model/sd_reader.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstddef>
#include <string>
#include <vector>

namespace STAAD::test {

/// Takes the self weights that no member of `host` carries from the members of `container`, each of which must carry
/// them. How many there are.
inline int take_self_weights_on_all(const SdReader& host, SdReader& container)
{
    int count = 0;
    for (const auto& [number, definition] : host.load_defs) {
        std::size_t carriers = 0;
        for (const SdBeam& beam : host.beams)
            for (const int carried : beam.int_list)
                carriers += carried == number ? 1 : 0;
        if (definition.kind != "SELFWEIGHT" || carriers > 0)
            continue;
        for (SdBeam& beam : container.beams)
            EXPECT_EQ(std::erase(beam.int_list, number), 1U);
        ++count;
    }
    return count;
}

/// Whether a difference, "sect_text: "PRIS299X500" and "PRIS300X500"", is that mm were cut in the first and rounded to
/// the nearest in the second.
inline bool is_rounding(const std::string& difference)
{
    const std::size_t middle = difference.rfind(" and ");
    const std::size_t begin = difference.rfind(": ");
    if (middle == std::string::npos || begin == std::string::npos || begin > middle)
        return false;
    const auto parts = [](const std::string& text) { // numbers, and 0 - c for every other character
        std::vector<int> found;
        bool is_in_number = false;
        for (const char c : text) {
            const bool is_digit = std::isdigit(static_cast<unsigned char>(c)) != 0;
            if (is_digit && is_in_number)
                found.back() = found.back() * 10 + (c - '0');
            else
                found.push_back(is_digit ? c - '0' : -c);
            is_in_number = is_digit;
        }
        return found;
    };
    const std::vector<int> cut = parts(difference.substr(begin + 2, middle - begin - 2));
    const std::vector<int> rounded = parts(difference.substr(middle + 5));
    for (std::size_t i = 0; i < cut.size() && cut.size() == rounded.size(); ++i)
        if (rounded[i] != cut[i] && (cut[i] < 0 || rounded[i] != cut[i] + 1))
            return false;
    return cut.size() == rounded.size();
}

} // namespace STAAD::test

#endif
