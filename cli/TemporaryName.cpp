#include "cli/TemporaryName.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace {

/// A name that is known to what handles signals.
struct Slot {
    std::atomic<bool> is_taken;
    char path[PATH_MAX];  // empty: no file
};
Slot slots[64];

extern "C" void remove_unfinished(int signal) {
    for (const Slot& slot : slots) {
        if (slot.path[0] != '\0') unlink(slot.path);
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

/// Where others, such as sanitizers, or who has started the program have said what a signal does,
/// that stands.
bool remove_on_signals() {
    for (int signal = 1; signal <= SIGRTMAX; ++signal) {
        constexpr int harmless[] = {SIGCHLD, SIGCONT, SIGTSTP, SIGTTIN, SIGTTOU, SIGURG, SIGWINCH};
        if (std::find(std::begin(harmless), std::end(harmless), signal) != std::end(harmless)) {
            continue;
        }
        struct sigaction action {};
        if (sigaction(signal, nullptr, &action) != 0 || action.sa_handler != SIG_DFL) continue;
        action.sa_handler = remove_unfinished;
        sigaction(signal, &action, nullptr);  // refused for SIGKILL and SIGSTOP
    }
    return true;
}

}  // namespace

int TemporaryName::make_file(const std::string& folder) {
    // Short, for the name that the file will have may be as long as names can be.
    const std::string pattern = folder + "/.lmrtext-XXXXXX";
    if (pattern.size() >= sizeof Slot::path) {
        errno = ENAMETOOLONG;
        return -1;
    }
    static const bool knows_signals = remove_on_signals();
    static_cast<void>(knows_signals);
    Slot* const slot = std::find_if(std::begin(slots), std::end(slots), [](Slot& candidate) {
        return !candidate.is_taken.exchange(true);
    });
    if (slot == std::end(slots)) {
        errno = EMFILE;
        return -1;
    }
    slot_ = static_cast<std::size_t>(slot - std::begin(slots));
    // The name is noted before the file is there: no signal comes between.
    slot->path[pattern.copy(slot->path, pattern.size())] = '\0';
    const int descriptor = mkostemp(slot->path, O_CLOEXEC);
    if (descriptor < 0) release();
    return descriptor;
}

const char* TemporaryName::path() const { return empty() ? "" : slots[slot_].path; }

bool TemporaryName::rename_to(const std::string& path) {
    if (std::rename(this->path(), path.c_str()) != 0) return false;
    release();
    return true;
}

void TemporaryName::remove() {
    if (empty()) return;
    unlink(path());
    release();
}

void TemporaryName::release() {
    slots[slot_].path[0] = '\0';
    slots[slot_].is_taken = false;
    slot_ = none;
}
