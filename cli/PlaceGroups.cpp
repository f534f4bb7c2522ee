#include "cli/PlaceGroups.h"

#include <cstdint>
#include <filesystem>
#include <system_error>
#include <utility>

namespace {

constexpr std::uintmax_t bytes_of_a_thread = 1 << 18;  // enough to be worth one

}  // namespace

std::vector<Place> PlaceGroups::take() {
    std::vector<Place> places;
    std::uintmax_t size = 0;
    while (next_ < places_.size()) {
        if (jobs_ > 1) {
            std::error_code unknown;
            const auto more = std::filesystem::file_size(places_[next_].path, unknown);
            size += unknown ? bytes_of_a_thread : more;
        }
        const bool suffices = jobs_ == 1 || size > bytes_of_a_thread;
        if (suffices && !places.empty()) break;
        places.push_back(std::move(places_[next_++]));
    }
    return places;
}
