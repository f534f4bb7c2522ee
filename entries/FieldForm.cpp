#include "entries/FieldForm.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace {

using Ways = std::vector<std::string>;

/// Where the bracket that opens at `from` closes.
std::size_t end_of_piece(std::string_view form, std::size_t from) {
    int depth = 0;
    for (std::size_t i = from;; ++i) {
        if (form[i] == '[') ++depth;
        if (form[i] == ']' && --depth == 0) return i;
    }
}

Ways ways_of(std::string_view form);

/// The ways of a form without choices, those with the first pieces first.
Ways ways_of_sequence(std::string_view form) {
    struct Way {
        std::string text;
        bool has_piece = false;
    };
    std::vector<Way> ways(1);
    bool has_pieces = false;
    std::string separator;
    for (std::size_t i = 0; i < form.size();) {
        const std::size_t begin = std::min(form.find('[', i), form.size());
        const std::string_view literal = form.substr(i, begin - i);
        const bool separates = i > 0 && begin < form.size();
        if (!separates) {
            for (Way& way : ways) way.text += literal;
        }
        if (begin == form.size()) break;
        has_pieces = true;
        const std::size_t end = end_of_piece(form, begin);
        const Ways choices = ways_of(form.substr(begin + 1, end - begin - 1));
        std::vector<Way> longer;
        longer.reserve(ways.size() * (choices.size() + 1));
        for (const Way& way : ways) {
            for (const std::string& choice : choices) {
                longer.push_back({way.text, true});
                if (separates && way.has_piece) longer.back().text += literal;
                longer.back().text += choice;
            }
            longer.push_back(way);
        }
        ways = std::move(longer);
        i = end + 1;
    }
    Ways texts;
    texts.reserve(ways.size());
    for (Way& way : ways) {
        if (way.has_piece == has_pieces) texts.push_back(std::move(way.text));
    }
    return texts;
}

Ways ways_of(std::string_view form) {
    Ways all;
    for (std::size_t from = 0, i = 0; i <= form.size(); ++i) {
        if (i < form.size() && form[i] == '[') i = end_of_piece(form, i);
        if (i < form.size() && form[i] != '|') continue;
        for (std::string& way : ways_of_sequence(form.substr(from, i - from))) {
            all.push_back(std::move(way));
        }
        from = i + 1;
    }
    return all;
}

/// Takes the number of a part off a way, or returns nothing where something else stands there.
bool take_part(std::string_view& way, std::size_t& part) {
    if (way.size() < 2 || way[0] != '$') return false;
    part = static_cast<std::size_t>(way[1] - '0');
    way.remove_prefix(2);
    return true;
}

std::string_view take_literal(std::string_view& way) {
    const std::string_view literal = way.substr(0, std::min(way.find('$'), way.size()));
    way.remove_prefix(literal.size());
    return literal;
}

/// A way with dots for its parts, of which those side by side are one.
std::string outline_of(std::string_view way) {
    std::string text;
    while (!way.empty()) {
        text += take_literal(way);
        std::size_t part = 0;
        if (take_part(way, part)) text += "...";
        while (take_part(way, part)) continue;
    }
    return text;
}

/// How many bytes of a way are no parts.
std::size_t literals_in(std::string_view way) {
    std::size_t size = 0;
    for (std::size_t part = 0; !way.empty();) {
        size += take_literal(way).size();
        while (take_part(way, part)) continue;
    }
    return size;
}

/// Finds the ways in which a text is of a form.
class Matcher {
public:
    Matcher(const FieldForm::Parts& present, const FieldForm::Fits& fits)
        : present_(present), fits_(fits) {}

