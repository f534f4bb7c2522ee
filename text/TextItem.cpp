#include "text/TextItem.h"

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "finders/InputTextStyleFinder.h"
#include "markup/RichTextData.h"
#include "markup/RichTextGenerator.h"
#include "text/BoldStyle.h"
#include "text/ColorStyle.h"
#include "text/GreekStyle.h"
#include "text/InvisibleStyle.h"
#include "text/ItalicStyle.h"
#include "text/OverStrikeStyle.h"
#include "text/Position.h"
#include "text/ReplacementTextStyle.h"
#include "text/TextAtom.h"
#include "text/TextAtomPropertyBuilder.h"
#include "text/VerticalAlignStyle.h"
#include "text/internal/TextItemContent.h"
#include "text/internal/sort_runs.h"

namespace {

constexpr char bad_line_length[] = "TextItem line length < zero error";

/// One end of a style, where it switches its property on or off: a number that sorts by position,
/// the ends before the beginnings, and in order of creation.
class Boundary {
public:
    Boundary() = default;
    Boundary(unsigned int position, bool begins, std::size_t style)
        : key_(std::uint64_t{position} << 32 | std::uint64_t{begins} << 31 | style) {}

    unsigned int position() const { return static_cast<unsigned int>(key_ >> 32); }
    void apply(const std::vector<THandle<TextItemStyle>>& styles,
               TextAtomPropertyBuilder& builder) const {
        const TextItemStyle& style = *styles[key_ & (most_styles - 1)];
        if ((key_ & most_styles) != 0) {
            style.text_atom_begin(builder);
        } else {
            style.text_atom_end(builder);
        }
    }

    static constexpr std::uint64_t most_styles = std::uint64_t{1} << 31;

    friend bool operator<(const Boundary& a, const Boundary& b) { return a.key_ < b.key_; }

private:
    std::uint64_t key_ = 0;
};

/// All ends in their order. Empty styles never end.
std::vector<Boundary> sorted_boundaries(const std::vector<THandle<TextItemStyle>>& styles) {
    if (styles.size() > Boundary::most_styles) throw std::length_error("too many styles error");
    std::vector<Boundary> boundaries;
    boundaries.reserve(2 * styles.size());
    for (std::size_t i = 0; i < styles.size(); ++i) {
        const StringSlice& slice = styles[i]->slice();
        boundaries.emplace_back(slice.from(), true, i);
        if (!slice.empty()) boundaries.emplace_back(slice.to(), false, i);
    }
    sort_runs(boundaries);
    return boundaries;
}

template <class Slice, class Create>
void create_each(const InputTextStyleFinder& finder,
                 void (InputTextStyleFinder::*query)(std::vector<Slice>&) const, Create create) {
    std::vector<Slice> slices;
    (finder.*query)(slices);
    for (const Slice& slice : slices) create(slice);
}

}  // namespace

TextItem::TextItem(THandle<InputTextStyleFinder> finder)
    : content_(std::make_unique<Content>(std::move(finder))) {}

TextItem::TextItem(THandle<InputTextStyleFinder> finder, const std::string& text)
    : TextItem(std::move(finder)) {
    set_text(text);
}

TextItem::TextItem(const TextItem& other) : content_(std::make_unique<Content>(*other.content_)) {}
TextItem::TextItem(TextItem&& other) noexcept = default;

TextItem& TextItem::operator=(const TextItem& other) { return *this = TextItem(other); }
TextItem& TextItem::operator=(TextItem&& other) noexcept = default;

TextItem::~TextItem() = default;

const std::string& TextItem::characters() const { return content_->text; }

void TextItem::set_text(const std::string& text) {
    const unsigned int length = length_of(text);
    Content& content = *content_;
    content.text = text;
    content.styles.clear();
    content.invisible_styles.clear();
    content.greek_styles.clear();
    content.replacement_text_styles.clear();
    content.rules.reset(length);
    content.pool.reset();
    create_input_text_styles();
}

void TextItem::create_input_text_styles() {
    using Finder = InputTextStyleFinder;
    const THandle<Finder>& finder = content_->finder;
    finder->set_text(content_->text);

    std::vector<StringSlice>& slices = content_->slices;
    const auto create_plain = [&](void (Finder::*query)(std::vector<StringSlice>&) const,
                                  void (TextItem::*create)(unsigned int, unsigned int)) {
        slices.clear();
        ((*finder).*query)(slices);
        for (const StringSlice& slice : slices) (this->*create)(slice.from(), slice.to());
    };
    // Replacement texts and colours come last: what they may not enclose must stand already.
    create_plain(&Finder::subscripts, &TextItem::create_subscript);
    create_plain(&Finder::superscripts, &TextItem::create_superscript);
    create_plain(&Finder::overstrike, &TextItem::create_overstrike);
    create_plain(&Finder::invisible, &TextItem::create_invisible);
    content_->letters.clear();
    finder->greek(content_->letters);
    for (const GreekSlice& letter : content_->letters) {
        create_greek(letter.from(), letter.to(), letter.symbol());
    }
    create_plain(&Finder::bold, &TextItem::create_bold);
    create_plain(&Finder::italic, &TextItem::create_italic);
    create_each(*finder, &Finder::replacement_text, [this](const ReplacementTextSlice& slice) {
        create_replacement_text(slice.from(), slice.to(), slice.text());
    });
    create_each(*finder, &Finder::color, [this](const ColorSlice& slice) {
        create_color(slice.from(), slice.to(), slice.color());
    });
}

