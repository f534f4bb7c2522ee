#include "output/TableLayout.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "finders/InputTextStyleFinder.h"
#include "text/TextItem.h"

namespace {

constexpr std::string_view digits = "0123456789";

/// Takes the digits away that the text begins with; returns whether there were any.
bool take_digits(std::string_view& text) {
    const std::size_t size = std::min(text.find_first_not_of(digits), text.size());
    text.remove_prefix(size);
    return size > 0;
}

bool take(std::string_view& text, std::string_view one_of) {
    if (text.empty() || one_of.find(text.front()) == std::string_view::npos) return false;
    text.remove_prefix(1);
    return true;
}

/// Such as "-5", "+.5", "-1.25(3)" and "-1e-5".
bool is_number(std::string_view text) {
    take(text, "+-");
    bool has_digits = take_digits(text);
    if (take(text, ".")) has_digits = take_digits(text) || has_digits;
    if (!has_digits) return false;
    if (take(text, "(") && (!take_digits(text) || !take(text, ")"))) return false;
    if (take(text, "eE")) {
        take(text, "+-");
        if (!take_digits(text)) return false;
    }
    return text.empty();
}

bool may_be_formula(std::string_view text) {
    if (text.empty()) return false;
    const bool begins_one = static_cast<unsigned char>(text.front()) < ' ' ||
                            std::string_view("=+-@").find(text.front()) != std::string_view::npos;
    return begins_one && !is_number(text);
}

std::string csv_cell(const std::string& text) {
    if (text.find_first_of("\",\r\n") == std::string::npos) return text;
    std::string cell = "\"";
    for (const char c : text) {
        if (c == '"') cell += '"';
        cell += c;
    }
    return cell += '"';
}

std::string tsv_cell(const std::string& text) {
    constexpr std::string_view signs = "\t\n\r\\", letters = "tnr\\";
    std::string cell;
    for (const char c : text) {
        const std::size_t sign = signs.find(c);
        if (sign == std::string_view::npos) {
            cell += c;
        } else {
            cell += '\\';
            cell += letters[sign];
        }
    }
    return cell;
}

}  // namespace

TableLayout::TableLayout(Form form, std::vector<std::string> labels)
    : form_(form), labels_(std::move(labels)) {}

TableLayout::~TableLayout() = default;

std::string TableLayout::head(const std::string& /*title*/) {
    std::vector<std::string> texts{"File", "Block"};
    texts.insert(texts.end(), labels_.begin(), labels_.end());
    return row(texts);
}

LaidOutPart TableLayout::entry(const std::string& file, const std::string& block,
                               const std::vector<EntryField>& fields) {
    std::vector<std::string> texts{written(file), written(block)};
    auto field = fields.begin();
    for (const std::string& label : labels_) {
        std::string& text = texts.emplace_back();
        if (field == fields.end() || field->label != label) continue;
        text = field->item.mark_up_text(generator_);
        ++field;
    }
    return {row(texts)};
}

std::string TableLayout::written(const std::string& text) {
    return TextItem(make_handle<InputTextStyleFinder>(), text).mark_up_text(generator_);
}

std::string TableLayout::cell(const std::string& text) const {
    if (form_ == Form::tsv) return tsv_cell(text);
    return csv_cell(may_be_formula(text) ? '\'' + text : text);
}

std::string TableLayout::row(const std::vector<std::string>& texts) const {
    const char separator = form_ == Form::csv ? ',' : '\t';
    std::string row;
    for (const std::string& text : texts) row.append(cell(text)) += separator;
    row.pop_back();
    return row += form_ == Form::csv ? "\r\n" : "\n";
}
