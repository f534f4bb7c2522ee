#include "entries/CodedText.h"

#include <algorithm>

#include "markup/CifTextRichTextGenerator.h"
#include "markup/TevoRichTextGenerator.h"
#include "markup/TextItemToUnicodeGreek.h"
#include "markup/UnicodeRichTextGenerator.h"
#include "markup/ascii_text.h"

namespace {

constexpr std::size_t most_doubts = 10;

using Doubt = CifTextStyleFinder::Doubt;

/// What is said of a doubt, and what checks call it.
struct Wording {
    const char* what;
    const char* code;
};

Wording wording_of(Doubt::Kind kind) {
    switch (kind) {
        case Doubt::unknown_code:
            return {"unknown code", "unknown-code"};
        case Doubt::unknown_reference:
            return {"reference to no character", "unknown-reference"};
        case Doubt::lone_mark:
            return {"no partner for", "lone-mark"};
        default:
            return {"not UTF-8", "not-utf8"};
    }
}

bool is_ascii(std::string_view text) {
    return std::none_of(text.begin(), text.end(),
                        [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

}  // namespace

bool CodedText::may_hold_codes(std::string_view text) {
    char previous = 0;
    for (const char c : text) {
        const bool joins = (c == '-' || c == '+') && (previous == '-' || previous == '+');
        const bool begins = c == '\\' || c == '~' || c == '^' || c == '&' || c == '<';
        if (joins || begins || static_cast<unsigned char>(c) >= 0x80) return true;
        previous = c;
    }
    return false;
}

CodedText::CodedText(const std::string& text)
    : finder_(make_handle<CifTextStyleFinder>()), item_(finder_, text) {}

std::string CodedText::unicode() const {
    UnicodeRichTextGenerator generator;
    return item_.mark_up_text(generator);
}

std::string CodedText::tevo() const {
    TevoRichTextGenerator generator;
    return item_.mark_up_text(generator);
}

std::string CodedText::with_codes() const {
    if (is_ascii(finder_->text())) return finder_->text();
    CifTextRichTextGenerator generator;
    return with_references(item_.mark_up_text(generator));
}

std::string CodedText::in_utf8() const {
    std::vector<GreekSlice> greek;
    finder_->greek(greek);
    std::vector<ReplacementTextSlice> codes;
    finder_->replacement_text(codes);
    const TextItemToUnicodeGreek letters;
    for (const GreekSlice& letter : greek) {
        codes.emplace_back(letter.from(), letter.to(), letters.convert(letter.symbol()));
    }
    std::sort(codes.begin(), codes.end(),
              [](const auto& a, const auto& b) { return a.from() < b.from(); });
    const std::string_view text = finder_->text();
    std::string result;
    unsigned int end = 0;
    for (const ReplacementTextSlice& code : codes) {
        const std::string character = code.text();
        if (code.from() < end || is_ascii(character)) continue;
        result.append(text, end, code.from() - end).append(character);
        end = code.to();
    }
    result += text.substr(end);
    // What stands beside a code may mean something else beside its character.
    return CodedText(result).unicode() == unicode() ? result : std::string(text);
}

std::string with_codes(const std::string& text, bool is_version_2) {
    const bool may_stand = is_version_2 || is_ascii(text);
    if (may_stand && (!CodedText::may_hold_codes(text) || CodedText(text).unicode() == text)) {
        return text;
    }
    const TextItem item(make_handle<InputTextStyleFinder>(), text);
    CifTextRichTextGenerator generator;
    std::string coded = item.mark_up_text(generator);
    if (!is_version_2) coded = with_references(coded);
    return coded;
}

void CodedText::append_doubts(std::vector<Problem>& problems) const {
    append_doubts_of(*finder_, problems);
}

void append_doubts_of(const CifTextStyleFinder& finder, std::vector<Problem>& problems) {
    const std::vector<Doubt>& doubts = finder.doubts();
    for (std::size_t i = 0; i < doubts.size(); ++i) {
        const StringSlice place = doubts[i].place;
        Problem& problem = problems.emplace_back();
        problem.level = Problem::Level::warning;
        problem.column = place.from() + 1UL;
        if (i == most_doubts) {
            problem.what = std::to_string(doubts.size() - i) + " more codes in doubt";
            problem.code = "more-codes-in-doubt";
            return;
        }
        const Wording wording = wording_of(doubts[i].kind);
        problem.what = wording.what;
        problem.code = wording.code;
        problem.found = finder.text().substr(place.from(), place.length());
    }
}
