#pragma once

#include <string>
#include <string_view>

/// A person's name in the database's form, "A.B.Smith".
struct PersonName {
    std::string text;  ///< UTF-8; as it was written where it is doubtful.
    bool doubtful =
        false;  ///< Given names and surname cannot be told apart, or it names no person.
};

/// Reads a name as CIF files write it, in UTF-8: "Smith, A. B.", "Smith A B", "Anne B. Smith" or
/// "A.B.Smith". Given names become initials with their accents and hyphens ("H.-Z.Xie"), "von" and
/// the like lead the surname ("R.B.von Dreele"), and "Jr", "Sr", "II" to "IV" follow it behind a
/// blank ("J.Smith Jr"). "=" is a blank, and footnote marks such as "*" are left out. A name of one
/// word stays. What is no UTF-8 is doubtful. Linear in the length.
PersonName read_person_name(std::string_view as_written);
