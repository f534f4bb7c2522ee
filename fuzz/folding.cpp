// A text folded in one of all ways: character by character, and the way back; and searched so.
#include "comparison/FoldedSearch.h"
#include "comparison/FoldedText.h"
#include "comparison/unicode.h"
#include "fuzz/Input.h"
#include "markup/Utf8.h"
#include "search/TextSearch.h"
#include "text/Position.h"

namespace {

Folding folding_of(unsigned int flags) {
    Folding folding;
    bool* const kinds[] = {&folding.letter_case, &folding.accents, &folding.dashes,
                           &folding.apostrophes, &folding.blanks,  &folding.greek,
                           &folding.forms,       &folding.umlauts};
    for (bool* const kind : kinds) {
        *kind = (flags & 1) != 0;
        flags >>= 1;
    }
    return folding;
}

std::string part_of(const std::string& text, const StringSlice& range) {
    return text.substr(range.from(), range.length());
}

/// Each character by itself is folded to what stands in its place, and what lies between them to
/// nothing.
void check_characters(const std::string& text, const Folding& folding) {
    const FoldedText all(text, folding);
    const std::string& whole = all.text();
    unsigned int from = 0, done = 0;
    for (unsigned int to = 1; to <= length_of(whole); ++to) {
        if (!all.is_boundary(to)) continue;
        const StringSlice place = all.in_text({from, to});
        require(place.from() >= done && !place.empty() && place.to() <= length_of(text),
                "characters follow each other", text);
        require(folded(part_of(text, place), folding) == whole.substr(from, to - from),
                "a character is folded by itself", text);
        require(all.whole_characters({from, to}) == place, "a character is whole", text);
        for (unsigned int at = from; at < to; ++at) {
            require(all.in_text({at, at + 1}) == place, "a part comes from its character", text);
        }
        from = to;
        done = place.to();
    }
    require(from == length_of(whole), "the end lies between characters", text);
}

/// Texts that are canonically equivalent are folded alike.
void check_equivalent(const std::string& text, const Folding& folding) {
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Character character = first_character(std::string_view(text).substr(at));
        if (!character.valid) return;
        at += character.size;
    }
    std::string decomposed;
    for (const char32_t code : in_canonical_order(text)) append_utf8(decomposed, code);
    require(folded(decomposed, folding) == folded(text, folding),
            "canonically equivalent texts are folded alike", text);
}

/// Finds the term wherever it stands.
class PlainSearch : public TextSearch {
public:
    bool search(const std::string& text, std::vector<StringSlice>& slices) const override {
        for (std::size_t at = 0; (at = text.find(term_, at)) < text.size(); ++at) {
            slices.emplace_back(to_position(at), to_position(at + term_.size()));
        }
        return text == term_;
    }
    void set_search_term(const std::string& term) override { term_ = term; }

private:
    std::string term_;
};

void check_search(const std::string& term, const std::string& text, const Folding& folding) {
    FoldedSearch search(make_handle<PlainSearch>(), folding);
    search.set_search_term(term);
    std::vector<StringSlice> found;
    const bool matched = search.search(text, found);
    const std::string folded_term = folded(term, folding);
    require(matched == (folded_term == folded(text, folding)),
            "a text matches whose folding is the term's", text);
    const std::string both = term + " / " + text;
    for (const StringSlice& range : found) {
        require(range.to() <= length_of(text) &&
                    folded_term.find(folded(part_of(text, range), folding)) != std::string::npos,
                "what is found stands in the term", both);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const Folding folding = folding_of(input.byte());
    const std::string term = input.text(), text = input.rest();
    check_characters(text, folding);
    check_equivalent(text, folding);
    check_search(term, text, folding);
    return 0;
}
