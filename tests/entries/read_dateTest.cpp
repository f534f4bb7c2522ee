#include <gtest/gtest.h>

#include <sstream>

#include "entries/cif_text.h"

TEST(read_date, ReadsDaysThatCanBeOnlyOne) {
    const std::pair<const char*, const char*> cases[] = {
        {"2004-7-9", "2004-07-09"},
        {" 2004-07-09T16:19:55-00:00", "2004-07-09"},
        {"2004-07-09 16:19", "2004-07-09"},
        {"2004/07/09", "2004-07-09"},
        {"20-Jul-2004", "2004-07-20"},
        {"Tue Jul 9 2004", "2004-07-09"},
        {"Tue Jul  9 16:19:55 CEST 2004", "2004-07-09"},
        {"Tue, 9 July 2004 16:19:55 +0200", "2004-07-09"},
        {"SEPT. 9, 2004", "2004-09-09"},
        {"20/07/2004", "2004-07-20"},
        {"07/20/2004", "2004-07-20"},
        {"7.7.2004", "2004-07-07"},
        {"9/7/2004", ""},  // the day or the month first?
        {"04-07-09", ""},  // of which century, and which is the year?
        {"9-Jul-04", ""},  // likewise
        {"2004-07", ""},
        {"2004-02-30", ""},
        {"2004-13-20", ""},
        {"2004-07-09 2005", ""},
        {"Jul Aug 2004", ""},
        {"about 2004-07-09", ""},
        {"2004--07--+9", ""},
        {"", ""},
    };
    for (const auto& [text, expected] : cases) {
        const std::optional<Date> date = read_date(text);
        std::ostringstream read;
        if (date) read << *date;
        EXPECT_EQ(read.str(), expected) << text;
    }
}