    void match(std::string_view way, std::string_view text) {
        parts_.assign(present_.size(), "");
        literals_ = literals_in(way);
        go_on(way, text);
    }
    /// The parts of the best way; null: none.
    const FieldForm::Parts* best() const {
        const bool has_slip =
            misfit_.is_there && (!fit_.is_there || misfit_.literals > fit_.literals);
        const Match& match = has_slip ? misfit_ : fit_;
        return match.is_there ? &match.parts : nullptr;
    }

private:
    void go_on(std::string_view way, std::string_view text) {
        const std::string_view literal = take_literal(way);
        if (!text.starts_with(literal)) return;
        text.remove_prefix(literal.size());
        if (way.empty()) {
            if (text.empty()) keep();
            return;
        }
        std::vector<std::size_t> side_by_side;
        for (std::size_t part = 0; take_part(way, part);) side_by_side.push_back(part);
        std::string_view rest = way;
        const std::string_view next = take_literal(rest);
        if (rest.empty()) {  // the last part ends where the literal does
            if (text.size() <= next.size() || !text.ends_with(next)) return;
            text.remove_suffix(next.size());
            set(side_by_side, text);
            return keep();
        }
        for (std::size_t end = text.find(next, 1); end != std::string_view::npos && tries_ < most;
             end = text.find(next, end + 1)) {
            ++tries_;
            set(side_by_side, text.substr(0, end));
            go_on(way, text.substr(end));
        }
    }

    void set(const std::vector<std::size_t>& parts, std::string_view text) {
        for (const std::size_t part : parts) parts_[part] = text;
    }

    void keep() {
        Match match{true, parts_, 0, literals_, 0};
        bool fits = true;
        for (std::size_t i = 0; i < parts_.size(); ++i) {
            if (parts_[i] == present_[i]) {
                ++(parts_[i].empty() ? match.absent : match.same);
            } else if (fits && !parts_[i].empty()) {
                fits = fits_(i, parts_[i]);
            }
        }
        Match& best = fits ? fit_ : misfit_;
        if (!best.is_there || best.is_worse_than(match)) best = std::move(match);
    }

    struct Match {
        bool is_there = false;
        FieldForm::Parts parts{};
        std::size_t same = 0;      // parts as they are present
        std::size_t literals = 0;  // in bytes
        std::size_t absent = 0;    // parts that are not present either

        bool is_worse_than(const Match& other) const {
            if (same != other.same) return same < other.same;
            if (literals != other.literals) return literals < other.literals;
            return absent < other.absent;
        }
    };

    static constexpr unsigned int most = 1000;  // of a text made to have more

    const FieldForm::Parts& present_;
    const FieldForm::Fits& fits_;
    FieldForm::Parts parts_;
    std::size_t literals_ = 0;
    Match fit_, misfit_;
    unsigned int tries_ = 0;
};

/// The text of one way; empty where parts lack or differ that should not.
std::string text_of_way(std::string_view way, const FieldForm::Parts& parts) {
    std::string text;
    while (!way.empty()) {
        text += take_literal(way);
        const std::string* before = nullptr;
        for (std::size_t part = 0; take_part(way, part);) {
            if (parts[part].empty() || (before && *before != parts[part])) return "";
            if (!before) text += parts[part];
            before = &parts[part];
        }
    }
    return text;
}

}  // namespace

FieldForm::FieldForm(std::string_view form) : ways_(ways_of(form)) {}

std::string FieldForm::text_of(const Parts& parts) const {
    for (const std::string& way : ways_) {
        std::string text = text_of_way(way, parts);
        if (!text.empty()) return text;
    }
    return "";
}

bool FieldForm::match(std::string_view text, const Parts& present, const Fits& fits,
                      Parts& parts) const {
    Matcher matcher(present, fits);
    for (const std::string& way : ways_) matcher.match(way, text);
    const Parts* const best = matcher.best();
    if (best) parts = *best;
    return best != nullptr;
}

std::string FieldForm::outline() const {
    std::string longest;
    for (const std::string& way : ways_) {
        std::string text = outline_of(way);
        if (text.size() > longest.size()) longest = std::move(text);
    }
    return longest;
}
