#include "output/folding_table.h"

#include <map>

#include "comparison/folding.h"
#include "comparison/unicode.h"
#include "markup/Utf8.h"
#include "output/harmless_json.h"

namespace {

// Letters, punctuation and symbols; ligatures, small and wide forms; letters of formulae.
constexpr struct {
    char32_t first, last;
} ranges[] = {
    {0x20, 0x52F},    {0x1D00, 0x1FFF}, {0x2000, 0x2BFF}, {0x3000, 0x3020},
    {0xFB00, 0xFB06}, {0xFE50, 0xFE6F}, {0xFF00, 0xFFEF}, {0x1D400, 0x1D7FF},
};

}  // namespace

std::string folding_table() {
    std::map<std::string, std::string> characters;
    for (const auto& [first, last] : ranges) {
        for (char32_t code = first; code <= last; ++code) {
            if (is_mark(code)) continue;
            std::string character;
            append_utf8(character, code);
            std::string result = folded(character, {});
            if (result != character) characters[std::move(result)] += character;
        }
    }
    return harmless_json(characters, false);
}
