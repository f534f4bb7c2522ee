#include "tasks/styles_of.h"

#include "finders/InputTextStyleFinder.h"
#include "markup/RichTextData.h"
#include "markup/RichTextTagFactory.h"
#include "markup/TextItemToOtherGreek.h"

namespace {

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

bool shows_style(RichTextGenerator& generator, void (*create)(TextItem& item)) {
    const TextItem plain(make_handle<InputTextStyleFinder>(), "x");
    TextItem styled = plain;
    create(styled);
    return styled.mark_up_text(generator) != plain.mark_up_text(generator);
}
