#include "cli/ComparedSide.h"

#include <filesystem>
#include <string_view>
#include <system_error>

namespace {

constexpr std::string_view heading = "data_", packed = ".gz";

bool is_file(const std::string& path) {
    std::error_code ignored;
    return path == "-" || (std::filesystem::exists(path, ignored) &&
                           !std::filesystem::is_directory(path, ignored));
}

}  // namespace

ComparedSide::ComparedSide(const std::string& name, bool recursive) : path_(name) {
    std::error_code ignored;
    const bool exists = std::filesystem::exists(name, ignored);
    is_folder_ = exists && std::filesystem::is_directory(name, ignored);
    for (std::size_t colon = exists ? 0 : name.rfind(':'); colon > 0 && colon != std::string::npos;
         colon = name.rfind(':', colon - 1)) {
        if (colon + 1 == name.size() || !is_file(name.substr(0, colon))) continue;
        path_ = name.substr(0, colon);
        block_ = name.substr(colon + 1);
        if (block_.starts_with(heading)) block_.erase(0, heading.size());
        break;
    }
    Places places;
    places.paths.push_back(path_);
    places.recursive = recursive;
    places_ = places.cif_files();
    stream_.emplace(places_, block_);
}

std::optional<EntryTexts> ComparedSide::next(std::span<const Field> wanted) {
    const CifEntry* const entry = stream_->next();
    if (!entry) return std::nullopt;
    return EntryTexts(stream_->path(), *entry, wanted);
}

std::string ComparedSide::file_in_folder() const {
    const std::filesystem::path path = stream_->path();
    std::string file =
        (is_folder_ ? path.lexically_relative(path_) : path.filename()).generic_string();
    if (file.ends_with(packed)) file.resize(file.size() - packed.size());
    return file;
}
