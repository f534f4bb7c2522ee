#include "app/show.h"

#include <exception>
#include <memory>
#include <nlohmann/json.hpp>

#include "app/Diagnostics.h"
#include "app/EntryForm.h"
#include "app/Field.h"
#include "app/InputFile.h"
#include "app/OrderedSearch.h"
#include "app/Page.h"
#include "app/TextOutput.h"
#include "app/load_entries.h"
#include "finders/TextSearchStyleFinder.h"
#include "markup/Html5RichTextGenerator.h"
#include "markup/TextItemToHtml5Greek.h"
#include "markup/TextItemToStringColor.h"
#include "markup/controls.h"
#include "suppliers/FieldTextSupplier.h"
#include "text/TextAtom.h"
#include "text/TextItem.h"

namespace {

using Json = nlohmann::ordered_json;

/// One field of an entry, ready to be written.
struct ShownField {
    const char* label;
    const char* group;
    TextItem item;
};

/// How entries are written, one after the other.
class Form {
public:
    Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form() = default;

    virtual std::string head() { return ""; }
    virtual std::string entry(const std::string& file, const CifEntry& entry,
                              const std::vector<ShownField>& fields) = 0;
    virtual std::string foot() { return ""; }
};

class Lines : public Form {
public:
    explicit Lines(const RichTextTarget& target) : form_(target) {}

    std::string entry(const std::string& file, const CifEntry& entry,
                      const std::vector<ShownField>& fields) override {
        std::string lines = form_.head(file + ": data_" + entry.block);
        for (const ShownField& field : fields) {
            lines += form_.row(field.label, field.item.mark_up_text(form_.generator()));
        }
        return lines + form_.foot();
    }

private:
    EntryForm form_;
};

class HtmlPage : public Form {
public:
    std::string head() override { return page_head("Crystal structures"); }
    std::string entry(const std::string& file, const CifEntry& entry,
                      const std::vector<ShownField>& fields) override {
        std::string section = page_section_head(page_name(entry.block), page_name(file));
        const char* group = "";
        for (const ShownField& field : fields) {
            if (field.group != std::string_view(group)) section += page_group(field.group);
            group = field.group;
            section += page_row(field.label, field.item.mark_up_text(generator_));
        }
        return section + page_section_foot();
    }
    std::string foot() override { return page_foot(); }

private:
    Html5RichTextGenerator generator_;
};

/// nlohmann's JSON with escapes, which stand only in strings, for what would act where it is shown
/// and for what would end a script of a page that embeds it.
std::string harmless(std::string_view json) {
    std::string result;
    while (!json.empty()) {
        const Utf8Character character = first_character(json);
        const char32_t code = character.code;
        const bool ends_line = code == 0x2028 || code == 0x2029;    // to JavaScript of old
        const bool acts = code >= 0x7F && !is_harmless(character);  // others it has escaped
        if (acts || ends_line || json.starts_with("<!--")) {
            result += "\\u";
            append_hexadecimal(result, code, 4);
        } else {
            result += json.substr(0, character.size);
            if (json.starts_with("</")) result += '\\';
        }
        json.remove_prefix(character.size);
    }
    return result;
}

/// One array of entries; bytes that are not UTF-8 become replacement characters.
class JsonArray : public Form {
public:
    std::string head() override { return "["; }
    std::string entry(const std::string& file, const CifEntry& entry,
                      const std::vector<ShownField>& fields) override {
        Json written{{"file", file}, {"block", entry.block}, {"fields", Json::array()}};
        for (const ShownField& field : fields) {
            Json atoms = Json::array();
            for (const TextAtom& atom : field.item.atomize()) atoms.push_back(json_of(atom));
            written["fields"].push_back({{"label", field.label},
                                         {"group", field.group},
                                         {"text", field.item.text()},
                                         {"markup", field.item.mark_up_text(generator_)},
                                         {"atoms", std::move(atoms)}});
        }
        const std::string separator = first_ ? "\n" : ",\n";
        first_ = false;
        return separator + harmless(written.dump(1, ' ', false, Json::error_handler_t::replace));
    }
    std::string foot() override { return "\n]\n"; }

private:
    /// The text and what is not as by default.
    static Json json_of(const TextAtom& atom) {
        Json json{{"text", atom.text()}};
        if (atom.valign() != 0) json["valign"] = atom.valign();
        if (atom.bold()) json["bold"] = true;
        if (atom.italic()) json["italic"] = true;
        if (atom.overstrike()) json["overstrike"] = true;
        if (atom.invisible()) json["invisible"] = true;
        if (atom.color() != TextItem::black) {
            json["color"] = TextItemToStringColor().convert(atom.color());
        }
        if (!atom.replacement_txt().empty()) json["replacement"] = atom.replacement_txt();
        if (atom.greek() != TextItem::no_symbol) {
            json["greek"] = TextItemToHtml5Greek().convert(atom.greek());
        }
        return json;
    }

