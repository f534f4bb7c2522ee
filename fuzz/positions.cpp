// Places in an item and in what its reader sees, each from the other.
#include <vector>

#include "fuzz/Input.h"
#include "markup/DisplayedText.h"
#include "markup/TextItemToUnicodeGreek.h"
#include "markup/Utf8.h"
#include "tasks/Source.h"
#include "text/Position.h"
#include "text/TextAtom.h"
#include "text/TextItem.h"

namespace {

using Unit = DisplayedText::Unit;

/// What is shown for a character or a code, or for what is hidden.
struct Piece {
    unsigned int from, to;               // in the item
    unsigned int shown[3], shown_to[3];  // by unit
};

unsigned int size_of(std::string_view text, Unit unit) {
    unsigned int size = 0;
    while (!text.empty()) {
        const Utf8Character character = first_character(text);
        if (unit == Unit::bytes) size += to_position(character.size);
        if (unit == Unit::characters) ++size;
        if (unit == Unit::utf16) size += character.code > 0xFFFF ? 2 : 1;
        text.remove_prefix(character.size);
    }
    return size;
}

/// The slow twin: pieces one behind the other, looked through from the first.
class Pieces {
public:
    explicit Pieces(const TextItem& item) {
        if (item.characters().empty()) return;
        for (const TextAtom& atom : item.atomize()) {
            const std::string text = atom.text();
            if (atom.invisible()) {
                add(text, "");
            } else if (!atom.replacement_txt().empty()) {
                add(text, atom.replacement_txt());
            } else if (atom.greek() != TextItem::no_symbol) {
                add(text, TextItemToUnicodeGreek().convert(atom.greek()));
            } else {
                for (std::string_view rest = text; !rest.empty();) {
                    const std::string_view character = rest.substr(0, first_character(rest).size);
                    add(character, character);
                    rest.remove_prefix(character.size());
                }
            }
        }
    }

    const std::string& text() const { return text_; }
    unsigned int size(Unit unit) const {
        return pieces_.empty() ? 0 : pieces_.back().shown_to[unit];
    }

    unsigned int shown_caret(unsigned int place, Unit unit) const {
        for (const Piece& piece : pieces_) {
            if (place < piece.to) return piece.shown[unit];
        }
        return size(unit);
    }
    unsigned int item_caret(unsigned int place, Unit unit) const {
        for (const Piece& piece : pieces_) {
            if (place < piece.shown_to[unit]) return piece.from;
        }
        return end_;
    }
    StringSlice shown(const StringSlice& range, Unit unit) const {
        const unsigned int from = shown_caret(range.from(), unit);
        unsigned int to = from;
        for (const Piece& piece : pieces_) {
            if (!range.empty() && piece.from < range.to()) to = piece.shown_to[unit];
        }
        return {from, std::max(from, to)};
    }
    StringSlice in_item(const StringSlice& range, Unit unit) const {
        const unsigned int from = item_caret(range.from(), unit);
        unsigned int to = from;
        for (const Piece& piece : pieces_) {
            const bool is_seen = piece.shown[unit] < piece.shown_to[unit];
            if (!range.empty() && is_seen && piece.shown[unit] < range.to()) to = piece.to;
        }
        return {from, std::max(from, to)};
    }

private:
    void add(std::string_view covered, std::string_view shown) {
        Piece& piece = pieces_.emplace_back();
        piece.from = end_;
        end_ = piece.to = end_ + length_of(covered);
        for (const Unit unit : {Unit::bytes, Unit::characters, Unit::utf16}) {
            piece.shown[unit] = pieces_.size() > 1 ? pieces_.end()[-2].shown_to[unit] : 0;
            piece.shown_to[unit] = piece.shown[unit] + size_of(shown, unit);
        }
        text_ += shown;
    }

    std::vector<Piece> pieces_;
    std::string text_;
    unsigned int end_ = 0;
};

/// Where bytes are not, hidden ones between them may leave what seems to be.
bool is_utf8(std::string_view text) {
    while (!text.empty()) {
        const Utf8Character character = first_character(text);
        if (!character.valid) return false;
        text.remove_prefix(character.size);
    }
    return true;
}

void check_range(const DisplayedText& fast, const Pieces& slow, const StringSlice& range, Unit unit,
                 const std::string& text) {
    require(fast.shown(range, unit) == slow.shown(range, unit), "a range is shown there", text);
    require(fast.shown_caret(range.from(), unit) == slow.shown_caret(range.from(), unit),
            "a caret is shown there", text);
    const unsigned int size = slow.size(unit);
    if (range.from() > size || range.to() > size) return;
    const StringSlice in_item = fast.in_item(range, unit), back = fast.shown(in_item, unit);
    require(in_item == slow.in_item(range, unit), "what is shown stands there", text);
    require(fast.item_caret(range.from(), unit) == slow.item_caret(range.from(), unit),
            "a caret stands there", text);
    require(range.empty() || back.has_subset(range), "nothing is lost on the way back", text);
    require(fast.in_item(back, unit) == in_item, "the way back is the way", text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const Source& source = sources()[input.byte() % sources().size()];
    const unsigned int place = input.byte(), length = input.byte();
    TextItem item(source.make_finder());
    try {
        item.set_text(input.rest());
    } catch (const std::runtime_error&) {
        return 0;  // refused, with the finder's or the item's own words
    }
    const DisplayedText fast(item);
    const Pieces slow(item);
    require(fast.text() == slow.text(), "a reader sees the atoms", fast.text());
    const unsigned int end = length_of(item.characters());
    const unsigned int from = place % (end + 1), to = from + length % (end - from + 1);
    for (const Unit unit : {Unit::bytes, Unit::characters, Unit::utf16}) {
        require(fast.size(unit) == slow.size(unit), "pieces are counted", fast.text());
        require(!is_utf8(item.text()) || fast.size(unit) == size_of(fast.text(), unit),
                "characters are counted", fast.text());
        check_range(fast, slow, {from, to}, unit, item.text());
    }
    return 0;
}
