#include "entries/symmetry_operations.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr std::size_t longest_operation = 100;  // in characters
constexpr std::size_t longest_hall_symbol = 100;

/// An operation such as "-x,y+1/2,z"; throws as gemmi does where it is none. The sums that
/// gemmi makes of long numbers would overflow.
gemmi::Op operation(const std::string& text) {
    std::size_t digits = 0;
    for (const char c : text) {
        digits = c >= '0' && c <= '9' ? digits + 1 : 0;
        if (digits > 2 || text.size() > longest_operation) {
            throw std::runtime_error("no symmetry operation");
        }
    }
    return gemmi::parse_triplet(text);
}

}  // namespace

Operations operations_of_hall_symbol(const std::string& symbol) {
    if (symbol.empty() || symbol.size() > longest_hall_symbol) return {};
    try {
        return gemmi::symops_from_hall(symbol.c_str()).all_ops_sorted();
    } catch (const std::runtime_error&) {
        return {};
    }
}

Operations operations_of_list(const std::vector<std::string>& texts) {
    Operations operations;
    try {
        for (const std::string& text : texts) operations.push_back(operation(text).wrap());
    } catch (const std::runtime_error&) {
        return {};
    }
    std::sort(operations.begin(), operations.end());
    operations.erase(std::unique(operations.begin(), operations.end()), operations.end());
    return operations;
}

const gemmi::SpaceGroup* group_of(const Operations& operations) {
    if (operations.empty()) return nullptr;
    return gemmi::find_spacegroup_by_ops(gemmi::split_centering_vectors(operations));
}
