#include "app/CifFile.h"

#include <gemmi/cif.hpp>
#include <set>

#include "app/InputFile.h"

namespace {

namespace cif = gemmi::cif;

/// In a text field too, "?" and "." say that there is no value.
std::string text_of(const std::string& value) {
    const std::string text = cif::as_string(value);
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) return "";
    const bool single = text.find_first_not_of(" \t\r\n", first + 1) == std::string::npos;
    const bool is_none = single && (text[first] == '?' || text[first] == '.');
    return is_none ? "" : text;
}

/// Adds the pairs of tag and value whose tags begin with `prefix`.
void add_pairs(const cif::Block& block, const std::string& prefix, CifBlock& result) {
    for (const cif::Item& item : block.items) {
        if (item.type != cif::ItemType::Pair) continue;
        const std::string tag = gemmi::to_lower(item.pair[0]);
        if (tag.compare(0, prefix.size(), prefix) != 0) continue;
        const auto line = static_cast<unsigned long>(item.line_number);
        std::vector<CifValue>& read = result.items[tag];
        if (read.empty()) read.push_back({text_of(item.pair[1]), line});
    }
}

/// Notes the items of `result` that stand in the block again.
void note_repetitions(const cif::Block& block, CifBlock& result) {
    std::set<std::string> seen;
    const auto see = [&](const std::string& name, const cif::Item& item) {
        const std::string tag = gemmi::to_lower(name);
        if (result.items.count(tag) == 0 || seen.insert(tag).second) return;
        result.repetitions.push_back({tag, static_cast<unsigned long>(item.line_number)});
    };
    for (const cif::Item& item : block.items) {
        if (item.type == cif::ItemType::Pair) see(item.pair[0], item);
        if (item.type != cif::ItemType::Loop) continue;
        for (const std::string& name : item.loop.tags) see(name, item);
    }
}

CifBlock block_of(cif::Block& block, const std::vector<std::string>& tags) {
    CifBlock result{block.name, {}, {}};
    for (const std::string& tag : tags) {
        if (tag.back() == '_') {
            add_pairs(block, tag, result);
            continue;
        }
        cif::Column values = block.find_values(tag);
        if (values.length() == 0) continue;
        const auto line = static_cast<unsigned long>(values.item()->line_number);
        std::vector<CifValue>& read = result.items[tag];
        read.reserve(static_cast<std::size_t>(values.length()));
        for (const std::string& value : values) read.push_back({text_of(value), line});
    }
    note_repetitions(block, result);
    return result;
}

}  // namespace

std::vector<CifBlock> read_cif_blocks(const std::string& path,
                                      const std::vector<std::string>& tags) {
    const std::string contents = read_whole_file(path);
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";  // some editors write it
    std::string_view text = contents;
    if (text.substr(0, byte_order_mark.size()) == byte_order_mark) {
        text.remove_prefix(byte_order_mark.size());
    }
    cif::Document document;
    try {
        // Not gemmi's reading operations: they refuse a whole file for one tag without a value.
        cif::parse_input(document, tao::pegtl::memory_input<>(text.data(), text.size(), path));
    } catch (const tao::pegtl::parse_error& error) {
        const std::size_t line = error.positions().empty() ? 1 : error.positions().front().line;
        throw CifError(path + ":" + std::to_string(line) +
                       ": not a CIF file: " + std::string(error.message()));
    }
    if (document.blocks.empty()) throw CifError(path + ":1: not a CIF file: expected a data block");
    std::vector<CifBlock> blocks;
    for (cif::Block& block : document.blocks) blocks.push_back(block_of(block, tags));
    return blocks;
}
