#include <md4c-html.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

/// Writes a Markdown file as HTML, as others do, and nothing else: what the conversion of names is
/// compared with.
int main(int argc, char** argv) {
    if (argc != 2) return 2;
    std::string text(std::filesystem::file_size(argv[1]), '\0');
    std::ifstream(argv[1], std::ios::binary).read(text.data(), std::streamsize(text.size()));
    const auto write = [](const MD_CHAR* piece, MD_SIZE size, void*) {
        std::fwrite(piece, 1, size, stdout);
    };
    return text.empty() ? 1 : md_html(text.data(), MD_SIZE(text.size()), write, nullptr, 0, 0);
}
