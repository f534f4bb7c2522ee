// A file in pieces of whole texts, and as a CIF file.
#include "cli/TextBlocks.h"
#include "entries/CifBeginning.h"
#include "entries/EntryReader.h"
#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"
#include "suppliers/FieldTextSupplier.h"

namespace {

/// A gzip file, which holds other texts than it seems to.
bool is_packed(const std::string& bytes) { return bytes.starts_with("\x1F\x8B\x08"); }

void check_blocks(const std::string& path, const std::string& bytes) {
    TextBlocks blocks(path, '\n');
    std::string all;
    for (TextBlock block; blocks.next(block);) {
        unsigned long lines = 1;
        for (const char c : all) lines += c == '\n' ? 1 : 0;
        require(is_packed(bytes) || block.first == lines, "texts are counted", bytes);
        all += block.bytes;
    }
    require(is_packed(bytes) || all == bytes, "no byte is lost", bytes);
}

/// What an entry says in all fields of the catalogue.
std::vector<std::string> texts_of(const CifEntry& entry) {
    static const std::vector<LMRFieldNames::TextID> fields = [] {
        std::vector<LMRFieldNames::TextID> all;
        LMRFieldNames::internal_fields(all);
        return all;
    }();
    std::vector<std::string> texts;
    texts.reserve(fields.size());
    for (const LMRFieldNames::TextID id : fields) {
        texts.push_back(FieldTextSupplier(id).text(entry.entry));
    }
    return texts;
}

/// The same file with lines that end as others end them.
std::string with_carriage_returns(const std::string& bytes) {
    std::string result;
    for (const char c : bytes) result.append(c == '\n' ? "\r" : "").push_back(c);
    return result;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const MemoryFile file(bytes);
    try {
        check_blocks(file.path(), bytes);
    } catch (const InputError&) {  // what begins as a gzip file and is none
        require(is_packed(bytes), "only gzip files are damaged", bytes);
    }
    try {
        const EntryReader reader(bytes);
        require(CifBeginning().may_be_cif(bytes), "no CIF file is refused by its beginning", bytes);
        if (bytes.find('\r') != std::string::npos) return 0;
        const std::string other_bytes = with_carriage_returns(bytes);
        const EntryReader other(other_bytes);
        require(other.size() == reader.size(), "line ends make no entries", bytes);
        for (std::size_t i = 0; i < reader.size(); ++i) {
            require(texts_of(other[i]) == texts_of(reader[i]), "line ends say nothing", bytes);
        }
    } catch (const CifError&) {
    }
    return 0;
}
