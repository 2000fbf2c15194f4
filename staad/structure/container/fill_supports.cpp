// Supports and releases: descriptions with the numbers that have them.

#include "staad/structure/container/filling.h"
#include "staad/structure/container/texts.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace STAAD::detail {
namespace {

/// Which of the six a word such as "KFX" or "FX" is, by the letters of the file; none of another word.
std::optional<std::size_t> degree_of_spring(std::string_view word) noexcept
{
    if (word.size() != 3 || to_upper_ascii(word[0]) != 'K')
        return std::nullopt;
    const char kind = to_upper_ascii(word[1]);
    const char axis = to_upper_ascii(word[2]);
    if ((kind != 'F' && kind != 'M') || axis < 'X' || axis > 'Z')
        return std::nullopt;
    return (kind == 'M' ? std::size_t{3} : 0) + static_cast<std::size_t>(axis - 'X');
}

std::string spring_text(double value, std::size_t degree, std::string_view written)
{
    const exact_units units = container_units();
    return degree < 3 ? number_text(
                            value, [&](double v) { return units.force_per_length_of(v); }, written)
                      : number_text(
                            value, [&](double v) { return units.moment_of(v); }, written);
}

/// A description with its springs in kN/m and kN*m; `spring(degree)` has them by the letters of the file.
template<class Spring>
std::string description(std::string_view text, Spring spring)
{
    return with_numbers_after(text, [&](std::string_view before, std::string_view number) {
        const std::optional<std::size_t> degree = degree_of_spring(before);
        return degree ? spring_text(spring(*degree), *degree, number) : std::string(number);
    });
}

constexpr const char* axes[] = {"FX", "FY", "FZ", "MX", "MY", "MZ"};

/// The description of a support that no deck describes.
std::string description_of(const Structure::Support& support)
{
    std::string free;
    std::string springs;
    for (std::size_t degree = 0; degree < 6; ++degree) {
        const std::size_t held = model_degrees[degree];
        if (support.held[held])
            continue;
        append_word(free, axes[degree]);
        if (support.springs[held] != 0.0) {
            append_word(springs, std::string("K") + axes[degree]);
            append_word(springs, spring_text(support.springs[held], degree, {}));
        }
    }
    std::string text = support.enforced ? "ENFORCED" : "FIXED";
    if (!support.enforced && springs.empty() && free == "MX MY MZ")
        return "PINNED";
    if (!free.empty())
        append_word(text, "BUT");
    // A spring frees its direction: it need not be named twice.
    for (std::size_t degree = 0; degree < 6; ++degree)
        if (!support.held[model_degrees[degree]] && support.springs[model_degrees[degree]] == 0.0)
            append_word(text, axes[degree]);
    if (!springs.empty())
        append_word(text, springs);
    return text;
}

std::string text_of(const container_filling& context, const Structure::Support& support)
{
    if (support.is_kept)
        return support.text;
    // The letters of a deck with Z up are not those of the container.
    if (support.text.empty() || context.structure.head.up == Structure::UpAxis::z)
        return description_of(support);
    return description(support.text, [&](std::size_t degree) { return support.springs[model_degrees[degree]]; });
}

/// The words of a release in a deck with Z up with the letters of the container, whose upright local axis is Y in
/// texts: "MY KFZ 100" is "MZ KFY 100".
std::string with_upright_y(std::string_view text)
{
    std::string turned;
    word_cursor words(text);
    for (std::string_view word; words.next(word);) {
        std::string each(word);
        char& last = each.back();
        const bool has_letter = parse_real(word).size == 0 && each.size() <= 3;
        if (has_letter && (to_upper_ascii(last) == 'Y' || to_upper_ascii(last) == 'Z'))
            last = static_cast<char>(last ^ 'Y' ^ 'Z');
        append_word(turned, each);
    }
    return turned;
}

/// Whether a description is of both ends of a member: "BOTH MZ", "START MY END MZ".
bool is_of_both_ends(std::string_view text)
{
    bool has_start = false;
    bool has_end = false;
    word_cursor words(text);
    for (std::string_view word; words.next(word);) {
        const std::string upper = to_upper_ascii(word);
        has_start = has_start || starts_with(upper, "STA") || starts_with(upper, "BOT");
        has_end = has_end || upper == "END" || starts_with(upper, "BOT");
    }
    return has_start && has_end;
}

/// `is_whole`: the words of the deck describe this end alone, or both ends as they are.
std::string text_of(const Structure::Release& release, bool is_whole)
{
    if (is_whole)
        return description(release.text, [&](std::size_t degree) { return release.springs[degree]; });
    std::string text = release.is_end ? "END" : "START";
    for (std::size_t degree = 0; degree < 6; ++degree)
        if (release.released[degree])
            append_word(text, axes[degree]);
    for (std::size_t axis = 0; axis < 3; ++axis)
        if (release.partial[axis] != 0.0)
            append_word(text,
                        std::string("MP") + static_cast<char>('X' + axis) + ' ' + shortest_text(release.partial[axis]));
    for (std::size_t degree = 0; degree < 6; ++degree)
        if (release.springs[degree] != 0.0)
            append_word(text, std::string("K") + axes[degree] + ' ' + spring_text(release.springs[degree], degree, {}));
    return text;
}

} // namespace

void fill_supports(container_filling& context)
{
    for (const Structure::Support& support : context.structure.supports) {
        const Structure::Joint& joint = context.structure.joints[static_cast<std::size_t>(support.joint)];
        context.model.supports[text_of(context, support)].push_back(static_cast<unsigned>(joint.number));
        if (support.is_kept)
            context.report_changed(support.source, [&] {
                return "support of joint " + std::to_string(joint.number) +
                       " is held as it is written: " + quote(support.text);
            });
    }
    for (const Structure::Mat& mat : context.structure.mats)
        context.report_left_out(mat.source, [&] { return "springs under elements: " + quote(mat.text); });
}

void fill_releases(container_filling& context)
{
    const bool is_z_up = context.structure.head.up == Structure::UpAxis::z;
    const auto& releases = context.structure.releases;
    // One line may describe both ends of a member; a later one may have replaced one of them.
    const auto are_one = [&](std::size_t first, std::size_t second) {
        return second < releases.size() && releases[first].member == releases[second].member &&
               releases[first].is_end != releases[second].is_end && releases[first].source == releases[second].source &&
               releases[first].text == releases[second].text;
    };
    for (std::size_t i = 0; i < releases.size(); ++i) {
        const Structure::Release& release = releases[i];
        const bool is_pair = is_of_both_ends(release.text) && are_one(i, i + 1);
        const bool is_whole = !release.text.empty() && (is_pair || !is_of_both_ends(release.text));
        const std::string text = text_of(release, is_whole);
        const int number = context.structure.members[static_cast<std::size_t>(release.member)].number;
        context.model.releases[is_z_up ? with_upright_y(text) : text].push_back(static_cast<unsigned>(number));
        i += is_pair ? 1 : 0;
    }
}

} // namespace STAAD::detail
