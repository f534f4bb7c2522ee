#pragma once

#include <zlib.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

/// A gzip file is damaged, or unpacks to too much; what() says which.
class GzipError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Unpacks a gzip file, of one member or several, from the pieces in which it is read.
class GzipReader {
public:
    /// What a gzip file begins with.
    static constexpr std::string_view signature = "\x1F\x8B\x08";

    /// Throws std::bad_alloc.
    GzipReader();
    GzipReader(const GzipReader&) = delete;
    GzipReader& operator=(const GzipReader&) = delete;
    ~GzipReader();

    /// Takes the next bytes of the file, which must live until unpack() has returned false.
    void feed(std::string_view packed);
    /// Appends some of what they unpack to, at most a quarter of a megabyte; false: more bytes are
    /// wanted. Throws GzipError, also when the file so far unpacks to more than 64 megabytes and
    /// more than 200 times its size.
    bool unpack(std::string& bytes);
    /// Whether the file may end here: its last member is whole.
    bool is_whole() const { return between_members_; }

private:
    bool begin_member();

    std::unique_ptr<unsigned char[]> buffer_;
    z_stream stream_{};
    bool between_members_ = false;
    std::uint64_t packed_ = 0;    // bytes that have been fed
    std::uint64_t unpacked_ = 0;  // bytes that they have given so far
};
