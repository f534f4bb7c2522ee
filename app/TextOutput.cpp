#include "app/TextOutput.h"

#include <cerrno>
#include <system_error>
#include <utility>

namespace {

[[noreturn]] void fail(const std::string& name) {
    throw std::system_error(errno, std::generic_category(), name);
}

}  // namespace

TextOutput::TextOutput(const std::string& path)
    : name_(path), file_(std::fopen(path.c_str(), "wb")) {
    if (!file_) fail(name_);
}

TextOutput::~TextOutput() {
    if (file_) std::fclose(file_);
}

void TextOutput::write(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), file_) != text.size()) fail(name_);
}

void TextOutput::flush() {
    if (std::fflush(file_) != 0) fail(name_);
}

void TextOutput::close() {
    if (std::fclose(std::exchange(file_, nullptr)) != 0) fail(name_);
}
