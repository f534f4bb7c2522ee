#include "output/text_lines.h"

#include "tasks/TextConverter.h"
#include "tasks/TextSearcher.h"

namespace {

class Conversion : public TextProcess {
public:
    explicit Conversion(const ConvertOptions& options)
        : converter_(*options.from, *options.to, options.line_length, options.ascii) {}

    std::optional<std::string> process(const std::string& text,
                                       std::vector<Problem>& problems) override {
        return converter_.convert(text, problems);
    }

private:
    TextConverter converter_;
};

class Search : public TextProcess {
public:
    explicit Search(const SearchOptions& options)
        : only_matching_(options.only_matching),
          positions_(options.positions),
          searcher_(*options.from, *options.how, options.settings, options.term) {
        if (options.to->target) generator_ = options.to->target->make_generator();
    }

    std::optional<std::string> process(const std::string& text,
                                       std::vector<Problem>& /*problems*/) override {
        std::string result =
            generator_ ? searcher_.highlight(text).mark_up_text(*generator_) : ranges_of(text);
        const bool found = searcher_.found().matched() || !searcher_.found().ranges().empty();
        matched_ = matched_ || found;
        if (!found && only_matching_) return std::nullopt;
        return result;
    }
    std::optional<std::string> failed() const override {
        return only_matching_ ? std::nullopt : TextProcess::failed();
    }
    bool matched() const override { return matched_; }

private:
    std::string ranges_of(const std::string& text) {
        searcher_.search(text);
        std::optional<PositionTeller> teller;
        if (positions_) teller.emplace(searcher_.highlight(text), *positions_);
        std::string line = searcher_.found().matched() ? "true" : "false";
        for (const StringSlice& found : searcher_.found().ranges()) {
            const StringSlice range = teller ? teller->told(found) : found;
            line += '\t' + std::to_string(range.from()) + '-' + std::to_string(range.to());
        }
        return line;
    }

    bool only_matching_;
    std::optional<TextPositions> positions_;
    bool matched_ = false;
    TextSearcher searcher_;
    THandle<RichTextGenerator> generator_;  // null when only the ranges are written
};

}  // namespace

std::unique_ptr<TextProcess> make_conversion(const ConvertOptions& options) {
    return std::make_unique<Conversion>(options);
}

std::span<const Output> search_outputs() {
    static const std::vector<Output> outputs = outputs_with(
        {{"slices", "true or false, a tab, and the ranges in bytes from 0: false<TAB>14-30",
          nullptr}});
    return outputs;
}

std::unique_ptr<TextProcess> make_search(const SearchOptions& options) {
    return std::make_unique<Search>(options);
}
