// A file in pieces of whole texts, and as a CIF file.
#include <sys/mman.h>
#include <unistd.h>

#include <stdexcept>

#include "app/CifFile.h"
#include "app/EntryReader.h"
#include "app/TextBlocks.h"
#include "fuzz/Input.h"
#include "suppliers/FieldTextSupplier.h"

namespace {

/// A file in memory that has a path.
class MemoryFile {
public:
    explicit MemoryFile(const std::string& bytes) : descriptor_(memfd_create("fuzz", 0)) {
        require(descriptor_ >= 0 && write(descriptor_, bytes.data(), bytes.size()) ==
                                        static_cast<ssize_t>(bytes.size()),
                "there is memory for a file");
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { close(descriptor_); }

    std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

private:
    int descriptor_;
};

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
        for (const CifEntry& entry : read_cif_entries(file.path())) {
            std::vector<LMRFieldNames::TextID> fields;
            LMRFieldNames::internal_fields(fields);
            for (const LMRFieldNames::TextID id : fields) FieldTextSupplier(id).text(entry.entry);
        }
    } catch (const CifError&) {
    }
    return 0;
}
