#include "checks/check_prose.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "checks/add_finding.h"
#include "checks/coded_characters.h"
#include "checks/latin_for_greek.h"
#include "checks/prose.h"
#include "entries/CodedText.h"
#include "entries/cif_text.h"
#include "entries/place_in_value.h"
#include "text/internal/ascii.h"

namespace {

/// The first bracket without partner, or npos.
std::size_t lone_bracket(std::string_view text) {
    constexpr std::string_view opening = "([{", closing = ")]}";
    std::vector<std::size_t> open;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (opening.find(text[at]) != std::string_view::npos) open.push_back(at);
        const std::size_t kind = closing.find(text[at]);
        if (kind == std::string_view::npos) continue;
        if (open.empty() || text[open.back()] != opening[kind]) return at;
        open.pop_back();
    }
    return open.empty() ? std::string_view::npos : open.front();
}

/// The last double quote of an odd number, or npos. Codes have some, and inches are no quotes.
std::size_t lone_quote(std::string_view text) {
    std::size_t last = std::string_view::npos;
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '"') continue;
        if (at > 0 && (text[at - 1] == '\\' || is_ascii_digit(text[at - 1]))) continue;
        last = at;
        ++count;
    }
    return count % 2 == 1 ? last : std::string_view::npos;
}

/// The size of the reference at the front, "&alpha;"; 0: none stands there.
std::size_t size_of_reference(std::string_view text) {
    constexpr std::size_t longest = 32;
    const std::size_t end = text.substr(0, longest).find(';');
    if (end == std::string_view::npos || end < 2) return 0;
    const std::string_view name = text.substr(1, end - 1);
    const bool is_name = std::all_of(name.begin(), name.end(), [](char c) {
        return is_ascii_letter(c) || is_ascii_digit(c) || c == '#';
    });
    return is_name ? end + 1 : 0;
}

/// One value, and what it is called.
class ProseCheck {
public:
    ProseCheck(const CifDocument& document, FoundFaults& findings, const CifItem& item,
               std::size_t row, Prose prose)
        : document_(document),
          findings_(findings),
          value_(item[row]),
          tag_(in_lower_case(item.tag())),
          prose_(prose),
          line_(one_line(value_.text(), prose == Prose::name)) {}

    void check() {
        if (line_.empty()) return;
        if (CodedText::may_hold_codes(line_)) {
            note_doubts();
            note_references();
        }
        if (prose_ == Prose::name) note_blanks();
        if (tag_.starts_with("_chemical_name_")) {
            note(lone_bracket(line_), "lone-bracket", "");
            const std::optional<LatinForGreek> letter = latin_for_greek(line_);
            if (letter) note(letter->at, "latin-for-greek", letter->code);
        } else if (!tag_.starts_with("_publ_author_name")) {
            note(lone_quote(line_), "lone-quote", "");
        }
    }

private:
    const char* place_of(std::size_t at) const {
        return place_in_value(value_, std::string_view(line_).substr(0, at));
    }

    CheckFinding& add(std::string_view code, const char* place, std::string found) {
        CheckFinding& finding = add_finding(findings_, document_, code, place, std::move(found));
        finding.problem.item = tag_;
        return finding;
    }

    /// Nothing for no place; what is found is the text from there on.
    void note(std::size_t at, std::string_view code, std::string expected) {
        if (at == std::string_view::npos) return;
        add(code, place_of(at), line_.substr(at)).problem.expected = std::move(expected);
    }

    void note_doubts() {
        std::vector<Problem> doubts;
        CodedText(line_).append_doubts(doubts);
        for (Problem& doubt : doubts) {
            CheckFinding& finding =
                add(doubt.code, place_of(doubt.column - 1), std::move(doubt.found));
            finding.problem.what = doubt.what;
            // In sentences "~" is "about".
            const bool may_be_sign = prose_ == Prose::running && finding.problem.found == "~";
            if (may_be_sign) finding.problem.level = Problem::Level::note;
        }
    }

    void note_references() {
        constexpr int most_references = 10;  // each costs the whole text
        const std::string_view line = line_;
        int found = 0;
        for (std::size_t at = line.find('&'); at != std::string_view::npos;
             at = line.find('&', at + 1)) {
            const std::string_view reference = line.substr(at, size_of_reference(line.substr(at)));
            if (reference.empty() || found == most_references) continue;
            ++found;
            const std::optional<std::string> codes = in_ascii(reference);
            if (!codes || *codes == reference) continue;
            CheckFinding& finding = add("html-entity", place_of(at), std::string(reference));
            finding.problem.expected = *codes;
            repair(finding, reference, *codes);
        }
    }

    /// Where the bytes can be replaced as they stand, and the text still says the same.
    void repair(CheckFinding& finding, std::string_view reference, const std::string& codes) {
        const char* const place = document_.bytes().data() + *finding.problem.offset;
        const auto before = static_cast<std::size_t>(place - value_.raw.data());
        if (value_.raw.substr(before, reference.size()) != reference) return;
        const CifQuoting quoting = value_.quoting();
        if (quoting != CifQuoting::text_field && codes.find_first_of("'\" ") != std::string::npos) {
            return;
        }
        std::string changed(value_.raw);
        changed.replace(before, reference.size(), codes);
        if (!say_the_same(value_.text(), CifValue{changed}.text())) return;
        finding.repair = splice_of(document_, {place, reference.size()}, codes);
    }

    /// All of them at once. Those at the beginnings of lines and of quoted texts are no fault.
    void note_blanks() {
        const std::string_view raw = value_.raw;
        std::size_t first = std::string_view::npos, last = 0;
        std::string repaired;
        for (std::size_t at = raw.find("  "); at != std::string_view::npos;
             at = raw.find("  ", at)) {
            const std::size_t end = std::min(raw.find_first_not_of(' ', at), raw.size());
            if (is_inside(at, end)) {
                if (first == std::string_view::npos) first = last = at;
                repaired.append(raw.substr(last, at - last)).append(" ");
                last = end;
            }
            at = end;
        }
        if (first == std::string_view::npos) return;
        const std::string_view blanks = raw.substr(first, last - first);
        const std::size_t size = blanks.find_first_not_of(' ');
        CheckFinding& finding =
            add("blanks-doubled", blanks.data(), std::string(blanks.substr(0, size)));
        finding.repair = splice_of(document_, blanks, std::move(repaired));
    }

    /// Whether text stands before and behind the blanks, in their line.
    bool is_inside(std::size_t from, std::size_t to) const {
        const std::string_view raw = value_.raw;
        return from > 1 && to < raw.size() && !is_line_end(raw[from - 1]) && raw[from - 1] != ';' &&
               !is_line_end(raw[to]);
    }

    static bool is_line_end(char c) { return c == '\n' || c == '\r' || c == '\'' || c == '"'; }

    const CifDocument& document_;
    FoundFaults& findings_;
    CifValue value_;
    std::string tag_;
    Prose prose_;
    std::string line_;
};

}  // namespace

void check_prose(const CifDocument& document, FoundFaults& findings) {
    for (std::size_t block = 0; block < document.blocks(); ++block) {
        for (const CifItem* item : document.items(block)) {
            const Prose prose = prose_of(in_lower_case(item->tag()));
            for (std::size_t row = 0; prose != Prose::none && row < item->size(); ++row) {
                ProseCheck(document, findings, *item, row, prose).check();
            }
        }
    }
}
