#include "entries/CifBeginning.h"

#include <algorithm>

#include "entries/cif_text.h"
#include "entries/white_space.h"

namespace {

constexpr std::size_t longest_opening = 7;

}  // namespace

bool CifBeginning::may_be_cif(std::string_view bytes) {
    bytes = without_byte_order_mark(bytes);
    if (!skip_to_word(bytes)) return true;
    const std::string word = in_lower_case(bytes.substr(at_, longest_opening));
    return word.size() < longest_opening || word.starts_with("data_") || word == "global_";
}

/// False where no word has begun yet.
bool CifBeginning::skip_to_word(std::string_view bytes) {
    while (at_ < bytes.size()) {
        if (in_comment_ || bytes[at_] == '#') {
            at_ = std::min(bytes.find_first_of("\r\n", at_), bytes.size());
            in_comment_ = at_ == bytes.size();
        } else if (is_white_space(bytes[at_])) {
            ++at_;
        } else {
            return true;
        }
    }
    return false;
}
