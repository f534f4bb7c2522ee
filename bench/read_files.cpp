#include <gemmi/cif.hpp>

/// Reads the CIF files that are named, as others do, and nothing else: what showing them is
/// compared with.
int main(int argc, char** argv) {
    std::size_t blocks = 0;
    for (int i = 1; i < argc; ++i) blocks += gemmi::cif::read_file(argv[i]).blocks.size();
    return blocks > 0 ? 0 : 1;
}
