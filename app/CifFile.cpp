#include "app/CifFile.h"

#include <gemmi/cif.hpp>

#include "app/TextFile.h"

namespace {

namespace cif = gemmi::cif;

struct FieldRow {
    const char* tag;
    const char* label;
};

constexpr FieldRow field_rows[] = {
    {"_chemical_name_systematic", "Compound Name"},
    {"_chemical_name_common", "Synonym"},
    {"_chemical_name_mineral", "Synonym"},
    {"_publ_section_title", "Title"},
};

constexpr char white_space[] = " \t\r\n";

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(white_space);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(white_space) - first + 1);
}

/// Takes the first line off `text`, without its white space around.
std::string_view take_line(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = trimmed(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

/// The lines of a text field as one line, with one blank between them, but none at a hyphen: names
/// are broken there. A field whose first line is a lone backslash has folded lines: each that ends
/// with a backslash goes on in the next.
std::string joined(std::string_view text) {
    constexpr char fold = '\\';
    std::string_view rest = text;
    const bool folded = take_line(rest) == std::string_view(&fold, 1);
    if (folded) text = rest;
    std::string line;
    bool goes_on = true;
    while (!text.empty()) {
        std::string_view part = take_line(text);
        if (part.empty()) continue;
        if (!goes_on && line.back() != '-' && part.front() != '-') line += ' ';
        goes_on = folded && part.back() == fold;
        if (goes_on) part.remove_suffix(1);
        line += part;
    }
    return line;
}

/// The value as one line; empty for the values that say that there is none, in a text field too.
std::string text_of(const std::string& value) {
    std::string text = joined(cif::as_string(value));
    if (text == "?" || text == ".") text.clear();
    return text;
}

CifEntry entry_of(cif::Block& block) {
    CifEntry entry{block.name, {}};
    for (const FieldRow& row : field_rows) {
        cif::Column values = block.find_values(row.tag);
        for (const std::string& value : values) {
            std::string text = text_of(value);
            if (text.empty()) continue;
            const auto line = static_cast<unsigned long>(values.item()->line_number);
            entry.fields.push_back({row.label, std::move(text), line});
        }
    }
    return entry;
}

}  // namespace

std::vector<CifEntry> read_cif_entries(const std::string& path) {
    const std::string contents = read_whole_file(path);
    cif::Document document;
    try {
        // Not gemmi's reading operations: they refuse a whole file for one tag without a value.
        cif::parse_input(document, tao::pegtl::memory_input<>(contents, path));
    } catch (const tao::pegtl::parse_error& error) {
        const std::size_t line = error.positions().empty() ? 1 : error.positions().front().line;
        throw CifError(path + ":" + std::to_string(line) +
                       ": no CIF: " + std::string(error.message()));
    }
    if (document.blocks.empty()) throw CifError(path + ":1: no CIF: expected a data block");
    std::vector<CifEntry> entries;
    for (cif::Block& block : document.blocks) entries.push_back(entry_of(block));
    return entries;
}
