// Writes files that cost a careless reader more than their size: hostile_files FOLDER SIZE
// [NAME], about SIZE kilobytes each, and a sparse one of SIZE megabytes; only that of the name.
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "fuzz/colliding_names.h"

namespace {

/// `unit` again and again, up to `bytes`; "@" in it is the number of the repetition.
std::string repeated(const std::string& unit, std::size_t bytes) {
    std::string text;
    for (unsigned long i = 0; text.size() < bytes; ++i) {
        std::string piece = unit;
        for (std::size_t at = 0; (at = piece.find('@', at)) != std::string::npos;) {
            piece.replace(at, 1, std::to_string(i));
        }
        text += piece;
    }
    return text;
}

struct File {
    const char* name;
    std::string begin;
    std::string unit;
    std::string end;
};

const File files[] = {
    {"long_line", "", "x", ""},
    {"line_of_nuls", "", std::string(1, '\0'), ""},
    {"lines", "", "line @\n", ""},
    {"symmetry_operations.cif", "data_x\nloop_\n_space_group_symop_operation_xyz\n",
     "x+@*y,y+@*z,z\n", ""},
    {"empty_blocks.cif", "", "data_a\n", ""},
    {"loops.cif", "data_x\n", "loop_\n_tag_@\n1 2 3\n", ""},
    {"repeated_tags.cif", "data_x\n", "_cell_length_a 1\n", ""},
    {"archives.cif", "data_x\n", "_database_code_@ 1\n", ""},
    {"long_value.cif", "data_x\n_chemical_name_common '", "~", "'\n"},
    {"nested_quotes.cif", "data_x\n_chemical_name_common ", "'", "\n"},
    {"comments.cif", "", "# nothing\n", "data_x\n"},
    {"no_cif", "", "no CIF file\n", ""},
    // Names that shells, parsers of arguments and formats could take for something else.
    {"[]", "data_brackets\n", "", ""},
    {"[x,y]", "data_list\n", "", ""},
    {"a,b", "data_comma\n", "", ""},
    {"%%", "data_percent\n", "", ""},
    {"{}", "data_braces\n", "", ""},
    {"\"x\"", "data_quotes\n", "", ""},
    {"-x", "data_dash\n", "", ""},
};

/// Names that a hash takes for one: each is an author, and a line of the details.
std::string colliding_names_cif(std::size_t bytes) {
    std::string authors = "data_x\nloop_\n_publ_author_name\n",
                details = "_refine_special_details\n;";
    const std::size_t count = bytes / (2 * colliding_names(1).front().size() * 15);
    for (const std::string& name : colliding_names(count)) {
        authors += "'" + name + "'\n";
        details += name + '\n';
    }
    return authors + details + ";\n";
}

}  // namespace

int main(int argc, char** argv) {
    const unsigned long size = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 0;
    if (size == 0) {
        std::cerr << "hostile_files: expected FOLDER, SIZE in kilobytes and perhaps a NAME\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    unsigned int written = 0;
    for (const File& file : files) {
        if (argc > 3 && std::string(argv[3]) != file.name) continue;
        const std::size_t bytes = file.unit.empty() ? 0 : size << 10;
        std::ofstream stream(folder / file.name, std::ios::binary);
        stream << file.begin << repeated(file.unit, bytes) << file.end << std::flush;
        written += stream.good() ? 1 : 0;
    }
    if (argc <= 3 || std::string(argv[3]) == "sparse.cif") {
        std::ofstream sparse(folder / "sparse.cif");
        sparse.close();
        std::filesystem::resize_file(folder / "sparse.cif", std::uintmax_t{size} << 20);
        ++written;
    }
    if (argc <= 3 || std::string(argv[3]) == "colliding_names.cif") {
        std::ofstream stream(folder / "colliding_names.cif", std::ios::binary);
        stream << colliding_names_cif(size << 10) << std::flush;
        written += stream.good() ? 1 : 0;
    }
    return written == (argc > 3 ? 1 : std::size(files) + 2) ? 0 : 1;
}
