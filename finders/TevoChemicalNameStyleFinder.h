#pragma once

#include "finders/InputTextStyleFinder.h"
#include "finders/TevoChemicalNameToTextItemGreek.h"  // the names, for callers

/// Finds the styles of a chemical name in the database's own mark-up: Greek letters spelled out in
/// lower case, subscripts as "!2$" and superscripts as "$2!", whose markers are invisible.
class TevoChemicalNameStyleFinder : public InputTextStyleFinder {
public:
    ~TevoChemicalNameStyleFinder() override;

    /// The texts between "!" and "$", without the markers. A marker without a partner ends the
    /// search: nothing is reported from there on, and nothing at all when the first subscript
    /// marker has no partner.
    void subscripts(std::vector<StringSlice>& out) const override;
    /// The texts between "$" and "!", likewise.
    void superscripts(std::vector<StringSlice>& out) const override;
    /// The two markers of each subscript, then of each superscript. Finds the scripts once more.
    void invisible(std::vector<StringSlice>& out) const override;
    /// The spelled-out names that stand for letters, grouped by name in ascending order of the
    /// names. One pass, O(n) for n characters and O(k log k) for the k letters found.
    void greek(std::vector<GreekSlice>& out) const override;

    /// Whether a name after `prior_char` is the tail of a longer name or of a word: pi after a
    /// vowel, eta after b, h, m or z, each of either case, and delta and lambda after c. A
    /// character is a string of length 0 or 1; longer ones throw std::runtime_error "illegal
    /// 'prior_char' length".
    bool greek_fragment(const std::string& name, const std::string& prior_char) const;
    /// Whether a name before `next_char` is the head of a word, as before every character but those
    /// of "-,$()'*!:HRS" and, for kappa, capitals. `prior_char` does not count. Throws
    /// std::runtime_error "illegal 'next_char' length" for more than one character.
    bool word_fragment(const std::string& name, const std::string& prior_char,
                       const std::string& next_char) const;
};
