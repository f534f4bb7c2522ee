// A batch of texts, as the program converts it.
#include "app/convert.h"

#include <algorithm>
#include <exception>

#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"
#include "tests/markup/shown_text.h"
#include "text/TextItem.h"

namespace {

/// What a batch leaves behind.
struct Ran {
    bool good;
    std::string output, reports;

    friend bool operator==(const Ran&, const Ran&) = default;
};

/// Catches the standard streams, which glibc allows to be replaced.
Ran run(const ConvertOptions& options) {
    std::FILE* const streams[] = {stdout, stderr};
    char* texts[] = {nullptr, nullptr};
    std::size_t sizes[] = {0, 0};
    stdout = open_memstream(&texts[0], &sizes[0]);
    stderr = open_memstream(&texts[1], &sizes[1]);
    const bool good = convert(options);  // closes standard output
    std::fclose(stderr);
    stdout = streams[0];
    stderr = streams[1];
    Ran ran{good, {texts[0], sizes[0]}, {texts[1], sizes[1]}};
    for (char* text : texts) std::free(text);
    return ran;
}

/// Adds what becomes of the text alone.
void add_text(const ConvertOptions& options, const std::string& place, const std::string& text,
              Ran& expected) {
    const auto finder = options.from->make_finder();
    try {
        TextItem item(finder, text);
        item.set_line_length(options.line_length);
        expected.output += item.mark_up_text(*options.to->make_generator());
        std::vector<GreekSlice> letters;
        finder->greek(letters);
        if (std::any_of(letters.begin(), letters.end(), [](const GreekSlice& letter) {
                return letter.symbol() == TextItem::no_symbol;
            })) {
            expected.reports += place + ": warning: Greek code without a letter\n";
        }
    } catch (const std::exception& error) {
        expected.good = false;
        expected.reports += place + ": " + error.what() + '\n';
    }
    expected.output += options.batch.separator;
}

/// Adds what becomes of the texts of a file, each alone; returns how many there are.
long add_file(const ConvertOptions& options, const std::string& path, std::string_view bytes,
              Ran& expected) {
    long texts = 0;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find(options.batch.separator), bytes.size());
        const std::string place = path + ':' + std::to_string(++texts);
        add_text(options, place, std::string(bytes.substr(0, end)), expected);
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
    }
    return texts;
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
void check_harmless(const ConvertOptions& options, const std::string& output) {
    const std::string target = options.to->name;
    if (!options.to->escapes) return;
    const std::string allowed = std::string("\n\t") + options.batch.separator;
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
    if ((flags & 1) != 0) options.batch.separator = '\0';
    const std::string bytes = input.rest();
    const std::size_t second = std::min<std::size_t>(flags >> 2, bytes.size());

    Ran expected{true, "", ""};
    long texts = 0;
    const MemoryFile files[] = {MemoryFile(bytes.substr(0, second)),
                                MemoryFile(bytes.substr(second))};
    const std::string_view whole = bytes;
    for (const std::string_view part : {whole.substr(0, second), whole.substr(second)}) {
        const std::string path = files[options.batch.files.size()].path();
        options.batch.files.push_back(path);
        texts += add_file(options, path, part, expected);
    }
    const Ran ran = run(options);
    require(ran.output == expected.output, "a batch gives what each text gives alone", ran.output);
    require(ran.reports == expected.reports, "each report names its text", ran.reports);
    require(ran.good == expected.good, "a batch fails where a text does", ran.reports);
    options.batch.jobs = 1 + (flags >> 1 & 1);
    require(run(options) == ran, "another run gives the same, with more jobs too", ran.output);
    const bool breaks_lines = options.line_length > 0 && options.batch.separator == '\n';
    require(breaks_lines ||
                std::count(ran.output.begin(), ran.output.end(), options.batch.separator) == texts,
            "each text keeps its place", ran.output);
    check_harmless(options, ran.output);
    return 0;
}
