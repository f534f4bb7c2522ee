#include "output/match_reason.h"

#include <algorithm>

std::string reason_of(const FieldMatch& match) {
    std::string reason = "'" + match.term + "'";
    if (match.shown != match.term) reason.append(" is ").append(match.shown);
    return reason;
}

std::string reason_of(const std::vector<FieldMatch>& matches) {
    constexpr std::size_t most = 5;
    std::vector<std::string> reasons;
    std::size_t others = 0;
    for (const FieldMatch& match : matches) {
        std::string reason = reason_of(match);
        if (std::find(reasons.begin(), reasons.end(), reason) != reasons.end()) continue;
        if (reasons.size() < most) {
            reasons.push_back(std::move(reason));
        } else {
            ++others;
        }
    }
    std::string all;
    for (const std::string& reason : reasons) all.append(all.empty() ? "" : "; ").append(reason);
    if (others > 0) all.append(" and ").append(std::to_string(others)).append(" more");
    return all;
}
