#include "cli/Comparison.h"

#include <algorithm>
#include <utility>

#include "cli/Progress.h"
#include "cli/report.h"
#include "output/layouts.h"

namespace {

/// Whether a side was read; one that is empty was.
bool was_read(const ComparedSide& side) {
    return side.stream().count() > 0 || side.stream().good();
}

}  // namespace

Comparison::Comparison(const CompareOptions& options, ComparedSide& left, ComparedSide& right,
                       TextOutput& output)
    : options_(options),
      left_(left),
      right_(right),
      output_(output),
      layout_(make_comparison_layout(*options.to, options.positions)) {
    if (options.to->target) losses_.emplace(*options.to->target);
}

bool Comparison::has_sides() const { return was_read(left_) && was_read(right_); }

void Comparison::run() {
    if (!options_.only_summary) output_.write(layout_->head("Comparison"));
    if (left_.is_block() && right_.is_block()) {
        compare_named();
    } else {
        compare_paired();
    }
    good_ = good_ && left_.stream().good() && right_.stream().good();
    output_.write(options_.only_summary ? layout_->summary(summary_, options_.wanted)
                                        : layout_->foot_with(summary_, options_.wanted));
}

void Comparison::compare_named() {
    std::optional<EntryTexts> left = left_.next(options_.wanted);
    std::optional<EntryTexts> right = right_.next(options_.wanted);
    if (left && right) compare({std::move(*left), std::move(*right), PairingReason::named});
}

void Comparison::compare_paired() {
    Progress progress(options_.shows_progress && !output_.is_terminal(), "entries",
                      left_.stream().places() + right_.stream().places());
    const bool in_folders = left_.is_folder() || right_.is_folder();
    EntryPairing pairing;
    const auto add = [&](EntryPairing::Side side, std::optional<EntryTexts>& entry) {
        if (!entry) return;
        const ComparedSide& from = side == EntryPairing::left ? left_ : right_;
        const std::optional<EntryPair> pair = pairing.add(
            side, std::move(*entry), in_folders ? from.file_in_folder() : std::string());
        if (pair) compare(*pair);
    };
    while (true) {
        std::optional<EntryTexts> left = left_.next(options_.wanted);
        std::optional<EntryTexts> right = right_.next(options_.wanted);
        if (!left && !right) break;
        // So the left one finds another that stands in the same place.
        add(EntryPairing::right, right);
        add(EntryPairing::left, left);
        progress.update(left_.stream().count(),
                        left_.stream().places_read() + right_.stream().places_read());
    }
    if (!has_sides()) return;
    const EntryPairing::Rest rest = pairing.finish();
    for (const EntryPair& pair : rest.pairs) compare(pair);
    for (const EntryTexts& entry : rest.only_left) tell_of(entry, Verdict::only_left);
    for (const EntryTexts& entry : rest.only_right) tell_of(entry, Verdict::only_right);
}

void Comparison::compare(const EntryPair& pair) {
    const bool lists_all = options_.all && !options_.only_summary;
    EntryComparison compared(pair.left, pair.right, options_.wanted, options_.settings, lists_all);
    good_ = report(compared.problems) && good_;
    same_ = same_ && compared.same;
    summary_.add(pair.left, pair.right, compared);
    if (!lists_all) {
        std::erase_if(compared.fields, [](const ComparedField& field) {
            return field.verdict == Verdict::equivalent;
        });
    }
    if (options_.only_summary || (compared.fields.empty() && !lists_all)) return;
    std::vector<Problem> notes;
    for (const ComparedField& field : compared.fields) {
        for (const auto& item : {&field.left, &field.right}) {
            if (losses_ && *item) losses_->note_styles(**item, notes);
        }
    }
    write(layout_->comparison({pair.left.file, pair.left.block},
                              {pair.right.file, pair.right.block}, pair.reason, compared),
          std::move(notes));
}

void Comparison::tell_of(const EntryTexts& entry, Verdict verdict) {
    same_ = false;
    summary_.add_only(verdict);
    if (!options_.only_summary) write(layout_->only({entry.file, entry.block}, verdict), {});
}

void Comparison::write(LaidOutPart part, std::vector<Problem> notes) {
    if (losses_) losses_->note_characters(part.text, notes, true);
    good_ = report(notes) && good_;
    output_.write(layout_->add(std::move(part)));
}
