#pragma once

#include <future>

/// How work for that many threads begins: what there is no thread for is done by the one who asks
/// for it.
inline std::launch launch_policy(unsigned int jobs) {
    return jobs > 1 ? std::launch::async | std::launch::deferred : std::launch::deferred;
}
