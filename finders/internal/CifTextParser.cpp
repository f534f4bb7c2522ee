#include "finders/internal/CifTextParser.h"

#include <algorithm>
#include <utility>

#include "markup/Utf8.h"
#include "markup/internal/compositions.h"
#include "markup/internal/size_of_run.h"
#include "text/Position.h"
#include "text/internal/ascii.h"

namespace {

constexpr auto is_plain = all_ascii_but("\\~^&<-+");  // nothing begins with it

bool is_sign(char c) { return c == '-' || c == '+'; }

/// A hyphen or a plus begins a code only before another.
bool is_lone_sign(std::string_view text, std::size_t at) {
    return is_sign(text[at]) && (at + 1 == text.size() || !is_sign(text[at + 1]));
}

/// One past the bytes from `at` on that begin nothing.
std::size_t end_of_plain(std::string_view text, std::size_t at) {
    do {
        at += size_of_run(text.substr(at), is_plain);
    } while (at < text.size() && is_lone_sign(text, at) && ++at < text.size());
    return at;
}

/// The size of a backslash that ends a line, with the blanks and the line end behind it, or 0.
std::size_t size_of_fold(std::string_view text) {
    if (!text.starts_with('\\')) return 0;
    const std::size_t end = text.find_first_not_of(" \t\r", 1);
    return end != std::string_view::npos && text[end] == '\n' ? end + 1 : 0;
}

StringSlice slice(std::size_t from, std::size_t to) { return {to_position(from), to_position(to)}; }

constexpr std::size_t longest_dash = 3;

}  // namespace

void CifTextParser::parse() {
    const std::size_t fold = size_of_fold(text_);
    folded_ = fold > 0;
    hide(fold);
    for (;; take_special(text_.substr(at_))) {
        at_ = end_of_plain(text_, at_);
        if (at_ == text_.size()) break;
    }
    while (!open_.empty()) drop_innermost();
    merge_doubts();
}

void CifTextParser::take_special(std::string_view rest) {
    switch (rest.front()) {
        case '\\':
            return take_backslash(rest);
        case '-':
        case '+':
            return take_sign(rest);
        case '&':
            return take_reference(first_cif_entity(rest));
        case '~':
        case '^':
        case '<':
            return take_mark(first_cif_mark(rest));
        default:
            const Utf8Character character = first_character(rest);
            if (!character.valid) doubt(at_, character.size, Doubt::not_utf8);
            at_ += character.size;
    }
}

void CifTextParser::take_backslash(std::string_view rest) {
    const std::size_t fold = folded_ ? size_of_fold(rest) : 0;
    if (fold > 0) return hide(fold);
    if (const CifCode* const code = first_cif_code(rest)) return take_code(*code);
    std::size_t accents = 0;
    while (first_cif_accent(rest.substr(accents)) != 0) accents += cif_accent_size;
    if (accents > 0) return take_accents(rest, accents);
    // Two backslashes begin a name.
    std::size_t size = std::min<std::size_t>(rest.starts_with("\\\\") ? 2 : 1, rest.size());
    while (size < rest.size() && is_ascii_letter(rest[size]) && (rest[1] == '\\' || size < 2)) {
        ++size;
    }
    doubt(at_, size, Doubt::unknown_code);
    at_ += size;
}

void CifTextParser::take_code(const CifCode& code) {
    std::size_t size = code.code.size();
    if (takes_blank(code) && text_.substr(at_ + size).starts_with(' ')) ++size;
    show(code.character, size);
}

/// Accents, the outermost first, and the letter that carries them, if it is one.
void CifTextParser::take_accents(std::string_view rest, std::size_t accents) {
    const std::string_view carrier = rest.substr(accents);
    const CifCode* const code = first_cif_code(carrier);
    char32_t letter = 0;
    std::size_t size = 0;
    if (code) {
        letter = code->character;
        size = code->code.size();
    } else if (!carrier.empty()) {
        const Utf8Character character = first_character(carrier);
        if (character.valid) letter = character.code;
        size = character.size;
    }
    if (!is_letter_of_text(letter)) {
        doubt(at_, accents, Doubt::unknown_code);
        at_ += accents;
        return;
    }
    std::string marks;
    for (std::size_t i = accents; i > 0; i -= cif_accent_size) {
        const char32_t mark = first_cif_accent(rest.substr(i - cif_accent_size));
        const char32_t both = marks.empty() ? composed(letter, mark) : 0;
        if (both == 0) append_utf8(marks, mark);
        if (both != 0) letter = both;
    }
    std::string shown;
    append_utf8(shown, letter);
    replace(shown + marks, accents + size);
}

