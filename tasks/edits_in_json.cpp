#include "tasks/edits_in_json.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "tasks/View.h"

namespace {

using Json = nlohmann::json;

constexpr const char *file_key = "file", *block_key = "block", *fields_key = "fields",
                     *label_key = "label", *text_key = "text";

/// Drops what does not count while it is read: it may be much.
bool counts(int /*depth*/, Json::parse_event_t event, Json& parsed) {
    if (event != Json::parse_event_t::key) return true;
    const auto& read = parsed.get_ref<const std::string&>();
    const auto is_key = [&read](const char* key) { return read == key; };
    const auto keys = {file_key, block_key, fields_key, label_key, text_key};
    return std::any_of(keys.begin(), keys.end(), is_key);
}

/// "line 12, column 5" of the byte.
std::string place_in(std::string_view json, std::size_t byte) {
    const std::string_view before = json.substr(0, byte);
    const auto lines = std::count(before.begin(), before.end(), '\n');
    const std::size_t column = before.size() - (before.rfind('\n') + 1);
    return "line " + std::to_string(lines + 1) + ", column " + std::to_string(column + 1);
}

Json parsed(std::string_view json) {
    try {
        return Json::parse(json.begin(), json.end(), counts);
    } catch (const Json::parse_error& error) {
        // It counts from 1.
        const std::size_t byte = error.byte > 0 ? error.byte - 1 : 0;
        if (byte >= json.size()) throw EditsError("JSON is cut short");
        throw EditsError("not JSON: " + place_in(json, byte));
    } catch (const Json::exception&) {
        throw EditsError("JSON has a number that is too large");
    }
}

[[noreturn]] void refuse(std::size_t entry, const std::string& expected) {
    throw EditsError("expected " + expected + " in entry " + std::to_string(entry + 1));
}

const std::string& text_in(const Json& object, const char* key, std::size_t entry) {
    const auto found = object.is_object() ? object.find(key) : object.end();
    if (found == object.end() || !found->is_string()) {
        refuse(entry, std::string("a text for \"") + key + '"');
    }
    return found->get_ref<const std::string&>();
}

EntryEdit::FieldText field_text(const Json& json, std::size_t entry) {
    const Field& field = field_named(text_in(json, label_key, entry));
    const auto found = json.find(text_key);
    if (found != json.end() && found->is_null()) return {&field, ""};
    return {&field, text_in(json, text_key, entry)};
}

}  // namespace

std::vector<EntryEdit> edits_in_json(std::string_view json) {
    const Json entries = parsed(json);
    if (!entries.is_array()) throw EditsError("expected an array of entries");
    std::vector<EntryEdit> edits;
    edits.reserve(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        EntryEdit& edit = edits.emplace_back();
        edit.file = text_in(entries[i], file_key, i);
        edit.block = text_in(entries[i], block_key, i);
        const auto fields = entries[i].find(fields_key);
        if (fields == entries[i].end() || !fields->is_array()) {
            refuse(i, "an array for \"fields\"");
        }
        for (const Json& field : *fields) edit.fields.push_back(field_text(field, i));
    }
    return edits;
}

std::string as_in_json(const std::string& text) {
    const std::string written = Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
    return Json::parse(written).get<std::string>();
}
