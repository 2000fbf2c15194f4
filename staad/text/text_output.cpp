#include "staad/text/text_output.h"

#include <utility>

namespace STAAD::detail {

std::string text_output::take()
{
    if (blocks_.empty())
        return std::exchange(text_, {});
    std::size_t size = text_.size();
    for (const std::string& block : blocks_)
        size += block.size();
    std::string whole;
    whole.reserve(size);
    for (std::string& block : blocks_) {
        whole += block;
        std::string().swap(block); // its memory is released as soon as it is copied
    }
    whole += text_;
    blocks_.clear();
    text_.clear();
    return whole;
}

void text_output::end_block()
{
    if (write_block_) {
        hand_over();
        return;
    }
    blocks_.push_back(std::move(text_));
    text_ = {};
    text_.reserve(blocks_.back().capacity());
}

void text_output::hand_over() noexcept
{
    if (!write_block_)
        return;
    write_block_(text_);
    text_.clear();
}

} // namespace STAAD::detail
