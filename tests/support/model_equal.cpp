#include "tests/support/model_equal.h"

#include <bit>
#include <cstdint>
#include <cstdio>

namespace STAAD {

std::vector<std::string> comparison::take() &&
{
    if (differences_ > found_.size())
        found_.push_back("and " + std::to_string(differences_ - found_.size()) + " more");
    return std::move(found_);
}

void comparison::note(const std::string& what)
{
    constexpr std::size_t most_listed = 100;
    if (++differences_ <= most_listed)
        found_.push_back(path_ + ": " + what);
}

void comparison::compare(const double& a, const double& b)
{
    if (std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b))
        return;
    char text[80];
    std::snprintf(text, sizeof text, "%.17g and %.17g", a, b);
    note(text);
}

void comparison::compare(const std::string& a, const std::string& b)
{
    if (a != b)
        note(text_of(a) + " and " + text_of(b));
}

void comparison::compare_integers(long long a, long long b)
{
    if (a != b)
        note(std::to_string(a) + " and " + std::to_string(b));
}

std::vector<std::string> model_differences(const SdReader& a, const SdReader& b)
{
    return record_differences(a, b);
}

} // namespace STAAD
