#include "output/JsonLayout.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string_view>
#include <utility>

#include "markup/TextItemToHtml5Greek.h"
#include "markup/TextItemToStringColor.h"
#include "markup/Utf8.h"
#include "markup/internal/controls.h"
#include "text/Position.h"
#include "text/TextAtom.h"
#include "text/TextItem.h"

namespace {

using Json = nlohmann::ordered_json;

/// The text and what is not as by default.
Json json_of(const TextAtom& atom) {
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

/// The runs of uniform style.
Json atoms_of(const TextItem& item, const std::optional<TextPositions>& positions) {
    std::optional<PositionTeller> teller;
    if (positions) teller.emplace(item, *positions);
    Json atoms = Json::array();
    unsigned int from = 0;
    for (const TextAtom& atom : item.atomize()) {
        const unsigned int to = from + length_of(atom.text());
        Json written = json_of(atom);
        if (teller && !item.characters().empty()) {
            const StringSlice place = teller->told({from, to});
            written["from"] = place.from();
            written["to"] = place.to();
        }
        atoms.push_back(std::move(written));
        from = to;
    }
    return atoms;
}

/// nlohmann's JSON with escapes, which stand only in strings, for what would act where it is shown
/// and for what would end a script of a page that embeds it.
std::string harmless(std::string_view json) {
    const auto may_act = [](char c) { return c == '<' || static_cast<unsigned char>(c) >= 0x7F; };
    std::string result;
    result.reserve(json.size());
    while (true) {
        const auto next = std::find_if(json.begin(), json.end(), may_act);
        const auto plain = static_cast<std::size_t>(next - json.begin());
        result += json.substr(0, plain);
        json.remove_prefix(plain);
        if (json.empty()) return result;
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
}

}  // namespace

JsonLayout::~JsonLayout() = default;

std::string JsonLayout::head(const std::string& /*title*/) { return "["; }
std::string JsonLayout::foot() { return "\n]\n"; }
std::string JsonLayout::separator() const { return ","; }

std::string JsonLayout::entry(const std::string& file, const std::string& block,
                              const std::vector<EntryField>& fields) {
    Json written{{"file", file}, {"block", block}, {"fields", Json::array()}};
    for (const EntryField& field : fields) {
        written["fields"].push_back({{"label", field.label},
                                     {"group", field.group},
                                     {"text", field.item.text()},
                                     {"displayed", DisplayedText(field.item).text()},
                                     {"markup", field.item.mark_up_text(generator_)},
                                     {"atoms", atoms_of(field.item, positions_)}});
    }
    return '\n' + harmless(written.dump(1, ' ', false, Json::error_handler_t::replace));
}
