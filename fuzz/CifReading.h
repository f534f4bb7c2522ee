#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entries/CifDocument.h"

/// What readers that share nothing with ours see of a CIF file.
struct CifReading {
    /// One of a block, outside save frames, column `column` of `stride`: value n is number `first`
    /// + n * `stride`.
    struct Item {
        std::size_t block;
        std::string tag;
        std::size_t column, first, stride, size;
        bool in_loop;
    };

    /// Headings of blocks and save frames, "loop_" and tags, in the order of the file.
    std::vector<std::string> outline{};
    std::vector<Item> items{};
    std::vector<std::string> values{};    ///< As they stand, those of save frames too.
    std::vector<std::string> comments{};  ///< Without the ends of their lines.
    bool is_version_2 = false;

    /// The text of a value with lines that end with "\n", folded ones joined; none for "?", "."
    /// and what is not there.
    std::optional<std::string> text(std::size_t value) const;
};

/// Reads tokens, of either version of CIF. Throws std::runtime_error for what is none.
CifReading read_cif_tokens(std::string_view bytes);

/// What gemmi's reader, which knows version 1 only, finds otherwise than the tokens say; empty
/// where they agree.
std::string disagreement_with_gemmi(std::string_view bytes, const CifReading& reading);

/// What a document, which our reader made of the same bytes, has otherwise.
std::string disagreement_with_document(const CifDocument& document, const CifReading& reading);
