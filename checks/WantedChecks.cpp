#include "checks/WantedChecks.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace {

bool holds(const std::vector<const CheckCode*>& codes, const CheckCode& code) {
    return std::any_of(codes.begin(), codes.end(), [&](const CheckCode* row) {
        return std::string_view(row->code) == code.code;
    });
}

}  // namespace

WantedChecks::WantedChecks(Problem::Level level, std::vector<const CheckCode*> only,
                           std::vector<const CheckCode*> ignored)
    : level_(level), only_(std::move(only)), ignored_(std::move(ignored)) {}

bool WantedChecks::contain(const CheckCode& code, Problem::Level level) const {
    return level >= level_ && (only_.empty() || holds(only_, code)) && !holds(ignored_, code);
}

bool WantedChecks::contain_any(std::span<const CheckCode> codes) const {
    return std::any_of(codes.begin(), codes.end(),
                       [&](const CheckCode& code) { return contain(code, Problem::Level::error); });
}
