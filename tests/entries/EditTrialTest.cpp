#include "fuzz/EditTrial.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

#include "fuzz/HostileCif.h"

namespace {

/// Hostile files, and some as they are.
std::vector<std::string> files() {
    std::vector<std::string> files;
    for (std::size_t i = 0; i < hostile_cifs; ++i) files.push_back(hostile_cif(i));
    for (const char* name : {"1008935", "2013971", "2014129", "2204347"}) {
        std::ifstream file(std::string(DATA_FOLDER "/") + name + ".cif", std::ios::binary);
        files.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return files;
}

}  // namespace

TEST(EditTrial, ReadsHostileFilesAsOthersDoAndChangesNothingByTextsThatAreThere) {
    for (const std::string& file : files()) {
        const EditTrial trial(file);
        EXPECT_GT(trial.values(), 0U);
        EXPECT_EQ(trial.readers(), "") << file;
        EXPECT_EQ(trial.same_texts(), "") << file;
    }
}
