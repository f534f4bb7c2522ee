#include "cli/Places.h"

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>

#include "cli/InputFile.h"
#include "entries/cif_text.h"

namespace {

/// The names in a list, empty ones left out; or one place with what is wrong with it.
std::vector<Place> names_in(const std::string& list, char separator) {
    std::vector<Place> places;
    std::string bytes;
    std::string shown_name;
    try {
        InputFile file(list);
        shown_name = file.name();
        while (file.read(bytes)) {
        }
    } catch (const InputError& error) {
        return {{"", error.what()}};
    }
    for (std::string_view rest = bytes; !rest.empty();) {
        const std::string_view name = rest.substr(0, rest.find(separator));
        if (!name.empty()) places.push_back({std::string(name), ""});
        rest.remove_prefix(std::min(name.size() + 1, rest.size()));
    }
    if (places.empty()) places.push_back({"", shown_name + ": names no files"});
    return places;
}

bool is_name_of_cif(const std::string& name) {
    const std::string lower = in_lower_case(name);
    return lower.ends_with(".cif") || lower.ends_with(".cif.gz");
}

/// Looks for CIF files in a folder.
class Walk {
public:
    Walk(bool recursive, std::vector<Place>& places)
        : recursive_(recursive), places_(places), before_(places.size()) {}

    void run(const std::string& folder) {
        waiting_.push_back(folder);
        while (!waiting_.empty()) {
            const std::string next = std::move(waiting_.back());
            waiting_.pop_back();
            look_into(next);
        }
        if (places_.size() > before_) return;
        const char* const advice =
            has_folders_ && !recursive_ ? " (--recursive looks in its folders too)" : "";
        places_.push_back({"", "no CIF files in " + folder + advice});
    }

private:
    void look_into(const std::string& folder) {
        struct stat status {};
        if (stat(folder.c_str(), &status) == 0 && !is_new(status)) return;
        std::error_code error;
        std::vector<std::string> names;
        for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end;
             at.increment(error)) {
            std::string name = at->path().filename().string();
            if (!name.starts_with('.')) names.push_back(std::move(name));
        }
        if (error) places_.push_back({"", folder + ": " + error.message()});
        std::sort(names.begin(), names.end());
        std::vector<std::string> folders;
        for (const std::string& name : names) {
            const std::string path = (std::filesystem::path(folder) / name).string();
            const bool is_there = stat(path.c_str(), &status) == 0;
            if (is_there && S_ISDIR(status.st_mode)) {
                folders.push_back(path);
            } else if (is_name_of_cif(name) &&
                       (!is_there || (S_ISREG(status.st_mode) && is_new(status)))) {
                places_.push_back({path, ""});  // who opens it says why it is not there
            }
        }
        has_folders_ = has_folders_ || !folders.empty();
        if (recursive_) waiting_.insert(waiting_.end(), folders.rbegin(), folders.rend());
    }

    /// Whether the file or folder has not been visited.
    bool is_new(const struct stat& status) {
        return visited_.emplace(status.st_dev, status.st_ino).second;
    }

    bool recursive_;
    std::vector<Place>& places_;
    std::size_t before_;
    std::vector<std::string> waiting_;  // folders, the next one last
    std::set<std::pair<dev_t, ino_t>> visited_;
    bool has_folders_ = false;
};

}  // namespace

std::vector<Place> Places::files() const {
    std::vector<Place> places;
    for (const std::string& path : paths) places.push_back({path, ""});
    if (list.empty()) return places;
    std::vector<Place> listed = names_in(list, separator);
    std::move(listed.begin(), listed.end(), std::back_inserter(places));
    if (list != "-") return places;
    for (Place& place : places) {
        if (place.path == "-") place.problem = "-: standard input is the list of files";
    }
    return places;
}

std::vector<Place> Places::cif_files() const {
    std::vector<Place> places;
    for (Place& place : files()) {
        std::error_code ignored;
        if (place.problem.empty() && std::filesystem::is_directory(place.path, ignored)) {
            Walk(recursive, places).run(place.path);
        } else {
            places.push_back(std::move(place));
        }
    }
    return places;
}
