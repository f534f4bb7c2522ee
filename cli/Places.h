#pragma once

#include <string>
#include <vector>

/// A file to read, or what is wrong with a place where files were looked for.
struct Place {
    std::string path;     ///< Of the file; "-": standard input.
    std::string problem;  ///< A sentence; empty: there is a file.
};

/// Where a command finds what it reads: the files that were named, those that a list names, and
/// those in folders.
struct Places {
    std::vector<std::string> paths;
    std::string list;        ///< A file with the names of more, "-": standard input; empty: none.
    char separator = '\n';   ///< Ends each name of the list.
    bool recursive = false;  ///< Folders in folders are looked into too.

    bool are_named() const { return !paths.empty() || !list.empty(); }

    /// The files in the order in which they were named, folders as they are.
    std::vector<Place> files() const;
    /// The same, but for each folder the files in it whose names end with ".cif" or ".cif.gz", in
    /// any case, in the order of their names, and then those of the folders in it. Hidden ones are
    /// left out. Links are followed; of each folder that was named every file and every folder is
    /// visited once, by whatever links it can be reached.
    std::vector<Place> cif_files() const;
};
