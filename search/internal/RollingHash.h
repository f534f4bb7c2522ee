#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

/// The hash of a run of fixed length that slides over a string.
class RollingHash {
public:
    /// Of the first `length` characters of `text`, which is not kept alive and has so many.
    RollingHash(std::string_view text, unsigned int length) : text_(text), length_(length) {
        for (unsigned int i = 0; i < length; ++i) {
            value_ = value_ * factor + byte(i);
            if (i > 0) leaving_weight_ *= factor;
        }
    }

    std::uint64_t value() const { return value_; }

    /// Goes on by one character; not beyond the end.
    void slide() {
        value_ -= byte(start_) * leaving_weight_;
        value_ = value_ * factor + byte(start_ + length_);
        ++start_;
    }

private:
    static constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;

    std::uint64_t byte(unsigned int position) const {
        return static_cast<unsigned char>(text_[position]);
    }

    std::string_view text_;
    unsigned int length_;
    unsigned int start_ = 0;
    std::uint64_t value_ = 0;
    std::uint64_t leaving_weight_ = 1;
};

/// The hash of each run of that length in a text; none when the text is shorter.
inline std::vector<std::uint64_t> run_hashes(std::string_view text, unsigned int length) {
    std::vector<std::uint64_t> hashes;
    if (text.size() < length) return hashes;
    hashes.resize(text.size() - length + 1);
    RollingHash hash(text, length);
    hashes[0] = hash.value();
    for (std::size_t start = 1; start < hashes.size(); ++start) {
        hash.slide();
        hashes[start] = hash.value();
    }
    return hashes;
}