void TextItem::set_line_length(unsigned int n) {
    if (n == no_position) throw std::range_error(bad_line_length);
    content_->line_length = n < length_of(content_->text) ? n : 0;
}

void TextItem::set_no_linebreak() { content_->line_length = 0; }

unsigned int TextItem::line_length() const { return content_->line_length; }

void TextItem::create_bold(unsigned int from, unsigned int to) {
    content_->rules.check_overlay(from, to);
    content_->append(content_->pool.make<BoldStyle>(from, to));
}

void TextItem::create_italic(unsigned int from, unsigned int to) {
    content_->rules.check_overlay(from, to);
    content_->append(content_->pool.make<ItalicStyle>(from, to));
}

void TextItem::create_overstrike(unsigned int from, unsigned int to) {
    content_->rules.check_overlay(from, to);
    content_->append(content_->pool.make<OverStrikeStyle>(from, to));
}

void TextItem::create_invisible(unsigned int from, unsigned int to) {
    content_->rules.check_overlay(from, to);
    content_->append(content_->pool.make<InvisibleStyle>(from, to), content_->invisible_styles);
}

void TextItem::create_superscript(unsigned int from, unsigned int to) {
    content_->rules.check_overlay(from, to);
    content_->append(content_->pool.make<VerticalAlignStyle>(from, to, 1));
}

void TextItem::create_subscript(unsigned int from, unsigned int to) {
    content_->rules.check_overlay(from, to);
    content_->append(content_->pool.make<VerticalAlignStyle>(from, to, -1));
}

void TextItem::create_greek(unsigned int from, unsigned int to, GreekSymbol symbol) {
    content_->rules.check_overlay(from, to);
    content_->append(content_->pool.make<GreekStyle>(from, to, symbol), content_->greek_styles);
}

void TextItem::create_color(unsigned int from, unsigned int to, ColorName color) {
    content_->rules.check_color(from, to);
    content_->append(content_->pool.make<ColorStyle>(from, to, color), &StyleRules::add_color);
}

void TextItem::create_replacement_text(unsigned int from, unsigned int to,
                                       const std::string& text) {
    content_->rules.check_replacement_text(from, to);
    const auto style = make_handle<ReplacementTextStyle>(text);
    style->activate(from, to);
    content_->append(style, content_->replacement_text_styles, &StyleRules::add_replacement_text);
}

std::string TextItem::mark_up_text(RichTextGenerator& generator) const {
    const Content& content = *content_;
    return generator.mark_up_text(RichTextData(content.text, content.line_length, content.styles,
                                               content.invisible_styles, content.greek_styles,
                                               content.replacement_text_styles));
}

bool TextItem::is_active_node(unsigned int pos) const {
    return std::any_of(content_->styles.begin(), content_->styles.end(), [pos](const auto& style) {
        return style->from() == pos || style->to() == pos;
    });
}

void TextItem::update_props(unsigned int pos, TextAtomPropertyBuilder& builder) const {
    for (const auto& style : content_->styles) {
        if (style->to() == pos && style->from() != pos) style->text_atom_end(builder);
    }
    for (const auto& style : content_->styles) {
        if (style->from() == pos) style->text_atom_begin(builder);
    }
}

std::vector<TextAtom> TextItem::atomize() const {
    const std::vector<Boundary> boundaries = sorted_boundaries(content_->styles);
    const unsigned int end = std::max(length_of(content_->text), 1U);
    const std::string_view text(content_->text.c_str(), end);  // an empty text shows its NUL
    TextAtomPropertyBuilder builder{TextAtomProperty()};
    std::vector<TextAtom> atoms;
    atoms.reserve(boundaries.size() + 1);
    unsigned int run = 0;
    for (const Boundary& boundary : boundaries) {
        const unsigned int position = boundary.position();
        if (position >= end) break;
        if (position > run) {
            atoms.emplace_back(std::string(text.substr(run, position - run)), builder.property());
            run = position;
        }
        boundary.apply(content_->styles, builder);
    }
    atoms.emplace_back(std::string(text.substr(run)), builder.property());
    return atoms;
}

void TextItem::print(std::ostream& os) const {
    for (const auto& style : content_->styles) style->print(os);
}

std::ostream& operator<<(std::ostream& os, const TextItem& item) {
    item.print(os);
    return os;
}
