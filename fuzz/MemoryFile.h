#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <string>

#include "fuzz/Input.h"

/// A file in memory that has a path.
class MemoryFile {
public:
    explicit MemoryFile(const std::string& bytes) : descriptor_(memfd_create("fuzz", 0)) {
        require(descriptor_ >= 0 && write(descriptor_, bytes.data(), bytes.size()) ==
                                        static_cast<ssize_t>(bytes.size()),
                "there is memory for a file");
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { close(descriptor_); }

    std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

private:
    int descriptor_;
};
