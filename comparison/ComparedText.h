#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "markup/DisplayedText.h"
#include "text/TextItem.h"

/// One side of a comparison: a text with its styles, and as a reader sees it. Refers to the item.
class ComparedText {
public:
    /// `uncertainties` are the standard uncertainties of its numbers in turn, for those that are
    /// written without one; there may be fewer, and 0 says that it is not known. O(n + m log m) for
    /// n characters and m styles.
    explicit ComparedText(const TextItem& item, std::vector<double> uncertainties = {});

    const TextItem& item() const { return item_; }
    /// What a reader sees. The ways of comparing take and give positions of this.
    std::string_view shown() const { return displayed_.text(); }
    const std::vector<double>& uncertainties() const { return uncertainties_; }

    /// A run of the shown text that is raised, lowered or barred.
    struct Script {
        StringSlice place;
        int valign;  ///< As TextAtom::valign() has it.
        bool is_barred;

        friend bool operator==(const Script&, const Script&) = default;
    };
    /// All of them, ascending and disjoint.
    const std::vector<Script>& scripts() const { return scripts_; }

    /// The range of the item's text that is shown there.
    StringSlice in_item(const StringSlice& shown) const {
        return displayed_.in_item(shown, DisplayedText::bytes);
    }
    /// What stands in the item's text for that range of the shown one.
    std::string_view written(const StringSlice& shown) const;
    /// What is shown for a range of the item's text, with overlines on what is barred.
    std::string shown_with_bars(const StringSlice& in_item) const;

private:
    void add_script(const Script& script);

    const TextItem& item_;
    DisplayedText displayed_;
    std::vector<double> uncertainties_;
    std::vector<Script> scripts_;
};
