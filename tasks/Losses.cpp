#include "tasks/Losses.h"

#include <algorithm>
#include <iterator>

#include "markup/RichTextData.h"
#include "markup/RichTextTagFactory.h"
#include "markup/TextItemToOtherGreek.h"
#include "markup/ascii_text.h"
#include "tasks/styles_of.h"

namespace {

using Kind = TextItemStyle::Kind;

/// A kind of style that a target may lack, and how it is laid on a text.
struct Row {
    Kind kind;
    const char* name;
    void (*create)(TextItem& item);
};

constexpr Row rows[] = {
    {Kind::bold, "bold text", [](TextItem& item) { item.create_bold(0, 1); }},
    {Kind::italic, "italic text", [](TextItem& item) { item.create_italic(0, 1); }},
    {Kind::overstrike, "bars", [](TextItem& item) { item.create_overstrike(0, 1); }},
    {Kind::subscript, "subscripts", [](TextItem& item) { item.create_subscript(0, 1); }},
    {Kind::superscript, "superscripts", [](TextItem& item) { item.create_superscript(0, 1); }},
    {Kind::color, "colours", [](TextItem& item) { item.create_color(0, 1, TextItem::green4); }},
};

constexpr unsigned long flag_of(Kind kind) { return 1UL << static_cast<unsigned int>(kind); }

/// Sees of which kinds the styles of an item are, those that cover something, and leaves it to a
/// generator to write it: a second snapshot of the item would cost as much as a short text does.
class KindCollector : public RichTextGenerator {
public:
    KindCollector() : RichTextGenerator({}, {}) {}

    std::string mark_up_text(const RichTextData& data) const override {
        flags = 0;
        for (const THandle<TextItemStyle>& style : data.styles()) {
            if (!style->slice().empty()) flags |= flag_of(style->kind());
        }
        return writer ? writer->mark_up_text(data) : std::string();
    }

    RichTextGenerator* writer = nullptr;
    mutable unsigned long flags = 0;
};

constexpr AsciiForm ascii_forms[] = {
    {"tevo", folded_to_ascii, true},     {"cif", folded_to_ascii, true},
    {"cif-text", with_references, true}, {"html", with_references, false},
    {"qt", with_references, false},      {"html5", with_references, false},
};

}  // namespace

Losses::Losses(const RichTextTarget& target) : target_(target) {
    const AsciiForm* const form = ascii_form_of(target);
    is_ascii_ = form && form->is_usual;
    const THandle<RichTextGenerator> generator = target.make_generator();
    static_assert(std::size(rows) == kinds);
    for (std::size_t i = 0; i < kinds; ++i) is_lost_[i] = !shows_style(*generator, rows[i].create);
}

std::string Losses::mark_up(const TextItem& item, RichTextGenerator* generator) {
    thread_local KindCollector collector;  // kept, as making one costs more than what it does
    collector.writer = generator;
    std::string result = item.mark_up_text(collector);
    seen_ = collector.flags;
    return result;
}

void Losses::note_styles(const TextItem& item, std::vector<Problem>& problems) {
    mark_up(item, nullptr);
    note_seen_styles(problems);
}

void Losses::note_seen_styles(std::vector<Problem>& problems) {
    if (seen_ == 0) return;
    for (std::size_t i = 0; i < kinds; ++i) {
        if (!is_lost_[i] || (seen_ & flag_of(rows[i].kind)) == 0) continue;
        is_lost_[i] = false;
        Problem& note = problems.emplace_back();
        note.level = Problem::Level::note;
        note.is_of_run = true;
        note.what = std::string(target_.name) + " has no " + rows[i].name;
    }
}

void Losses::note_characters(std::string_view mark_up, std::vector<Problem>& problems,
                             bool is_of_run) const {
    const std::string_view beyond = is_ascii_ ? first_beyond_ascii(mark_up) : std::string_view();
    if (beyond.empty()) return;
    Problem& note = problems.emplace_back();
    note.level = Problem::Level::note;
    note.is_of_run = is_of_run;
    note.what = std::string(target_.name) + " has no code for";
    note.found = beyond;
}

const AsciiForm* ascii_form_of(const RichTextTarget& target) {
    const auto* const form = std::find_if(
        std::begin(ascii_forms), std::end(ascii_forms),
        [&](const AsciiForm& known) { return std::string_view(known.target) == target.name; });
    return form == std::end(ascii_forms) ? nullptr : form;
}
