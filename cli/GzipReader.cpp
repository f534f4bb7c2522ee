#include "cli/GzipReader.h"

#include <new>

namespace {

constexpr unsigned int buffer_size = 1 << 18;
constexpr int gzip_window = 15 + 16;  // the largest window, and the header of gzip

// What is meant to fill the memory packs a thousandfold, texts some three- to fiftyfold.
constexpr std::uint64_t harmless_size = 64 << 20;
constexpr std::uint64_t largest_ratio = 200;

constexpr char too_much[] = "unpacks to more than 200 times its size";
constexpr char damaged[] = "damaged gzip file";

}  // namespace

GzipReader::GzipReader() : buffer_(std::make_unique_for_overwrite<unsigned char[]>(buffer_size)) {
    if (inflateInit2(&stream_, gzip_window) != Z_OK) throw std::bad_alloc();
}

GzipReader::~GzipReader() { inflateEnd(&stream_); }

void GzipReader::feed(std::string_view packed) {
    // What zlib reads from is not const, though it does not change it.
    stream_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
    stream_.avail_in = static_cast<uInt>(packed.size());
    packed_ += packed.size();
}

bool GzipReader::unpack(std::string& bytes) {
    while (!between_members_ || begin_member()) {
        stream_.next_out = buffer_.get();
        stream_.avail_out = buffer_size;
        const int status = inflate(&stream_, Z_NO_FLUSH);
        if (status == Z_MEM_ERROR) throw std::bad_alloc();
        if (status != Z_OK && status != Z_STREAM_END && status != Z_BUF_ERROR) {
            throw GzipError(damaged);
        }
        between_members_ = status == Z_STREAM_END;
        const std::size_t count = buffer_size - stream_.avail_out;
        bytes.append(reinterpret_cast<const char*>(buffer_.get()), count);
        unpacked_ += count;
        if (unpacked_ > harmless_size && unpacked_ / largest_ratio > packed_) {
            throw GzipError(too_much);
        }
        if (count > 0) return true;
        if (status == Z_BUF_ERROR) return false;
    }
    return false;
}

/// Begins the next member, if there is more than the zeros with which blocks of tapes are filled.
bool GzipReader::begin_member() {
    while (stream_.avail_in > 0 && *stream_.next_in == 0) {
        ++stream_.next_in;
        --stream_.avail_in;
    }
    if (stream_.avail_in == 0) return false;
    inflateReset(&stream_);
    between_members_ = false;
    return true;
}
