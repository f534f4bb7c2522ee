#include "comparison/journal_names.h"
#include "tests/comparison/structured_findings.h"

TEST(CompareReferences, FindsWhichPartDiffers) {
    const struct {
        const char *left, *right, *findings;
    } cases[] = {
        {"Acta Cryst. C (59, 2003), i136-i138", "Acta Cryst. E (59, 2003), i136-i138",
         "journal [0,13)/[0,13)"},
        {"Acta Cryst. C (59, 2003), i136", "Acta Crystallographica Section C (59, 2003), i136",
         "journal-form [0,13)/[0,32)"},
        {"J (1, 2001), 12-15", "J (2, 2002), 13-16",
         "first-page [13,15)/[13,15); last-page [16,18)/[16,18); volume [3,4)/[3,4); "
         "year [6,10)/[6,10)"},
        {"J (1, 2001), 12-15", "J (1, 2001), 12", "last-page [16,18)/[15,15)"},
        {"J (1, 2001), 12-12", "J (1, 2001), 12", "coding [16,18)/[15,15)"},
        {"J (1, 2001), 1567-70", "J (1, 2001), 1567-1570", "coding [18,20)/[18,22)"},
        {"J (1, 2001), i136-138", "J (1, 2001), i136-i138", "coding [18,21)/[18,22)"},
        {"J (1, 2001), 1567-60", "J (1, 2001), 1567-1560", "last-page [18,20)/[18,22)"},
        {"J (1, 2001), 12-15", "J (1, 2001), 12\u201315", "dash [15,16)/[15,18)"},
        {"J (1, 2001), i136", "J (1, 2001), I136", "case [13,14)/[13,14)"},
        {"J (2001)", "J (1, 2001)", "volume [3,3)/[3,4)"},
        {"(2001), 12-15", "J (2001), 12-15", "journal [0,0)/[0,1)"},
        {"J (1, 2001), 12", "J, 12", "volume [3,4)/[1,1); year [6,10)/[1,1)"},
        {"Acta B (24,1968-38,1982) (31, 1975), 689", "Acta B (31, 1976), 689",
         "journal-form [0,24)/[0,6); year [30,34)/[12,16)"},
    };
    for (const auto& c : cases) EXPECT_EQ(found("reference", c.left, c.right), c.findings);
}

TEST(CompareReferences, KnowsAbbreviationsOfJournals) {
    const struct {
        const char *left, *right;
        bool same;
    } cases[] = {
        {"J. Chem. Soc., Dalton Trans.", "Journal of the Chemical Society, Dalton Transactions",
         true},
        {"Z. Anorg. Allg. Chem.", "Zeitschrift f\u00FCr Anorganische und Allgemeine Chemie", true},
        {"Proc Natl Acad Sci", "Proceedings of the National Academy of Sciences", true},
        {"Chemistry - A European Journal", "Chem. Eur. J.", true},
        {"Bull. Chem. Soc. Jpn.", "Bulletin of the Chemical Society of Japan", true},
        {"Journal of Alloys Compd.", "Journal of Alloys and Compounds", true},
        {"Cryst. Growth Des.", "Crystal Growth & Design", true},
        {"J. Org. Chem.", "Journal of Organometallic Chemistry", false},
        {"CrystEngComm", "Cryst. Eng. Comm.", true},
        {"Acta Crystallogr.,Sect.C:Cryst.Struct.Commun.", "Acta Crystallographica C", true},
        {"Physical Review B - Condensed Matter", "Phys. Rev. B", true},
        {"Acta Cryst.", "Acta Cryst. C", false},
        {"Acta Cryst. C", "Acta Cryst. Communications", false},
        {"J. Chem. Phys.", "Journal of Chemical Physics Letters", false},
        {"J. Mater. Sci.", "Journal of Mathematical Sciences", false},
        {"Metal Science", "Metals Science", false},
        {"Nature", "Nature Communications", false},
        {"", "J", false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(may_be_one_journal(c.left, c.right), c.same) << c.left;
        EXPECT_EQ(may_be_one_journal(c.right, c.left), c.same) << c.left;
    }
}

TEST(CompareReferences, TakesOtherTextsAsText) {
    for (const char* other : {"", "(", ")", "J", "in press", "J (1, 2001) 12"}) {
        EXPECT_EQ(found("reference", "J (1, 2001), 12", other),
                  found("text", "J (1, 2001), 12", other));
    }
    expect_sound_findings("reference",
                          {"Acta Crystallographica Section C (59, 2003), i136-i138",
                           "Acta B (24,1968-38,1982) (31, 1975), 689\u2013697", "J (2001)"},
                          {"", "(", ")", ", ", "-", "\u2013", "\xE2\x80", "2", " ", ".", "C"});
}
