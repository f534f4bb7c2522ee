#pragma once

#include <cstddef>
#include <string_view>

/// Looks at the beginning of a file while it is read, so that what is not CIF is refused before the
/// rest of it is read.
class CifBeginning {
public:
    /// Whether `bytes`, to which more has been appended since the last call, may be those of a CIF
    /// file: the first word behind blanks and comments opens a block, as far as it is there.
    bool may_be_cif(std::string_view bytes);

private:
    bool skip_to_word(std::string_view bytes);

    std::size_t at_ = 0;
    bool in_comment_ = false;
};
