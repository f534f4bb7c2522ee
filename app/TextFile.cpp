#include "app/TextFile.h"

#include <cerrno>
#include <cstdlib>

namespace {

[[noreturn]] void fail(const std::string& name) {
    throw InputError(errno, std::generic_category(), name);
}

}  // namespace

TextFile::TextFile(const std::string& path, char separator)
    : name_(path == "-" ? "<stdin>" : path),
      separator_(separator),
      file_(path == "-" ? stdin : std::fopen(path.c_str(), "rb")) {
    if (!file_) fail(name_);
}

TextFile::~TextFile() {
    std::free(buffer_);
    if (file_ != stdin) std::fclose(file_);
}

bool TextFile::next(std::string_view& text) {
    const ssize_t read = getdelim(&buffer_, &capacity_, separator_, file_);
    if (read < 0) {
        if (!std::feof(file_)) fail(name_);
        return false;
    }
    ++number_;
    text = {buffer_, static_cast<std::size_t>(read)};
    if (text.ends_with(separator_)) text.remove_suffix(1);
    return true;
}

std::string read_whole_file(const std::string& path) {
    TextFile file(path, '\n');
    std::string whole;
    for (std::string_view line; file.next(line); whole += '\n') whole += line;
    return whole;
}
