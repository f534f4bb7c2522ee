#pragma once

#include <optional>
#include <string>
#include <vector>

#include "entries/space_group_symbol.h"
#include "tasks/SoughtText.h"
#include "tasks/Term.h"
#include "tasks/elements_in_text.h"
#include "tasks/numbers_in_text.h"

/// A word, a part of one or several words, as they are folded. A number is one wherever it stands;
/// a formula stands for elements of formulae and a space group's symbol for the group, and both
/// for whole words elsewhere.
class PlainTerm : public Term {
public:
    /// Looks for `text`, of which something is left when it is folded and its blanks are taken off
    /// its ends.
    PlainTerm(const std::string& written, const std::string& text, const TermSettings& settings,
              std::vector<Field> own_fields = {});
    ~PlainTerm() override;

    /// Terms that are no numbers are not in fields of numbers, of which the labels are no text.
    bool may_stand_in(const Field& field) const override;
    bool may_stand_on(const std::string& skeleton) const override;
    bool may_stand_in(const CifEntry& entry, const Field& field) const override;
    void find(const SearchedText& text, std::vector<StringSlice>& ranges) const override;

private:
    void find_numbers(const FoldedText& text, std::vector<StringSlice>& ranges) const;
    void find_words(const SearchedText& text, std::vector<StringSlice>& ranges) const;
    bool stands_alone(const SearchedText& text, const StringSlice& folded,
                      const StringSlice& shown) const;
    bool is_group_of(const CifEntry& entry) const;

    std::string text_;                   // without blanks around it
    SoughtText folded_;                  // what is looked for
    std::vector<SoughtText> skeletons_;  // a text has one of them
    bool whole_words_;
    bool begins_with_greek_, ends_with_greek_;
    std::optional<SearchedNumber> number_;  // in folded_
    std::vector<WrittenElement> elements_;  // in text_; none: it is no formula
    SpaceGroupSetting group_;               // null: it is none
};
