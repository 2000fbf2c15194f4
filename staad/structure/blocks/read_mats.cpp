#include "staad/structure/blocks/read_mats.h"

#include "staad/structure/lists.h"
#include "staad/structure/values.h"
#include "staad/text/words.h"

#include <optional>
#include <string_view>
#include <utility>

namespace STAAD::detail {
namespace {

/// Takes the next word if it is the one whose shortest form is given.
bool take_word(row_words& words, std::string_view short_form) noexcept
{
    std::string_view word;
    return is_word(words.peek(), short_form) && words.next(word);
}

std::size_t axis_of(const Vector3& direction) noexcept
{
    return direction.x != 0.0 ? 0 : direction.y != 0.0 ? 1 : 2;
}

} // namespace

bool is_plate_mat(row_words words) noexcept
{
    for (std::string_view word; words.next(word);)
        if (is_word(word, "PLAT") && is_word(words.peek(), "MAT"))
            return true;
    return false;
}

void mat_lines::read_item(row_words& words, std::size_t statement, std::size_t row)
{
    const record_list list = take_list(context_, words, listed::elements, statement, row);
    Structure::Mat mat;
    mat.text = item_text(words);
    while (read_word(mat, words, statement)) {
    }
    const bool has_direction = mat.direction.x != 0.0 || mat.direction.y != 0.0 || mat.direction.z != 0.0;
    if (!list.is_given || !has_direction || mat.subgrade == 0.0 || !words.peek().empty()) {
        context_.report_unread(row, "springs under elements");
        return;
    }
    mat.source = context_.source_of(row);
    elements_[axis_of(mat.direction)].add(list.elements, lines_.size());
    lines_.push_back(std::move(mat));
}

/// False at a word that is none of a mat, and at the end.
bool mat_lines::read_word(Structure::Mat& mat, row_words& words, std::size_t statement)
{
    if (take_word(words, "PLAT") || take_word(words, "MAT") || take_word(words, "PRIN"))
        return true;
    if (take_word(words, "COMP")) {
        mat.compression = true;
        return true;
    }
    if (take_word(words, "DIRE"))
        return read_direction(mat, words);
    if (!take_word(words, "SUBG"))
        return false;
    const std::optional<double> subgrade = number_words(words).next();
    if (subgrade)
        mat.subgrade = context_.units_at(statement).force_per_volume_of(*subgrade);
    return subgrade.has_value();
}

/// "Y", "YONLY" or "Y ONLY"; false, and the word stays, if it is none.
bool mat_lines::read_direction(Structure::Mat& mat, row_words& words)
{
    const std::string_view word = words.peek();
    const char axis = word.empty() ? '\0' : to_upper_ascii(word.front());
    const bool is_joined = word.size() > 1 && is_word(word.substr(1), "ONLY");
    if (axis < 'X' || axis > 'Z' || (word.size() > 1 && !is_joined))
        return false;
    std::string_view taken;
    words.next(taken);
    const auto file_axis = static_cast<std::size_t>(axis - 'X');
    mat.direction =
        context_.in_model_frame(file_axis == 0 ? 1.0 : 0.0, file_axis == 1 ? 1.0 : 0.0, file_axis == 2 ? 1.0 : 0.0);
    mat.one_way = is_joined || take_word(words, "ONLY");
    return true;
}

void mat_lines::hand_out()
{
    std::vector<Structure::Mat> made = lines_;
    for (const assigned_lines& along_axis : elements_)
        for (const assigned_line& each : along_axis.in_text_order(context_.structure.elements.size()))
            made[each.line].elements.push_back(each.position);
    for (Structure::Mat& mat : made)
        if (!mat.elements.empty())
            context_.structure.mats.push_back(std::move(mat));
}

} // namespace STAAD::detail
