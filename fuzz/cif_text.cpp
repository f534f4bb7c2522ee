// Texts with the codes of CIF, plain and pasted: each comes back from its codes as it was shown.
#include "fuzz/Input.h"
#include "fuzz/cif_text_round_trips.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const std::string complaint = complaint_of_cif_text(text);
    require(complaint.empty(), "a text comes back from its codes", complaint);
    return 0;
}
