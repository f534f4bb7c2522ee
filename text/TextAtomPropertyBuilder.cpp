#include "text/TextAtomPropertyBuilder.h"

void TextAtomPropertyBuilder::begin_color(TextItem::ColorName color) {
    colors_.push(color);
    property_.set_color(color);
}

void TextAtomPropertyBuilder::end_color() {
    if (!colors_.empty()) colors_.pop();
    property_.set_color(colors_.empty() ? TextItem::black : colors_.top());
}
