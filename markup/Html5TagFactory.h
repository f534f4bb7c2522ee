#pragma once

#include "markup/HTMLQtCommonTagFactory.h"

/// The tags of HTML5 pages: colours are those of CSS, Greek letters need no tag, and a bar over the
/// text is one.
class Html5TagFactory : public HTMLQtCommonTagFactory {
public:
    ~Html5TagFactory() override;

    std::string start_color(TextItem::ColorName color) const override;
    std::string end_color() const override;
    std::string start_greek() const override { return {}; }
    std::string end_greek() const override { return {}; }
    std::string start_overstrike() const override;
    std::string end_overstrike() const override;
};
