#include "app/convert.h"

#include "text/TextItem.h"

namespace {

class Converter : public TextProcess {
public:
    explicit Converter(const ConvertOptions& options)
        : options_(options),
          finder_(options.from->make_finder()),
          generator_(options.to->make_generator()),
          item_(finder_) {}

    std::optional<std::string> process(const std::string& text,
                                       std::vector<std::string>& warnings) override {
        item_.set_text(text);
        item_.set_line_length(options_.line_length);
        std::string result = item_.mark_up_text(*generator_);
        if (options_.from->may_lack_letters && has_unknown_letter()) {
            warnings.emplace_back("warning: Greek code without a letter");
        }
        return result;
    }

private:
    /// Whether the last text has a Greek letter that no target can name and most leave out.
    bool has_unknown_letter() {
        letters_.clear();
        finder_->greek(letters_);
        for (const GreekSlice& letter : letters_) {
            if (letter.symbol() == TextItem::no_symbol) return true;
        }
        return false;
    }

    const ConvertOptions& options_;
    THandle<InputTextStyleFinder> finder_;
    THandle<RichTextGenerator> generator_;
    TextItem item_;
    std::vector<GreekSlice> letters_;
};

}  // namespace

bool convert(const ConvertOptions& options) {
    return process_texts(options.batch, "", [&] { return std::make_unique<Converter>(options); });
}
