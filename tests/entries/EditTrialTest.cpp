#include "fuzz/EditTrial.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "fuzz/HostileCif.h"
#include "tests/Random.h"

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr unsigned int cases = 5'000;
#else
constexpr unsigned int cases = 100'000;
#endif

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

// Parted by "|".
const char* const pieces =
    "a|b c|x\ny|1.2(3)|M\xC3\xBCller|\xE2\x82\xAC|\xF0\x9F\x92\x8E| |\t|\n|\n\n|\r\n|\r|;|\n;|"
    "'|\"|' |\" |'''|\"\"\"|\\|\\\\|\\\n|\\ \n|>\\\n|#| #|_tag|\n_a b|loop_|data_x|save_|stop_|"
    "global_|?|.|[|]|{|}|:|$";
const char* const long_pieces[] = {"a", "ab ", ";", "\\", " ", "a;", "\xC3\xBC", "'x\""};
const std::string bad_pieces[] = {"\001", "\xFF",         "\x7F",
                                  "\xC3", "\xED\xA0\x80", std::string(1, '\0')};

std::vector<std::string> parts(const std::string& text) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, '|');) parts.push_back(part);
    return parts;
}

std::string random_text(Random& random) {
    static const std::vector<std::string> all = parts(pieces);
    std::string text;
    for (unsigned int size = random() % 8; size > 0; --size) {
        text += all[random() % all.size()];
        if (random() % 150 == 0) {
            const char* const piece = long_pieces[random() % std::size(long_pieces)];
            while (text.size() < 3000) text += piece;
        }
    }
    if (random() % 50 == 0) text += bad_pieces[random() % std::size(bad_pieces)];
    return text;
}

EditTrial::Text random_value(Random& random) {
    if (random() % 20 == 0) return std::nullopt;
    return random_text(random);
}

std::vector<EditTrial::Change> random_changes(const EditTrial& trial, Random& random) {
    std::vector<EditTrial::Change> changes;
    std::size_t value = random() % trial.values();
    const unsigned int several = random() % 4 == 0 ? 6 : 1;
    for (unsigned int i = 0; i < several && value < trial.values(); ++i) {
        changes.push_back({value, random_value(random)});
        value += 1 + random() % 3;
    }
    return changes;
}

std::vector<EditTrial::Row> random_rows(const EditTrial& trial, std::size_t item, Random& random) {
    std::vector<EditTrial::Row> rows;
    for (std::size_t i = 0; i < trial.rows(item); ++i) rows.push_back({i, {}});
    for (unsigned int steps = 1 + random() % 3; steps > 0; --steps) {
        const std::size_t size = rows.size(), at = random() % (size + 1);
        const auto place = rows.begin() + static_cast<std::ptrdiff_t>(at);
        if (random() % 3 == 0) {
            rows.insert(place, {{}, {{random() % trial.columns(item), random_value(random)}}});
        } else if (at < size && random() % 2 == 0) {
            rows.erase(place);
        } else if (at < size) {
            std::swap(*place, rows[random() % size]);
        }
    }
    if (!rows.empty() && random() % 4 == 0) {
        rows[random() % rows.size()].values = {
            {random() % trial.columns(item), random_value(random)}};
    }
    return rows;
}

EditTrial::Added random_item(const EditTrial& trial, Random& random) {
    const char* const tags[] = {
        "_cell_volume", "_publ_contact_author", "_q_new", "_l_b2", "_journal_coden_ASTM",
        "_x",           "_added_tag.with_dot"};
    return {random() % trial.blocks(), tags[random() % std::size(tags)], random_text(random)};
}

std::string set_values(EditTrial& trial, Random& random) {
    return trial.set(random_changes(trial, random));
}

std::string set_rows(EditTrial& trial, Random& random) {
    const std::size_t item = random() % trial.items();
    return trial.set_rows(item, random_rows(trial, item, random));
}

std::string add(EditTrial& trial, Random& random) { return trial.add(random_item(trial, random)); }

std::string edit_all(EditTrial& trial, Random& random) {
    const std::size_t item = random() % trial.items();
    const std::vector<EditTrial::Change> changes = random_changes(trial, random);
    const std::vector<EditTrial::Row> rows = random_rows(trial, item, random);
    return trial.all_at_once(changes, item, rows,
                             {random_item(trial, random), random_item(trial, random)});
}

/// Tries one way to edit on all files in turn.
void expect_no_complaints(std::string (*edit)(EditTrial&, Random&), unsigned int times) {
    std::vector<EditTrial> trials;
    for (std::string& file : files()) trials.emplace_back(std::move(file));
    Random random(5);
    for (unsigned int i = 0, complaints = 0; i < times && complaints < 5; ++i) {
        const std::string complaint = edit(trials[i % trials.size()], random);
        if (complaint.empty()) continue;
        ADD_FAILURE() << "file " << i % trials.size() << ": " << complaint;
        ++complaints;
    }
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

TEST(EditTrial, SetsValuesAndNothingElse) { expect_no_complaints(set_values, cases / 2); }

TEST(EditTrial, SetsRowsAndNothingElse) { expect_no_complaints(set_rows, cases / 4); }

TEST(EditTrial, AddsItemsAndNothingElse) { expect_no_complaints(add, cases / 8); }

TEST(EditTrial, DoesAllAtOnce) { expect_no_complaints(edit_all, cases / 8); }
