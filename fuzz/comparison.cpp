// Two texts of any kinds, compared in each way: what must hold of the findings does.
#include "fuzz/Input.h"
#include "fuzz/comparison_properties.h"
#include "tasks/Source.h"

namespace {

/// The text in the styles of that kind, or in none where it is not of that kind.
TextItem styled(unsigned int source, const std::string& text) {
    try {
        return {sources()[source % sources().size()].make_finder(), text};
    } catch (const std::exception&) {
        return {make_handle<InputTextStyleFinder>(), text};
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const ComparisonKind& kind = comparison_kinds()[input.byte() % comparison_kinds().size()];
    const unsigned int left_source = input.byte(), right_source = input.byte();
    const TextItem left = styled(left_source, input.text());
    const TextItem right = styled(right_source, input.text());
    const std::string complaint = complaint_of_comparison(left, right, kind);
    require(complaint.empty(), complaint.c_str(), left.text() + " / " + right.text());
    return 0;
}
