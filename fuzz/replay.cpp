// Hands files, and those in folders, to a fuzzer once each.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

unsigned int replay(const std::filesystem::path& path) {
    unsigned int files = 0;
    if (std::filesystem::is_directory(path)) {
        for (const auto& entry : std::filesystem::directory_iterator(path)) {
            files += replay(entry.path());
        }
        return files;
    }
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    unsigned int files = 0;
    for (int i = 1; i < argc; ++i) files += replay(argv[i]);
    std::printf("%u inputs replayed\n", files);
    return files > 0 ? 0 : 1;
}
