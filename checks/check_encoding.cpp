#include "checks/check_encoding.h"

#include <algorithm>
#include <optional>

#include "checks/add_finding.h"
#include "checks/coded_characters.h"
#include "checks/prose.h"
#include "entries/CifEdits.h"
#include "entries/cif_text.h"
#include "markup/Utf8.h"

namespace {

constexpr std::size_t most_of_a_value = 10;

bool is_beyond_ascii(char c) { return static_cast<unsigned char>(c) >= 0x80; }

bool has_beyond_ascii(std::string_view text) {
    return std::any_of(text.begin(), text.end(), is_beyond_ascii);
}

class EncodingCheck {
public:
    EncodingCheck(const CifDocument& document, FoundFaults& findings)
        : document_(document),
          findings_(findings),
          no_edits_(document),
          is_ascii_(!document.is_version_2()) {}

    void check(const CifItem& item) {
        for (std::size_t row = 0; row < item.size(); ++row) {
            const std::string_view raw = item[row].raw;
            if (!has_beyond_ascii(raw)) continue;
            const bool is_utf8 = check_utf8(item, raw);
            if (is_utf8 && is_ascii_) note_character(item, row);
        }
    }

private:
    /// Whether the value is UTF-8; adds a finding for each run of bytes that is not.
    bool check_utf8(const CifItem& item, std::string_view raw) {
        std::size_t found = 0;
        while (!raw.empty()) {
            std::size_t bad = 0;
            while (bad < raw.size()) {
                const Utf8Character character = first_character(raw.substr(bad));
                if (character.valid) break;
                bad += character.size;
            }
            if (bad > 0 && found++ < most_of_a_value) {
                add("not-utf8", item, raw.data(), std::string(raw.substr(0, bad)));
            }
            raw.remove_prefix(bad);
            if (!raw.empty()) raw.remove_prefix(first_character(raw).size);
        }
        return found == 0;
    }

    void note_character(const CifItem& item, std::size_t row) {
        const std::string_view raw = item[row].raw;
        const auto* const first = std::find_if(raw.begin(), raw.end(), is_beyond_ascii);
        const std::string_view rest(first, static_cast<std::size_t>(raw.end() - first));
        const std::string found(rest.substr(0, first_character(rest).size));
        CheckFinding& finding = add("not-ascii", item, first, found);
        if (prose_of(finding.problem.item) == Prose::none) return;
        const std::optional<std::string> coded = text_in_ascii(item[row].text());
        if (!coded) return;
        try {
            CifEdits edits(no_edits_);
            edits.set(item, row, *coded);
            const Splices splices = edits.splices();
            if (splices.size() == 1) finding.repair = splices.front();
        } catch (const std::invalid_argument&) {
            return;  // there is no way to write it
        }
    }

    CheckFinding& add(const char* code, const CifItem& item, const char* place, std::string found) {
        CheckFinding& finding = add_finding(findings_, document_, code, place, std::move(found));
        finding.problem.item = in_lower_case(item.tag());
        return finding;
    }

    const CifDocument& document_;
    FoundFaults& findings_;
    CifEdits no_edits_;  // to begin with: to ask for the bytes costs a line
    bool is_ascii_;
};

}  // namespace

void check_encoding(const CifDocument& document, FoundFaults& findings) {
    if (!has_beyond_ascii(document.bytes())) return;
    EncodingCheck check(document, findings);
    for (std::size_t block = 0; block < document.blocks(); ++block) {
        for (const CifItem* item : document.items(block)) check.check(*item);
    }
}
