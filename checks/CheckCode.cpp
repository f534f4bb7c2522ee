#include "checks/CheckCode.h"

#include <algorithm>
#include <vector>

std::span<const CheckCode> check_codes() {
    static const std::vector<CheckCode> all = [] {
        std::vector<CheckCode> codes;
        for (const auto subject : {file_codes, text_codes, publication_codes, formula_codes,
                                   cell_codes, symmetry_codes}) {
            const std::span<const CheckCode> some = subject();
            codes.insert(codes.end(), some.begin(), some.end());
        }
        return codes;
    }();
    return all;
}

const CheckCode* check_code(std::string_view code) {
    const std::span<const CheckCode> codes = check_codes();
    const auto found = std::find_if(codes.begin(), codes.end(),
                                    [code](const CheckCode& row) { return row.code == code; });
    return found == codes.end() ? nullptr : &*found;
}
