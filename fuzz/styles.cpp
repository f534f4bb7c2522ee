// Lists of styles that no item would allow, into every generator.
#include "fuzz/Input.h"
#include "fuzz/StyleLists.h"
#include "fuzz/shown_text.h"
#include "markup/RichTextTarget.h"

namespace {

using Add = StyleLists& (StyleLists::*)(unsigned int, unsigned int);
constexpr Add adders[] = {
    &StyleLists::bold,        &StyleLists::italic,    &StyleLists::color,
    &StyleLists::superscript, &StyleLists::subscript, &StyleLists::bar,
    &StyleLists::invisible,   &StyleLists::greek,     &StyleLists::replacement};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    StyleLists lists;
    for (unsigned int n = input.byte() % 16; n > 0; --n) {
        const Add add = adders[input.byte() % std::size(adders)];
        const unsigned int from = input.byte() % 32;
        (lists.*add)(from, from + input.byte() % 32);
    }
    const unsigned int line_length = input.byte() % 8;
    const std::string text = input.rest().substr(0, 64);
    std::string unicode;
    for (const RichTextTarget& target : rich_text_targets()) {
        const auto generator = target.make_generator();
        const std::string once = generator->mark_up_text(lists.data(text, line_length));
        require(generator->mark_up_text(lists.data(text, line_length)) == once,
                "a generator used twice says the same", once);
        const std::string_view name = target.name;
        if (name == "html5" && html5_keeps(text)) {
            StyleLists untagged = lists;
            untagged.styles.clear();
            require(html_text(generator->mark_up_text(lists.data(text))) ==
                        html_text(generator->mark_up_text(untagged.data(text))),
                    "tags nest and change no text", once);
        }
        if (name == "unicode") unicode = once;
        if (name == "ansi") {
            const std::string shown = terminal_text(once);
            for (std::size_t i = 0; i < shown.size();) {
                const Utf8Character character = first_character(std::string_view(shown).substr(i));
                require(character.valid && (shown[i] == '\n' || !acts(character.code)),
                        "nothing that acts passes", once);
                i += character.size;
            }
            bool plain = true;
            for (const char c : text) plain = plain && c >= ' ' && c < '\x7F';
            require(!plain || shown == unicode, "a terminal shows the Unicode text", once);
        }
    }
    return 0;
}
