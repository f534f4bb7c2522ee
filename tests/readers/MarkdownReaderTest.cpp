// Markdown as a parser of CommonMark that is not ours reads it.
#include <cmark.h>
#include <gmock/gmock.h>

#include <memory>

#include "fuzz/StyleLists.h"
#include "markup/Html5TagFactory.h"
#include "markup/MarkdownRichTextGenerator.h"
#include "markup/TextItemToUnicodeGreek.h"
#include "markup/Utf8.h"
#include "tests/HostileReports.h"
#include "tests/Random.h"

namespace {

/// Bytes with the styles in force: 1 for bold and 2 for italic.
class StyledBytes {
public:
    void open(std::string_view tag, int by) {
        if (tag == "b" || tag == "strong") bold_ += by;
        if (tag == "i" || tag == "em") italic_ += by;
    }
    void add(std::string_view text) {
        const char style = static_cast<char>('0' + (bold_ > 0 ? 1 : 0) + (italic_ > 0 ? 2 : 0));
        for (const char c : text) bytes_ += {style, c};
    }
    const std::string& bytes() const { return bytes_; }

private:
    std::string bytes_;
    int bold_ = 0, italic_ = 0;
};

/// Takes what is shown instead of writing it.
class ShownText : public NestingRichTextGenerator {
public:
    ShownText()
        : NestingRichTextGenerator(make_handle<Html5TagFactory>(),
                                   make_handle<TextItemToUnicodeGreek>()) {}

    mutable StyledBytes shown;

protected:
    void write_text(std::string& /*result*/, std::string_view text) const override {
        while (!text.empty()) {
            const Utf8Character character = first_character(text);
            shown.add(character.valid ? text.substr(0, character.size) : "\uFFFD");
            text.remove_prefix(character.size);
        }
    }
    void write_tag(std::string& /*result*/, const std::string& tag, TextItemStyle::Kind /*kind*/,
                   bool opens) const override {
        const std::size_t name = opens ? 1 : 2;
        shown.open(std::string_view(tag).substr(name, tag.size() - name - 1), opens ? 1 : -1);
    }
};

std::string shown(const RichTextData& data) {
    const ShownText generator;
    generator.mark_up_text(data);
    return generator.shown.bytes();
}

/// What the parser finds in one paragraph; a complaint where there is more than one, or another
/// block.
std::string read(const std::string& markdown) {
    const std::unique_ptr<cmark_node, decltype(&cmark_node_free)> document(
        cmark_parse_document(markdown.data(), markdown.size(), CMARK_OPT_DEFAULT), cmark_node_free);
    cmark_node* const paragraph = cmark_node_first_child(document.get());
    if (!paragraph) return "";
    if (cmark_node_get_type(paragraph) != CMARK_NODE_PARAGRAPH || cmark_node_next(paragraph)) {
        return "not one paragraph";
    }
    StyledBytes found;
    const std::unique_ptr<cmark_iter, decltype(&cmark_iter_free)> iter(cmark_iter_new(paragraph),
                                                                       cmark_iter_free);
    for (cmark_event_type event; (event = cmark_iter_next(iter.get())) != CMARK_EVENT_DONE;) {
        cmark_node* const node = cmark_iter_get_node(iter.get());
        const int by = event == CMARK_EVENT_ENTER ? 1 : -1;
        const char* const literal = cmark_node_get_literal(node);
        switch (cmark_node_get_type(node)) {
            case CMARK_NODE_STRONG:
                found.open("b", by);
                break;
            case CMARK_NODE_EMPH:
                found.open("i", by);
                break;
            case CMARK_NODE_HTML_INLINE: {
                const bool opens = literal[1] != '/';
                std::string_view tag = std::string_view(literal).substr(opens ? 1 : 2);
                found.open(tag.substr(0, tag.size() - 1), opens ? 1 : -1);
                break;
            }
            case CMARK_NODE_TEXT:
                found.add(literal);
                break;
            case CMARK_NODE_PARAGRAPH:
            case CMARK_NODE_SOFTBREAK:  // behind a <br>
                break;
            default:
                return "unexpected " + std::string(cmark_node_get_type_string(node));
        }
    }
    return found.bytes();
}

/// What the parser makes of a document but for its texts, and what its tables have.
std::string structure_of(const std::string& markdown) {
    const std::unique_ptr<cmark_node, decltype(&cmark_node_free)> document(
        cmark_parse_document(markdown.data(), markdown.size(), CMARK_OPT_DEFAULT), cmark_node_free);
    const std::unique_ptr<cmark_iter, decltype(&cmark_iter_free)> iter(
        cmark_iter_new(document.get()), cmark_iter_free);
    std::string structure;
    for (cmark_event_type event; (event = cmark_iter_next(iter.get())) != CMARK_EVENT_DONE;) {
        cmark_node* const node = cmark_iter_get_node(iter.get());
        const cmark_node_type type = cmark_node_get_type(node);
        if (type == CMARK_NODE_TEXT || type == CMARK_NODE_HTML_INLINE) continue;
        structure.append(event == CMARK_EVENT_ENTER ? " " : " /");
        structure += cmark_node_get_type_string(node);
        if (type != CMARK_NODE_HTML_BLOCK) continue;
        const std::string_view html = cmark_node_get_literal(node);
        for (std::size_t at = 0; (at = html.find('<', at)) != std::string_view::npos; ++at) {
            structure += html.substr(at, html.find('>', at) - at);
        }
    }
    return structure;
}

const MarkdownRichTextGenerator generator;

}  // namespace

TEST(MarkdownReader, GetsTheStructureOfReportsWhateverTextsSay) {
    const std::string structure = structure_of(reports_with("harmless", "markdown"));
    EXPECT_THAT(structure, testing::StartsWith(" document heading /heading list item paragraph"));
    for (const std::string& text : hostile_texts) {
        EXPECT_EQ(structure_of(reports_with(text, "markdown")), structure) << text;
    }
}

TEST(MarkdownReader, GetsEveryByteAloneAndBesideAnEdge) {
    using S = StyleLists;
    const StyleLists edges[] = {S(), S().bold(0, 1), S().italic(1, 2), S().bold(1, 3),
                                S().subscript(0, 2).bold(1, 2)};
    for (int byte = 1; byte < 128; ++byte) {
        const char c = static_cast<char>(byte);
        for (const std::string& text :
             {std::string{c}, std::string{'a', c, 'b'}, std::string{c, c, c, c},
              std::string{c, ' ', 'a'}, std::string{'1', c, ' ', 'a'}}) {
            for (const StyleLists& styles : edges) {
                const RichTextData data = styles.data(text);
                const std::string markdown = generator.mark_up_text(data);
                ASSERT_EQ(read(markdown), shown(data)) << markdown;
            }
        }
    }
}

TEST(MarkdownReader, GetsAnyTextInAnyStyles) {
    constexpr std::string_view units[] = {"a",  "b", "1", " ",    "-",  "(", "*", "_",    ".",
                                          "\\", "'", "é", "€",    "\n", "<", "[", "&#5;", "=",
                                          "#",  "`", "+", "\x9B", "@",  "/", ":", "www",  "mailto"};
    Random random(6);
    for (int round = 0; round < 20000; ++round) {
        const std::string text = random_text(random, units, 8);
        const StyleLists styles = StyleLists::random(random, 10);
        const RichTextData data = styles.data(text, random() % 4);
        const std::string markdown = generator.mark_up_text(data);
        ASSERT_EQ(read(markdown), shown(data)) << markdown << '\n' << styles;
    }
}
