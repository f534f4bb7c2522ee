#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

/// Bytes of a fuzzer, taken from the front.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size)
        : rest_(reinterpret_cast<const char*>(data), size) {}

    /// 0 when there are no more.
    unsigned int byte() {
        if (rest_.empty()) return 0;
        const auto first = static_cast<unsigned char>(rest_.front());
        rest_.erase(0, 1);
        return first;
    }

    /// What stands before the next NUL, or the rest.
    std::string text() {
        std::string text = rest_.substr(0, rest_.find('\0'));
        rest_.erase(0, text.size() + 1);
        return text;
    }

    /// All that is left.
    const std::string& rest() const { return rest_; }

private:
    std::string rest_;
};

/// Ends the program, which the fuzzer takes for a finding, unless the condition holds.
inline void require(bool condition, const char* what, const std::string& seen = "") {
    if (condition) return;
    std::fprintf(stderr, "not so: %s\n%s\n", what, seen.c_str());
    std::abort();
}
