#include "tests/comparison/structured_findings.h"

TEST(CompareAuthors, PairsPeopleByTheirNames) {
    const struct {
        const char *left, *right, *findings;
    } cases[] = {
        {"A.Smith, B.Jones", "A.B.Smith, B.Jones", "author-initials A.B.Smith [0,7)/[0,9)"},
        {"P.S.Ishar", "M.P.S.Ishar", "author-initials M.P.S.Ishar [0,9)/[0,11)"},
        {"A.J.Smith", "J.A.Smith", "author-contradicted A.J.Smith [0,9)/[0,9)"},
        {"Anne Smith", "Adam Smith", "author-contradicted Adam Smith [0,10)/[0,10)"},
        {"A.B.Smith", "Anne B. Smith", "author-form A.B.Smith [0,9)/[0,13)"},
        {"A.B.Smith, L.Li", "Smith, A. B.; Li, L.",
         "author-form A.B.Smith [0,9)/[0,12); author-form L.Li [11,15)/[14,20)"},
        {"A.B.Smith, C.King", "Smith, A. B., King, C.",
         "author-form A.B.Smith [0,9)/[0,12); author-form C.King [11,17)/[14,22)"},
        {"A.Smith", "Smith, Anne", "author-form A.Smith [0,7)/[0,11)"},
        {"A.L.Bail", "A.le Bail", "author-particles A.L.Bail [0,8)/[0,9)"},
        {"L.-H.Yin", "L.H.Yin", "author-form L.-H.Yin [0,8)/[0,7)"},
        {"C.N\u00E4ther", "C.Naether", "author-form C.Naether [0,9)/[0,9)"},
        {"C.N\u00E4ther", "C.Nather", "author-form C.Nather [0,9)/[0,8)"},
        {"R.B.von Dreele", "R.B.Von Dreele", "author-form R.B.Von Dreele [0,14)/[0,14)"},
        {"R.B.von Dreele", "Dreele R B", "author-particles Dreele R B [0,14)/[0,10)"},
        {"H.von Schnering", "H.van Schnering", "author-particles H.van Schnering [0,15)/[0,15)"},
        {"Wei Zhang", "Zhang Wei", "author-form Wei Zhang [0,9)/[0,9)"},
        {"J.Jasin Orosz", "J.J.Orosz", "author-particles J.J.Orosz [0,13)/[0,9)"},
        {"J.Smith Jr", "J.Smith", "author-contradicted J.Smith [0,10)/[0,7)"},
        {"J.Smith Jr", "J.Smith Sr", "author-contradicted J.Smith Jr [0,10)/[0,10)"},
        {"Smith", "A.Smith", "author-initials A.Smith [0,5)/[0,7)"},
        // The best of one surname first.
        {"Y.Wang, Y.Z.Wang, L.Wang", "L.Wang, Y.Z.Wang, X.Wang",
         "author-contradicted X.Wang [0,6)/[18,24); author-moved L.Wang 3/1 [18,24)/[0,6)"},
        {"A.J.Li, A.B.Li", "A.Li, A.B.Li", "author-initials A.J.Li [0,6)/[0,4)"},
        // As few as possible are moved.
        {"A.Abt, B.Bo, C.Cy, D.Du", "D.Du, A.Abt, B.Bo, C.Cy",
         "author-moved D.Du 4/1 [19,23)/[0,4)"},
        {"A.Abt, B.Bo, C.Cy", "B.Bo, A.Abt, C.Cy", "author-moved B.Bo 2/1 [7,11)/[0,4)"},
        {"A.Abt, N.\u00C9e", "N.Ee, A.Abt", "author-moved N.Ee 2/1 [7,12)/[0,4)"},
        {"A.Abt, N.Ee", "N.M.Ee, A.Abt", "author-initials N.Ee [7,11)/[0,6)"},
        {"A.Abt, C.Cy", "A.Abt, B.Bo, C.Cy, D.Du",
         "author-added B.Bo /2 [5,5)/[7,11); author-added D.Du /4 [11,11)/[19,23)"},
    };
    for (const auto& c : cases) EXPECT_EQ(found("authors", c.left, c.right), c.findings);
}

TEST(CompareAuthors, TakesOtherTextsAsText) {
    for (const char* other : {"", ", ", "A.Smith,B.Jones", "\xCE, \xCE", "?"}) {
        EXPECT_EQ(found("authors", "A.Smith, B.Jones", other),
                  found("text", "A.Smith, B.Jones", other));
    }
    expect_sound_findings("authors",
                          {"M.A.Brogan, A.J.Blake, L.-H.Yin, R.B.von Dreele, J.Smith Jr",
                           "Smith, A. B.; Jones, C.; M\u00FCller, Anne", "Y.Wang, L.Wang, Y.Li"},
                          {"", " ", ".", ", ", "; ", "A.", "Wang", "\u00C9", "\xCC", "Y.Wang, "});
}
