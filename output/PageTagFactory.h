#pragma once

#include "markup/Html5TagFactory.h"

/// The tags of HTML5 where a page allows no styles but its own: colours and bars are classes.
class PageTagFactory : public Html5TagFactory {
public:
    ~PageTagFactory() override;

    std::string start_color(TextItem::ColorName color) const override;
    std::string start_overstrike() const override;

private:
    TextItemToStringColor color_words_;
};
