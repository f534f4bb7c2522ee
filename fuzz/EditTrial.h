#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "entries/CifEdits.h"
#include "entries/EditSession.h"
#include "fuzz/CifReading.h"

/// Edits a CIF file and holds what comes of it against what other readers see. What its operations
/// give is a complaint, which is empty where all is as it must be; the file stays as it was.
class EditTrial {
public:
    /// Throws CifError.
    explicit EditTrial(std::string cif);

    /// That the other readers see what ours does.
    std::string readers() const;
    /// How many values there are, outside save frames.
    std::size_t values() const { return places_.size(); }
    /// How many items.
    std::size_t items() const { return before_.items.size(); }
    std::size_t blocks() const { return session_.entries().document().blocks(); }
    /// How many rows an item has.
    std::size_t rows(std::size_t item) const { return before_.items[item].size; }
    /// How many items are in the loop of an item.
    std::size_t columns(std::size_t item) const { return before_.items[item].stride; }

    /// Replaces each value by the text that it has.
    std::string same_texts() const;

    /// None is written "?".
    using Text = std::optional<std::string>;
    /// A value of the file gets another text.
    struct Change {
        std::size_t value;
        Text text;
    };
    /// Replaces values, each once.
    std::string set(const std::vector<Change>& changes);
    /// An item that a block gets, if it has none of that tag.
    struct Added {
        std::size_t block;
        std::string tag, text;
    };
    std::string add(const Added& added);

    /// A row of a loop: which old one, and the texts of columns.
    struct Row {
        std::optional<std::size_t> old;
        std::vector<std::pair<std::size_t, Text>> values;
    };
    /// Makes these the rows of the loop of an item; none make a row without texts.
    std::string set_rows(std::size_t number, const std::vector<Row>& rows);

    /// Does all in one go, which gives what one after the other does: values, rows of the loop of
    /// an item, items.
    std::string all_at_once(const std::vector<Change>& changes, std::size_t number,
                            const std::vector<Row>& rows, const std::vector<Added>& added);

private:
    /// A value as our reader sees it.
    struct Place {
        std::size_t item, row;
    };

    const CifItem& item(std::size_t number) const;
    bool has_item(std::size_t block, const std::string& tag) const;
    std::vector<CifRow> cif_rows(std::size_t number, const std::vector<Row>& rows) const;
    std::size_t number_in_file(const Place& place) const;
    void undo_all();
    /// Does what edits say, asks `check` of what is read then, and undoes it.
    template <class Check>
    std::string applied(const Splices& splices, const Check& check);

    EditSession session_;
    CifReading before_;
    std::vector<Place> places_;
};
