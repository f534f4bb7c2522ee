#include "app/search.h"

#include <atomic>
#include <optional>
#include <utility>
#include <vector>

#include "app/OrderedSearch.h"
#include "finders/TextSearchStyleFinder.h"
#include "text/TextItem.h"

namespace {

class Searcher : public TextProcess {
public:
    /// Sets `matched` when a text matches.
    Searcher(const SearchOptions& options, std::atomic<bool>& matched)
        : only_matching_(options.only_matching),
          matched_(matched),
          search_(make_handle<OrderedSearch>(options.how->make_search(options.settings))) {
        search_->set_search_term(options.term);
        if (!options.to->target) return;
        generator_ = options.to->target->make_generator();
        highlighted_.emplace(
            make_handle<TextSearchStyleFinder>(search_, options.from->make_finder()));
    }

    std::optional<std::string> process(const std::string& text,
                                       std::vector<std::string>& /*warnings*/) override {
        std::string result = highlighted_ ? marked_up(text) : ranges_of(text);
        const bool matched = search_->matched() || !search_->ranges().empty();
        if (matched) matched_ = true;
        if (!matched && only_matching_) return std::nullopt;
        return result;
    }

private:
    std::string marked_up(const std::string& text) {
        highlighted_->set_text(text);
        return highlighted_->mark_up_text(*generator_);
    }

    std::string ranges_of(const std::string& text) const {
        std::vector<StringSlice> ranges;
        std::string line = search_->search(text, ranges) ? "true" : "false";
        for (const StringSlice& range : ranges) {
            line += '\t' + std::to_string(range.from()) + '-' + std::to_string(range.to());
        }
        return line;
    }

    bool only_matching_;
    std::atomic<bool>& matched_;
    THandle<OrderedSearch> search_;
    THandle<RichTextGenerator> generator_;
    std::optional<TextItem> highlighted_;  // none when only the ranges are written
};

}  // namespace

std::span<const Output> search_outputs() {
    static const std::vector<Output> outputs = outputs_with(
        "slices", "true or false, a tab, and the ranges in bytes from 0: false<TAB>14-30");
    return outputs;
}

SearchOutcome search(const SearchOptions& options) {
    std::atomic<bool> matched = false;
    const auto failed = options.only_matching ? std::nullopt : std::make_optional<std::string>();
    const bool good = process_texts(options.batch, failed,
                                    [&] { return std::make_unique<Searcher>(options, matched); });
    return {matched, good};
}
