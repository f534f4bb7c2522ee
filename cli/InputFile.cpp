#include "cli/InputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <system_error>

namespace {

constexpr std::size_t largest_buffer = 1 << 18;

[[noreturn]] void fail(const std::string& name) {
    throw InputError(name + ": " + std::generic_category().message(errno));
}

/// 0 where there is none.
off_t size_of(int descriptor) {
    struct stat file {};
    return fstat(descriptor, &file) == 0 && S_ISREG(file.st_mode) ? file.st_size : 0;
}

/// For most files as much as they hold: so large a buffer for each costs more than to read it. One
/// of size 0 may be none of the disk, and have more.
std::size_t buffer_size_for(off_t size) {
    constexpr std::size_t least = GzipReader::signature.size();
    const bool is_small = size > 0 && size < static_cast<off_t>(largest_buffer);
    return is_small ? std::max(static_cast<std::size_t>(size), least) : largest_buffer;
}

}  // namespace

InputFile::InputFile(const std::string& path)
    : name_(path == "-"    ? "<stdin>"
            : path.empty() ? "''"
                           : path),
      descriptor_(path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (descriptor_ < 0) fail(name_);
    size_ = size_of(descriptor_);
}

InputFile::~InputFile() {
    if (descriptor_ != STDIN_FILENO) close(descriptor_);
}

bool InputFile::read(std::string& bytes) {
    if (gzip_) return unpack(bytes);
    const std::size_t count = begun_ ? read_piece(0) : read_beginning();
    if (gzip_) {
        gzip_->feed({buffer_.get(), count});
        return unpack(bytes);
    }
    bytes.append(buffer_.get(), count);
    return count > 0;
}

/// Reads no more than it takes to tell whether it is a gzip file: a first line may be short, and
/// what follows far away.
std::size_t InputFile::read_beginning() {
    begun_ = true;
    constexpr std::string_view signature = GzipReader::signature;
    std::size_t count = 0;
    std::string_view front;
    do {
        const std::size_t more = read_piece(count);
        count += more;
        front = std::string_view(buffer_.get(), count).substr(0, signature.size());
        if (more == 0) break;
    } while (front.size() < signature.size() && signature.starts_with(front));
    if (front == signature) {
        gzip_.emplace();
    } else if (name_.ends_with(".gz")) {
        throw InputError(name_ + ": is no gzip file");
    }
    return count;
}

/// Reads into the buffer, behind what shall stay there.
std::size_t InputFile::read_piece(std::size_t offset) {
    if (!buffer_) {
        buffer_size_ = buffer_size_for(size_);
        buffer_ = std::make_unique_for_overwrite<char[]>(buffer_size_);
    }
    ssize_t count = -1;
    do {
        count = ::read(descriptor_, buffer_.get() + offset, buffer_size_ - offset);
    } while (count < 0 && errno == EINTR);
    if (count < 0) fail(name_);
    if (count == 0 && size_of(descriptor_) < size_) {
        throw InputError(name_ + ": truncated while it was read");
    }
    return static_cast<std::size_t>(count);
}

bool InputFile::unpack(std::string& bytes) {
    try {
        while (!gzip_->unpack(bytes)) {
            const std::size_t count = read_piece(0);
            if (count == 0 && !gzip_->is_whole()) throw GzipError("gzip file is cut short");
            if (count == 0) return false;
            gzip_->feed({buffer_.get(), count});
        }
    } catch (const GzipError& error) {
        throw InputError(name_ + ": " + error.what());
    }
    return true;
}
