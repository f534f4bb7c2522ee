// A file in pieces of whole texts, and as a CIF file.
#include "cli/TextBlocks.h"
#include "entries/CifBeginning.h"
#include "entries/EntryReader.h"
#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"
#include "suppliers/FieldTextSupplier.h"

namespace {

void check_blocks(const std::string& path, const std::string& bytes) {
    TextBlocks blocks(path, '\n');
    std::string all;
    for (TextBlock block; blocks.next(block);) {
        unsigned long lines = 1;
        for (const char c : all) lines += c == '\n' ? 1 : 0;
        require(block.first == lines, "texts are counted", bytes);
        all += block.bytes;
    }
    require(all == bytes, "no byte is lost", bytes);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const MemoryFile file(bytes);
    check_blocks(file.path(), bytes);
    try {
        const EntryReader reader(bytes);
        require(CifBeginning().may_be_cif(bytes), "no CIF file is refused by its beginning", bytes);
        std::vector<LMRFieldNames::TextID> fields;
        LMRFieldNames::internal_fields(fields);
        for (std::size_t i = 0; i < reader.size(); ++i) {
            const CifEntry entry = reader[i];
            for (const LMRFieldNames::TextID id : fields) FieldTextSupplier(id).text(entry.entry);
        }
    } catch (const CifError&) {
    }
    return 0;
}
