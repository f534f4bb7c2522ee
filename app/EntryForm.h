#pragma once

#include <string>

#include "markup/RichTextTarget.h"

/// How an entry is laid out as text in the mark-up of a target: a title, and a row for each field.
/// Titles and labels are text, which is escaped where the target escapes; the fields are mark-up.
class EntryForm {
public:
    explicit EntryForm(const RichTextTarget& target);

    std::string head(const std::string& title) const;
    std::string row(const std::string& label, const std::string& mark_up) const;
    /// A row of a comparison, with the sign of what the comparison has found.
    std::string row(char sign, const std::string& label, const std::string& mark_up) const;
    std::string foot() const;

    /// Writes the mark-up of the fields.
    RichTextGenerator& generator() const { return *generator_; }

private:
    struct Layout;
    static const Layout& layout_of(const RichTextTarget& target);

    std::string written(const std::string& text) const;
    std::string row_of(const std::string& text, const std::string& mark_up) const;

    const Layout& layout_;
    bool escapes_;
    THandle<RichTextGenerator> generator_;
};
