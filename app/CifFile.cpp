#include "app/CifFile.h"

#include <algorithm>
#include <gemmi/cif.hpp>
#include <set>
#include <string_view>

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

/// Looks at the beginning of a file while it is read.
class Beginning {
public:
    /// Whether `text`, to which more has been appended since the last call, may be that of a CIF
    /// file: the first word behind blanks and comments opens a block, as far as it is there.
    bool may_be_cif(std::string_view text) {
        if (!skip_to_word(text)) return true;
        const std::string word = gemmi::to_lower(std::string(text.substr(at_, longest_opening)));
        if (word.size() < longest_opening) return true;
        return word.compare(0, 5, "data_") == 0 || word == "global_";
    }

private:
    static constexpr std::size_t longest_opening = 7;

    /// False where no word has begun yet.
    bool skip_to_word(std::string_view text) {
        while (at_ < text.size()) {
            if (in_comment_ || text[at_] == '#') {
                at_ = std::min(text.find('\n', at_), text.size());
                in_comment_ = at_ == text.size();
            } else if (std::string_view(" \t\r\n").find(text[at_]) != std::string_view::npos) {
                ++at_;
            } else {
                return true;
            }
        }
        return false;
    }

    std::size_t at_ = 0;
    bool in_comment_ = false;
};

std::string_view without_byte_order_mark(std::string_view text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";  // some editors write it
    if (text.substr(0, mark.size()) == mark) text.remove_prefix(mark.size());
    return text;
}

/// The bytes of a CIF file; of another only as many from its beginning as it is to be refused for.
std::string read_text(const std::string& path) {
    InputFile file(path);
    std::string text;
    Beginning beginning;
    while (beginning.may_be_cif(without_byte_order_mark(text)) && file.read(text)) {
    }
    return text;
}

cif::Document read_document(const std::string& path) {
    const std::string contents = read_text(path);
    const std::string_view text = without_byte_order_mark(contents);
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
    return document;
}

}  // namespace

void for_each_cif_block(const std::string& path, const std::vector<std::string>& tags,
                        const std::function<void(const CifBlock&)>& take) {
    cif::Document document = read_document(path);
    for (cif::Block& block : document.blocks) take(block_of(block, tags));
}
