#include "app/show.h"

#include <exception>
#include <memory>

#include "app/CifFile.h"
#include "app/Diagnostics.h"
#include "app/Page.h"
#include "app/TextFile.h"
#include "app/TextOutput.h"
#include "finders/CifChemicalNameStyleFinder.h"
#include "text/TextItem.h"

namespace {

/// Shows one file after the other, on a page or as lines.
class Show {
public:
    explicit Show(const ShowOptions& options)
        : generator_(options.to->make_generator()),
          output_(options.page.empty() ? std::make_unique<TextOutput>()
                                       : std::make_unique<TextOutput>(options.page)),
          on_page_(!options.page.empty()) {}

    bool run(const std::vector<std::string>& files) {
        if (on_page_) output_->write(page_head("Names of crystal structures"));
        for (const std::string& file : files) show_file(file);
        if (on_page_) output_->write(page_foot());
        output_->close();
        return good_;
    }

private:
    void show_file(const std::string& file) {
        try {
            for (const CifEntry& entry : read_cif_entries(file)) show_entry(file, entry);
        } catch (const InputError& error) {
            fail(error.what());
        } catch (const CifError& error) {
            fail(error.what());
        }
    }

    void show_entry(const std::string& file, const CifEntry& entry) {
        std::string shown =
            on_page_ ? page_section_head(entry.name, file) : file + ": data_" + entry.name + '\n';
        for (const CifField& field : entry.fields) {
            const std::string text = mark_up(file, field);
            shown +=
                on_page_ ? page_row(field.label, text) : "    " + field.label + ": " + text + '\n';
        }
        if (on_page_) shown += page_section_foot();
        output_->write(shown);
    }

    /// The field's mark-up; empty, and reported, when its text cannot be styled.
    std::string mark_up(const std::string& file, const CifField& field) {
        try {
            return TextItem(make_handle<CifChemicalNameStyleFinder>(), field.text)
                .mark_up_text(*generator_);
        } catch (const std::exception& error) {
            report(file, field.line, field.label + ": " + error.what());
            good_ = false;
            return "";
        }
    }

    void fail(const std::string& message) {
        report(message);
        good_ = false;
    }

    THandle<RichTextGenerator> generator_;
    std::unique_ptr<TextOutput> output_;
    bool on_page_;
    bool good_ = true;
};

}  // namespace

bool show(const ShowOptions& options) { return Show(options).run(options.files); }
