#include "tasks/styles_of.h"

#include "finders/InputTextStyleFinder.h"
#include "markup/RichTextData.h"
#include "markup/RichTextTagFactory.h"
#include "markup/TextItemToOtherGreek.h"
#include "text/ColorStyle.h"
#include "text/GreekStyle.h"
#include "text/ReplacementTextStyle.h"

namespace {

using Kind = TextItemStyle::Kind;

/// Sees the styles of an item instead of writing them.
class StyleCollector : public RichTextGenerator {
public:
    StyleCollector() : RichTextGenerator({}, {}) {}

    std::string mark_up_text(const RichTextData& data) const override {
        styles = data.styles();
        return {};
    }

    mutable RichTextData::Styles styles;
};

}  // namespace

std::vector<THandle<TextItemStyle>> styles_of(const TextItem& item) {
    StyleCollector collector;
    item.mark_up_text(collector);
    return collector.styles;
}

void lay_style(const TextItemStyle& style, unsigned int from, unsigned int to, TextItem& item) {
    switch (style.kind()) {
        case Kind::bold:
            return item.create_bold(from, to);
        case Kind::italic:
            return item.create_italic(from, to);
        case Kind::overstrike:
            return item.create_overstrike(from, to);
        case Kind::invisible:
            return item.create_invisible(from, to);
        case Kind::subscript:
            return item.create_subscript(from, to);
        case Kind::superscript:
            return item.create_superscript(from, to);
        case Kind::greek:
            return item.create_greek(from, to, dynamic_cast<const GreekStyle&>(style).symbol());
        case Kind::replacement_text:
            return item.create_replacement_text(
                from, to, dynamic_cast<const ReplacementTextStyle&>(style).replacement_text());
        case Kind::color:
            return item.create_color(from, to, dynamic_cast<const ColorStyle&>(style).color());
        case Kind::other:
            return;
    }
}

bool shows_style(RichTextGenerator& generator, void (*create)(TextItem& item)) {
    const TextItem plain(make_handle<InputTextStyleFinder>(), "x");
    TextItem styled = plain;
    create(styled);
    return styled.mark_up_text(generator) != plain.mark_up_text(generator);
}