void CifTextParser::take_sign(std::string_view rest) {
    const CifCode* const code = first_cif_code(rest);
    if (!code) {
        ++at_;
        return;
    }
    const std::size_t dashes = std::min(rest.find_first_not_of('-'), rest.size());
    if (dashes > longest_dash) {
        at_ += dashes;  // a line that is drawn
    } else {
        take_code(*code);
    }
}

void CifTextParser::take_reference(const CifEntity& reference) {
    if (reference.character != 0) return show(reference.character, reference.size);
    if (reference.size > 0) doubt(at_, reference.size, Doubt::unknown_reference);
    at_ += std::max<std::size_t>(reference.size, 1);
}

void CifTextParser::take_mark(const CifMark* mark) {
    if (!mark) {
        ++at_;
        return;
    }
    const bool has_partner = mark->closes && open_count_[mark->kind] > 0;
    if (has_partner) {
        close(*mark);
    } else if (mark->opens) {
        open_.push_back({mark, at_});
        ++open_count_[mark->kind];
    } else {
        doubt(at_, mark->text.size(), Doubt::lone_mark);
    }
    at_ += mark->text.size();
}

/// What has been opened since its partner has none.
void CifTextParser::close(const CifMark& mark) {
    while (open_.back().mark->kind != mark.kind) drop_innermost();
    const Open opened = open_.back();
    const std::size_t from = opened.at + opened.mark->text.size();
    if (from == at_ && mark.opens) {  // nothing is raised or lowered
        doubt(at_, mark.text.size(), Doubt::lone_mark);
        return drop_innermost();
    }
    open_.pop_back();
    --open_count_[mark.kind];
    if (from < at_) styles_of(mark.kind).push_back(slice(from, at_));
    found_.invisible.push_back(slice(opened.at, from));
    found_.invisible.push_back(slice(at_, at_ + mark.text.size()));
}

void CifTextParser::drop_innermost() {
    const Open opened = open_.back();
    open_.pop_back();
    --open_count_[opened.mark->kind];
    doubt(opened.at, opened.mark->text.size(), Doubt::lone_mark);
}

std::vector<StringSlice>& CifTextParser::styles_of(CifMark::Kind kind) {
    switch (kind) {
        case CifMark::bold:
            return found_.bold;
        case CifMark::italic:
            return found_.italic;
        case CifMark::tilde:
        case CifMark::subscript:
            return found_.subscripts;
        default:
            return found_.superscripts;
    }
}

void CifTextParser::hide(std::size_t size) {
    if (size > 0) found_.invisible.push_back(slice(at_, at_ + size));
    at_ += size;
}

/// Shows a character in place of the next `size` bytes.
void CifTextParser::show(char32_t character, std::size_t size) {
    const TextItem::GreekSymbol letter = greek_symbol(character);
    if (letter != TextItem::no_symbol) {
        found_.greek.emplace_back(to_position(at_), to_position(at_ + size), letter);
        at_ += size;
        return;
    }
    std::string shown;
    append_utf8(shown, character);
    replace(shown, size);
}

void CifTextParser::replace(const std::string& shown, std::size_t size) {
    found_.replacements.emplace_back(to_position(at_), to_position(at_ + size), shown);
    at_ += size;
}

void CifTextParser::doubt(std::size_t at, std::size_t size, Doubt::Kind kind) {
    found_.doubts.push_back({slice(at, at + size), kind});
}

/// Puts the doubts in order, and neighbours of one kind into one.
void CifTextParser::merge_doubts() {
    std::vector<Doubt>& doubts = found_.doubts;
    if (doubts.empty()) return;
    std::sort(doubts.begin(), doubts.end(),
              [](const Doubt& a, const Doubt& b) { return a.place.from() < b.place.from(); });
    std::vector<Doubt> merged;
    for (const Doubt& doubt : doubts) {
        const bool goes_on = !merged.empty() && merged.back().kind == doubt.kind &&
                             merged.back().place.to() == doubt.place.from();
        if (goes_on) {
            merged.back().place = StringSlice(merged.back().place.from(), doubt.place.to());
        } else {
            merged.push_back(doubt);
        }
    }
    doubts = std::move(merged);
}
