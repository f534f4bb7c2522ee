#include "app/search.h"

#include <optional>
#include <utility>
#include <vector>

#include "app/OrderedSearch.h"
#include "finders/TextSearchStyleFinder.h"
#include "text/TextItem.h"

namespace {

/// Searches one text after the other.
class Searcher {
public:
    explicit Searcher(const SearchOptions& options)
        : search_(make_handle<OrderedSearch>(options.how->make_search(options.settings))) {
        search_->set_search_term(options.term);
        if (!options.to->target) return;
        generator_ = options.to->target->make_generator();
        highlighted_.emplace(
            make_handle<TextSearchStyleFinder>(search_, options.from->make_finder()));
    }

    /// Searches the text and returns what is written for it.
    std::string shown(const std::string& text) {
        if (!highlighted_) return ranges_of(text);
        highlighted_->set_text(text);
        return highlighted_->mark_up_text(*generator_);
    }

    /// Whether the text searched last matched, as a whole or in some range.
    bool matched() const { return search_->matched() || !search_->ranges().empty(); }

private:
    std::string ranges_of(const std::string& text) const {
        std::vector<StringSlice> ranges;
        std::string line = search_->search(text, ranges) ? "true" : "false";
        for (const StringSlice& range : ranges) {
            line += '\t' + std::to_string(range.from()) + '-' + std::to_string(range.to());
        }
        return line;
    }

    THandle<OrderedSearch> search_;
    THandle<RichTextGenerator> generator_;
    std::optional<TextItem> highlighted_;  // none when only the ranges are written
};

}  // namespace

std::span<const Output> search_outputs() {
    static const std::vector<Output> outputs =
        outputs_with("slices", "true or false and the ranges, tab-separated");
    return outputs;
}

SearchOutcome search(const SearchOptions& options) {
    Searcher searcher(options);
    SearchOutcome outcome{false, true};
    const auto failed = options.only_matching ? std::nullopt : std::make_optional<std::string>();
    outcome.good = process_texts(
        options.batch, failed,
        [&](const TextFile& /*file*/, std::string_view text) -> std::optional<std::string> {
            std::string shown = searcher.shown(std::string(text));
            if (searcher.matched()) {
                outcome.matched = true;
            } else if (options.only_matching) {
                return std::nullopt;
            }
            return shown;
        });
    return outcome;
}
