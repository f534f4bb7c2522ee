#include "cli/TextOutput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

namespace {

[[noreturn]] void fail(const std::string& name) {
    throw std::system_error(errno, std::generic_category(), name);
}

mode_t usual_mode() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

/// Gives a file owner, group and permissions of another, without the bits by which programs take on
/// the rights of their files. Where owner or group stay others, no one may do more than before.
bool take_over_rights(int descriptor, const struct stat& other) {
    mode_t mode = other.st_mode & 0777;
    const bool has_owner = fchown(descriptor, other.st_uid, other.st_gid) == 0;
    const bool has_group =
        has_owner || fchown(descriptor, static_cast<uid_t>(-1), other.st_gid) == 0;
    // Who was the owner or of the group may now be of the group or one of the others.
    const mode_t owner = mode >> 6;
    const mode_t all = (mode >> 3) & mode & 07;
    if (!has_owner) mode &= 0700 | owner << 3 | owner;
    if (!has_group) mode &= 0700 | all << 3 | all;
    return fchmod(descriptor, mode) == 0;
}

std::string folder_of(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path();
    return folder.empty() ? "." : folder;
}

/// The number of the open descriptor that is meant by a path such as /dev/fd/3, or -1.
int descriptor_of(const std::string& path) {
    const std::string name = std::filesystem::path(path).filename();
    if (name.empty() || name.size() > 9 ||
        name.find_first_not_of("0123456789") != std::string::npos) {
        return -1;
    }
    std::error_code ignored;
    const auto folder = std::filesystem::canonical(folder_of(path), ignored);
    return folder == "/proc/" + std::to_string(getpid()) + "/fd" ? std::stoi(name) : -1;
}

/// Where a link leads, also to what is not there yet; a descriptor is not followed.
std::string end_of_links(const std::string& path) {
    std::filesystem::path end = path;
    std::error_code not_a_link;
    for (int links = 0; descriptor_of(end) < 0; ++links) {
        const std::filesystem::path target = std::filesystem::read_symlink(end, not_a_link);
        if (not_a_link) break;
        if (links == 40) {  // as the system counts
            errno = ELOOP;
            fail(path);
        }
        end = end.parent_path() / target;
    }
    return end;
}

/// Where a program can give a file a name that it has opened without one.
int open_without_name(const std::string& folder) {
    const int descriptor = open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666);
    if (descriptor >= 0 && access("/proc/self/fd", X_OK) == 0) return descriptor;
    if (descriptor >= 0) close(descriptor);
    return -1;
}

bool give_name(int descriptor, const std::string& path) {
    const std::string open_file = "/proc/self/fd/" + std::to_string(descriptor);
    return linkat(AT_FDCWD, open_file.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

/// Whether owner and group are those of the other.
bool has_owners(int descriptor, const struct stat& other) {
    struct stat file {};
    return fstat(descriptor, &file) == 0 && file.st_uid == other.st_uid &&
           file.st_gid == other.st_gid;
}

}  // namespace

void sync_folder(const std::string& folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    fsync(descriptor);
    close(descriptor);
}

TextOutput::TextOutput(const std::string& path)
    : name_(path), place_(end_of_links(path)), file_(nullptr) {
    struct stat there {};
    const int open_one = descriptor_of(place_);
    const bool exists = open_one < 0 && stat(place_.c_str(), &there) == 0;
    if (!exists && open_one < 0 && errno != ENOENT) fail(name_);
    if (open_one >= 0 || (exists && !S_ISREG(there.st_mode))) {
        file_ = open_one < 0 ? std::fopen(place_.c_str(), "wb") : fdopen(dup(open_one), "wb");
        if (!file_) fail(name_);
        return;
    }
    begin_file(exists);
    const int descriptor = fileno(file_);
    const bool allowed = exists ? take_over_rights(descriptor, there)
                                : lacks_name_ || fchmod(descriptor, usual_mode()) == 0;
    if (!allowed) give_up(name_);
}

TextOutput::TextOutput(const std::string& name, const std::string& place, const struct stat& other)
    : name_(name), place_(place), syncs_folder_(false), file_(nullptr) {
    begin_file(false);
    const int descriptor = fileno(file_);
    if (!take_over_rights(descriptor, other)) give_up(name_);
    if (has_owners(descriptor, other)) return;
    errno = EPERM;
    give_up(name_ + ": owner and group cannot be kept");
}

TextOutput::~TextOutput() { remove(); }

void TextOutput::begin_file(bool exists) {
    const std::string folder = folder_of(place_);
    int descriptor = exists ? -1 : open_without_name(folder);
    lacks_name_ = descriptor >= 0;
    if (!lacks_name_) descriptor = temporary_.make_file(folder);
    if (descriptor < 0) fail(name_);
    file_ = fdopen(descriptor, "wb");
    if (!file_) fail(name_);
}

void TextOutput::put_in_place() {
    const int descriptor = fileno(file_);
    if (lacks_name_ && give_name(descriptor, place_)) return;
    if (lacks_name_) {
        if (errno != EEXIST) fail(name_);
        // There is a file in the place now: take one beside it, whose name is free again.
        const int other = temporary_.make_file(folder_of(place_));
        if (other < 0) fail(name_);
        ::close(other);
        unlink(temporary_.path());
        if (!give_name(descriptor, temporary_.path())) fail(name_);
    }
    if (!temporary_.rename_to(place_)) fail(name_);
}

/// Throws what has just failed.
void TextOutput::give_up(const std::string& name) {
    const int error = errno;
    remove();
    errno = error;
    fail(name);
}

void TextOutput::remove() {
    if (file_) std::fclose(std::exchange(file_, nullptr));
    temporary_.remove();
}

bool TextOutput::is_at(const std::string& path) const {
    struct stat file {};
    struct stat other {};
    return stat(place_.empty() ? "/dev/stdout" : place_.c_str(), &file) == 0 &&
           S_ISREG(file.st_mode) && stat(path == "-" ? "/dev/stdin" : path.c_str(), &other) == 0 &&
           file.st_dev == other.st_dev && file.st_ino == other.st_ino;
}

bool TextOutput::is_terminal() const { return isatty(fileno(file_)) != 0; }

void TextOutput::write(std::string_view text) {
    is_synced_ = false;
    if (std::fwrite(text.data(), 1, text.size(), file_) != text.size()) fail(name_);
}

void TextOutput::flush() {
    if (std::fflush(file_) != 0) fail(name_);
}

void TextOutput::sync() {
    flush();
    if (fsync(fileno(file_)) != 0) fail(name_);
    is_synced_ = true;
}

void TextOutput::close() {
    if (!temporary_.empty() || lacks_name_) {
        if (!is_synced_) sync();
        put_in_place();
        if (syncs_folder_) sync_folder(folder_of(place_));
    }
    if (std::fclose(std::exchange(file_, nullptr)) != 0) fail(name_);
}
