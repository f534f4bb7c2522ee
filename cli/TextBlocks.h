#pragma once

#include <string>

#include "cli/InputFile.h"

/// A piece of a file that holds whole texts, each with the separator behind it, which the last text
/// of the file may lack.
struct TextBlock {
    std::string file;
    unsigned long first = 1;  // the number of its first text
    unsigned long count = 0;  // of separators
    std::string bytes;
};

/// The texts of a file, block by block. A block is what is at hand, in about a quarter of a
/// megabyte, or one text that is longer. The cost grows with the length of the file.
class TextBlocks {
public:
    /// Opens `path`, or standard input for "-"; throws InputError.
    TextBlocks(const std::string& path, char separator) : file_(path), separator_(separator) {}

    /// Reads the next block; false at the end. Throws InputError.
    bool next(TextBlock& block);

private:
    InputFile file_;
    char separator_;
    std::string rest_;          // what has been read behind the last block
    unsigned long number_ = 1;  // of the next text
};
