#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

/// Bytes of a fuzzer, taken from the front. Refers to them.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size)
        : rest_(reinterpret_cast<const char*>(data), size) {}

    /// 0 when there are no more.
    unsigned int byte() {
        if (rest_.empty()) return 0;
        const auto first = static_cast<unsigned char>(rest_.front());
        rest_.remove_prefix(1);
        return first;
    }

    /// What stands before the next NUL, or the rest.
    std::string text() {
        std::string text(rest_.substr(0, rest_.find('\0')));
        rest_.remove_prefix(text.size() < rest_.size() ? text.size() + 1 : text.size());
        return text;
    }

    /// All that is left.
    std::string rest() const { return std::string(rest_); }
    bool at_end() const { return rest_.empty(); }

private:
    std::string_view rest_;
};

/// Ends the program, which the fuzzer takes for a finding, unless the condition holds.
inline void require(bool condition, const char* what, const std::string& seen = "") {
    if (condition) return;
    std::fprintf(stderr, "not so: %s\n%s\n", what, seen.c_str());
    std::abort();
}