    Html5RichTextGenerator generator_;
    bool first_ = true;
};

std::unique_ptr<Form> make_form(const ShowOptions& options) {
    if (!options.to->target) return std::make_unique<JsonArray>();
    const bool page = !options.path.empty() && std::string_view(options.to->name) == "html5";
    if (page) return std::make_unique<HtmlPage>();
    return std::make_unique<Lines>(*options.to->target);
}

/// Shows one file after the other.
class Show {
public:
    explicit Show(const ShowOptions& options)
        : options_(options),
          form_(make_form(options)),
          output_(options.path.empty() ? std::make_unique<TextOutput>()
                                       : std::make_unique<TextOutput>(options.path)) {}

    bool run() {
        for (const std::string& file : options_.files) {
            if (output_->is_at(file)) throw InputError(file + ": input file is output file");
        }
        output_->write(form_->head());
        for (const std::string& file : options_.files) show_file(file);
        // A file in that place is worth more than one without any entry.
        if (!good_ && !shown_any_ && !options_.path.empty()) return false;
        output_->write(form_->foot());
        output_->close();
        return good_;
    }

private:
    void show_file(const std::string& file) {
        const bool good =
            for_each_entry(file, [&](const CifEntry& entry) { show_entry(file, entry); });
        good_ = good_ && good;
    }

    void show_entry(const std::string& file, const CifEntry& entry) {
        std::vector<ShownField> fields;
        for (const LMRFieldNames::TextID id : options_.fields) add_field(file, entry, id, fields);
        output_->write(form_->entry(file, entry, fields));
        shown_any_ = true;
    }

    /// Adds a field that has a text; one that cannot be styled is reported.
    void add_field(const std::string& file, const CifEntry& entry, LMRFieldNames::TextID id,
                   std::vector<ShownField>& fields) {
        const std::string text = FieldTextSupplier(id).text(entry.entry);
        if (text.empty()) return;
        try {
            fields.push_back({LMRFieldNames::text(id), group_of(id), {finder(id), text}});
        } catch (const std::exception& error) {
            report(file + ": data_" + entry.block + ": " + LMRFieldNames::text(id) + ": " +
                   error.what());
            good_ = false;
        }
    }

    THandle<InputTextStyleFinder> finder(LMRFieldNames::TextID id) const {
        const Field field = field_of(id);
        if (options_.term.empty()) return field.source->make_finder();
        const auto search = make_handle<OrderedSearch>(field.search->make_search({}));
        search->set_search_term(options_.term);
        return make_handle<TextSearchStyleFinder>(search, field.source->make_finder());
    }

    const ShowOptions& options_;
    std::unique_ptr<Form> form_;
    std::unique_ptr<TextOutput> output_;
    bool good_ = true;
    bool shown_any_ = false;
};

}  // namespace

std::span<const Output> show_outputs() {
    static const std::vector<Output> outputs = outputs_with(
        "json", "labels, groups, texts, mark-up and runs of uniform style of each entry (.json)");
    return outputs;
}

bool show(const ShowOptions& options) { return Show(options).run(); }
