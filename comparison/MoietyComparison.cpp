#include "comparison/MoietyComparison.h"

#include <algorithm>
#include <string>

namespace {

using Count = Formula::Count;
using Moiety = Formula::Moiety;
using Token = Formula::Token;
using Reason = Finding::Reason;

std::string_view text_at(std::string_view text, const StringSlice& range) {
    return text.substr(range.from(), range.length());
}

/// A count of 0 in an empty place.
Count none_at(unsigned int place) { return {0, true, {place, place}}; }

/// That of an element that the other side has: behind the one that stands before it there.
StringSlice place_of(const Composition::Element& missing, const Composition& in) {
    const Composition::Element* const before = in.find(missing.before);
    if (before) return {before->range.to(), before->range.to()};
    unsigned int first = no_position - 1;
    for (const Composition::Element& element : in.elements) {
        first = std::min(first, element.range.from());
    }
    return {first, first};
}

std::vector<const Token*> elements_of(const Moiety& moiety) {
    std::vector<const Token*> elements;
    for (const Token& token : moiety.tokens) {
        if (token.kind == Token::element) elements.push_back(&token);
    }
    return elements;
}

}  // namespace

void MoietyComparison::add(Reason reason, std::string_view subject, const Count& left,
                           const Count& right) {
    Finding& finding = findings_.emplace_back(Finding{reason, left.range, right.range});
    finding.subject = subject;
    if (left.is_known) finding.left_number = left.value;
    if (right.is_known) finding.right_number = right.value;
}

void MoietyComparison::compare(Reason reason, std::string_view subject, const Count& left,
                               const Count& right) {
    if (left.value != right.value) {
        add(reason, subject, left, right);
    } else if (text_at(left_, left.range) != text_at(right_, right.range)) {
        findings_.push_back({Reason::coding, left.range, right.range});
        findings_.back().subject = subject;
    }
}

void MoietyComparison::compare_charges(std::string_view subject, const Moiety& left,
                                       const Moiety& right) {
    const std::size_t size = std::max(left.charges.size(), right.charges.size());
    const auto charge = [](const Moiety& moiety, std::size_t i) {
        return i < moiety.charges.size() ? moiety.charges[i] : none_at(moiety.range.to());
    };
    for (std::size_t i = 0; i < size; ++i) {
        // Long names for many of them would be long to make.
        compare(Reason::charge, i == 0 ? subject : "", charge(left, i), charge(right, i));
    }
}

/// Compares the counts of moieties that are alike but for these; whether they are.
bool MoietyComparison::compare_tokens(const Moiety& left, const Moiety& right) {
    const bool are_alike = std::equal(
        left.tokens.begin(), left.tokens.end(), right.tokens.begin(), right.tokens.end(),
        [](const Token& a, const Token& b) { return a.kind == b.kind && a.symbol == b.symbol; });
    if (!are_alike) return false;
    for (std::size_t i = 0; i < left.tokens.size(); ++i) {
        Count counts[] = {left.tokens[i].count, right.tokens[i].count};
        const bool is_element = left.tokens[i].kind == Token::element;
        if (is_element) {
            counts[0].range = left.tokens[i].range;
            counts[1].range = right.tokens[i].range;
        }
        compare(is_element ? Reason::element : Reason::multiplier, left.tokens[i].symbol, counts[0],
                counts[1]);
    }
    return true;
}

void MoietyComparison::compare(const Composition& left, const Composition& right) {
    const auto count = [](const Composition::Element& element) {
        return Count{element.total, element.is_known, element.range};
    };
    for (const Composition::Element& element : left.elements) {
        const Composition::Element* const other = right.find(element.symbol);
        if (other && are_equal_totals(element.total, other->total)) continue;
        add(Reason::element, element.symbol, count(element),
            other ? count(*other) : none_at(place_of(element, right).from()));
    }
    for (const Composition::Element& element : right.elements) {
        if (left.find(element.symbol)) continue;
        add(Reason::element, element.symbol, none_at(place_of(element, left).from()),
            count(element));
    }
}

/// Notes the elements from the first to the last that the other side has not there.
void MoietyComparison::compare_orders(const Moiety& left, const Moiety& right) {
    const std::vector<const Token*> a = elements_of(left), b = elements_of(right);
    const auto is_same = [](const Token* x, const Token* y) { return x->symbol == y->symbol; };
    const auto front = std::mismatch(a.begin(), a.end(), b.begin(), b.end(), is_same);
    if (front.first == a.end() || front.second == b.end()) return;
    const auto back = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend(), is_same);
    if (back.first == a.rend() || back.second == b.rend()) return;
    const auto range = [](const Token* first, const Token* last) {
        return StringSlice(std::min(first->range.from(), last->range.from()),
                           std::max(first->range.to(), last->range.to()));
    };
    add_reordered({range(*front.first, *back.first), range(*front.second, *back.second)});
}

void MoietyComparison::add_reordered(const Ranges& ranges) {
    reordered_ = reordered_ ? Ranges{reordered_->first.combine(ranges.first),
                                     reordered_->second.combine(ranges.second)}
                            : ranges;
}

void MoietyComparison::compare(const Moiety& left, const Moiety& right) {
    const std::string_view subject =
        std::min(text_at(left_, left.content()), text_at(right_, right.content()));
    compare(Reason::multiplier, subject, left.multiplier, right.multiplier);
    compare_charges(subject, left, right);
    if (compare_tokens(left, right)) return;
    const Composition left_elements(left), right_elements(right);
    if (left_elements == right_elements) {
        compare_orders(left, right);
    } else {
        compare(left_elements, right_elements);
    }
}

void MoietyComparison::add_missing(const Moiety& left, unsigned int right_place) {
    Count count = left.multiplier;
    count.range = left.range;
    add(Reason::multiplier, text_at(left_, left.content()), count, none_at(right_place));
}

void MoietyComparison::add_added(unsigned int left_place, const Moiety& right) {
    Count count = right.multiplier;
    count.range = right.range;
    add(Reason::multiplier, text_at(right_, right.content()), none_at(left_place), count);
}
