#include "checks/CheckCode.h"

#include <algorithm>
#include <vector>

namespace {

constexpr CheckSubject subjects[] = {
    {"The file", file_codes},
    {"Values", reading_codes},
    {"Texts", text_codes},
    {"People and publication", publication_codes},
    {"Formulae", formula_codes},
    {"Atoms", atom_codes},
    {"Cell", cell_codes},
    {"Symmetry", symmetry_codes},
    {"Measurement", measurement_codes},
};

}  // namespace

std::span<const CheckSubject> check_subjects() { return subjects; }

std::span<const CheckCode> check_codes() {
    static const std::vector<CheckCode> all = [] {
        std::vector<CheckCode> codes;
        for (const CheckSubject& subject : subjects) {
            const std::span<const CheckCode> some = subject.codes();
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

std::string file_of_example(const char* example) {
    const std::string_view items = example;
    const bool is_file = items.starts_with("data_") || items.starts_with("#");
    return (is_file ? "" : "data_example\n") + std::string(items);
}
