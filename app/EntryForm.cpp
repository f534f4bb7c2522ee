#include "app/EntryForm.h"

#include <string_view>

#include "finders/InputTextStyleFinder.h"
#include "text/TextItem.h"

struct EntryForm::Layout {
    const char* target;
    const char* before_title;
    const char* behind_title;
    const char* before_row;
    const char* indent;  // of rows without a sign
    const char* behind_label;
    const char* foot;
};

const EntryForm::Layout& EntryForm::layout_of(const RichTextTarget& target) {
    static constexpr Layout plain = {"", "", "\n", "", "    ", ": ", ""};
    static constexpr Layout documents[] = {
        {"latex", "\\section*{", "}\n\\begin{description}\n", "\\item[{", "", "}] ",
         "\\end{description}\n"},
        {"markdown", "## ", "\n\n", "- ", "", ": ", "\n"},
    };
    for (const Layout& layout : documents) {
        if (std::string_view(target.name) == layout.target) return layout;
    }
    return plain;
}

EntryForm::EntryForm(const RichTextTarget& target)
    : layout_(layout_of(target)), escapes_(target.escapes), generator_(target.make_generator()) {}

std::string EntryForm::head(const std::string& title) const {
    return layout_.before_title + written(title) + layout_.behind_title;
}

std::string EntryForm::row(const std::string& label, const std::string& mark_up) const {
    return row_of(layout_.indent + label, mark_up);
}

std::string EntryForm::row(char sign, const std::string& label, const std::string& mark_up) const {
    return row_of(sign + (' ' + label), mark_up);
}

std::string EntryForm::foot() const { return layout_.foot; }

std::string EntryForm::written(const std::string& text) const {
    if (!escapes_) return text;
    return TextItem(make_handle<InputTextStyleFinder>(), text).mark_up_text(*generator_);
}

std::string EntryForm::row_of(const std::string& text, const std::string& mark_up) const {
    return layout_.before_row + written(text) + layout_.behind_label + mark_up + '\n';
}
