#include "app/convert.h"

#include "app/Diagnostics.h"
#include "text/TextItem.h"

namespace {

/// Converts one text after the other.
class Converter {
public:
    explicit Converter(const ConvertOptions& options)
        : options_(options),
          finder_(options.from->make_finder()),
          generator_(options.to->make_generator()),
          item_(finder_) {}

    std::string convert(std::string_view text) {
        item_.set_text(std::string(text));
        item_.set_line_length(options_.line_length);
        return item_.mark_up_text(*generator_);
    }

    /// Whether the last text has a Greek letter that no target can name and most leave out.
    bool has_unknown_letter() {
        letters_.clear();
        finder_->greek(letters_);
        for (const GreekSlice& letter : letters_) {
            if (letter.symbol() == TextItem::no_symbol) return true;
        }
        return false;
    }

private:
    const ConvertOptions& options_;
    THandle<InputTextStyleFinder> finder_;
    THandle<RichTextGenerator> generator_;
    TextItem item_;
    std::vector<GreekSlice> letters_;
};

}  // namespace

bool convert(const ConvertOptions& options) {
    Converter converter(options);
    return process_texts(options.batch, "", [&](const TextFile& file, std::string_view text) {
        std::string converted = converter.convert(text);
        if (options.from->may_lack_letters && converter.has_unknown_letter()) {
            report(file.name(), file.number(), "warning: Greek code without a letter");
        }
        return converted;
    });
}
