#include "app/compare.h"

#include <algorithm>
#include <exception>

#include "app/Diagnostics.h"
#include "app/EntryForm.h"
#include "app/Field.h"
#include "app/OrderedSearch.h"
#include "app/Page.h"
#include "app/TextOutput.h"
#include "app/load_entries.h"
#include "finders/TextSearchStyleFinder.h"
#include "suppliers/FieldTextSupplier.h"
#include "text/TextItem.h"

namespace {

/// One side of a field: its mark-up, and whether all of it matches the other side.
struct Side {
    std::string mark_up;
    bool matched;
};

class Comparison {
public:
    explicit Comparison(const CompareOptions& options)
        : options_(options),
          form_(*options.to),
          on_page_(std::string_view(options.to->name) == "html5") {}

    CompareOutcome run() {
        const LoadedEntries left = load_entries(options_.left);
        const LoadedEntries right = load_entries(options_.right);
        good_ = left.good && right.good;
        same_ = left.entries.size() == right.entries.size();
        if (!same_ && good_) {
            report(options_.left + " has " + std::to_string(left.entries.size()) + " entries, " +
                   options_.right + " has " + std::to_string(right.entries.size()));
        }
        if (on_page_) output_.write(page_head("Comparison"));
        const std::size_t pairs = std::min(left.entries.size(), right.entries.size());
        for (std::size_t i = 0; i < pairs; ++i) compare_entries(left.entries[i], right.entries[i]);
        if (on_page_) output_.write(page_foot());
        output_.close();
        return {same_, good_};
    }

private:
    void compare_entries(const CifEntry& left, const CifEntry& right) {
        const auto both = [this](const std::string& a, const std::string& b) {
            return on_page_ ? page_name(a) + " and " + page_name(b) : a + " and " + b;
        };
        const std::string title = both("data_" + left.block, "data_" + right.block);
        const std::string files = both(options_.left, options_.right);
        output_.write(on_page_ ? page_section_head(title, files)
                               : form_.head(files + ": " + title));
        for (const LMRFieldNames::TextID id : options_.fields) compare_field(id, left, right);
        output_.write(on_page_ ? page_section_foot() : form_.foot());
    }

    void compare_field(LMRFieldNames::TextID id, const CifEntry& left, const CifEntry& right) {
        const FieldTextSupplier supplier(id);
        const std::string left_text = supplier.text(left.entry);
        const std::string right_text = supplier.text(right.entry);
        if (left_text.empty() && right_text.empty()) return;
        const char* const label = LMRFieldNames::text(id);
        try {
            const Side left_side = side(id, left_text, right_text);
            const Side right_side = side(id, right_text, left_text);
            const bool same = left_text == right_text || (left_side.matched && right_side.matched);
            same_ = same_ && same;
            output_.write(on_page_ ? page_pair(label, left_side.mark_up, right_side.mark_up, same)
                                   : lines(label, left_side.mark_up, right_side.mark_up, same));
        } catch (const std::exception& error) {
            report("data_" + left.block + " and data_" + right.block + ": " + label + ": " +
                   error.what());
            good_ = false;
        }
    }

    Side side(LMRFieldNames::TextID id, const std::string& text, const std::string& other) {
        if (text.empty()) return {"", false};
        const Field field = field_of(id);
        const auto search =
            make_handle<OrderedSearch>(field.search->make_comparison(options_.settings));
        search->set_search_term(other);
        const TextItem item(make_handle<TextSearchStyleFinder>(search, field.source->make_finder()),
                            text);
        return {item.mark_up_text(form_.generator()), search->matched()};
    }

    std::string lines(const std::string& label, const std::string& left, const std::string& right,
                      bool same) const {
        if (same && left == right) return form_.row('=', label, left);
        return form_.row(same ? '=' : '<', label, left) + form_.row(same ? '=' : '>', label, right);
    }

    const CompareOptions& options_;
    EntryForm form_;
    bool on_page_;
    TextOutput output_;
    bool same_ = true;
    bool good_ = true;
};

}  // namespace

CompareOutcome compare(const CompareOptions& options) { return Comparison(options).run(); }
