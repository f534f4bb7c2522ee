#include "app/convert.h"

#include <exception>

#include "app/Diagnostics.h"
#include "app/TextFile.h"
#include "app/TextOutput.h"
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

/// Returns whether every text of the file was converted.
bool convert_file(TextFile& file, Converter& converter, const ConvertOptions& options,
                  TextOutput& output) {
    bool good = true;
    for (std::string_view text; file.next(text);) {
        std::string converted;
        try {
            converted = converter.convert(text);
            if (options.from->may_lack_letters && converter.has_unknown_letter()) {
                report(file.name(), file.number(), "warning: Greek code without a letter");
            }
        } catch (const std::exception& error) {
            report(file.name(), file.number(), error.what());
            good = false;
        }
        converted += options.separator;
        output.write(converted);
    }
    return good;
}

}  // namespace

int convert(const ConvertOptions& options) {
    Converter converter(options);
    TextOutput output;
    bool good = true;
    for (const std::string& path : options.files) {
        try {
            TextFile file(path, options.separator);
            good = convert_file(file, converter, options, output) && good;
        } catch (const InputError& error) {
            report(error.what());
            good = false;
        }
    }
    output.close();
    return good ? 0 : 1;
}
