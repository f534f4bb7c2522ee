// A block of texts, as the program converts it.
#include <algorithm>
#include <exception>

#include "fuzz/Input.h"
#include "fuzz/shown_text.h"
#include "output/text_lines.h"
#include "text/TextItem.h"

namespace {

/// Adds what becomes of the text alone.
void add_text(const ConvertOptions& options, const std::string& text, ProcessedTexts& expected) {
    const auto finder = options.from->make_finder();
    try {
        TextItem item(finder, text);
        item.set_line_length(options.line_length);
        expected.output += item.mark_up_text(*options.to->make_generator());
        if (options.from->note_doubts) options.from->note_doubts(*finder, expected.problems);
    } catch (const std::exception& error) {
        expected.good = false;
        expected.problems.emplace_back().what = error.what();
    }
}

/// What becomes of the texts, each alone; the line of a problem is the number of the text.
ProcessedTexts expected_of(const ConvertOptions& options, std::string_view bytes, char separator) {
    ProcessedTexts expected;
    for (unsigned long number = 1; !bytes.empty(); ++number) {
        const std::size_t end = std::min(bytes.find(separator), bytes.size());
        const std::size_t noted = expected.problems.size();
        add_text(options, std::string(bytes.substr(0, end)), expected);
        for (std::size_t i = noted; i < expected.problems.size(); ++i) {
            expected.problems[i].line = number;
        }
        expected.output += separator;
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
    }
    return expected;
}

void require_equal(ProcessedTexts a, ProcessedTexts b) {
    require(a.output == b.output, "a batch gives what each text gives alone", a.output);
    require(a.good == b.good, "a batch fails where a text does", a.output);
    // What the target lacks is noted once a block.
    const auto is_note = [](const Problem& one) { return one.level == Problem::Level::note; };
    std::erase_if(a.problems, is_note);
    std::erase_if(b.problems, is_note);
    const auto same = [](const Problem& one, const Problem& other) {
        return one.line == other.line && one.what == other.what && one.level == other.level;
    };
    require(std::equal(a.problems.begin(), a.problems.end(), b.problems.begin(), b.problems.end(),
                       same),
            "each problem names its text", a.output);
}

/// The size of the target's own sequence at the front of the text, or 0.
std::size_t own_sequence(const std::string& target, std::string_view text) {
    if (target == "ansi" && text.starts_with("\x1b[")) {
        const std::size_t end = text.find_first_not_of("0123456789;", 2);
        return end != std::string_view::npos && text[end] == 'm' ? end + 1 : 0;
    }
    if (target != "html5") return 0;
    for (const std::string_view tag :
         {"<b>", "</b>", "<i>", "</i>", "<sub>", "</sub>", "<sup>", "</sup>", "<br>", "</span>",
          "<span style=\"text-decoration:overline\">", "<span style=\"color:#008b00\">"}) {
        if (text.starts_with(tag)) return tag.size();
    }
    return 0;
}

/// Nothing but the target's own sequences and layout may mean more than the characters shown.
void check_harmless(const ConvertOptions& options, char separator, const std::string& output) {
    const std::string target = options.to->name;
    if (!options.to->escapes || target == "cif-text") return;  // which files refuse, not texts
    const std::string allowed = std::string("\n\t") + separator;
    for (std::size_t i = 0; i < output.size();) {
        const std::string_view rest = std::string_view(output).substr(i);
        const std::size_t size = own_sequence(target, rest);
        const Utf8Character character = first_character(rest);
        require(character.valid, "what escapes is UTF-8", output);
        require(size > 0 || !acts(character.code) || allowed.find(rest[0]) != std::string::npos,
                "nothing that acts passes", output);
        require(size > 0 || target != "html5" || rest[0] != '<', "no tags pass", output);
        require(target != "markdown" || !rest.starts_with("//"), "no addresses pass", output);
        i += std::max(size, character.size);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    ConvertOptions options;
    options.from = &sources()[input.byte() % sources().size()];
    options.to = &rich_text_targets()[input.byte() % rich_text_targets().size()];
    options.line_length = input.byte() % 32;
    const unsigned int flags = input.byte();
    const char separator = (flags & 1) != 0 ? '\0' : '\n';
    const std::string bytes = input.rest();
    const MakeTextProcess make = [&] { return make_conversion(options); };

    const ProcessedTexts expected = expected_of(options, bytes, separator);
    require_equal(process_texts(bytes, separator, 1, make), expected);
    // Two blocks give what one gives.
    const std::size_t near_end = bytes.find(separator, std::min<std::size_t>(flags >> 1, size));
    const std::size_t cut = near_end == std::string::npos ? 0 : near_end + 1;
    ProcessedTexts first = process_texts(bytes.substr(0, cut), separator, 1, make);
    const auto texts = std::count(bytes.begin(), bytes.begin() + static_cast<long>(cut), separator);
    const ProcessedTexts second =
        process_texts(bytes.substr(cut), separator, static_cast<unsigned long>(texts) + 1, make);
    first.output += second.output;
    first.good = first.good && second.good;
    first.problems.insert(first.problems.end(), second.problems.begin(), second.problems.end());
    require_equal(first, expected);
    check_harmless(options, separator, expected.output);
    return 0;
}
