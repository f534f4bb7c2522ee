#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "output/reader_fields.h"
#include "tasks/EntryFields.h"

/// The fields of an entry as a reader wants them: its head, its cell as a table, and the others by
/// subject, with nothing said twice. What is found in a field is never left out. Refers to the
/// fields, which must live on.
class EntryCards {
public:
    struct Row {
        const EntryField* field;
        const char* shown;             ///< What the field is called.
        const char* unit;              ///< Empty where there is none, or the text has it.
        const char* unit_at_end = "";  ///< That which stands in the text behind a blank.
    };
    struct Card {
        std::string_view title;
        std::vector<Row> rows;
    };
    /// Lengths, angles or the volume of a cell.
    struct CellRow {
        Row row;
        std::vector<TextItem> values;  ///< Three, or one; without letters.
    };

    explicit EntryCards(const std::vector<EntryField>& fields);

    /// The row of the head with that label, or null.
    const Row* head(std::string_view label) const;
    /// Where a row leads, if it is that of a DOI, as the value of an attribute; else empty.
    static std::string link(const Row& row);
    /// What stands at the top: compound name or else formula, identifier; null: neither.
    const Row* name() const;
    /// Those of the head but that, in the order in which they are read.
    std::vector<Row> rest_of_head() const;

    const std::vector<CellRow>& cell() const { return cell_; }
    /// Whether the reduced cell is that one and was left out.
    bool is_reduced() const { return is_reduced_; }
    static constexpr char reduced_note[] = "The cell is the reduced one.";  ///< Said where it is.
    /// In a reader's order. That of the crystal goes with the cell, and may have no rows then.
    const std::vector<Card>& cards() const { return cards_; }

    /// The letters and numbers that an index sorts by; empty where the entry does not tell.
    /// @{
    std::string first_length() const;
    std::string year() const;
    /// @}

private:
    void add(const EntryField& field, const ReaderField& reader);
    void leave_out_same_cell();

    std::vector<Row> head_;
    std::vector<CellRow> cell_;
    bool is_reduced_ = false;
    std::vector<Card> cards_;
};
