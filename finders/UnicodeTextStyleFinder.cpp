#include "finders/UnicodeTextStyleFinder.h"

#include <string_view>

#include "markup/Utf8.h"
#include "markup/internal/cif_codes.h"
#include "markup/internal/script_forms.h"
#include "markup/internal/size_of_run.h"
#include "text/Position.h"

namespace {

constexpr char32_t overline = U'\u0305';

constexpr auto is_plain = all_ascii_but("_^{}");  // nothing begins with it

/// As they are typed in place of the Greek letters.
TextItem::GreekSymbol symbol_of(char32_t code) {
    constexpr char32_t micro = U'µ', increment = U'∆';
    if (code == micro) return TextItem::mu;
    return code == increment ? TextItem::cdelta : greek_symbol(code);
}

template <class Slice>
void append(std::vector<Slice>& out, const std::vector<Slice>& slices) {
    if (!slices.empty()) out.insert(out.end(), slices.begin(), slices.end());
}

}  // namespace

/// Goes once through a text.
class UnicodeTextStyleFinder::Parser {
public:
    Parser(std::string_view text, Found& found) : text_(text), found_(found) {}

    void parse() {
        while (at_ < text_.size()) {
            if (open_.empty() && valign_ == 0 && skip_plain()) break;
            const std::string_view rest = text_.substr(at_);
            const Utf8Character character = first_character(rest);
            const char sign = rest.front();
            const bool is_script_sign = sign == '_' || sign == '^';
            if (sign == '{' || (is_script_sign && rest.substr(1).starts_with('{'))) {
                open_brace();
            } else if (sign == '}' && !open_.empty()) {
                close_brace();
            } else if (character.code == overline && unit_ < at_) {
                add_bar(character.size);
            } else {
                take_character(character, rest);
            }
        }
        end_script();
    }

private:
    /// An opened brace, and whether what it encloses could stand in raised or lowered characters:
    /// then none would have been written.
    struct Open {
        std::size_t at;
        char sign;  // '_', '^' or '{' where neither stands before it
        bool could_be_raised = true, could_be_lowered = true;
    };

    /// Passes over plain characters of ASCII, but not over the last one where a mark stands on it.
    /// Returns whether the text ends there.
    bool skip_plain() {
        const std::size_t end = at_ + size_of_run(text_.substr(at_), is_plain);
        if (end == text_.size()) return true;
        const std::size_t kept = combines(first_character(text_.substr(end)).code) ? 1 : 0;
        if (end > at_ + kept) {
            at_ = end - kept;
            unit_ = at_ - 1;
        }
        return false;
    }

    void open_brace() {
        end_script();
        open_.push_back({at_, text_[at_]});
        at_ += text_[at_] == '{' ? 1 : 2;
        unit_ = at_;
    }

    void close_brace() {
        end_script();
        const Open opened = open_.back();
        open_.pop_back();
        const std::size_t from = opened.at + 2;
        const bool raises = opened.sign == '^';
        const bool needed = raises ? !opened.could_be_raised : !opened.could_be_lowered;
        if (opened.sign != '{' && from < at_ && needed) {
            styles(raises ? 1 : -1).push_back(slice(from, at_));
            found_.invisible.push_back(slice(opened.at, from));
            found_.invisible.push_back(slice(at_, at_ + 1));
        }
        if (!open_.empty()) open_.back().could_be_raised = open_.back().could_be_lowered = false;
        unit_ = ++at_;
    }

    /// A bar over the character before.
    void add_bar(std::size_t size) {
        std::vector<StringSlice>& bars = found_.overstrike;
        const bool goes_on =
            !bars.empty() && bars.back().to() + size == unit_ && valign_ == 0 && bar_goes_on_;
        if (goes_on) {
            bars.back() = slice(bars.back().from(), at_);
        } else {
            bars.push_back(slice(unit_, at_));
        }
        bar_goes_on_ = valign_ == 0;
        found_.invisible.push_back(slice(at_, at_ + size));
        at_ += size;
        unit_ = at_;
    }

    void take_character(const Utf8Character& character, std::string_view rest) {
        const std::size_t size = end_of_unit(rest, character.size);
        const ScriptCharacter form =
            size == character.size ? script_character(character.code) : ScriptCharacter{0, 0};
        if (form.valign != valign_) {
            end_script();
            script_from_ = at_;
            valign_ = form.valign;
        }
        note_forms(size == character.size ? character.code : 0);
        const TextItem::GreekSymbol letter = symbol_of(form.base != 0 ? form.base : character.code);
        if (letter != TextItem::no_symbol) {
            found_.greek.emplace_back(to_position(at_), to_position(at_ + character.size), letter);
        } else if (form.base != 0) {
            std::string base;
            append_utf8(base, form.base);
            found_.replacements.emplace_back(to_position(at_), to_position(at_ + size), base);
        }
        unit_ = at_;
        at_ += size;
    }

    /// One past a character that ends there and the marks on it, but before an overline.
    static std::size_t end_of_unit(std::string_view rest, std::size_t end) {
        while (end < rest.size() && static_cast<unsigned char>(rest[end]) >= 0x80) {
            const Utf8Character next = first_character(rest.substr(end));
            if (next.code == overline || !combines(next.code)) break;
            end += next.size;
        }
        return end;
    }

    void note_forms(char32_t code) {
        if (open_.empty()) return;
        const ScriptForms* const forms = script_forms_of(code);
        if (!forms || forms->superscript == 0) open_.back().could_be_raised = false;
        if (!forms || forms->subscript == 0) open_.back().could_be_lowered = false;
    }

    void end_script() {
        if (valign_ != 0) styles(valign_).push_back(slice(script_from_, at_));
        valign_ = 0;
    }

    std::vector<StringSlice>& styles(int valign) {
        return valign > 0 ? found_.superscripts : found_.subscripts;
    }

    static StringSlice slice(std::size_t from, std::size_t to) {
        return {to_position(from), to_position(to)};
    }

    std::string_view text_;
    Found& found_;
    std::size_t at_ = 0;
    std::size_t unit_ = 0;  // where the character before begins
    bool bar_goes_on_ = false;
    std::size_t script_from_ = 0;
    int valign_ = 0;  // of the characters before
    std::vector<Open> open_;
};

UnicodeTextStyleFinder::~UnicodeTextStyleFinder() = default;

void UnicodeTextStyleFinder::subscripts(std::vector<StringSlice>& out) const {
    append(out, found_.subscripts);
}
void UnicodeTextStyleFinder::superscripts(std::vector<StringSlice>& out) const {
    append(out, found_.superscripts);
}
void UnicodeTextStyleFinder::overstrike(std::vector<StringSlice>& out) const {
    append(out, found_.overstrike);
}
void UnicodeTextStyleFinder::invisible(std::vector<StringSlice>& out) const {
    append(out, found_.invisible);
}
void UnicodeTextStyleFinder::replacement_text(std::vector<ReplacementTextSlice>& out) const {
    append(out, found_.replacements);
}
void UnicodeTextStyleFinder::greek(std::vector<GreekSlice>& out) const {
    append(out, found_.greek);
}

/// The lists keep their memory, for the texts that follow.
void UnicodeTextStyleFinder::calc_tag_positions() {
    for (auto* const slices :
         {&found_.subscripts, &found_.superscripts, &found_.overstrike, &found_.invisible}) {
        slices->clear();
    }
    found_.greek.clear();
    found_.replacements.clear();
    Parser(text(), found_).parse();
}
