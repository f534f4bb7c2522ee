#pragma once

#include <string_view>
#include <vector>

#include "markup/DisplayedText.h"
#include "text/TextItem.h"

/// One side of a comparison: a text with its styles, and as a reader sees it.
class ComparedText {
public:
    /// `uncertainties` are the standard uncertainties of its numbers in turn, for those that are
    /// written without one; there may be fewer, and 0 says that it is not known.
    explicit ComparedText(TextItem item, std::vector<double> uncertainties = {})
        : item_(std::move(item)), displayed_(item_), uncertainties_(std::move(uncertainties)) {}

    const TextItem& item() const { return item_; }
    /// What a reader sees. The ways of comparing take and give positions of this.
    std::string_view shown() const { return displayed_.text(); }
    const std::vector<double>& uncertainties() const { return uncertainties_; }

    /// The range of the item's text that is shown there.
    StringSlice in_item(const StringSlice& shown) const {
        return displayed_.in_item(shown, DisplayedText::bytes);
    }

private:
    TextItem item_;
    DisplayedText displayed_;
    std::vector<double> uncertainties_;
};
