#include <gmock/gmock.h>

#include "checks/Journal.h"
#include "checks/doi.h"
#include "checks/pages.h"
#include "checks/people.h"
#include "tests/checks/codes_of.h"

TEST(CheckPublication, OrdersPages) {
    constexpr auto right = PageOrder::right, reversed = PageOrder::reversed,
                   unlike = PageOrder::unlike, unknown = PageOrder::unknown;
    const struct {
        const char *first, *last;
        PageOrder order;
    } cases[] = {
        {"9", "10", right},
        {"20", "19", reversed},
        {"1234", "38", right},
        {"1234", "33", reversed},
        {"1234", "1234", right},
        {"o123", "o125", right},
        {"o123", "O125", right},
        {"o123", "125", right},
        {"o123", "5", right},
        {"o123", "m125", unlike},
        {"m5", "m3", reversed},
        {"12", "o13", unlike},
        {"12A", "12C", right},
        {"12C", "12A", reversed},
        {"xii", "xiv", unknown},
        {"014103", "014103-6", unknown},
        {"e1", "1000000000", unknown},
        {"", "", unknown},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(page_order(c.first, c.last), c.order) << c.first << " to " << c.last;
    }
}

TEST(CheckPublication, ReadsDois) {
    const struct {
        const char* text;
        const char* doi;  // null: none; of a right one the text
    } cases[] = {
        {"10.1107/S0108270103025769", "10.1107/S0108270103025769"},
        {"10.1000.10/12", "10.1000.10/12"},
        {"HTTPS://doi.org/10.1021/ic0484248", "10.1021/ic0484248"},
        {"http://dx.doi.org/10.1021/ic0484248.", "10.1021/ic0484248"},
        {"DOI: 10.1021/ic0484248", "10.1021/ic0484248"},
        {"10.1021/ ic0484248", "10.1021/ic0484248"},
        {"10.1021/ic04 84248", nullptr},
        {"10.1021/", nullptr},
        {"10.102/ic0484248", nullptr},
        {"10.1021/ic\xE2\x80\x93"
         "1",
         nullptr},
        {"doi:", nullptr},
        {"...", nullptr},
    };
    for (const auto& c : cases) {
        const DoiReading reading = read_doi(c.text);
        const bool is_right = c.doi && std::string_view(c.doi) == c.text;
        EXPECT_EQ(reading.state, is_right ? DoiReading::right
                                 : c.doi  ? DoiReading::decorated
                                          : DoiReading::none)
            << c.text;
        EXPECT_EQ(reading.doi, c.doi && !is_right ? c.doi : "") << c.text;
    }
}

TEST(CheckPublication, KnowsJournalsAndSlips) {
    const struct {
        const char* name;
        const char* journal;  // null: none is known
        const char* wrong_word;
    } cases[] = {
        {"ACTA CRYSTALLOGRAPHICA, SECTION C", "Acta Crystallographica Section C", ""},
        {"Zeitschrift f\xC3\xBCr Kristallographie (149,1979-)", "Zeitschrift fuer Kristallographie",
         ""},
        {"Acta Crystallographcia Section C", "Acta Crystallographica Section C",
         "crystallographcia"},
        {"Jounal of Organic Chemistry", "Journal of Organic Chemistry", "jounal"},
        {"Journal of Organnic Chemistry", "Journal of Organic Chemistry", "organnic"},
        {"Acta Crystallographica Section G", nullptr, ""},  // may be a new one
        {"Physical Review C", nullptr, ""},
        {"Chem. Comm.", nullptr, ""},  // other abbreviations
        {"Phys. Chem. Mineral.", nullptr, ""},
        {"Jounal of Organnic Chemistry", nullptr, ""},
        {"Mature", nullptr, ""},
        {"", nullptr, ""},
    };
    for (const auto& c : cases) {
        const JournalMatch match = find_journal(c.name);
        EXPECT_STREQ(match.journal ? match.journal->name : nullptr, c.journal) << c.name;
        EXPECT_EQ(match.wrong_word, c.wrong_word) << c.name;
    }
    EXPECT_EQ(codes_of("_journal_name_full\n;POWER Diffraction\n;"),
              "journal-misspelt: ;POWDER Diffraction\n;\n");
}

TEST(CheckPublication, KnowsJournalsByOneName) {
    for (const Journal& journal : known_journals()) {
        for (const char* const name : {journal.name, journal.abbreviation}) {
            if (!*name) continue;
            const JournalMatch match = find_journal(name);
            EXPECT_EQ(match.journal, &journal) << name;
        }
    }
}

TEST(CheckPublication, TellsWhoIsThereTwice) {
    const struct {
        const char *first, *second;
        const char* likeness;
    } cases[] = {
        {"M\xC3\xBCller, A. B.", "Mueller, A. B.", "same"},
        {"MULLER, Anna", "Muller, Anna", "same"},
        {"Phan Thanh, Song", "Phan Thanh, Song", "same"},
        {"Wang, L.", "Wang, L.", "alike"},  // there are many
        {"Wang, L.", "Wang, Li-Ming", "alike"},
        {"Wang Ming", "Ming Wang", "alike"},
        {"Smith", "Smith, J.", "alike"},
        {"Smith, J.", "Smith, J. Jr", ""},
        {"Wang, Li", "Wang, Lu", ""},
        {"Li, A. B.", "Li, B.", ""},
        {"Baur, A. B.", "Bauer, A. B.", ""},
        {"\xFF", "\xFE", ""},
    };
    for (const auto& c : cases) {
        const auto people = repeated_people({"Other, A.", c.first, c.second});
        const std::string likeness = people.empty() ? "" : people[0].is_sure ? "same" : "alike";
        EXPECT_EQ(likeness, c.likeness) << c.first << " and " << c.second;
        EXPECT_TRUE(people.empty() || people[0].before == 1) << c.first;
    }
}

TEST(CheckPublication, StaysFastWhereAllHaveOneName) {
    const std::vector<std::string> names(20000, "Blake, A. J.");
    EXPECT_EQ(repeated_people(names).size(), names.size() - 1);
}

TEST(CheckPublication, TakesYearsAndVolumes) {
    EXPECT_EQ(codes_of("_journal_year 1889"),
              "year-invalid: a year from 1890 to 2100, in four digits\n");
    EXPECT_EQ(codes_of("_journal_year 2101"),
              "year-invalid: a year from 1890 to 2100, in four digits\n");
    EXPECT_EQ(codes_of("_journal_year 1967\n_journal_volume 1967"),
              "volume-is-year: the number of a volume\n");
    EXPECT_EQ(codes_of("_journal_year 1967\n_journal_volume 67\n_journal_page_first 128-123"),
              "pages-reversed: the first page before the last\n");
}
