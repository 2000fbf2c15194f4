#include "staad/deck/command_match.h"
#include "staad/deck/cut.h"

#include <utility>

namespace STAAD::detail {
namespace {

/// Commands of one word that other blocks use for data of their own: these have them first.
bool is_weak(Command command) noexcept
{
    return command == Command::constant || command == Command::material || command == Command::beta;
}

/// Commands after which words of no command are still parameters of the design.
bool is_design(Command command) noexcept
{
    return command == Command::parameter || command == Command::code_check || command == Command::design;
}

/// Commands of any word that the catalogue has no row for; the word may be one of a list, too.
bool is_of_any_word(Command command) noexcept
{
    return command == Command::member_other || command == Command::element_other;
}

/// Blocks with an END line in which UNIT means what it means elsewhere. User tables follow their own.
bool may_change_units(Command command) noexcept
{
    return command == Command::concrete_design || command == Command::define_material;
}

bool keeps_design_open(Command command) noexcept
{
    return is_design(command) || command == Command::unit || command == Command::print || command == Command::load_list;
}

} // namespace

/// Whether a line below `head` ends its block. Where none does, as in a cut-off deck, the block must not take the
/// rest of it, and none of the next block of its kind.
bool deck_cutter::is_ended_by_line(const CommandInfo& info, std::size_t head) noexcept
{
    bool& without_end = without_end_[static_cast<std::size_t>(info.command)];
    for (std::size_t row = head + 1; !without_end && row < deck_.row_count(); ++row) {
        if (deck_.rows_[row].kind != RowKind::data)
            continue;
        const row_words words(deck_, row);
        if (begins_with(words, info.data_words))
            return true;
        if (begins_with(words, info.short_form))
            return false;
    }
    without_end = true;
    return false;
}

void deck_cutter::begin_statement(std::size_t row, const CommandInfo& info)
{
    if (info.command != Command::unit) {
        interrupted_ = nullptr;
    } else if (open_->command != Command::unit) {
        interrupted_ = open_;
        interrupted_data_ = data_;
    }
    in_design_ = is_design(info.command) || (in_design_ && keeps_design_open(info.command));
    deck_.rows_[row].kind = RowKind::head;
    deck_.statements_.push_back({static_cast<std::uint32_t>(row), info.command});
    open_ = &info;
    data_ = info.data;
    if (data_ == DataLines::until_end && !is_ended_by_line(info, row))
        data_ = DataLines::until_command;
}

/// The block that a UNIT line stands in goes on after it: a statement without a head.
void deck_cutter::resume_statement(std::size_t row)
{
    deck_.statements_.push_back({static_cast<std::uint32_t>(row), interrupted_->command});
    open_ = interrupted_;
    data_ = interrupted_data_;
}

/// Whether a row is data of the open statement. Its own words come before commands that look like them.
bool deck_cutter::is_data(const row_words& words, const CommandInfo* command) const noexcept
{
    if (data_ == DataLines::until_command)
        return command == nullptr || is_weak(command->command);
    if (data_ != DataLines::items && data_ != DataLines::lists)
        return false;
    if (*open_->data_words != '\0' && begins_with(words, open_->data_words))
        return true;
    if (command != nullptr && !is_of_any_word(command->command))
        return false;
    return begins_with_number(words) || (data_ == DataLines::lists && begins_a_list(words));
}

/// Every row is one of the block, up to the END.
void deck_cutter::add_row_of_ended_block(const row_words& words, std::size_t row)
{
    if (begins_with(words, open_->data_words))
        data_ = DataLines::none;
    else if (may_change_units(open_->command) && begins_with(words, "UNIT"))
        begin_statement(row, command_info(Command::unit));
}

/// Whether a row goes on with the block that the open UNIT line stands in.
bool deck_cutter::goes_on_after_unit(const row_words& words, const CommandInfo* command) noexcept
{
    if (open_->command != Command::unit || interrupted_ == nullptr ||
        (command != nullptr && command->command == Command::unit))
        return false;
    if (interrupted_data_ == DataLines::until_end)
        return true;
    std::swap(open_, interrupted_);
    data_ = interrupted_data_;
    const bool goes_on = is_data(words, command);
    std::swap(open_, interrupted_);
    data_ = DataLines::none;
    return goes_on;
}

void deck_cutter::add_text_row(std::size_t row)
{
    const row_words words(deck_, row);
    if (words.peek().empty()) // ";" or "-" alone
        return;
    if (data_ == DataLines::until_end) {
        add_row_of_ended_block(words, row);
        return;
    }
    const CommandInfo* command = find_command(words);
    if (is_data(words, command))
        return;
    if (goes_on_after_unit(words, command)) {
        resume_statement(row);
        if (data_ == DataLines::until_end)
            add_row_of_ended_block(words, row);
        return;
    }
    const Command unnamed = in_design_ ? Command::parameter : Command::unknown;
    begin_statement(row, command != nullptr ? *command : command_info(unnamed));
}

void deck_cutter::cut_statements()
{
    const std::size_t rows = deck_.row_count();
    deck_.statements_.push_back({0, Command::none});
    for (std::size_t row = 0; row < rows; ++row) {
        if (open_->command == Command::finish)
            deck_.rows_[row].kind = RowKind::after_end;
        else if (deck_.rows_[row].kind == RowKind::data)
            add_text_row(row);
    }
    // Without anything before the first command there is no first statement without a head.
    if (deck_.statements_.size() > 1 && deck_.statements_[1].first_row == 0)
        deck_.statements_.erase(deck_.statements_.begin());
    if (rows == 0)
        deck_.statements_.clear();
    deck_.statements_.push_back({static_cast<std::uint32_t>(rows), Command::none});
}

} // namespace STAAD::detail
