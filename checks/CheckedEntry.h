#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "checks/FoundFaults.h"
#include "entries/CifDocument.h"
#include "entries/CifEdits.h"
#include "entries/CifEntry.h"
#include "host/UncertainValue.h"

/// An entry as checks ask for it, and what they have found.
class CheckedEntry {
public:
    /// One value, and where it stands.
    struct Value {
        const CifItem* item = nullptr;  ///< Null: there is none.
        std::size_t row = 0;
        std::string text{};  ///< On one line.

        explicit operator bool() const { return item != nullptr; }
    };
    using Tags = std::span<const std::string_view>;

    /// Items that its block lacks are those of `common`, which may be null. All must live on.
    CheckedEntry(const CifDocument& document, const CifEntry& entry, const CifBlock* common,
                 FoundFaults& findings)
        : document_(document), entry_(entry), common_(common), findings_(findings) {}

    const CifDocument& document() const { return document_; }
    const CifEntry& entry() const { return entry_; }

    /// The item with that tag, in lower case, or null.
    const CifItem* item(std::string_view tag) const;
    /// The first value that has a text.
    /// @{
    Value first(std::string_view tag) const;
    Value first(Tags tags) const;
    /// @}
    Value value(const CifItem& item, std::size_t row) const;
    /// All values of an item that have a text.
    std::vector<Value> all(std::string_view tag) const;
    /// The number that the first value is, if it is one.
    std::optional<UncertainValue> number(std::string_view tag) const;

    /// Adds a finding at a value; `found` is its text. `expected` is a clause, "a number up to 1",
    /// and may be empty where the code's summary says it all. Of a code that does not exist it
    /// throws std::logic_error.
    CheckFinding& add(std::string_view code, const Value& at, std::string expected = "");
    /// Likewise at a place of the bytes.
    CheckFinding& add(std::string_view code, const char* place, std::string found,
                      std::string expected = "");
    /// The change that gives a value another text, as a repair; nothing where it changes nothing or
    /// no file can hold the text.
    std::optional<Splice> replaced(const Value& value, const std::string& text) const;

private:
    const CifDocument& document_;
    const CifEntry& entry_;
    const CifBlock* common_;
    FoundFaults& findings_;
};

// The checks of each subject, which the codes of the same subject tell of.

void check_publication(CheckedEntry& entry);
void check_formula(CheckedEntry& entry);
void check_atoms(CheckedEntry& entry);
void check_cell(CheckedEntry& entry);
void check_symmetry(CheckedEntry& entry);
void check_measurement(CheckedEntry& entry);
/// Of the whole file, once.
/// @{
void check_file(const CifDocument& document, FoundFaults& findings);
void check_text(const CifDocument& document, FoundFaults& findings);
/// @}
