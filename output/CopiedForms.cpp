#include "output/CopiedForms.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "markup/RichTextTarget.h"
#include "output/harmless_json.h"
#include "tasks/row_named.h"

namespace {

constexpr std::string_view unicode = "unicode", html5 = "html5";
constexpr std::string_view copied_targets[] = {unicode,    html5,  "latex",
                                               "markdown", "tevo", "cif-text"};

/// Whether every target writes the character of a text without styles as it is.
bool is_same_everywhere(char c) {
    constexpr std::string_view signs = " ,.;:()/";
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           signs.find(c) != std::string_view::npos;
}

/// "1. Zinc" and "2) red" begin lists somewhere.
bool may_begin_list(std::string_view text) {
    const std::size_t sign = text.find_first_not_of("0123456789");
    if (sign == 0 || sign == std::string_view::npos) return false;
    if (text[sign] != '.' && text[sign] != ')') return false;
    return sign + 1 == text.size() || text[sign + 1] == ' ';
}

/// Whether a browser tells mark-up as it was written: references to characters it reads.
bool is_kept_by_browsers(std::string_view mark_up) {
    return mark_up.find('&') == std::string_view::npos &&
           mark_up.find("\u00A0") == std::string_view::npos;
}

}  // namespace

CopiedForms::CopiedForms() {
    for (const std::string_view name : copied_targets) {
        generators_.emplace_back(name, row_named(rich_text_targets(), name)->make_generator());
    }
}

std::string CopiedForms::of(const TextItem& item, std::string_view shown) const {
    const bool is_plain = shown == item.characters();
    if (is_plain && std::all_of(shown.begin(), shown.end(), is_same_everywhere) &&
        !may_begin_list(shown)) {
        return {};
    }
    // Not as an object of nlohmann's: to let go of one takes memory, and without any it ends the
    // program.
    std::string forms, text;
    for (const auto& [name, generator] : generators_) {
        std::string form = item.mark_up_text(*generator);
        if (name == unicode) text = form;
        const bool is_known = name == unicode ? is_plain && form == shown
                              : name == html5 ? form == shown && is_kept_by_browsers(shown)
                                              : form == text;
        if (is_known) continue;
        forms.append(forms.empty() ? "{\"" : ",\"").append(name).append("\":");
        forms += harmless_json(std::move(form), false);
    }
    return forms.empty() ? forms : forms + '}';
}
