#pragma once

#include <string>

#include "markup/Html5RichTextGenerator.h"
#include "output/ComparisonLayout.h"

/// A page in HTML5. Names and texts are isolated: whatever direction a text is written in, what
/// stands beside it stays where it is.
class PageLayout : public ComparisonLayout {
public:
    ~PageLayout() override;

    std::string head(const std::string& title) override;
    std::string foot() override;
    std::string entry(const std::string& file, const std::string& block,
                      const std::vector<EntryField>& fields) override;
    /// In two columns; rows that differ are marked.
    std::string comparison(const Side& left, const Side& right,
                           const std::vector<ComparedField>& fields) override;

private:
    std::string mark_up(const std::optional<TextItem>& item) const;

    mutable Html5RichTextGenerator generator_;
};
