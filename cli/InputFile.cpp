#include "cli/InputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace {

constexpr std::size_t buffer_size = 1 << 20;

[[noreturn]] void fail(const std::string& name) {
    throw InputError(name + ": " + std::generic_category().message(errno));
}

/// 0 where there is none.
off_t size_of(int descriptor) {
    struct stat file {};
    return fstat(descriptor, &file) == 0 && S_ISREG(file.st_mode) ? file.st_size : 0;
}

}  // namespace

InputFile::InputFile(const std::string& path)
    : name_(path == "-"    ? "<stdin>"
            : path.empty() ? "''"
                           : path),
      buffer_(std::make_unique_for_overwrite<char[]>(buffer_size)),
      descriptor_(path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (descriptor_ < 0) fail(name_);
    size_ = size_of(descriptor_);
}

InputFile::~InputFile() {
    if (descriptor_ != STDIN_FILENO) close(descriptor_);
}

bool InputFile::read(std::string& bytes) {
    ssize_t count = -1;
    do {
        count = ::read(descriptor_, buffer_.get(), buffer_size);
    } while (count < 0 && errno == EINTR);
    if (count < 0) fail(name_);
    if (count == 0 && size_of(descriptor_) < size_) {
        throw InputError(name_ + ": truncated while it was read");
    }
    bytes.append(buffer_.get(), static_cast<std::size_t>(count));
    return count > 0;
}
