#include "cli/EditedFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <iterator>
#include <system_error>

#include "cli/TextOutput.h"
#include "cli/read_cif.h"

namespace {

constexpr std::size_t longest_quotation = 60;  // bytes of a line that has changed
constexpr std::size_t piece = 1 << 16;

[[noreturn]] void fail(const std::string& name) {
    throw InputError(name + ": " + std::generic_category().message(errno));
}

/// An open file, which is closed in the end, and with it the lock that it may have.
class Descriptor {
public:
    Descriptor(const std::string& place, int mode, const std::string& name)
        : number_(open(place.c_str(), mode | O_CLOEXEC | O_NONBLOCK)) {
        if (number_ < 0) fail(name);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(number_); }

    int number() const { return number_; }

private:
    int number_;
};

struct stat status_of(const Descriptor& file, const std::string& name) {
    struct stat status {};
    if (fstat(file.number(), &status) != 0) fail(name);
    return status;
}

std::string bytes_of(const Descriptor& file, const std::string& name) {
    std::string bytes;
    while (true) {
        const std::size_t size = bytes.size();
        bytes.resize(size + piece);
        const ssize_t count = read(file.number(), bytes.data() + size, piece);
        if (count < 0 && errno != EINTR) fail(name);
        bytes.resize(size + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count == 0) return bytes;
    }
}

/// The line in which a place is, as far as a message tells it.
std::string quoted_line(std::string_view bytes, std::size_t place) {
    const std::size_t begin = place == 0 ? 0 : bytes.rfind('\n', place - 1) + 1;
    const std::string_view line = bytes.substr(begin, bytes.find('\n', begin) - begin);
    return std::string("'").append(line.substr(0, longest_quotation)).append("'");
}

/// "changed since it was read: line 12 was 'a' and is 'b'".
std::string what_changed(std::string_view before, std::string_view now) {
    const auto [left, right] = std::mismatch(before.begin(), before.end(), now.begin(), now.end());
    if (left == before.end() && right == now.end()) return "another file stands there now";
    const auto place = static_cast<std::size_t>(left - before.begin());
    const std::string line = std::to_string(std::count(before.begin(), left, '\n') + 1);
    return "line " + line + " was " + quoted_line(before, place) + " and is " +
           quoted_line(now, place);
}

/// Throws unless the file that is open still stands at its place and has these bytes.
void expect_unchanged(const Descriptor& open_file, const EditedFile& file) {
    const Descriptor there(file.place(), O_RDONLY, file.path());
    const std::string now = bytes_of(there, file.path());
    const struct stat was = status_of(open_file, file.path()), is = status_of(there, file.path());
    if (was.st_ino == is.st_ino && was.st_dev == is.st_dev && now == file.bytes()) return;
    throw InputError(file.path() +
                     ": changed since it was read: " + what_changed(file.bytes(), now));
}

/// Not all file systems have locks; then there is only what is seen of the file.
void lock(const Descriptor& file, const std::string& name) {
    if (flock(file.number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) return;
    throw InputError(name + ": another process is editing it");
}

}  // namespace

EditedFile::EditedFile(const std::string& path) : path_(path) {
    if (path == "-") throw InputError("-: standard input cannot be edited in its place");
    std::error_code unknown;
    place_ = std::filesystem::canonical(path, unknown);
    struct stat status {};
    if (!unknown && stat(place_.c_str(), &status) == 0) {
        if (!S_ISREG(status.st_mode)) throw InputError(path + ": is no regular file");
        device_ = status.st_dev;
        number_ = status.st_ino;
    }
    InputFile file(path);  // says what is wrong with the path
    bytes_ = read_cif(file);
    if (file.is_packed())
        throw InputError(path + ": is a gzip file; only unpacked ones are edited");
}

bool EditedFile::is_same_as(const EditedFile& other) const {
    return device_ == other.device_ && number_ == other.number_;
}

void EditedFile::replace(std::string_view bytes, bool keeps_backup) const {
    const Descriptor open_file(place_, O_RDWR, path_);
    lock(open_file, path_);
    expect_unchanged(open_file, *this);
    const std::string folder = std::filesystem::path(place_).parent_path();
    if (access(folder.c_str(), W_OK | X_OK) != 0) fail(path_ + ": its folder");
    const struct stat status = status_of(open_file, path_);
    if (keeps_backup) {
        TextOutput backup(path_ + '~', place_ + '~', status);
        backup.write(bytes_);
        backup.close();
    }
    TextOutput output(path_, place_, status);
    output.write(bytes);
    output.sync();
    expect_unchanged(open_file, *this);
    output.close();
}
