/// The numbers of members and elements in a written file.
#ifndef STAAD_WRITER_NORMALISED_WRITTEN_NUMBERS_H
#define STAAD_WRITER_NORMALISED_WRITTEN_NUMBERS_H

#include "staad/model/sd_reader.h"

#include <string_view>
#include <vector>

namespace STAAD::detail {

/// Numbers by position in the lists of the model, not by the records' own: members are 1 to M, elements M + 1
/// and on. Valid as long as these lists are not changed.
class written_numbers {
public:
    explicit written_numbers(const SdReader& model) noexcept
        : members_(model.beams.data()), elements_(model.shells.data()),
          last_member_(static_cast<int>(model.beams.size()))
    {
    }

    /// `member` is one of the model's own list, not a copy.
    int of(const SdBeam& member) const noexcept { return static_cast<int>(&member - members_) + 1; }
    int of(const SdShell& element) const noexcept { return last_member_ + static_cast<int>(&element - elements_) + 1; }

private:
    const SdBeam* members_;
    const SdShell* elements_;
    int last_member_;
};

/// Numbers of the members that are written as truss members, ascending: those whose `kind_code`, which the
/// host sets, is Brace or HorizontalBrace. The declarations of the file that was read do not matter.
std::vector<int> brace_numbers(const SdReader& model, const written_numbers& numbers);

/// The family word of the user table `number`: that of the family with this number, else the table's own.
std::string_view family_word(int number, const SdUserSectionTable& table);

} // namespace STAAD::detail

#endif
