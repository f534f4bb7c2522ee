#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "markup/UnicodeRichTextGenerator.h"
#include "output/EntryLayout.h"

/// A table with a row an entry and a column a field, in plain text, for spreadsheets and scripts.
/// The first row has the labels; the first columns have file and block. Cells of CSV that a
/// spreadsheet would take for a formula, since they begin with "=", "+", "-" or "@" and are no
/// number, begin with an apostrophe, which makes them text.
class TableLayout : public EntryLayout {
public:
    enum class Form {
        csv,  ///< As RFC 4180 has it: commas, quotes where they are needed, rows end with CR LF.
        tsv,  ///< Tabs, rows end with LF; in cells \\t, \\n, \\r and \\\\ for what would end them.
    };

    /// The columns are for the fields with these labels; entries have them in the same order.
    TableLayout(Form form, std::vector<std::string> labels);
    ~TableLayout() override;

    std::string head(const std::string& title) override;
    LaidOutPart entry(const std::string& file, const std::string& block,
                      const std::vector<EntryField>& fields) override;

private:
    std::string written(const std::string& text);
    std::string cell(const std::string& text) const;
    std::string row(const std::vector<std::string>& texts) const;

    Form form_;
    std::vector<std::string> labels_;
    UnicodeRichTextGenerator generator_;
};
