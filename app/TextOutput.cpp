#include "app/TextOutput.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

namespace {

[[noreturn]] void fail(const std::string& name) {
    throw std::system_error(errno, std::generic_category(), name);
}

char unfinished[PATH_MAX];  // the file to remove when a signal ends the program

extern "C" void remove_unfinished(int signal) {
    unlink(unfinished);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void remove_on_signals(const std::string& path) {
    path.copy(unfinished, sizeof unfinished - 1);
    unfinished[std::min(path.size(), sizeof unfinished - 1)] = '\0';
    for (const int signal :
         {SIGHUP, SIGINT, SIGQUIT, SIGPIPE, SIGALRM, SIGTERM, SIGUSR1, SIGUSR2, SIGXCPU}) {
        if (std::signal(signal, remove_unfinished) == SIG_IGN) std::signal(signal, SIG_IGN);
    }
}

mode_t usual_mode() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

}  // namespace

TextOutput::TextOutput(const std::string& path) : name_(path), place_(path), file_(nullptr) {
    struct stat there {};
    const bool exists = stat(path.c_str(), &there) == 0;
    if (exists && !S_ISREG(there.st_mode)) {
        file_ = std::fopen(path.c_str(), "wb");
        if (!file_) fail(name_);
        return;
    }
    if (exists) place_ = std::filesystem::canonical(path);  // a link stays one
    temporary_ = place_ + '.' + std::string(6, 'X');        // as mkstemp() wants it
    const int descriptor = mkstemp(temporary_.data());
    if (descriptor < 0) fail(name_);
    remove_on_signals(temporary_);
    file_ = fdopen(descriptor, "wb");
    if (!file_ || fchmod(descriptor, exists ? there.st_mode & 07777 : usual_mode()) != 0) {
        const int error = errno;
        unlink(temporary_.c_str());
        errno = error;
        fail(name_);
    }
}

TextOutput::~TextOutput() {
    if (!file_) return;
    std::fclose(file_);
    if (!temporary_.empty()) unlink(temporary_.c_str());
}

bool TextOutput::is_at(const std::string& path) const {
    const std::filesystem::path other = path == "-" ? "/dev/stdin" : path;
    std::error_code ignored;
    return std::filesystem::is_regular_file(other, ignored) &&
           std::filesystem::equivalent(other, place_.empty() ? "/dev/stdout" : place_, ignored);
}

void TextOutput::write(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), file_) != text.size()) fail(name_);
}

void TextOutput::flush() {
    if (std::fflush(file_) != 0) fail(name_);
}

void TextOutput::close() {
    if (temporary_.empty()) {
        if (std::fclose(std::exchange(file_, nullptr)) != 0) fail(name_);
        return;
    }
    flush();
    if (fsync(fileno(file_)) != 0) fail(name_);
    if (std::rename(temporary_.c_str(), place_.c_str()) != 0) fail(name_);
    temporary_.clear();
    std::fclose(std::exchange(file_, nullptr));
}
