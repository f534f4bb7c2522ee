#include <iostream>

#include "TypstRichTextGenerator.h"
#include "finders/InputTextStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "text/BoldStyle.h"
#include "text/ItalicStyle.h"
#include "text/TextItem.h"

namespace {

template <class Style>
THandle<TextItemStyle> laid_on(unsigned int from, unsigned int to) {
    auto style = make_handle<Style>();
    style->activate(from, to);
    return style;
}

}  // namespace

int main() {
    TypstRichTextGenerator generator;

    TextItem name(make_handle<TevoChemicalNameStyleFinder>(), "kappa$2!N-mu!3$-oxo");
    name.create_color(16, 19, TextItem::green4);
    std::cout << name.mark_up_text(generator) << '\n';

    const TextItem plain(make_handle<InputTextStyleFinder>(), "#1: 50% *new*\xff\nsee [2]");
    std::cout << plain.mark_up_text(generator) << '\n';

    name.set_line_length(4);
    std::cout << name.mark_up_text(generator) << '\n';

    const RichTextData::Styles crossing = {laid_on<BoldStyle>(0, 6), laid_on<ItalicStyle>(3, 9)};
    const RichTextData::Styles invisible;
    const RichTextData::GreekStyles greek;
    const RichTextData::ReplacementTextStyles replaced;
    const RichTextData data("onetwosix", 0, crossing, invisible, greek, replaced);
    std::cout << generator.mark_up_text(data) << '\n';
}
