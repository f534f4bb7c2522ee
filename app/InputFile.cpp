#include "app/InputFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace {

[[noreturn]] void fail(const std::string& name) {
    throw InputError(errno, std::generic_category(), name);
}

}  // namespace

InputFile::InputFile(const std::string& path)
    : name_(path == "-" ? "<stdin>" : path),
      descriptor_(path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (descriptor_ < 0) fail(name_);
}

InputFile::~InputFile() {
    if (descriptor_ != STDIN_FILENO) close(descriptor_);
}

bool InputFile::read(std::string& bytes, std::size_t size) {
    const std::size_t before = bytes.size();
    bytes.resize(before + size);
    ssize_t count = -1;
    do {
        count = ::read(descriptor_, bytes.data() + before, size);
    } while (count < 0 && errno == EINTR);
    if (count < 0) fail(name_);
    bytes.resize(before + static_cast<std::size_t>(count));
    return count > 0;
}

std::string read_whole_file(const std::string& path) {
    constexpr std::size_t step = 1 << 16;
    InputFile file(path);
    std::string whole;
    while (file.read(whole, step)) {
    }
    return whole;
}
